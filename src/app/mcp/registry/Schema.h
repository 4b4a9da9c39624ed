#pragma once

#include <QJsonObject>
#include <QStringList>

#include <initializer_list>
#include <optional>
#include <utility>

namespace tw::app::mcp {

/**
 * The JSON Schemas of tool arguments, written as a small language:
 *
 *     makeObjectSchema(
 *         {{u"title"_s, textProperty(u"The task's title."_s)},
 *          {u"priority"_s, choiceProperty(u"How urgent it is."_s, {u"normal"_s, u"low"_s, u"high"_s},
 * Default::First)}, {u"tags"_s, listProperty(u"Replaces all tags."_s, textProperty(u"A tag."_s))}},
 *         {u"title"_s})
 *
 * The same schema is what a call is checked against before its handler runs, see ArgumentCheck.h.
 */
[[nodiscard]] QJsonObject makeObjectSchema(const QJsonObject& properties, const QStringList& required = {});

/**
 * The arguments of a tool that works on one named thing: `subject` is its name, and "id" may stand for it.
 * Neither is listed as required; the check before a call asks for one of them.
 */
[[nodiscard]] QJsonObject makeSubjectSchema(
    const QString& subject, const QString& description, QJsonObject properties = {},
    const QStringList& required = {});

[[nodiscard]] QJsonObject textProperty(const QString& description);
/** A text, a number or a truth value, read as text: what goes into a field or a cell. */
[[nodiscard]] QJsonObject valueProperty(const QString& description);
[[nodiscard]] QJsonObject integerProperty(
    const QString& description, std::optional<qint64> defaultValue = std::nullopt);
[[nodiscard]] QJsonObject numberProperty(const QString& description);
/** Without a default where leaving it out means that something stays as it is. */
[[nodiscard]] QJsonObject booleanProperty(
    const QString& description, std::optional<bool> defaultValue = false);

/** Whether an enumerated argument may be left out. */
enum class Default
{
    /** The first value is taken. */
    First,
    None,
};
/** One of some words. Others are refused with the list, the default first and marked. */
[[nodiscard]] QJsonObject choiceProperty(
    const QString& description, const QStringList& values, Default byDefault);

[[nodiscard]] QJsonObject listProperty(const QString& description, const QJsonObject& items);
/** An object with fixed keys: for the items of a list, too. */
[[nodiscard]] QJsonObject recordProperty(
    const QString& description, const QJsonObject& properties, const QStringList& required = {});
/** An object whose keys the caller chooses, all with values of one kind: fields by name, cells by address. */
[[nodiscard]] QJsonObject mapProperty(const QString& description, const QJsonObject& values);

} // namespace tw::app::mcp
