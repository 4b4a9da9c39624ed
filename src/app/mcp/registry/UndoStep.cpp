#include "app/mcp/registry/UndoStep.h"

#include "app/workspace/Workspace.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

McpToolResult applyAsUndoStep(
    workspace::Workspace& workspace, McpChangeLog& changeLog, const QString& label,
    const std::function<McpToolResult()>& body)
{
    core::undo::UndoStack& history = workspace.undoStack();
    const core::undo::UndoStack::Position before = history.position();
    history.beginMacro(label);
    McpToolResult result = body();
    history.endMacro();

    if (!result.ok) {
        history.rollbackTo(before);
        return result;
    }
    if (history.position() == before)
        return result;
    if (const auto saved = workspace.save(); !saved) {
        return McpToolResult::failure(
            u"%1 The change is applied in the open project and can be undone, but saving failed: %2"_s.arg(
                result.text, saved.message()));
    }
    changeLog.entries.append(result.text);
    return result;
}

} // namespace tw::app::mcp
