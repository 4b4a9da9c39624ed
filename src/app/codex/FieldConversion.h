#pragma once

#include "app/codex/EditPlan.h"
#include "core/taxonomy/Field.h"

#include <QStringList>

namespace tw::app::codex {

struct ConversionRequest
{
    core::CategoryId categoryId;
    /** A field that the category itself defines. */
    QString key;
    core::taxonomy::FieldType type = core::taxonomy::FieldType::Text;
    /** For a choice. */
    QStringList options;
    /** For a reference; null for any. */
    core::CategoryId referenceCategory;
};

struct ConversionPlan
{
    EditPlan edits;
    /** Values that suit the new type, and those that do not and stay as literal text. */
    qsizetype migratedCount = 0;
    QStringList kept;
    /** Values of entities that must not be changed (locked or excluded from AI), left as they are. */
    qsizetype untouchedCount = 0;
};

/**
 * Gives a field another type, and every value under it the form that the type stores: of the entities it
 * reaches or reached before a branch dropped it, now and over time, of templates, and its fixed value. No
 * value is lost.
 */
[[nodiscard]] ConversionPlan planConversion(
    const core::project::Project& project, const ConversionRequest& request);

} // namespace tw::app::codex
