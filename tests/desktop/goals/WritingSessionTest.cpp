#include "desktop/goals/WritingSession.h"

#include "app/planning/WritingProgress.h"
#include "core/document/DocumentCommands.h"
#include "desktop/goals/GoalsDialog.h"
#include "desktop/goals/ProgressChart.h"
#include "desktop/shell/Translations.h"
#include "desktop/support/TestDesk.h"

#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

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

TEST_F(WritingSessionTest, oneWordIsNotSeveral)
{
    const shell::Translations english{QLocale(QLocale::English)};
    const struct
    {
        core::writing::WritingGoal goal;
        qint64 written;
        const char16_t* text;
    } cases[] = {
        {{}, 1, u"1 word written, 0 of them today."},
        {{0, 2, {}}, 1, u"1 word written, 0 of them today. 1 word to go."},
        {{0, 900, {}}, 0, u"0 words written, 0 of them today. 900 words to go."},
        {{0, 3, u"2026-03-09"_s},
         2,
         u"2 words written, 0 of them today. The deadline has passed with 1 word to go."},
        {{0, 3, u"2026-03-10"_s}, 2, u"2 words written, 0 of them today. 1 word to go: 1 a day for 1 day."},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(paceText({sample.goal, {}, sample.written, 0, today}), QString::fromUtf16(sample.text));

    const GoalsDialog dialog(desk.context, {{1, 0, {}}, {{u"2026-03-10"_s, 1}}, 1, 1, today}, nullptr);
    EXPECT_EQ(dialog.findChild<ProgressChart*>()->accessibleDescription(), u"1 word in 30 days"_s);
    const auto boxes = dialog.findChildren<QSpinBox*>();
    const auto daily = std::ranges::find(boxes, 1, &QSpinBox::value);
    ASSERT_NE(daily, boxes.end());
    EXPECT_EQ((*daily)->text(), u"1 word"_s);
    (*daily)->selectAll();
    QTest::keyClicks(*daily, u"15"_s);
    EXPECT_EQ((*daily)->text(), u"15 words"_s) << "typed through one";
    EXPECT_EQ(dialog.goal().dailyWordTarget, 15);
}

} // namespace tw::desktop::goals
