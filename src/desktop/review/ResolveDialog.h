#pragma once

#include "app/persistence/merge/ProjectMerge.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <vector>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTableView;
class QVBoxLayout;

namespace tw::desktop::review {

class ConflictModel;

/** The choice for one file. */
struct FileResolution
{
    QString path;
    app::persistence::Resolution resolution;
};

/**
 * The window in which the user chooses, file by file, between the version here and the one on disk. Shows
 * what the versions do not have in common. It can be accepted once every file is decided.
 */
class ResolveDialog final : public QDialog
{
    Q_OBJECT

public:
    /** The merge must outlive the dialog. */
    ResolveDialog(
        const shell::DeskContext& desk, const app::persistence::ProjectMerge& merge, QWidget* parent);

    /** One for every conflict. */
    [[nodiscard]] std::vector<FileResolution> resolutions() const;

private:
    [[nodiscard]] QLabel* makeLabel(const QString& text);
    void addIntroduction(QVBoxLayout& layout, const app::persistence::ProjectMerge& merge);
    void addTable(QVBoxLayout& layout);
    void addChoices(QVBoxLayout& layout);
    void addButtons(QVBoxLayout& layout);
    void chooseForSelected(app::persistence::Resolution resolution);
    void chooseForAll(app::persistence::Resolution resolution);
    void showCurrent();
    void showChoice();
    void showDifferences();

    struct Choice
    {
        app::persistence::Resolution resolution;
        QRadioButton* button;
    };

    shell::DeskContext m_desk;
    ConflictModel* m_model;
    QTableView* m_table;
    std::vector<Choice> m_choices;
    QPlainTextEdit* m_differences;
    QPushButton* m_apply = nullptr;
};

} // namespace tw::desktop::review
