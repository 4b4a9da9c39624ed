// Checks that hold for every tool that changes something.
#pragma once

#include "app/mcp/ToolFixture.h"
#include "app/persistence/codec/ProjectWriter.h"

#include <initializer_list>

namespace tw::app::mcp {

/** A call and what it answers. */
struct ToolCall
{
    QByteArray arguments;
    QString answer;
};

class ChangingToolFixture : public ToolFixture
{
protected:
    using ToolFixture::ToolFixture;

    /**
     * The call succeeds with that answer as one saved and logged step of that label. Undo gives back the
     * project as it was; the step is redone afterwards.
     */
    void expectChange(const char* tool, const QString& label, const ToolCall& expected)
    {
        SCOPED_TRACE(std::string(tool) + ' ' + expected.arguments.toStdString());
        const auto before = persistence::serializeProject(project());
        const qsizetype stepsBefore = steps();
        EXPECT_EQ(call(tool, expected.arguments), McpToolResult::success(expected.answer));
        ASSERT_EQ(steps(), stepsBefore + 1);
        EXPECT_EQ(workspace.history().undoText(), label);
        EXPECT_FALSE(workspace.isModified());
        EXPECT_EQ(log.entries.value(log.entries.size() - 1), expected.answer);
        const auto after = persistence::serializeProject(project());
        EXPECT_NE(after, before);
        workspace.undoStack().undo();
        EXPECT_EQ(persistence::serializeProject(project()), before);
        workspace.undoStack().redo();
        EXPECT_EQ(persistence::serializeProject(project()), after);
    }

    /** The calls fail with those answers and change nothing. */
    void expectRefused(const char* tool, std::initializer_list<ToolCall> calls)
    {
        expectUnchanged(tool, calls, false);
    }

    /** The calls succeed with those answers, but there is nothing to change. */
    void expectNothingToDo(const char* tool, std::initializer_list<ToolCall> calls)
    {
        expectUnchanged(tool, calls, true);
    }

private:
    void expectUnchanged(const char* tool, std::initializer_list<ToolCall> calls, bool isOk)
    {
        const auto before = persistence::serializeProject(project());
        const qsizetype stepsBefore = steps();
        const qsizetype logBefore = log.entries.size();
        for (const ToolCall& expected : calls) {
            SCOPED_TRACE(std::string(tool) + ' ' + expected.arguments.toStdString());
            EXPECT_EQ(call(tool, expected.arguments), (McpToolResult{isOk, expected.answer}));
            EXPECT_EQ(steps(), stepsBefore);
            EXPECT_EQ(log.entries.size(), logBefore);
        }
        EXPECT_EQ(persistence::serializeProject(project()), before);
    }
};

} // namespace tw::app::mcp
