#pragma once

#include "core/foundation/Result.h"

#include <QString>

class QSettings;

/** Dialogs about projects as wholes: making, opening, restoring them, and what is set for one. */
namespace tw::desktop::project {

enum class ProjectForm : qint32
{
    SingleFile = 0,
    Folder = 1,
};

/** "One file (recommended)" or "A folder". */
[[nodiscard]] QString formTitle(ProjectForm form);
/** What a project in this form is good for, in one sentence. */
[[nodiscard]] QString formExplanation(ProjectForm form);

/** The form that new projects get unless another one is chosen: "general/folderProjects". */
[[nodiscard]] ProjectForm preferredForm(const QSettings& settings);
void setPreferredForm(QSettings& settings, ProjectForm form);

/** Where a project is to come into being. */
struct NewPlace
{
    /** As the user writes it; need not be fit for a file. */
    QString name;
    /** The folder in which the project's file or folder is to lie. */
    QString folder;
    ProjectForm form = ProjectForm::SingleFile;

    bool operator==(const NewPlace&) const = default;
};

/** The path of the project's file or folder, whose name is made fit for every system. */
[[nodiscard]] QString pathOf(const NewPlace& place);

/** Refuses a place without a name or a folder, inside another project, or where something lies already. */
[[nodiscard]] core::Result<void> checkPlace(const NewPlace& place);

/** The name, with a number behind it when something of that name lies in the folder already. */
[[nodiscard]] NewPlace withFreeName(NewPlace place);

/**
 * The path at which to save what a file dialog gave: the ending decides, and without one of ours the form
 * does.
 */
[[nodiscard]] QString pathToSaveAt(const QString& chosen, ProjectForm form);

/** Where dialogs for new projects start: where the last one was made, at first in the documents. */
[[nodiscard]] QString usualFolder(const QSettings& settings);
void setUsualFolder(QSettings& settings, const QString& folder);

} // namespace tw::desktop::project
