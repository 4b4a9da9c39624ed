#pragma once

#include "app/codex/EditPlan.h"
#include "app/codex/ScopedLookup.h"
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
    /** Values of entities that must not be changed (locked or hidden), left as they are, and rules about
     * them. */
    qsizetype untouchedCount = 0;
    /** Continuity rules that compare with the values in their new form. */
    qsizetype ruleCount = 0;
    /** What rules compare with and does not suit the new type, and stays as literal text. */
    struct KeptOperand
    {
        QString rule;
        QString value;
    };
    std::vector<KeptOperand> keptOperands;
};

/**
 * Gives a field another type, and every value under it the form that the type stores: of the entities it
 * reaches or reached before a branch dropped it, now and over time, of templates, its fixed value, and what
 * continuity rules compare it with. No value is lost.
 */
[[nodiscard]] ConversionPlan planConversion(
    const core::project::Project& project, const ConversionRequest& request, const ObjectScope& scope = {});

} // namespace tw::app::codex
