#pragma once

#include "core/entity/Entity.h"
#include "core/project/Project.h"

#include <span>

namespace tw::app::codex {

/** One entity refers to another one through a field. */
struct Relationship
{
    const core::entity::Entity* from = nullptr;
    /** As people see it. */
    QString field;
    /** Null when the id leads nowhere. */
    const core::entity::Entity* to = nullptr;
    core::ContentId toId;
};

/**
 * The links that reference fields make between entities, by name of the first, then in the order of its
 * fields. References are looked for in all the projects, the first of which is the open one: its ids go
 * before those of the libraries. Values that a field would show count, hidden ones do not.
 */
[[nodiscard]] std::vector<Relationship> relationships(
    std::span<const core::project::Project* const> projects);

} // namespace tw::app::codex
