#pragma once

#include "core/entity/Schema.h"
#include "core/taxonomy/Category.h"

namespace tw::app::codex {

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

/**
 * The field that people call so, in letters of any case: by its label, else by its key. None when there is
 * none.
 */
[[nodiscard]] const core::entity::ResolvedField* findFieldNamed(
    const core::entity::Schema& schema, const QString& name);
[[nodiscard]] const core::taxonomy::Field* findFieldNamed(
    const core::taxonomy::FieldList& fields, const QString& name);

} // namespace tw::app::codex
