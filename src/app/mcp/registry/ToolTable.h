#pragma once

#include "app/mcp/registry/McpChangeLog.h"
#include "app/mcp/registry/McpServer.h"
#include "app/mcp/registry/ToolArguments.h"

#include <vector>

namespace tw::app::codex {
class MentionIndex;
}
namespace tw::app::workspace {
class Workspace;
}

namespace tw::app::mcp {

enum class ToolAccess
{
    /** Offered in read mode: changes neither the project nor a file. */
    ReadOnly,
    Changing,
};

/** What a client may want to know before it lets a model call a tool. */
struct ToolHints
{
    /** Takes something away or writes over it, rather than only adding. */
    bool isDestructive = false;
    /** The same call a second time changes nothing more. */
    bool isIdempotent = false;
    /** Reaches files outside the project. */
    bool isOpenWorld = false;
};

/** What every handler works on. All outlive all calls. */
struct ToolContext
{
    workspace::Workspace& workspace;
    McpChangeLog& changeLog;
    codex::MentionIndex& mentions;
};

/** Never throws. The arguments were checked against the schema, see ArgumentCheck.h. */
using ToolHandler = McpToolResult (*)(ToolContext& context, const ToolArguments& arguments);

/**
 * One row of a family's table. How to add a tool, say "rename_lamp" to the light family:
 *
 *     // light/LampTools.h declares the handler, light/LampTools.cpp defines it:
 *     McpToolResult renameLamp(ToolContext& context, const ToolArguments& arguments)
 *     {
 *         // ObjectFinder.h: by name or id, refusing what cannot be changed.
 *         const auto lamp = findForChange<Lamp>(context.workspace, arguments, u"title");
 *         if (!lamp)
 *             return McpToolResult::failure(lamp.message());
 *         const QString title = arguments.text(u"new_title");
 *         return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: rename lamp"_s, [&] {
 *             auto command = std::make_unique<SetLampTitleCommand>(*lamp.value(), title);
 *             context.workspace.undoStack().push(std::move(command));
 *             return McpToolResult::success(u"Renamed to '%1'."_s.arg(title));
 *         });
 *     }
 *
 *     // light/LightFamily.cpp lists it, in the order of the catalogue:
 *     {
 *         .access = ToolAccess::Changing,
 *         .title = u"Rename a lamp"_s,
 *         .hints = {.isIdempotent = true},
 *         .spec = {
 *             u"rename_lamp"_s,
 *             u"Renames a lamp. ..."_s,
 *             makeSubjectSchema(
 *                 u"title"_s, u"The lamp's title."_s, {{u"new_title"_s, textProperty(u"The new title."_s)}},
 *                 {u"new_title"_s})},
 *         .subject = u"title"_s,
 *         .handler = renameLamp,
 *     },
 *
 * The check before the call answers for missing and mistyped arguments and unknown choices; a handler reads,
 * resolves names, builds commands and words the answer. Texts with names in them use arg(a, b, c) in one
 * call: a name may hold "%1".
 */
struct Tool
{
    ToolAccess access = ToolAccess::Changing;
    /** For people: "Create a document". */
    QString title;
    ToolHints hints = {};
    McpToolSpec spec;
    /** The argument that names the thing the tool works on and for which "id" may stand; empty when there is
     * none. */
    QString subject = {};
    /** Arguments whose absence and whose unknown words the handler refuses itself, in words of its own. */
    QStringList refusedByHandler = {};
    ToolHandler handler = nullptr;
};

using ToolTable = std::vector<Tool>;

/** Puts the tools of a table into a server, in order. */
void registerTools(
    McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog, const ToolTable& tools);

} // namespace tw::app::mcp
