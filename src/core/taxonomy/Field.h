#pragma once

#include "core/foundation/Id.h"
#include "core/foundation/Result.h"

#include <QLatin1String>
#include <QStringList>

#include <optional>
#include <vector>

namespace tw::core::taxonomy {

enum class FieldType : qint32
{
    Text = 0,
    Number = 1,
    Boolean = 2,
    Date = 3,
    Reference = 4,
    Choice = 5,
    Url = 6,
};

[[nodiscard]] QLatin1String fieldTypeName(FieldType type);
/** Exact and case-sensitive; none for an unknown name. */
[[nodiscard]] std::optional<FieldType> fieldTypeFromName(QStringView name);

/** The definition of one property, on a category or on one entity. */
struct Field
{
    /** The identity within a schema; values are stored under it. Case-sensitive. */
    QString key = {};
    QString label = {};
    FieldType type = FieldType::Text;
    bool isRequired = false;
    /** A fixed field's value stands once on the category; everything beneath shows it read-only. */
    bool isFixed = false;
    QString description = {};
    /** The choices of a choice field. */
    QStringList options = {};
    /** The category whose entities a reference may point at; null for any. */
    CategoryId referenceCategory = {};
    QString fixedValue = {};

    /** The label, or the key when there is none. */
    [[nodiscard]] const QString& displayName() const { return label.isEmpty() ? key : label; }

    friend bool operator==(const Field&, const Field&) = default;
};

using FieldList = std::vector<Field>;

/** The field of that key, or end(). */
[[nodiscard]] FieldList::const_iterator findField(const FieldList& fields, QStringView key);

/** A list that breaks the rule, from a file that was edited by hand say, keeps what is fixed. */
void keepFixedUnrequired(FieldList& fields);

/** Refuses a field without a key and one that is both fixed and required. */
[[nodiscard]] Result<void> checkField(const Field& field);

} // namespace tw::core::taxonomy
