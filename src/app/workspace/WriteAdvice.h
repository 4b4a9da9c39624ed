#pragma once

#include "app/persistence/StorageEnvironment.h"

#include <QString>

namespace tw::app::workspace {

/**
 * What to do about a folder whose disk has no room for so many bytes, or that nothing may be written in.
 * Empty when nothing of the kind is in the way.
 */
[[nodiscard]] QString writeAdvice(
    persistence::FileSystem& fileSystem, const QString& folder, qint64 bytes = 0);

/**
 * The advice about the place of a write that failed, or else about the data folder, and behind it the
 * message: where a line is cut, the advice is read. The path is that of what was to be written.
 */
[[nodiscard]] QString withWriteAdvice(
    const persistence::StorageEnvironment& environment, const QString& message, const QString& path);

} // namespace tw::app::workspace
