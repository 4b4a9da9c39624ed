#include "core/undo/UndoStack.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tw::core::undo {

using namespace Qt::Literals::StringLiterals;

namespace {

class SetNumber final : public Command
{
public:
    SetNumber(int& target, int value)
        : m_target(target)
        , m_value(value)
    {}

    void redo() override
    {
        m_old = m_target;
        m_target = m_value;
    }
    void undo() override { m_target = m_old; }
    QString text() const override { return u"Set %1"_s.arg(m_value); }

private:
    int& m_target;
    int m_value;
    int m_old = 0;
};

class Throwing final : public Command
{
public:
    void redo() override { throw std::runtime_error("no"); }
    void undo() override {}
    QString text() const override { return u"Throw"_s; }
};

class UndoStackTest : public testing::Test
{
protected:
    void set(int value) { stack.push(std::make_unique<SetNumber>(number, value)); }

    int number = 0;
    UndoStack stack;
};

} // namespace

TEST_F(UndoStackTest, savedStateInTheDiscardedRedoListIsLost)
{
    set(1);
    set(2);
    set(3);
    stack.setClean();
    stack.undo();
    stack.undo();
    set(9);
    set(8);
    EXPECT_TRUE(stack.isModified()) << "three steps again, but not the saved ones";
    stack.undo();
    EXPECT_TRUE(stack.isModified());
    EXPECT_FALSE(stack.canUndo() && !stack.isModified());
}

TEST_F(UndoStackTest, callbackFiresOnEachChangeOfTheFlagOnly)
{
    int calls = 0;
    stack.setModifiedCallback([&calls] { ++calls; });
    set(1);
    set(2);
    EXPECT_EQ(calls, 1);
    stack.setClean();
    EXPECT_EQ(calls, 2);
    stack.undo();
    stack.redo();
    EXPECT_EQ(calls, 4);
    EXPECT_FALSE(stack.isModified());
    stack.markModified();
    EXPECT_EQ(calls, 5);
    stack.clear();
    EXPECT_FALSE(stack.isModified());
    EXPECT_EQ(calls, 6);
}

TEST_F(UndoStackTest, nestedMacrosAreOneStepUnderTheOutermostLabel)
{
    stack.beginMacro(u"A"_s);
    stack.beginMacro(u"B"_s);
    set(1);
    set(2);
    stack.endMacro();
    EXPECT_TRUE(stack.isMacroOpen());
    stack.undo();
    EXPECT_EQ(number, 2) << "a half-built step cannot be undone";
    EXPECT_FALSE(stack.canUndo());
    stack.endMacro();
    EXPECT_EQ(stack.undoText(), u"A"_s);
    EXPECT_EQ(stack.position().undoLength, 1);
    stack.undo();
    EXPECT_EQ(number, 0);
    EXPECT_EQ(stack.redoText(), u"A"_s);
}

TEST_F(UndoStackTest, emptyMacroLeavesNoTrace)
{
    set(1);
    stack.undo();
    stack.beginMacro(u"Nothing"_s);
    stack.endMacro();
    stack.endMacro();
    EXPECT_FALSE(stack.canUndo());
    EXPECT_TRUE(stack.canRedo());
    EXPECT_FALSE(stack.isModified());
}

TEST_F(UndoStackTest, savingInsideAMacro)
{
    stack.beginMacro(u"Saved at its end"_s);
    set(1);
    set(2);
    stack.setClean();
    EXPECT_FALSE(stack.isModified());
    stack.endMacro();
    EXPECT_FALSE(stack.isModified());
    stack.undo();
    EXPECT_TRUE(stack.isModified());
    stack.redo();
    EXPECT_FALSE(stack.isModified());

    stack.beginMacro(u"Saved half-way"_s);
    set(3);
    stack.setClean();
    set(4);
    stack.endMacro();
    EXPECT_TRUE(stack.isModified());
    stack.undo();
    EXPECT_TRUE(stack.isModified()) << "the disk holds 3, which no undo reaches any more";
}

TEST_F(UndoStackTest, recapturesTheOldValueEachTime)
{
    set(1);
    stack.undo();
    number = 7;
    stack.redo();
    stack.undo();
    EXPECT_EQ(number, 7);
}

TEST_F(UndoStackTest, throwingCommandIsNotRecorded)
{
    set(1);
    stack.undo();
    EXPECT_THROW(stack.push(std::make_unique<Throwing>()), std::runtime_error);
    EXPECT_FALSE(stack.canUndo());
    EXPECT_TRUE(stack.canRedo());
}

TEST_F(UndoStackTest, rollbackTakesBackWhatCameAfterAlsoInsideAMacro)
{
    set(1);
    const auto start = stack.position();
    stack.beginMacro(u"Request"_s);
    set(2);
    const auto inside = stack.position();
    set(3);
    set(4);
    stack.setClean();
    stack.rollbackTo(inside);
    EXPECT_EQ(number, 2);
    EXPECT_TRUE(stack.isMacroOpen());
    EXPECT_TRUE(stack.isModified()) << "what was saved was rolled back";
    set(5);
    set(6);
    EXPECT_TRUE(stack.isModified());
    stack.rollbackTo(start);
    EXPECT_EQ(number, 1);
    EXPECT_FALSE(stack.isMacroOpen());
    EXPECT_FALSE(stack.canRedo());
    set(2);
    set(3);
    stack.undo();
    stack.rollbackTo(start);
    EXPECT_EQ(number, 1);
    EXPECT_FALSE(stack.canRedo()) << "what came after the destroyed step went with it";
}

} // namespace tw::core::undo
