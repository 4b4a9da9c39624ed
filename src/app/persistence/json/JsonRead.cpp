#include "app/persistence/json/JsonRead.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

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

std::optional<double> finiteNumber(QStringView text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<bool> namedBool(QStringView text)
{
    if (text.compare(u"true", Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(u"false", Qt::CaseInsensitive) == 0)
        return false;
    return std::nullopt;
}

std::optional<qint64> integerOf(const QString& given)
{
    const QStringView text = QStringView(given).trimmed();
    bool isInteger = false;
    if (const qint64 number = text.toLongLong(&isInteger); isInteger)
        return number;
    if (const std::optional<double> number = finiteNumber(text))
        return truncated(*number);
    return namedBool(text);
}

} // namespace

qint64 readInteger(const QJsonValue& value, qint64 fallback)
{
    switch (value.type()) {
    case QJsonValue::Double: {
        const qint64 exact = value.toInteger(Integers::min());
        return exact != Integers::min() ? exact : truncated(value.toDouble());
    }
    case QJsonValue::Bool:
        return value.toBool() ? 1 : 0;
    case QJsonValue::String:
        return integerOf(value.toString()).value_or(fallback);
    default:
        return fallback;
    }
}

qint32 readInteger32(const QJsonValue& value, qint32 fallback)
{
    using Limits = std::numeric_limits<qint32>;
    return static_cast<qint32>(
        std::clamp<qint64>(readInteger(value, fallback), Limits::min(), Limits::max()));
}

double readDouble(const QJsonValue& value, double fallback)
{
    switch (value.type()) {
    case QJsonValue::Double:
        return value.toDouble();
    case QJsonValue::Bool:
        return value.toBool() ? 1.0 : 0.0;
    case QJsonValue::String:
        return finiteNumber(QStringView(value.toString()).trimmed()).value_or(fallback);
    default:
        return fallback;
    }
}

bool readBool(const QJsonValue& value, bool fallback)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return value.toDouble() != 0.0;
    case QJsonValue::String: {
        const QString text = value.toString().trimmed();
        if (const std::optional<bool> named = namedBool(text))
            return *named;
        const std::optional<double> number = finiteNumber(text);
        return number ? *number != 0.0 : fallback;
    }
    default:
        return fallback;
    }
}

QString readText(const QJsonValue& value, const QString& fallback)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QJsonValue::Double:
        if (const QVariant number = value.toVariant(); number.typeId() == QMetaType::LongLong)
            return QString::number(number.toLongLong());
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    default:
        return fallback;
    }
}

QStringList readTextList(const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    QStringList texts;
    texts.reserve(array.size());
    for (const QJsonValue& element : array) {
        if (element.isString())
            texts.append(element.toString());
    }
    return texts;
}

core::Result<QJsonObject> parseJsonObject(const QByteArray& bytes, const QString& path)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return core::Failure{
            QCoreApplication::translate("Persistence", "Invalid JSON in file: %1").arg(path)};
    return document.object();
}

core::Result<QJsonObject> readJsonFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return core::Failure{QCoreApplication::translate("Persistence", "Cannot read file: %1").arg(path)};
    return parseJsonObject(file.readAll(), path);
}

} // namespace tw::app::persistence
