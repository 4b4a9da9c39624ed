#pragma once

#include "app/codex/Actor.h"
#include "core/foundation/Id.h"
#include "core/project/Project.h"
#include "core/taxonomy/Field.h"
#include "core/undo/Command.h"

#include <memory>
#include <vector>

/**
 * The tidy-up for projects from before properties were inherited, when a property meant for one entity had to
 * be declared on its whole category.
 */
namespace tw::app::codex {

/** A property that moves from its category down to the only entity that holds a value for it. */
struct PropertyMove
{
    core::CategoryId from;
    core::ContentId to;
    core::taxonomy::Field field;

    friend bool operator==(const PropertyMove&, const PropertyMove&) = default;
};

struct PropertyPlan
{
    /** By category id, then in the order of its properties. */
    std::vector<PropertyMove> moves;
    /** Properties that would move, had the entity that holds the value not to be left alone. */
    qsizetype heldBack = 0;
};

/**
 * What would move. The rule is a count: exactly one entity beneath the category holds a value, now or over
 * time, whatever it says. Fixed properties stay, because their value stands on the category; so do those
 * whose holder the actor leaves alone, or does not see the property.
 */
[[nodiscard]] PropertyPlan planPropertyMigration(const core::project::Project& project, Actor actor);

/** Moves the definitions; no value is read, written or deleted. */
[[nodiscard]] std::vector<std::unique_ptr<core::undo::Command>> makePropertyMigration(
    core::project::Project& project, const std::vector<PropertyMove>& moves);

} // namespace tw::app::codex
