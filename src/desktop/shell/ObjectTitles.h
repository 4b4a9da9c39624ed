#pragma once

#include "core/project/Project.h"

namespace tw::desktop::shell {

/** What the user calls an object: its title or name; the kind's name in words for one without. */
[[nodiscard]] QString objectTitle(const core::content::ContentObject& object);

/** The object of that id, else the one of exactly that title; null when there is none. */
[[nodiscard]] core::ContentId findObject(const core::project::Project& project, const QString& idOrTitle);

} // namespace tw::desktop::shell
