#pragma once

#include "core/project/Project.h"

#include <memory>

namespace tw::test {

/** A project with an object of every kind and every field of everything set to something that is not its
 * default. */
[[nodiscard]] std::unique_ptr<core::project::Project> fullProject();

/** A fresh object of a kind, with nothing set. */
[[nodiscard]] std::unique_ptr<core::content::ContentObject> freshObject(
    core::content::ContentKind kind, const core::ContentId& id);

} // namespace tw::test
