#pragma once

#include "core/entity/Schema.h"

namespace tw::desktop::codex {

/** Fields of an entity that come from one place. */
struct FieldGroup
{
    enum class Source
    {
        /** Taken through the entity that a category above hangs under. */
        ThroughEntity,
        /** Inherited from a category above the entity's own. */
        Ancestor,
        Category,
        /** Of this entity alone. */
        Own,
        /** Given by a category, whichever; read-only. */
        Fixed,
    };

    Source source = Source::Category;
    /** The category that declares the fields of an Ancestor or Category group. */
    core::CategoryId categoryId;
    core::entity::Schema fields;

    friend bool operator==(const FieldGroup&, const FieldGroup&) = default;
};

/** The schema in groups, from the general to the particular, the fixed fields last. */
[[nodiscard]] std::vector<FieldGroup> fieldGroups(
    const core::project::Project& project, const core::entity::Entity& entity);

/** The group's name as a heading, and where its fields come from as a sentence. */
[[nodiscard]] QString groupTitle(
    const core::project::Project& project, const core::entity::Entity& entity, const FieldGroup& group);
[[nodiscard]] QString groupToolTip(const FieldGroup& group, const QString& title);

/** A value that the entity holds and no control shows. */
struct HiddenValue
{
    QString key;
    QString value;

    friend bool operator==(const HiddenValue&, const HiddenValue&) = default;
};

/** Values whose field does not reach the entity, or reaches it as fixed; values over time as one line each.
 */
[[nodiscard]] std::vector<HiddenValue> hiddenValues(
    const core::project::Project& project, const core::entity::Entity& entity);

} // namespace tw::desktop::codex
