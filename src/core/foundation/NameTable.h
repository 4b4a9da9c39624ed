#pragma once

#include <QLatin1String>
#include <QStringView>

#include <algorithm>
#include <array>
#include <optional>

namespace tw::core::foundation {

/** One row of a table that gives each value of an enumeration its fixed name in files and tools. */
template <class Value>
struct NamedValue
{
    Value value;
    QLatin1String name;
};

/** The name of a value; empty when the table has no such value. */
template <class Value, std::size_t Count>
[[nodiscard]] QLatin1String nameOf(const std::array<NamedValue<Value>, Count>& table, Value value)
{
    const auto row = std::ranges::find(table, value, &NamedValue<Value>::value);
    return row == table.end() ? QLatin1String() : row->name;
}

/** The value with exactly this name (case-sensitive), or none. */
template <class Value, std::size_t Count>
[[nodiscard]] std::optional<Value> valueNamed(
    const std::array<NamedValue<Value>, Count>& table, QStringView name)
{
    const auto row =
        std::ranges::find_if(table, [name](const auto& candidate) { return name == candidate.name; });
    if (row == table.end())
        return std::nullopt;
    return row->value;
}

} // namespace tw::core::foundation
