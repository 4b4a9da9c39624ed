#pragma once

#include "core/project/Project.h"

namespace tw::desktop::shell {

/** The name, or what is shown in its place when it is empty. */
[[nodiscard]] QString shownName(const QString& name);

/** What the user calls an object: its title or name, or what stands for an empty one. */
[[nodiscard]] QString objectTitle(const core::content::ContentObject& object);

/** The same for a reckoning, which needs no name. */
[[nodiscard]] QString reckoningTitle(const core::calendar::Reckoning& reckoning);

/** The object of that id, else the one of exactly that title; null when there is none. */
[[nodiscard]] core::ContentId findObject(const core::project::Project& project, const QString& idOrTitle);

} // namespace tw::desktop::shell
