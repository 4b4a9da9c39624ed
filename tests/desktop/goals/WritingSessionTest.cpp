#include "desktop/goals/WritingSession.h"

#include "app/planning/WritingProgress.h"
#include "core/document/DocumentCommands.h"
#include "desktop/goals/GoalsDialog.h"
#include "desktop/support/TestDesk.h"

#include <gtest/gtest.h>

namespace tw::desktop::goals {

using namespace Qt::Literals::StringLiterals;

namespace {

class WritingSessionTest : public testing::Test
{
protected:
    WritingSessionTest()
    {
        scene = desk.addDocument(u"Scene"_s, {}, 0);
        desk.announce();
    }

    void write(const QString& text)
    {
        desk.session.apply(std::make_unique<core::document::SetDocumentBodyCommand>(
            desk.document(scene), core::document::DocumentBody{text, {}}));
    }

    qint64 logged(QDate day) const
    {
        return app::planning::wordsOn(desk.session.project().writingLog(), day);
    }

    test::TestDesk desk;
    core::ContentId scene;
    QDate today{2026, 3, 10};
    WritingSession writing{desk.session, [this] { return today; }};
};

} // namespace

TEST_F(WritingSessionTest, savesEnterTheDaysWordsInTheLog)
{
    write(u"one two three"_s);
    EXPECT_EQ(writing.sessionWords(), 3);
    EXPECT_EQ(logged(today), 0) << "not before a save";
    ASSERT_TRUE(desk.session.saveAs(desk.folder.filePath(u"project"_s)));
    EXPECT_EQ(logged(today), 3);
    write(u"one two"_s);
    EXPECT_EQ(writing.wordsToday(), 2);
    ASSERT_TRUE(desk.session.save());
    EXPECT_EQ(logged(today), 2);

    ASSERT_TRUE(desk.session.open(desk.folder.filePath(u"project"_s)));
    EXPECT_EQ(writing.sessionWords(), 0);
    EXPECT_EQ(writing.wordsToday(), 2) << "of the earlier session";
    write(u"one two three four five six"_s);
    EXPECT_EQ(writing.sessionWords(), 4);
    EXPECT_EQ(writing.wordsToday(), 6);
}

TEST_F(WritingSessionTest, midnightBeginsADayOfItsOwn)
{
    const QDate before = today;
    write(u"one two three"_s);
    today = today.addDays(1);
    write(u"one two three four"_s);
    EXPECT_EQ(logged(before), 3);
    EXPECT_EQ(writing.wordsToday(), 1);
    EXPECT_EQ(writing.sessionWords(), 4);
}

TEST_F(WritingSessionTest, theGoalOfTheDialogIsWhatWasSet)
{
    const core::writing::WritingGoal goals[] = {{}, {500, 0, {}}, {0, 80'000, u"2026-06-30"_s}};
    for (const core::writing::WritingGoal& goal : goals) {
        const GoalsDialog dialog(desk.context, {goal, {}, 100, 5, today}, nullptr);
        EXPECT_EQ(dialog.goal(), goal);
    }
    const QString text = paceText({{0, 1000, u"2026-03-19"_s}, {{u"2026-03-09"_s, 5}}, 400, 20, today});
    EXPECT_EQ(
        text, u"400 words written, 20 of them today. 600 words to go: 62 a day for 10 days. "
              "Words on 2 days in a row."_s);
}

} // namespace tw::desktop::goals
