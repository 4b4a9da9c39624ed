#include "app/mcp/core/HistoryTools.h"

#include "app/mcp/core/ProjectBackup.h"
#include "app/workspace/Workspace.h"

#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

McpToolResult saveProject(ToolContext& context, const ToolArguments&)
{
    if (const auto saved = context.workspace.save(); !saved)
        return McpToolResult::failure(saved.message());
    return McpToolResult::success(u"Project saved."_s);
}

McpToolResult undoLast(ToolContext& context, const ToolArguments& arguments)
{
    core::undo::UndoStack& history = context.workspace.undoStack();
    if (!history.canUndo())
        return McpToolResult::failure(u"Nothing to undo."_s);
    const qint64 wanted = arguments.integer(u"count", 1, 1, std::numeric_limits<qint64>::max());
    qint64 undone = 0;
    while (undone < wanted && history.canUndo()) {
        history.undo();
        ++undone;
    }
    if (const auto saved = context.workspace.save(); !saved) {
        return McpToolResult::failure(
            u"%1 change(s) were undone in the open project, but saving failed: %2"_s.arg(
                QString::number(undone), saved.message()));
    }
    const QString text =
        undone == 1 ? u"Undid the last change."_s : u"Undid the last %1 changes."_s.arg(undone);
    context.changeLog.entries.append(text);
    return McpToolResult::success(text);
}

McpToolResult getRecentChanges(ToolContext& context, const ToolArguments&)
{
    const QStringList& entries = context.changeLog.entries;
    return McpToolResult::success(entries.isEmpty() ? u"No changes this session."_s : entries.join(u'\n'));
}

McpToolResult backupProject(ToolContext& context, const ToolArguments&)
{
    const auto backup = backUpNow(context.workspace);
    if (!backup)
        return McpToolResult::failure(backup.message());
    QString text = u"Backed up the project to %1."_s.arg(backup.value().path);
    if (backup.value().pruned > 0)
        text += u" Pruned %1 older backup(s)."_s.arg(backup.value().pruned);
    return McpToolResult::success(text);
}

} // namespace tw::app::mcp
