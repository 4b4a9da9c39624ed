#pragma once

#include "desktop/project/ProjectSettings.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

class QLineEdit;

namespace tw::desktop::fields {
class ListEditor;
class NoteLabel;
} // namespace tw::desktop::fields

namespace tw::desktop::project {

/** Asks what is to be set for the project as a whole. Changes nothing by itself. */
class ProjectSettingsDialog final : public QDialog
{
    Q_OBJECT

public:
    ProjectSettingsDialog(const shell::DeskContext& desk, const ProjectSettings& settings, QWidget* parent);

    [[nodiscard]] ProjectSettings settings() const;

    /** Stays open while something cannot be so, and says what. */
    void accept() override;

private:
    void addAudiences();
    void addAudience(const AudienceRow& row);
    void removeAudience(int row);
    void addLibraries();
    void addLibrary(const core::project::LibraryMount& mount);
    void chooseLibrary(const QString& path);

    shell::DeskContext m_desk;
    QLineEdit* m_name;
    fields::ListEditor* m_audiences;
    fields::ListEditor* m_libraries;
    fields::NoteLabel* m_note;
};

/** Has the user change the open project's settings, as one step. */
void editProjectSettings(const shell::DeskContext& desk, QWidget* parent);

} // namespace tw::desktop::project
