#pragma once

#include "core/foundation/Result.h"
#include "core/project/ProjectSettings.h"

#include <QString>

#include <vector>

/** Questions about the places where projects lie or are to lie. Failures are worded for the user. */
namespace tw::app::workspace {

/** A folder that holds a project, or parts of one. */
[[nodiscard]] bool holdsProject(const QString& folder);

/**
 * Whether there is a project folder to load. One whose project document is missing is refused, although the
 * rest would load: a sync client may still be at work, and saving would write the project's settings anew.
 */
[[nodiscard]] core::Result<void> checkIsProject(const QString& folder);

/** Copies everything of a project folder that is not written from memory: assets and what lies beside them.
 */
[[nodiscard]] core::Result<void> copyOtherFiles(const QString& from, const QString& to);

/** Whether a project at the path is one file, now or when it is written there. */
[[nodiscard]] bool isSingleFile(const QString& path);

/** The folder that a project's relative paths start from: its own, or that of its single file. */
[[nodiscard]] QString baseOfRelativePaths(const QString& place);

/** The same libraries, as a project at `to` names them that was at `from`. Absolute paths stay. */
[[nodiscard]] std::vector<core::project::LibraryMount> movedMounts(
    std::vector<core::project::LibraryMount> mounts, const QString& from, const QString& to);

/** A failure with the path in its text. */
[[nodiscard]] core::Failure placeFailure(const char* text, const QString& path);

} // namespace tw::app::workspace
