#pragma once

#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "core/foundation/Result.h"

#include <QByteArray>

namespace tw::core::project {
class Project;
}

namespace tw::app::persistence {

/** Appends the bytes of project.json: the name and everything that belongs to the project as a whole. */
void appendProjectDocument(QByteArray& output, const core::project::Project& project);

[[nodiscard]] QByteArray serializeProjectDocument(const core::project::Project& project);

/** Sets what the file has, the project keeps the rest as it is; a failure names the path. */
[[nodiscard]] core::Result<void> readProjectDocument(
    const QByteArray& bytes, const QString& path, core::project::Project& project);

} // namespace tw::app::persistence
