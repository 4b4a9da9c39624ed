#pragma once

#include "app/persistence/codec/Record.h"
#include "core/taxonomy/Field.h"

namespace tw::app::persistence {

template <>
struct NamesOf<core::taxonomy::FieldType>
{
    static constexpr auto name = &core::taxonomy::fieldTypeName;
    static constexpr auto fromName = &core::taxonomy::fieldTypeFromName;
};

/** A field as it stands in a category's file and in an entity's own fields. */
template <>
struct RecordOf<core::taxonomy::Field>
{
    using Field = core::taxonomy::Field;

    static constexpr auto entries = std::tuple(
        always<Data<&Field::key>>(QLatin1StringView("key")),
        always<Data<&Field::label>>(QLatin1StringView("label")),
        always<Data<&Field::type>>(QLatin1StringView("type")),
        always<Data<&Field::isRequired>>(QLatin1StringView("required")),
        ifSet<Data<&Field::options>>(QLatin1StringView("options")),
        ifSet<Data<&Field::description>>(QLatin1StringView("description")),
        ifSet<Data<&Field::isFixed>>(QLatin1StringView("fixed")),
        ifSet<Data<&Field::fixedValue>>(QLatin1StringView("fixedValue")),
        ifSet<Data<&Field::referenceCategory>>(QLatin1StringView("referenceCategory")));
};

} // namespace tw::app::persistence
