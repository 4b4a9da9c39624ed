#pragma once

#include "core/project/Project.h"

#include <vector>

namespace tw::app::codex {

/** A title, name or alias of an object, and how many edits it is away from another name. */
struct CloseName
{
    QString text;
    const core::content::ContentObject* object = nullptr;
    bool isAlias = false;
    int distance = 0;
};

/**
 * The titles of all objects and the aliases of entities within `most` edits of a name, ignoring case and
 * blanks around; nearest first, then by name. Objects excluded from AI are passed over.
 */
[[nodiscard]] std::vector<CloseName> closeNames(
    const core::project::Project& project, const QString& name, int most);

} // namespace tw::app::codex
