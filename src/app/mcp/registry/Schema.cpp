#include "app/mcp/registry/Schema.h"

#include <QJsonArray>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject property(QLatin1String type, const QString& description)
{
    return {{u"type"_s, type}, {u"description"_s, description}};
}

} // namespace

QJsonObject makeObjectSchema(const QJsonObject& properties, const QStringList& required)
{
    QJsonObject schema{{u"type"_s, u"object"_s}, {u"properties"_s, properties}};
    if (!required.isEmpty())
        schema.insert(u"required"_s, QJsonArray::fromStringList(required));
    return schema;
}

QJsonObject makeSubjectSchema(
    const QString& subject, const QString& description, QJsonObject properties, const QStringList& required)
{
    properties.insert(subject, textProperty(description));
    properties.insert(
        u"id"_s, textProperty(u"The id, in place of \"%1\", when several share the name."_s.arg(subject)));
    return makeObjectSchema(properties, required);
}

QJsonObject textProperty(const QString& description)
{
    return property("string"_L1, description);
}

QJsonObject valueProperty(const QString& description)
{
    return {{u"type"_s, QJsonArray{u"string"_s, u"number"_s, u"boolean"_s}}, {u"description"_s, description}};
}

QJsonObject integerProperty(const QString& description, std::optional<qint64> defaultValue)
{
    QJsonObject integer = property("integer"_L1, description);
    if (defaultValue)
        integer.insert(u"default"_s, *defaultValue);
    return integer;
}

QJsonObject numberProperty(const QString& description)
{
    return property("number"_L1, description);
}

QJsonObject booleanProperty(const QString& description, std::optional<bool> defaultValue)
{
    QJsonObject boolean = property("boolean"_L1, description);
    if (defaultValue)
        boolean.insert(u"default"_s, *defaultValue);
    return boolean;
}

QJsonObject choiceProperty(const QString& description, const QStringList& values, Default byDefault)
{
    QJsonObject choice = property("string"_L1, description);
    choice.insert(u"enum"_s, QJsonArray::fromStringList(values));
    if (byDefault == Default::First)
        choice.insert(u"default"_s, values.constFirst());
    return choice;
}

QJsonObject listProperty(const QString& description, const QJsonObject& items)
{
    QJsonObject list = property("array"_L1, description);
    list.insert(u"items"_s, items);
    return list;
}

QJsonObject recordProperty(
    const QString& description, const QJsonObject& properties, const QStringList& required)
{
    QJsonObject record = makeObjectSchema(properties, required);
    record.insert(u"description"_s, description);
    return record;
}

QJsonObject mapProperty(const QString& description, const QJsonObject& values)
{
    QJsonObject map = property("object"_L1, description);
    map.insert(u"additionalProperties"_s, values);
    return map;
}

} // namespace tw::app::mcp
