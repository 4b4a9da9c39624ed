#include "app/persistence/json/JsonRead.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

namespace {

using Integers = std::numeric_limits<qint64>;

qint64 truncated(double number)
{
    // The limits themselves are not exact as doubles, so the comparison has to leave them out.
    constexpr double beyond = 9223372036854775808.0;
    if (number >= beyond)
        return Integers::max();
    if (number < -beyond)
        return Integers::min();
    return static_cast<qint64>(number);
}

/** No value for what is not written as an integer of 64 bits. */
std::optional<qint64> exactInteger(QByteArrayView digits)
{
    qint64 number = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), number);
    return error == std::errc() && end == digits.end() ? std::optional(number) : std::nullopt;
}

std::optional<double> finiteNumber(QByteArrayView digits)
{
    bool isNumber = false;
    const double number = digits.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<qint64> integerOf(QByteArrayView digits)
{
    if (const std::optional<qint64> exact = exactInteger(digits))
        return exact;
    const std::optional<double> number = finiteNumber(digits);
    return number ? std::optional(truncated(*number)) : std::nullopt;
}

/** The text without blanks around it, for reading as something else. */
QByteArray plainForm(const JsonNode& value)
{
    return value.text().trimmed().toUtf8();
}

std::optional<bool> namedBool(const QByteArray& text)
{
    if (text.compare("true", Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare("false", Qt::CaseInsensitive) == 0)
        return false;
    return std::nullopt;
}

} // namespace

std::optional<qint64> readInteger(const JsonNode& value)
{
    if (value.isNumber())
        return value.integer().value_or(truncated(value.number()));
    if (value.isBool())
        return value.isTrue() ? 1 : 0;
    const QByteArray text = plainForm(value);
    if (const std::optional<qint64> number = integerOf(text))
        return number;
    return namedBool(text);
}

std::optional<qint32> readInteger32(const JsonNode& value)
{
    using Limits = std::numeric_limits<qint32>;
    const std::optional<qint64> number = readInteger(value);
    if (!number)
        return std::nullopt;
    return static_cast<qint32>(std::clamp<qint64>(*number, Limits::min(), Limits::max()));
}

std::optional<double> readDouble(const JsonNode& value)
{
    if (value.isNumber())
        return value.number();
    if (value.isBool())
        return value.isTrue() ? 1.0 : 0.0;
    return finiteNumber(plainForm(value));
}

std::optional<bool> readBool(const JsonNode& value)
{
    if (value.isBool())
        return value.isTrue();
    if (const std::optional<bool> named = namedBool(plainForm(value)))
        return named;
    const std::optional<double> number = readDouble(value);
    return number ? std::optional(*number != 0.0) : std::nullopt;
}

std::optional<QString> readText(const JsonNode& value)
{
    if (value.isText())
        return value.text();
    if (value.isBool())
        return value.isTrue() ? u"true"_s : u"false"_s;
    if (!value.isNumber())
        return std::nullopt;
    if (const std::optional<qint64> integer = value.integer())
        return QString::number(*integer);
    return QString::number(value.number(), 'g', QLocale::FloatingPointShortest);
}

QStringList readTextList(const JsonNode& value)
{
    if (const std::optional<QString> single = readText(value))
        return {*single};
    QStringList texts;
    texts.reserve(value.sizeHint());
    value.forEachElement([&](const JsonNode& element) {
        if (const std::optional<QString> text = readText(element))
            texts.append(*text);
    });
    return texts;
}

} // namespace tw::app::persistence
