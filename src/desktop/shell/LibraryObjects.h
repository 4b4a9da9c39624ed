#pragma once

#include "app/codex/ScopedLookup.h"

namespace tw::desktop::shell {

class ProjectSession;

/** The mounted libraries, with nothing hidden: the writer may see everything. Holds until they are read anew.
 */
[[nodiscard]] app::codex::ObjectScope libraryScope(const ProjectSession& session);

/** For the writer: in which library an object stands, which cannot be opened from here. Empty for all others.
 */
[[nodiscard]] QString libraryNote(const ProjectSession& session, const core::ContentId& id);

} // namespace tw::desktop::shell
