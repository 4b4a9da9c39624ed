#pragma once

#include "app/persistence/codec/TextPool.h"
#include "app/persistence/json/JsonRead.h"
#include "app/persistence/json/JsonWriter.h"
#include "core/content/ContentObject.h"

#include <QJsonObject>

#include <map>
#include <optional>
#include <set>
#include <type_traits>
#include <vector>

/**
 * How values of each C++ type stand in a JSON file. Every codec has three functions: write; read, which
 * leaves the value as it is and says false when nothing can be understood; and isSet, which tells the empty
 * value, left out of files where the format allows it, from others. Records are in Record.h.
 */
namespace tw::app::persistence {

template <class Value>
struct ValueCodec;

/** For enumerations: `static constexpr auto name` and `fromName`, the functions of the enumeration's table.
 */
template <class Enumeration>
struct NamesOf;

template <class Enumeration>
concept NamedEnumeration = requires
{
    NamesOf<Enumeration>::name;
};

template <>
struct ValueCodec<QString>
{
    static void write(JsonWriter& writer, const QString& value) { writer.writeText(value); }
    static bool isSet(const QString& value) { return !value.isEmpty(); }
    static bool read(const JsonNode& json, QString& value, TextPool& texts)
    {
        if (json.isText()) {
            value = texts.textOf(json);
            return true;
        }
        const std::optional<QString> text = readText(json);
        value = text.value_or(value);
        return text.has_value();
    }
};

template <>
struct ValueCodec<bool>
{
    static void write(JsonWriter& writer, bool value) { writer.writeBool(value); }
    static bool isSet(bool value) { return value; }
    static bool read(const JsonNode& json, bool& value, TextPool&)
    {
        const std::optional<bool> truth = readBool(json);
        value = truth.value_or(value);
        return truth.has_value();
    }
};

template <>
struct ValueCodec<qint32>
{
    static void write(JsonWriter& writer, qint32 value) { writer.writeInteger(value); }
    static bool isSet(qint32 value) { return value != 0; }
    static bool read(const JsonNode& json, qint32& value, TextPool&)
    {
        const std::optional<qint32> number = readInteger32(json);
        value = number.value_or(value);
        return number.has_value();
    }
};

template <>
struct ValueCodec<qint64>
{
    static void write(JsonWriter& writer, qint64 value) { writer.writeInteger(value); }
    static bool isSet(qint64 value) { return value != 0; }
    static bool read(const JsonNode& json, qint64& value, TextPool&)
    {
        const std::optional<qint64> number = readInteger(json);
        value = number.value_or(value);
        return number.has_value();
    }
};

template <>
struct ValueCodec<double>
{
    static void write(JsonWriter& writer, double value) { writer.writeDouble(value); }
    static bool isSet(double value) { return value != 0.0; }
    static bool read(const JsonNode& json, double& value, TextPool&)
    {
        const std::optional<double> number = readDouble(json);
        value = number.value_or(value);
        return number.has_value();
    }
};

template <class Tag>
struct ValueCodec<core::foundation::Id<Tag>>
{
    using Id = core::foundation::Id<Tag>;

    /** The null id is the empty text. */
    static void write(JsonWriter& writer, const Id& value)
    {
        const auto text = value.text();
        writer.writeText(QLatin1StringView(text.data(), value.isNull() ? 0 : std::ssize(text)));
    }
    static bool isSet(const Id& value) { return !value.isNull(); }
    static bool read(const JsonNode& json, Id& value, TextPool&)
    {
        value = readId<Id>(json);
        return !value.isNull();
    }
};

template <NamedEnumeration Enumeration>
struct ValueCodec<Enumeration>
{
    static void write(JsonWriter& writer, Enumeration value)
    {
        writer.writeText(NamesOf<Enumeration>::name(value));
    }
    static bool isSet(Enumeration value) { return value != Enumeration(); }
    static bool read(const JsonNode& json, Enumeration& value, TextPool&)
    {
        const std::optional<Enumeration> named = NamesOf<Enumeration>::fromName(json.text());
        value = named.value_or(value);
        return named.has_value();
    }
};

template <class Value>
struct ValueCodec<std::optional<Value>>
{
    static void write(JsonWriter& writer, const std::optional<Value>& value)
    {
        ValueCodec<Value>::write(writer, *value);
    }
    static bool isSet(const std::optional<Value>& value) { return value.has_value(); }
    static bool read(const JsonNode& json, std::optional<Value>& value, TextPool& texts)
    {
        Value inner{};
        const bool isUnderstood = ValueCodec<Value>::read(json, inner, texts);
        if (isUnderstood)
            value = std::move(inner);
        return isUnderstood;
    }
};

/** Lists of anything; elements that cannot be understood are left out, numbers among them become 0. */
template <class List>
struct ListCodec
{
    using Element = typename List::value_type;

    static void write(JsonWriter& writer, const List& list)
    {
        writer.beginArray();
        for (const Element& element : list)
            ValueCodec<Element>::write(writer, element);
        writer.endArray();
    }
    static bool isSet(const List& list) { return !list.empty(); }
    static bool read(const JsonNode& json, List& list, TextPool& texts)
    {
        if (!json.isArray())
            return false;
        list.clear();
        json.forEachElement([&](const JsonNode& item) {
            Element element{};
            if (ValueCodec<Element>::read(item, element, texts) || std::is_arithmetic_v<Element>)
                list.push_back(std::move(element));
        });
        return true;
    }
};

template <class Element>
struct ValueCodec<std::vector<Element>> : ListCodec<std::vector<Element>>
{};

template <class Element>
struct ValueCodec<QList<Element>> : ListCodec<QList<Element>>
{};

/** A text on its own is a list of one; elements are read as any text is. */
template <>
struct ValueCodec<QStringList> : ListCodec<QStringList>
{
    static bool read(const JsonNode& json, QStringList& list, TextPool& texts)
    {
        list.clear();
        const auto append = [&list, &texts](const JsonNode& element) {
            QString text;
            const bool isText = ValueCodec<QString>::read(element, text, texts);
            if (isText)
                list.append(std::move(text));
            return isText;
        };
        if (!json.isArray())
            return append(json);
        json.forEachElement(append);
        return true;
    }
};

template <>
struct ValueCodec<core::content::NameSet>
{
    static void write(JsonWriter& writer, const core::content::NameSet& names)
    {
        writer.beginArray();
        for (const QString& name : names)
            writer.writeText(name);
        writer.endArray();
    }
    static bool isSet(const core::content::NameSet& names) { return !names.empty(); }
    static bool read(const JsonNode& json, core::content::NameSet& names, TextPool& texts)
    {
        QStringList list;
        const bool isUnderstood = ValueCodec<QStringList>::read(json, list, texts);
        names = core::content::NameSet(list.cbegin(), list.cend());
        return isUnderstood;
    }
};

template <>
struct ValueCodec<std::set<core::ContentId>>
{
    static void write(JsonWriter& writer, const std::set<core::ContentId>& ids)
    {
        writer.beginArray();
        for (const core::ContentId& id : ids)
            ValueCodec<core::ContentId>::write(writer, id);
        writer.endArray();
    }
    static bool isSet(const std::set<core::ContentId>& ids) { return !ids.empty(); }
    static bool read(const JsonNode& json, std::set<core::ContentId>& ids, TextPool& texts)
    {
        std::vector<core::ContentId> list;
        const bool isUnderstood = ValueCodec<std::vector<core::ContentId>>::read(json, list, texts);
        ids = std::set<core::ContentId>(list.cbegin(), list.cend());
        return isUnderstood;
    }
};

/** An object of texts. A list of texts, as a hand may write one for a value of several lines, becomes its
 * lines. */
template <>
struct ValueCodec<std::map<QString, QString>>
{
    using Texts = std::map<QString, QString>;

    static void write(JsonWriter& writer, const Texts& values)
    {
        writer.beginObject();
        for (const auto& [key, value] : values) {
            writer.key(QStringView(key));
            writer.writeText(value);
        }
        writer.endObject();
    }
    static bool isSet(const Texts& values) { return !values.empty(); }
    static bool read(const JsonNode& json, Texts& values, TextPool& texts)
    {
        values.clear();
        json.forEachMember([&](const JsonNode& key, const JsonNode& value) {
            QString text;
            if (value.isArray())
                text = readTextList(value).join(u'\n');
            else if (!ValueCodec<QString>::read(value, text, texts))
                return;
            values.insert_or_assign(values.end(), texts.textOf(key), std::move(text));
        });
        return json.isObject();
    }
};

/** An object that the program keeps as it is. */
template <>
struct ValueCodec<QJsonObject>
{
    static void write(JsonWriter& writer, const QJsonObject& value) { writer.writeValue(value); }
    static bool isSet(const QJsonObject& value) { return !value.isEmpty(); }
    static bool read(const JsonNode& json, QJsonObject& value, TextPool&)
    {
        value = json.toJsonValue().toObject();
        return json.isObject();
    }
};

} // namespace tw::app::persistence
