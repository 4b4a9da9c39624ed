#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/files/SafeWriter.h"

#include <QList>

namespace tw::app::persistence {

/**
 * Writes files into folders that nobody uses yet, all or none of them as far as the medium allows: since no
 * single one of them has to be safe before all are, they reach the medium together, which for many files is
 * several times faster. The folders exist, and the names in them are on the medium as well when it succeeds.
 * After a failure `committed` is the place of a file that could not be written.
 */
[[nodiscard]] BatchOutcome writeFreshFiles(
    const StorageEnvironment& environment, const QString& root, const QList<FileWrite>& files);

} // namespace tw::app::persistence
