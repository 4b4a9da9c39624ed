#include "app/persistence/codec/ProjectWriter.h"
#include "core/undo/UndoStack.h"
#include "support/RandomCommands.h"

#include <gtest/gtest.h>

namespace tw::app {

using core::project::Project;
using core::undo::UndoStack;

namespace {

/** A fingerprint of everything that a project holds: its files. */
QByteArray contentOf(const Project& project)
{
    QByteArray content;
    for (const auto& [path, bytes] : persistence::serializeProject(project))
        content += path.toUtf8() + '\n' + bytes;
    return content;
}

} // namespace

TEST(CommandPropertyTest, undoAndRedoReturnToTheSameProjectAtEveryStep)
{
    constexpr int steps = 2000;
    Project project;
    test::fillWithEveryKind(project);
    test::RandomCommands random(project, 20260101);
    UndoStack stack;
    std::vector<size_t> states{qHash(contentOf(project))};
    for (int step = 0; step < steps; ++step) {
        const int children = random.number(0, 9) == 0 ? random.number(2, 4) : 0;
        if (children > 0) {
            stack.beginMacro(random.text());
            for (int child = 0; child < children; ++child)
                stack.push(random.next());
            stack.endMacro();
        } else {
            stack.push(random.next());
        }
        states.push_back(qHash(contentOf(project)));
    }
    EXPECT_EQ(random.usedClassCount(), random.classCount()) << "every class came up";

    for (int pass = 0; pass < 2; ++pass) {
        for (int step = steps - 1; step >= 0; --step) {
            stack.undo();
            ASSERT_EQ(qHash(contentOf(project)), states[static_cast<std::size_t>(step)])
                << "undo to " << step;
        }
        EXPECT_FALSE(stack.canUndo());
        for (int step = 1; step <= steps; ++step) {
            stack.redo();
            ASSERT_EQ(qHash(contentOf(project)), states[static_cast<std::size_t>(step)])
                << "redo to " << step;
        }
        EXPECT_FALSE(stack.canRedo());
    }
}

} // namespace tw::app
