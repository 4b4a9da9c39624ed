#include "mcp/server/ToolReference.h"

#include "app/mcp/ToolFamilies.h"
#include "mcp/server/ToolCatalogue.h"

#include <QJsonArray>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using app::mcp::Tool;
using app::mcp::ToolAccess;

namespace {

QString typeOf(const QJsonObject& property)
{
    const QJsonValue type = property.value(u"type");
    if (type.isString())
        return type == "array"_L1 ? u"array of "_s + typeOf(property.value(u"items").toObject())
                                  : type.toString();
    QStringList names;
    for (const QJsonValue& name : type.toArray())
        names.append(name.toString());
    return names.join(u" or "_s);
}

QString meaningOf(const QJsonObject& property)
{
    QString meaning = property.value(u"description").toString();
    if (property.contains(u"enum")) {
        QStringList values;
        for (const QJsonValue& value : property.value(u"enum").toArray())
            values.append(u'`' + value.toString() + u'`');
        meaning += u" One of "_s + values.join(u", "_s) + u'.';
    }
    const QJsonValue byDefault = property.value(u"default");
    if (!byDefault.isUndefined())
        meaning += u" Default: `%1`."_s.arg(byDefault.toVariant().toString());
    // Bars would end the cell.
    return meaning.replace(u'|', u"\\|"_s);
}

QString needOf(const Tool& tool, const QString& argument)
{
    if (argument == tool.subject)
        return u"yes, or `id`"_s;
    return tool.spec.inputSchema.value(u"required").toArray().contains(argument) ? u"yes"_s : QString();
}

QString accessOf(const Tool& tool)
{
    if (tool.access == ToolAccess::ReadOnly)
        return u"Reads only."_s;
    QString access = tool.hints.isDestructive ? u"Changes or removes."_s : u"Adds or saves."_s;
    if (tool.hints.isIdempotent)
        access += u" A second call changes nothing more."_s;
    if (tool.hints.isOpenWorld)
        access += u" Reaches files outside the project."_s;
    return access;
}

QString described(const Tool& tool)
{
    QString text = u"### %1\n\n*%2* %3\n\n"_s.arg(tool.spec.name, accessOf(tool), tool.spec.description);
    const QJsonObject properties = tool.spec.inputSchema.value(u"properties").toObject();
    if (properties.isEmpty())
        return text;
    text += u"| Argument | Type | Needed | Meaning |\n|---|---|---|---|\n"_s;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        const QJsonObject schema = property->toObject();
        text += u"| `%1` | %2 | %3 | %4 |\n"_s.arg(
            property.key(), typeOf(schema), needOf(tool, property.key()), meaningOf(schema));
    }
    return text + u'\n';
}

} // namespace

QString toolReference()
{
    QString text = u"# Tools\n\nWhat the assistant and `vellory-mcp` can do with a project. Made from the "
                   u"tables in `src/app/mcp` by "
                   "`ninja tool-docs`; do not edit by hand.\n\n"_s;
    for (const ToolFamily& family : toolFamilies()) {
        text += u"## %1 (`--families %2`)\n\n"_s.arg(family.title, family.name);
        for (const Tool& tool : family.tools)
            text += described(tool);
    }
    while (text.endsWith(u"\n\n"))
        text.chop(1);
    return text;
}

} // namespace tw::mcp::server
