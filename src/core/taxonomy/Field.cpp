#include "core/taxonomy/Field.h"

#include "core/foundation/NameTable.h"

#include <QCoreApplication>

namespace tw::core::taxonomy {

using namespace Qt::Literals::StringLiterals;

namespace {

using TypeName = foundation::NamedValue<FieldType>;

constexpr std::array fieldTypeNames{
    TypeName{FieldType::Text, "text"_L1},
    TypeName{FieldType::Number, "number"_L1},
    TypeName{FieldType::Boolean, "boolean"_L1},
    TypeName{FieldType::Date, "date"_L1},
    TypeName{FieldType::Reference, "reference"_L1},
    TypeName{FieldType::Choice, "choice"_L1},
    TypeName{FieldType::Url, "url"_L1},
};

} // namespace

QLatin1String fieldTypeName(FieldType type)
{
    return foundation::nameOf(fieldTypeNames, type);
}

std::optional<FieldType> fieldTypeFromName(QStringView name)
{
    return foundation::valueNamed(fieldTypeNames, name);
}

FieldList::const_iterator findField(const FieldList& fields, QStringView key)
{
    return std::ranges::find_if(fields, [key](const Field& field) { return field.key == key; });
}

void keepFixedUnrequired(FieldList& fields)
{
    for (Field& field : fields)
        field.isRequired = field.isRequired && !field.isFixed;
}

Result<void> checkField(const Field& field)
{
    if (field.key.trimmed().isEmpty())
        return Failure{QCoreApplication::translate("Taxonomy", "A field needs a key. Give it a name first.")};
    if (field.isFixed && field.isRequired) {
        return Failure{QCoreApplication::translate(
            "Taxonomy", "A field cannot be both \"fixed\" and \"required\": a fixed field's value is "
                        "supplied once by the "
                        "category, so there is nothing for an entity to be required to fill in.")};
    }
    return {};
}

} // namespace tw::core::taxonomy
