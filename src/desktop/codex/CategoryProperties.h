#pragma once

#include "core/entity/Schema.h"
#include "core/foundation/Result.h"
#include "core/taxonomy/Category.h"

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::codex {

/** What the property dialog of a category edits. */
struct CategoryProperties
{
    core::taxonomy::FieldList fields;
    QStringList inheritedKeys;
    QStringList excludedKeys;

    friend bool operator==(const CategoryProperties&, const CategoryProperties&) = default;
};

[[nodiscard]] CategoryProperties propertiesOf(const core::taxonomy::Category& category);

/**
 * What could come to the category from above: all that reaches its parent category, or all that the entity
 * has under which it hangs. Nothing for a top-level category.
 */
[[nodiscard]] core::entity::Schema fieldsFromAbove(
    const core::project::Project& project, const core::taxonomy::Category& category);

/** The key that a label suggests: "Hair colour" gives "hairColour". Empty when it has no letter or digit. */
[[nodiscard]] QString keyFromLabel(QStringView label);

/**
 * The key for a new field beside `fields`: that of a field from above with the same name, which the new one
 * is then a version of, else one made from the label that nothing here uses.
 */
[[nodiscard]] QString keyForNewField(
    const QString& label, const core::taxonomy::FieldList& fields, const core::entity::Schema& fromAbove);

/** Refuses what the category could not hold beside its other fields. */
[[nodiscard]] core::Result<void> checkFieldBeside(
    const core::taxonomy::Field& field, const core::taxonomy::FieldList& others);

/** What to tell when a field takes the place of one from above; empty when it does not. */
[[nodiscard]] QString overrideNotice(
    const core::project::Project& project, const core::taxonomy::Field& field,
    const core::entity::Schema& fromAbove);

/** Makes the category's properties these, as one undo step; nothing when they are the same. */
void applyCategoryProperties(
    shell::ProjectSession& session, const core::CategoryId& id, const CategoryProperties& properties);

} // namespace tw::desktop::codex
