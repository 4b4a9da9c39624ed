#pragma once

#include "app/persistence/files/SafeWriter.h"

#include <QJsonObject>

namespace tw::app::persistence {

/** The messages of a file that cannot be opened, and of one that holds no JSON object. */
[[nodiscard]] core::Failure cannotRead(const QString& path);
[[nodiscard]] core::Failure invalidJson(const QString& path);

/** The top-level object of a file, or why there is none. */
[[nodiscard]] core::Result<QJsonObject> readJsonFile(FileSystem& fileSystem, const QString& path);

/**
 * Writes an object through the writer, unless the file holds these very bytes already: an unchanged file
 * keeps its times, so that sync clients see only real changes. The writer's folders are the caller's to sync.
 */
[[nodiscard]] core::Result<void> writeJsonFile(
    FileSystem& fileSystem, SafeWriter& writer, const QString& path, const QJsonObject& object);

} // namespace tw::app::persistence
