#include "mcp/server/ToolCatalogue.h"

#include "app/mcp/ToolFamilies.h"

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using app::mcp::Tool;
using app::mcp::ToolAccess;
using app::mcp::ToolTable;

namespace {

/** The keys that clients of all versions look for. */
QJsonObject listed(const Tool& tool)
{
    const bool isReadOnly = tool.access == ToolAccess::ReadOnly;
    return {
        {u"name"_s, tool.spec.name},
        {u"title"_s, tool.title},
        {u"description"_s, tool.spec.description},
        {u"inputSchema"_s, tool.spec.inputSchema},
        {u"annotations"_s, QJsonObject{
                               {u"title"_s, tool.title},
                               {u"readOnlyHint"_s, isReadOnly},
                               {u"destructiveHint"_s, tool.hints.isDestructive},
                               {u"idempotentHint"_s, isReadOnly || tool.hints.isIdempotent},
                               {u"openWorldHint"_s, tool.hints.isOpenWorld}}}};
}

core::Result<void> checkFamilies(const QStringList& names)
{
    const QStringList known = familyNames();
    for (const QString& name : names) {
        if (!known.contains(name)) {
            return core::Failure{u"There is no family of tools called \"%1\". Choose from: %2."_s.arg(
                name, known.join(u", "_s))};
        }
    }
    return {};
}

} // namespace

std::vector<ToolFamily> toolFamilies()
{
    return {
        {u"core"_s, u"Session"_s, app::mcp::coreTools()},
        {u"world"_s, u"Codex and project"_s, app::mcp::worldTools()},
        {u"document"_s, u"Documents"_s, app::mcp::documentTools()},
        {u"calendar"_s, u"Calendar"_s, app::mcp::calendarTools()},
        {u"map"_s, u"Maps and media"_s, app::mcp::mapMediaTools()},
        {u"spreadsheet"_s, u"Spreadsheets and charts"_s, app::mcp::spreadsheetTools()},
        {u"timeline"_s, u"Timeline"_s, app::mcp::timelineTools()},
    };
}

QStringList familyNames()
{
    QStringList names;
    for (const ToolFamily& family : toolFamilies())
        names.append(family.name);
    return names;
}

core::Result<ToolCatalogue> ToolCatalogue::create(
    app::workspace::Workspace& workspace, app::mcp::McpChangeLog& changeLog, const ToolChoice& choice,
    const QString& version)
{
    if (const auto checked = checkFamilies(choice.families); !checked)
        return core::Failure{checked.message()};
    ToolCatalogue catalogue(app::mcp::McpServer(
        u"vellory"_s, version,
        u"Tools for one Vellory project: its manuscript, codex, timeline and more. Objects are addressed by "
        u"the names "
        "the writer gave them. Every change is saved at once and is one step of the undo history."_s));
    for (const ToolFamily& family : toolFamilies()) {
        if (!choice.families.isEmpty() && !choice.families.contains(family.name))
            continue;
        ToolTable tools = family.tools;
        if (choice.isReadOnly)
            std::erase_if(tools, [](const Tool& tool) { return tool.access != ToolAccess::ReadOnly; });
        app::mcp::registerTools(catalogue.m_server, workspace, changeLog, tools);
        for (const Tool& tool : tools) {
            catalogue.m_listing.append(listed(tool));
            catalogue.m_access.insert(tool.spec.name, tool.access);
        }
    }
    return catalogue;
}

} // namespace tw::mcp::server
