#pragma once

#include "app/codex/FieldKeys.h"
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

using app::codex::fieldsFromAbove;
using app::codex::keyForNewField;
using app::codex::keyFromLabel;

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
