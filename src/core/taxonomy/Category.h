#pragma once

#include "core/taxonomy/Field.h"

namespace tw::core::taxonomy {

/** A node of the codex schema. `parentId` and `parentEntityId` are alternatives, never both set. */
struct Category
{
    CategoryId id;
    QString name;
    /** Null for a top-level category or one that hangs under an entity. */
    CategoryId parentId;
    /** The entity this category hangs under; null otherwise. */
    ContentId parentEntityId;
    /** For a category under an entity: the properties it takes through that entity. */
    QStringList inheritedKeys;
    /** Inherited properties that this category, and so everything beneath it, drops. */
    QStringList excludedKeys;
    qint32 sortIndex = 0;
    /** Declared on this category itself, in order. */
    FieldList fields;

    friend bool operator==(const Category&, const Category&) = default;
};

} // namespace tw::core::taxonomy
