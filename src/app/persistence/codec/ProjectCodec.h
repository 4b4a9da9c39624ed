#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace tw::core::project {
class Project;
}

namespace tw::app::persistence {

/** Appends the bytes of project.json: the name and everything that belongs to the project as a whole. */
void appendProjectFile(QByteArray& output, const core::project::Project& project);

/** Sets what the file has; the project keeps the rest as it is. */
void readProjectFile(const QJsonObject& json, core::project::Project& project);

} // namespace tw::app::persistence
