#pragma once

#include "app/workspace/templates/ProjectTemplates.h"
#include "desktop/project/NewPlace.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <optional>

class QListWidget;

namespace tw::desktop::fields {
class NoteLabel;
}

namespace tw::desktop::project {

class PlaceRows;

/** A project to be made. */
struct NewProject
{
    NewPlace place;
    app::workspace::templates::ProjectTemplate chosen = app::workspace::templates::ProjectTemplate::Novel;

    bool operator==(const NewProject&) const = default;
};

/** Asks what project to make and where. Makes nothing by itself. */
class NewProjectDialog final : public QDialog
{
    Q_OBJECT

public:
    NewProjectDialog(const shell::DeskContext& desk, const NewProject& start, QWidget* parent);

    [[nodiscard]] NewProject project() const;

private:
    void fillTemplates(app::workspace::templates::ProjectTemplate chosen);
    void describeTemplate();

    PlaceRows* m_place = nullptr;
    QListWidget* m_templates = nullptr;
    fields::NoteLabel* m_description;
};

/** The project that the user settled on, beginning with `start`; none when the dialog was left. */
[[nodiscard]] std::optional<NewProject> askForNewProject(
    const shell::DeskContext& desk, QWidget* parent, const NewProject& start);

/** Begins with the usual folder, a free name and the first template. */
[[nodiscard]] std::optional<NewProject> askForNewProject(const shell::DeskContext& desk, QWidget* parent);

} // namespace tw::desktop::project
