#pragma once

#include <QString>

namespace tw::bench {

/** What a process keeps in memory while its resident size is taken. */
enum class Kept
{
    Workspace,     ///< The project, open, with all that a save and a merge need to know of the disk.
    JsonDocuments, ///< Every file as a QJsonDocument.
};

/**
 * How many bytes of memory a fresh process of this program grows by when it opens the folder, the least of
 * several processes. Ends the benchmark where the system does not tell.
 */
[[nodiscard]] double residentGrowth(Kept kept, const QString& folder, int processes);

/** What such a process does: opens the folder and prints the growth in bytes. */
void printResidentGrowth(Kept kept, const QString& folder);

/** The option under which main() calls printResidentGrowth. */
[[nodiscard]] QString residentOption(Kept kept);

} // namespace tw::bench
