#pragma once

#include "core/entity/Entity.h"
#include "core/project/Project.h"

#include <optional>
#include <vector>

namespace tw::core::entity {

/** Where a field that reaches an entity is declared. */
enum class FieldOrigin
{
    /** The entity's own field. */
    Entity,
    /** The entity's category, or the category in question. */
    Category,
    /** A category further up. */
    Ancestor,
    /** Taken through the entity that a category hangs under. */
    ParentEntity,
};

/** A field together with where it comes from. */
struct ResolvedField
{
    taxonomy::Field field;
    FieldOrigin origin = FieldOrigin::Category;
    /** The category that declares it; null for a field of an entity's own. */
    CategoryId definedBy;
    /** The entity whose own field it is; null for a category's. */
    ContentId ownedBy = {};

    /** Read-only on entities: the category gives the value. */
    [[nodiscard]] bool isFixed() const { return field.isFixed; }

    friend bool operator==(const ResolvedField&, const ResolvedField&) = default;
};

using Schema = std::vector<ResolvedField>;

/**
 * What reaches the entities of a category: its ancestors' fields without the keys that it or an ancestor
 * excludes, a descendant's declaration in place of an ancestor's, and, where the chain hangs under an entity,
 * the keys it takes from there. Empty for an unknown category. Survives loops of any length.
 */
[[nodiscard]] Schema schemaOfCategory(const project::Project& project, const CategoryId& categoryId);

/** What reaches one entity: its category's schema, then its own fields, which replace all but fixed ones. */
[[nodiscard]] Schema schemaOfEntity(const project::Project& project, const Entity& entity);

/** The entry of that key; none when the field does not reach. */
[[nodiscard]] const ResolvedField* findField(const Schema& schema, QStringView key);

/** What an entity shows for a field: the fixed value, else its own; none when unset. */
[[nodiscard]] std::optional<QString> shownValue(const ResolvedField& field, const Entity& entity);

/** The same as of a story instant: the latest timed value at or before it, else the current value. */
[[nodiscard]] std::optional<QString> shownValueAt(
    const ResolvedField& field, const Entity& entity, calendar::StoryInstant instant);

/** Refuses a bad definition and one that an inherited fixed field forbids. */
[[nodiscard]] Result<void> checkOwnField(
    const project::Project& project, const Entity& entity, const taxonomy::Field& field);

/** What to tell the user when an own field overrides an inherited one; empty when it does not. */
[[nodiscard]] QString ownFieldNotice(
    const project::Project& project, const Entity& entity, const taxonomy::Field& field);

/** True when the category is the other one or lies beneath it, through categories and entities alike. */
[[nodiscard]] bool isCategoryBeneath(
    const project::Project& project, const CategoryId& id, const CategoryId& ancestorId);

/** Whether a category can move under another one (null: the top level). */
[[nodiscard]] Result<void> checkMoveToCategory(
    const project::Project& project, const CategoryId& id, const CategoryId& newParentId);

/** Whether a category can hang under an entity: not when the entity lies beneath the category. */
[[nodiscard]] Result<void> checkMoveToEntity(
    const project::Project& project, const CategoryId& id, const ContentId& entityId);

/** Whether an entity can move into a category (null: none): not into one that hangs somewhere beneath it. */
[[nodiscard]] Result<void> checkMoveOfEntity(
    const project::Project& project, const Entity& entity, const CategoryId& categoryId);

} // namespace tw::core::entity
