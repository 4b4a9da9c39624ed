#pragma once

#include "desktop/settings/SettingsPage.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

class QListWidget;
class QStackedWidget;

namespace tw::desktop::proofreading {
class ProofreadingService;
}

namespace tw::desktop::settings {

class Shortcuts;

/** What the user sets for the program. Everything takes effect at once. */
class SettingsDialog final : public QDialog
{
    Q_OBJECT

public:
    SettingsDialog(
        const shell::DeskContext& desk, Shortcuts& shortcuts, proofreading::ProofreadingService& proofreading,
        QWidget* parent);

    void showPage(SettingsPage page);

signals:
    /** Open pages are to take up how pages are set now. */
    void editorSettingsChanged();

private:
    /** Pages are added in the order of SettingsPage. */
    void addPage(const QString& title, const QIcon& icon, QWidget* page);
    void fitPageList();

    QListWidget* m_list;
    QStackedWidget* m_pages;
};

} // namespace tw::desktop::settings
