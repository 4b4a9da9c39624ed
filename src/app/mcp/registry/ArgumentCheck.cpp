#include "app/mcp/registry/ArgumentCheck.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;

namespace {

QStringList textsOf(const QJsonValue& array)
{
    QStringList texts;
    for (const QJsonValue& text : array.toArray())
        texts.append(text.toString());
    return texts;
}

QString quoted(const QString& argument)
{
    return u"\"%1\""_s.arg(argument);
}

bool isOfType(const QJsonValue& value, const QString& type)
{
    if (type == "string"_L1)
        return value.isString();
    if (type == "integer"_L1)
        return wholeNumber(value).has_value();
    if (type == "number"_L1)
        return finiteNumber(value).has_value();
    if (type == "boolean"_L1)
        return value.isBool();
    if (type == "array"_L1)
        return value.isArray();
    return value.isObject();
}

/** The type in the schema is one name, or a list of names any of which will do. */
bool isOfPropertyType(const QJsonValue& value, const QJsonObject& property)
{
    const QJsonValue type = property.value(u"type");
    if (type.isString())
        return isOfType(value, type.toString());
    const QStringList types = textsOf(type);
    return std::ranges::any_of(types, [&value](const QString& name) { return isOfType(value, name); });
}

QString typeWord(const QString& type)
{
    if (type == "string"_L1)
        return u"a text"_s;
    if (type == "integer"_L1)
        return u"a whole number"_s;
    if (type == "number"_L1)
        return u"a number"_s;
    if (type == "boolean"_L1)
        return u"true or false"_s;
    return type == "array"_L1 ? u"a list"_s : u"an object"_s;
}

QString typeWords(const QJsonObject& property)
{
    const QJsonValue type = property.value(u"type");
    QStringList words;
    for (const QString& name : type.isString() ? QStringList{type.toString()} : textsOf(type))
        words.append(typeWord(name));
    return enumerated(words, u"or"_s);
}

Result<void> checkChoice(const QString& name, const QJsonValue& value, const QJsonObject& property)
{
    QStringList choices = textsOf(property.value(u"enum"));
    if (choices.contains(value.toString()))
        return {};
    const QString byDefault = property.value(u"default").toString();
    for (QString& choice : choices) {
        if (choice == byDefault)
            choice += " (default)"_L1;
    }
    return Failure{
        u"Unknown %1 '%2'; use %3."_s.arg(quoted(name), value.toString(), enumerated(choices, u"or"_s))};
}

Result<void> checkRecord(const QString& owner, const QJsonObject& record, const QJsonObject& schema);

/** Checks what is inside a value that is of its property's type. `name` is how a message calls it. */
Result<void> checkInside(const QString& name, const QJsonValue& value, const QJsonObject& property)
{
    if (property.contains(u"enum"))
        return checkChoice(name, value, property);
    if (value.isObject() && property.contains(u"properties"))
        return checkRecord(quoted(name), value.toObject(), property);
    if (value.isObject() && property.contains(u"additionalProperties")) {
        const QJsonObject values = value.toObject();
        const QJsonObject inner = property.value(u"additionalProperties").toObject();
        for (auto entry = values.begin(); entry != values.end(); ++entry) {
            if (entry->isNull())
                continue;
            if (!isOfPropertyType(*entry, inner)) {
                return Failure{
                    u"%1 in %2 must be %3."_s.arg(quoted(entry.key()), quoted(name), typeWords(inner))};
            }
            if (auto checked = checkInside(entry.key(), *entry, inner); !checked)
                return checked;
        }
    }
    if (value.isArray()) {
        const QJsonObject item = property.value(u"items").toObject();
        int number = 0;
        for (const QJsonValue& element : value.toArray()) {
            ++number;
            const QString place = u"Entry %1 of %2"_s.arg(QString::number(number), quoted(name));
            if (!isOfPropertyType(element, item))
                return Failure{u"%1 must be %2."_s.arg(place, typeWords(item))};
            if (auto checked = element.isObject() && item.contains(u"properties")
                                   ? checkRecord(place, element.toObject(), item)
                                   : checkInside(name, element, item);
                !checked)
                return checked;
        }
    }
    return {};
}

/** Checks all but what is missing at the top, where the message is another. */
Result<void> checkPresent(const QJsonObject& record, const QJsonObject& properties)
{
    for (auto argument = record.begin(); argument != record.end(); ++argument) {
        const QJsonValue property = properties.value(argument.key());
        if (argument->isNull() || property.isUndefined())
            continue;
        const QJsonObject schema = property.toObject();
        if (!isOfPropertyType(*argument, schema))
            return Failure{u"%1 must be %2."_s.arg(quoted(argument.key()), typeWords(schema))};
        if (auto checked = checkInside(argument.key(), *argument, schema); !checked)
            return checked;
    }
    return {};
}

bool isMissing(const QString& name, const QJsonObject& record, const QJsonObject& properties)
{
    return !isOfPropertyType(record.value(name), properties.value(name).toObject());
}

bool isAnyMissing(const QStringList& names, const QJsonObject& record, const QJsonObject& properties)
{
    return std::ranges::any_of(
        names, [&](const QString& name) { return isMissing(name, record, properties); });
}

QStringList allQuoted(const QStringList& names)
{
    QStringList texts;
    for (const QString& name : names)
        texts.append(quoted(name));
    return texts;
}

Result<void> checkRecord(const QString& owner, const QJsonObject& record, const QJsonObject& schema)
{
    const QJsonObject properties = schema.value(u"properties").toObject();
    const QStringList required = textsOf(schema.value(u"required"));
    if (isAnyMissing(required, record, properties))
        return Failure{u"%1 needs %2."_s.arg(owner, enumerated(allQuoted(required), u"and"_s))};
    return checkPresent(record, properties);
}

} // namespace

std::optional<qint64> wholeNumber(const QJsonValue& value)
{
    const std::optional<double> number = finiteNumber(value);
    // The limits of 64 bits as doubles; the upper one is already beyond them.
    constexpr double least = -9223372036854775808.0;
    constexpr double beyond = 9223372036854775808.0;
    if (!number || std::trunc(*number) != *number || *number < least || *number > beyond)
        return std::nullopt;
    // Integers are kept apart from fractions, so that the largest one survives its look as a double.
    const qint64 whole = value.toInteger();
    return *number == beyond && whole == 0 ? std::nullopt : std::optional(whole);
}

std::optional<double> finiteNumber(const QJsonValue& value)
{
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return std::nullopt;
    return value.toDouble();
}

ArgumentRules::ArgumentRules(const McpToolSpec& spec, QString subject, const QStringList& refusedByHandler)
    : m_tool(spec.name)
    , m_subject(std::move(subject))
    , m_properties(spec.inputSchema.value(u"properties").toObject())
    , m_required(textsOf(spec.inputSchema.value(u"required")))
{
    for (const QString& name : refusedByHandler) {
        // Of a choice the handler refuses the wrong words, of anything else that it is missing.
        QJsonObject property = m_properties.value(name).toObject();
        if (!property.contains(u"enum")) {
            m_required.removeAll(name);
            continue;
        }
        property.remove(u"enum");
        m_properties.insert(name, property);
    }
}

Result<void> ArgumentRules::check(const QJsonObject& arguments) const
{
    const bool isSubjectMissing = !m_subject.isEmpty() && isMissing(m_subject, arguments, m_properties) &&
                                  isMissing(u"id"_s, arguments, m_properties);
    if (isSubjectMissing || isAnyMissing(m_required, arguments, m_properties)) {
        QStringList needed = allQuoted(m_required);
        if (!m_subject.isEmpty())
            needed.prepend(u"%1 (or \"id\")"_s.arg(quoted(m_subject)));
        return Failure{u"%1 needs %2."_s.arg(m_tool, enumerated(needed, u"and"_s))};
    }
    return checkPresent(arguments, m_properties);
}

QString enumerated(const QStringList& parts, const QString& conjunction)
{
    if (parts.size() <= 1)
        return parts.join(QString());
    const QString last = parts.constLast();
    if (parts.size() == 2)
        return u"%1 %2 %3"_s.arg(parts.constFirst(), conjunction, last);
    return u"%1, %2 %3"_s.arg(parts.first(parts.size() - 1).join(u", "_s), conjunction, last);
}

} // namespace tw::app::mcp
