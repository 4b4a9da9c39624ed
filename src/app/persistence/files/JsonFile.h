#pragma once

#include "app/persistence/files/SafeWriter.h"

#include <QJsonObject>

namespace tw::app::persistence {

/**
 * Writes a JSON file through the writer, unless it holds these very bytes already: an unchanged file keeps
 * its times, so that sync clients see only real changes.
 */
[[nodiscard]] core::Result<void> writeJsonFile(
    FileSystem& fileSystem, SafeWriter& writer, const QString& path, const QByteArray& bytes);

/** The same on the computer's own file system, with the name in its folder made to last as well. */
[[nodiscard]] core::Result<void> writeJsonFile(const QString& path, const QJsonObject& object);

} // namespace tw::app::persistence
