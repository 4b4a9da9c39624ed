#pragma once

#include <QByteArray>
#include <QString>

#include <map>

namespace tw::core::project {
class Project;
}

namespace tw::app::persistence {

/** The files of a project: path from its root to content. */
using ProjectFileMap = std::map<QString, QByteArray>;

/** All files that hold the project, as a save writes them. The project must not change meanwhile. */
[[nodiscard]] ProjectFileMap serializeProject(const core::project::Project& project);

} // namespace tw::app::persistence
