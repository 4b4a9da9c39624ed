#include "app/mcp/registry/ToolArguments.h"

#include "app/mcp/registry/ArgumentCheck.h"

#include <QJsonArray>
#include <QLocale>

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Numbers and truth values as they stand in JSON. */
std::optional<QString> textOf(const QJsonValue& value)
{
    if (value.isString())
        return value.toString();
    if (value.isBool())
        return value.toBool() ? u"true"_s : u"false"_s;
    if (const std::optional<qint64> whole = wholeNumber(value))
        return QString::number(*whole);
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return std::nullopt;
}

QStringList textsOf(const QJsonArray& array)
{
    QStringList texts;
    for (const QJsonValue& value : array)
        texts.append(textOf(value).value_or(QString()));
    return texts;
}

} // namespace

QString ToolArguments::text(QStringView name, const QString& byDefault) const
{
    return textOf(m_values.value(name)).value_or(byDefault);
}

std::optional<QString> ToolArguments::givenText(QStringView name) const
{
    return has(name) ? std::optional(text(name)) : std::nullopt;
}

std::optional<qint64> ToolArguments::integer(QStringView name) const
{
    return wholeNumber(m_values.value(name));
}

qint64 ToolArguments::integer(QStringView name, qint64 byDefault, qint64 least, qint64 most) const
{
    return std::clamp(integer(name).value_or(byDefault), least, most);
}

std::optional<double> ToolArguments::number(QStringView name) const
{
    return finiteNumber(m_values.value(name));
}

bool ToolArguments::boolean(QStringView name, bool byDefault) const
{
    return m_values.value(name).toBool(byDefault);
}

std::optional<bool> ToolArguments::givenBoolean(QStringView name) const
{
    const QJsonValue value = m_values.value(name);
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

QStringList ToolArguments::textList(QStringView name) const
{
    return textsOf(m_values.value(name).toArray());
}

std::optional<QStringList> ToolArguments::givenTextList(QStringView name) const
{
    return has(name) ? std::optional(textList(name)) : std::nullopt;
}

std::vector<QStringList> ToolArguments::textRows(QStringView name) const
{
    std::vector<QStringList> rows;
    for (const QJsonValue& row : m_values.value(name).toArray())
        rows.push_back(textsOf(row.toArray()));
    return rows;
}

std::vector<double> ToolArguments::numberList(QStringView name) const
{
    std::vector<double> numbers;
    for (const QJsonValue& value : m_values.value(name).toArray())
        numbers.push_back(finiteNumber(value).value_or(0));
    return numbers;
}

ToolArguments ToolArguments::record(QStringView name) const
{
    return ToolArguments(m_values.value(name).toObject());
}

std::vector<ToolArguments> ToolArguments::records(QStringView name) const
{
    std::vector<ToolArguments> records;
    for (const QJsonValue& value : m_values.value(name).toArray())
        records.emplace_back(value.toObject());
    return records;
}

} // namespace tw::app::mcp
