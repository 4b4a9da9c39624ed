#pragma once

#include "app/persistence/files/SafeWriter.h"

#include <QJsonObject>

namespace tw::app::persistence {

/** The messages of a file that cannot be opened, and of one that holds no JSON object. */
[[nodiscard]] core::Failure cannotRead(const QString& path);
[[nodiscard]] core::Failure invalidJson(const QString& path);

/** The top-level object of a file, or why there is none. */
[[nodiscard]] core::Result<QJsonObject> readJsonFile(const QString& path);

/**
 * Writes a JSON file through the writer, unless it holds these very bytes already: an unchanged file keeps
 * its times, so that sync clients see only real changes.
 */
[[nodiscard]] core::Result<void> writeJsonFile(
    FileSystem& fileSystem, SafeWriter& writer, const QString& path, const QByteArray& bytes);

/** The same on the computer's own file system, with the name in its folder made to last as well. */
[[nodiscard]] core::Result<void> writeJsonFile(const QString& path, const QJsonObject& object);

} // namespace tw::app::persistence
