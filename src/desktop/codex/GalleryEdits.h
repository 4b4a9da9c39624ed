#pragma once

#include "core/foundation/Id.h"
#include "core/foundation/Result.h"

#include <QStringList>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::codex {

// Every function here is one undo step, or none when there is nothing to do.

/**
 * Copies the files into the project's assets and puts them at the end of the entity's gallery. A file that
 * cannot be taken is named in the message; the others are added nevertheless. Undoing leaves the copies.
 */
[[nodiscard]] core::Result<void> addToGallery(
    shell::ProjectSession& session, const core::ContentId& entityId, const QStringList& files);

/** The picture itself stays in the project: other pages may show it. */
void removeFromGallery(
    shell::ProjectSession& session, const core::ContentId& entityId, const core::ContentId& picture);

enum class GalleryMove
{
    Earlier,
    Later,
};

void moveInGallery(
    shell::ProjectSession& session, const core::ContentId& entityId, const core::ContentId& picture,
    GalleryMove direction);

} // namespace tw::desktop::codex
