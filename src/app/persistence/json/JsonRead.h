#pragma once

#include "app/persistence/json/JsonTree.h"

#include <QStringList>

#include <optional>

/**
 * Reading of single values the way a person's hand may have left them, so that an edited file loses nothing
 * that can be understood: "12" is a number, 12 a text, 2.9 an integer of 2, "true" a boolean. There is no
 * value where nothing can be understood.
 */
namespace tw::app::persistence {

/** Fractions are cut off; what lies beyond 64 bits stops at the limit. Whole numbers never pass through a
 * double. */
[[nodiscard]] std::optional<qint64> readInteger(const JsonNode& value);

/** The same, stopping at the limits of 32 bits. */
[[nodiscard]] std::optional<qint32> readInteger32(const JsonNode& value);

[[nodiscard]] std::optional<double> readDouble(const JsonNode& value);

[[nodiscard]] std::optional<bool> readBool(const JsonNode& value);

/** Numbers and booleans become their text. */
[[nodiscard]] std::optional<QString> readText(const JsonNode& value);

/** The elements of an array as readText() reads them. A text on its own is a list of one. */
[[nodiscard]] QStringList readTextList(const JsonNode& value);

/** The null id when the value is no id. */
template <class Id>
[[nodiscard]] Id readId(const JsonNode& value)
{
    const Id id = Id::fromText(value.utf8());
    return id.isNull() ? Id::fromString(value.text()) : id;
}

} // namespace tw::app::persistence
