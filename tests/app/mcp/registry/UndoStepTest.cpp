#include "app/mcp/registry/UndoStep.h"

#include "app/mcp/ToolFixture.h"
#include "core/document/DocumentCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using core::document::DocumentKind;
using core::document::SetDocumentTitleCommand;

class UndoStepTest : public ToolFixture
{
protected:
    UndoStepTest()
        : ToolFixture({})
        , document(add<Document>(DocumentKind::Prose, u"old"_s))
    {}

    McpToolResult rename(const QString& title, const McpToolResult& result)
    {
        return applyAsUndoStep(workspace, log, u"MCP: rename"_s, [&] {
            workspace.undoStack().push(std::make_unique<SetDocumentTitleCommand>(document, title));
            return result;
        });
    }

    Document& document;
};

TEST_F(UndoStepTest, aSuccessIsOneStepSavedAndLogged)
{
    EXPECT_EQ(rename(u"new"_s, McpToolResult::success(u"done"_s)), McpToolResult::success(u"done"_s));
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(workspace.history().undoText(), u"MCP: rename"_s);
    EXPECT_FALSE(workspace.isModified());
    EXPECT_EQ(log.entries, QStringList{u"done"_s});
    workspace.undoStack().undo();
    EXPECT_EQ(document.title(), u"old"_s);
}

TEST_F(UndoStepTest, aFailureTakesBackWhatItDid)
{
    EXPECT_EQ(rename(u"new"_s, McpToolResult::failure(u"no"_s)), McpToolResult::failure(u"no"_s));
    EXPECT_EQ(document.title(), u"old"_s);
    EXPECT_FALSE(workspace.history().canRedo());
    expectUntouched(0);
}

TEST_F(UndoStepTest, aSuccessWithoutAChangeLeavesNothing)
{
    spoilSaving();
    const auto nothing = [] { return McpToolResult::success(u"same"_s); };
    EXPECT_TRUE(applyAsUndoStep(workspace, log, u"MCP: nothing"_s, nothing).ok) << "nothing is saved";
    expectUntouched(0);
}

TEST_F(UndoStepTest, aChangeThatCannotBeSavedStaysAndSaysSo)
{
    spoilSaving();
    const McpToolResult result = rename(u"new"_s, McpToolResult::success(u"Set to %2."_s));
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.text.startsWith(u"Set to %2. The change is applied in the open project and can be "
                                       u"undone, but saving failed: The project "
                                       u"changed on disk"_s))
        << result.text.toStdString();
    EXPECT_EQ(document.title(), u"new"_s);
    EXPECT_EQ(steps(), 1);
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(UndoStepTest, worksInsideAnOpenMacro)
{
    core::undo::UndoStack& history = workspace.undoStack();
    history.beginMacro(u"Assistant"_s);
    EXPECT_TRUE(rename(u"first"_s, McpToolResult::success(u"1"_s)).ok);
    EXPECT_FALSE(rename(u"second"_s, McpToolResult::failure(u"2"_s)).ok);
    EXPECT_EQ(document.title(), u"first"_s);
    EXPECT_TRUE(history.isMacroOpen());
    history.endMacro();
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(history.undoText(), u"Assistant"_s);
    EXPECT_FALSE(workspace.isModified());
    EXPECT_EQ(log.entries, QStringList{u"1"_s});
}

} // namespace tw::app::mcp
