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
    /** Has the keyboard begin in the list of audiences instead of at the top. */
    void focusAudiences();

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

/** What the dialog opens at. */
enum class ProjectSettingsPart
{
    Name,
    Audiences,
};

/** Has the user change the open project's settings, as one step. */
void editProjectSettings(
    const shell::DeskContext& desk, QWidget* parent, ProjectSettingsPart part = ProjectSettingsPart::Name);

} // namespace tw::desktop::project
