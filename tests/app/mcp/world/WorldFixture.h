// The sample world, saved in a folder, and the tools that work on it.
#pragma once

#include "../ToolFixture.h"
#include "app/mcp/ToolFamilies.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "core/entity/Entity.h"
#include "support/SampleWorld.h"

namespace tw::app::mcp {

/** What a call is expected to answer, and whether it changes anything. */
struct ExpectedCall
{
    enum class Effect
    {
        /** A success that leaves everything as it is. */
        None,
        /** A success that is one step; undoing it gives the project back. */
        OneStep,
        Failure,
    };

    const char* tool;
    QByteArray arguments;
    Effect effect;
    QString text;
};

inline constexpr auto none = ExpectedCall::Effect::None;
inline constexpr auto oneStep = ExpectedCall::Effect::OneStep;
inline constexpr auto failure = ExpectedCall::Effect::Failure;

class WorldFixture : public ToolFixture
{
protected:
    WorldFixture()
        : ToolFixture({registerMcpWorldTools})
    {
        test::fillSampleWorld(workspace.projectForEdit());
        save();
    }

    /** After edits of the project by hand. */
    void save()
    {
        workspace.markModified();
        EXPECT_TRUE(workspace.save(persistence::SaveExtent::Everything));
    }

    [[nodiscard]] core::entity::Entity& entity(const core::ContentId& id)
    {
        return *workspace.projectForEdit().findAsForEdit<core::entity::Entity>(id);
    }

    /** Runs the call and looks at its answer and at all it left behind; a step is undone afterwards. */
    void expectCall(const ExpectedCall& expected)
    {
        SCOPED_TRACE((QByteArray(expected.tool) + ' ' + expected.arguments).toStdString());
        const persistence::ProjectFileMap before = persistence::serializeProject(project());
        const qsizetype stepsBefore = steps();
        const qsizetype logBefore = log.entries.size();
        const McpToolResult result = call(expected.tool, expected.arguments);
        EXPECT_EQ(result.text, expected.text);
        EXPECT_EQ(result.ok, expected.effect != failure);
        if (expected.effect == oneStep) {
            EXPECT_EQ(steps(), stepsBefore + 1);
            EXPECT_EQ(log.entries.size(), logBefore + 1);
            EXPECT_FALSE(workspace.isModified());
            EXPECT_TRUE(workspace.history().undoText().startsWith(u"MCP: "));
            EXPECT_NE(persistence::serializeProject(project()), before);
            workspace.undoStack().undo();
            save();
        } else {
            expectUntouched(stepsBefore, logBefore);
        }
        EXPECT_EQ(persistence::serializeProject(project()), before);
    }

    template <std::size_t Count>
    void expectCalls(const ExpectedCall (&calls)[Count])
    {
        for (const ExpectedCall& expected : calls)
            expectCall(expected);
    }

    /** The texts of a successful call that stays. */
    QString run(const char* tool, const QByteArray& arguments)
    {
        const McpToolResult result = call(tool, arguments);
        EXPECT_TRUE(result.ok) << result.text.toStdString();
        return result.text;
    }

    const test::SampleWorld ids = test::sampleWorldIds();
};

} // namespace tw::app::mcp
