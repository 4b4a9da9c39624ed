#pragma once

#include "core/foundation/Result.h"

#include <QString>

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

/** A failure with the path in its text. */
[[nodiscard]] core::Failure placeFailure(const char* text, const QString& path);

} // namespace tw::app::workspace
