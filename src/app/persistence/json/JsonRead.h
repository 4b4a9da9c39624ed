#pragma once

#include "core/foundation/Id.h"
#include "core/foundation/Result.h"

#include <QJsonObject>
#include <QJsonValue>
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
[[nodiscard]] std::optional<qint64> readInteger(const QJsonValue& value);

/** The same, stopping at the limits of 32 bits. */
[[nodiscard]] std::optional<qint32> readInteger32(const QJsonValue& value);

[[nodiscard]] std::optional<double> readDouble(const QJsonValue& value);

[[nodiscard]] std::optional<bool> readBool(const QJsonValue& value);

/** Numbers and booleans become their text. */
[[nodiscard]] std::optional<QString> readText(const QJsonValue& value);

/** The texts of an array, without the elements that are no strings. A text on its own is a list of one. */
[[nodiscard]] QStringList readTextList(const QJsonValue& value);

/** The null id when the value is no id. */
template <class Id>
[[nodiscard]] Id readId(const QJsonValue& value)
{
    return Id::fromString(value.toString());
}

/** The object that a file's bytes hold; a failure names the path. */
[[nodiscard]] core::Result<QJsonObject> parseJsonObject(const QByteArray& bytes, const QString& path);

/** The top-level object of a file, or why there is none. */
[[nodiscard]] core::Result<QJsonObject> readJsonFile(const QString& path);

} // namespace tw::app::persistence
