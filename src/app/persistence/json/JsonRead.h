#pragma once

#include "core/foundation/Id.h"
#include "core/foundation/Result.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

#include <limits>
#include <optional>

/**
 * Reading of single values the way a person's hand may have left them, so that an edited file loses nothing
 * that can be understood: "12" is a number, 12 a text, 2.9 an integer of 2, "true" a boolean. A value that
 * cannot be understood is the fallback.
 */
namespace tw::app::persistence {

/** Fractions are cut off; what lies beyond 64 bits stops at the limit. Whole numbers never pass through a
 * double. */
[[nodiscard]] qint64 readInteger(const QJsonValue& value, qint64 fallback = 0);

/** The same, stopping at the limits of 32 bits. */
[[nodiscard]] qint32 readInteger32(const QJsonValue& value, qint32 fallback = 0);

[[nodiscard]] double readDouble(const QJsonValue& value, double fallback = 0.0);

[[nodiscard]] bool readBool(const QJsonValue& value, bool fallback = false);

/** Numbers and booleans become their text. */
[[nodiscard]] QString readText(const QJsonValue& value, const QString& fallback = {});

/** The texts of an array; elements that are no strings are left out. */
[[nodiscard]] QStringList readTextList(const QJsonValue& value);

/** The null id when the value is no id. */
template <class Id>
[[nodiscard]] Id readId(const QJsonValue& value)
{
    return Id::fromString(value.toString());
}

/** No value when there is no id. */
template <class Id>
[[nodiscard]] std::optional<Id> readOptionalId(const QJsonValue& value)
{
    const Id id = readId<Id>(value);
    return id.isNull() ? std::nullopt : std::optional(id);
}

/** The object that a file's bytes hold; a failure names the path. */
[[nodiscard]] core::Result<QJsonObject> parseJsonObject(const QByteArray& bytes, const QString& path);

/** The top-level object of a file, or why there is none. */
[[nodiscard]] core::Result<QJsonObject> readJsonFile(const QString& path);

} // namespace tw::app::persistence
