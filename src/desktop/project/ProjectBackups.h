#pragma once

#include "desktop/shell/DeskContext.h"

#include <QObject>

#include <functional>

class QWidget;

namespace tw::desktop::project {

/** Backups as the user meets them: made of the open project, and made into new ones. */
class ProjectBackups final : public QObject
{
    Q_OBJECT

public:
    /** Questions appear above the window, which is the parent. */
    ProjectBackups(const shell::DeskContext& desk, QWidget* window);

    /** Saves the open project before it is backed up, and tells when that fails. */
    void setSave(std::function<bool()> save) { m_save = std::move(save); }

    void backUp();
    /** Asks for a backup and a place. */
    void chooseAndRestore();
    /** The same with a backup that is chosen already; true when a project was made of it. */
    bool restore(const QString& backupPath);
    /** Shows the folder in the system's file manager. */
    void revealFolder();

signals:
    /** For the status bar. */
    void said(const QString& text);
    /** A new project lies at the path. */
    void restored(const QString& projectPath);

private:
    shell::DeskContext m_desk;
    QWidget* m_window;
    std::function<bool()> m_save;
};

} // namespace tw::desktop::project
