#include "desktop/shell/LibraryObjects.h"

#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

namespace tw::desktop::shell {

app::codex::ObjectScope libraryScope(const ProjectSession& session)
{
    app::codex::ObjectScope scope;
    for (const app::workspace::MountedLibrary& library : session.workspace().libraries())
        scope.libraries.push_back(library.project.get());
    return scope;
}

QString libraryNote(const ProjectSession& session, const core::ContentId& id)
{
    for (const app::workspace::MountedLibrary& library : session.workspace().libraries()) {
        if (const auto* const object = library.project->find(id)) {
            return QCoreApplication::translate(
                       "LibraryObjects",
                       "“%1” stands in the library “%2”. Open that project to read or change it.")
                .arg(objectTitle(*object), library.name);
        }
    }
    return {};
}

} // namespace tw::desktop::shell
