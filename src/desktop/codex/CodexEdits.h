#pragma once

#include "core/foundation/Id.h"
#include "core/foundation/Result.h"

#include <QString>

#include <vector>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::codex {

// Every function here is one undo step, or none when there is nothing to do.

/** What a category stands under: a category, an entity, or, with both null, nothing. Never both. */
struct CategoryParent
{
    core::CategoryId categoryId;
    core::ContentId entityId;

    friend bool operator==(const CategoryParent&, const CategoryParent&) = default;
};

/** Under a parent, before a sibling (null: at the end). Under an entity it is always the end. */
struct CategoryPlace
{
    CategoryParent parent;
    core::CategoryId beforeId;
};

/** The place right behind a category; the end of the top level for an unknown one. */
[[nodiscard]] CategoryPlace placeBehind(const shell::ProjectSession& session, const core::CategoryId& id);

/** A null category leaves the entity uncategorised. */
core::ContentId addEntity(
    shell::ProjectSession& session, const core::CategoryId& categoryId, const QString& name);

/**
 * A new entity with everything of another one but its aliases, which belong to one thing alone. Null when
 * there is no such entity.
 */
core::ContentId duplicateEntity(shell::ProjectSession& session, const core::ContentId& id);

core::CategoryId addCategory(shell::ProjectSession& session, const CategoryPlace& place, const QString& name);

/** Nothing happens when the trimmed name is empty or the present one; false then. */
bool renameEntity(shell::ProjectSession& session, const core::ContentId& id, const QString& name);
bool renameCategory(shell::ProjectSession& session, const core::CategoryId& id, const QString& name);

/** What goes together when rows are moved or removed. */
struct CodexSelection
{
    std::vector<core::ContentId> entities;
    std::vector<core::CategoryId> categories;
};

/**
 * Moves categories to a place, and entities to the category they are then in; entities stay where they are
 * when the place is under an entity. Nothing is moved when one of the categories cannot go there; the message
 * says why.
 */
core::Result<void> moveInCodex(
    shell::ProjectSession& session, const CodexSelection& moved, const CategoryPlace& place);

/**
 * Removes entities and categories. Categories that hang under a removed entity move to its category;
 * subcategories and entities of a removed category move up to its parent.
 */
void removeFromCodex(shell::ProjectSession& session, const CodexSelection& removed);

} // namespace tw::desktop::codex
