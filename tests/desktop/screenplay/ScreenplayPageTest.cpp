#include "desktop/screenplay/ScreenplayPage.h"

#include "desktop/manuscript/NameCompletion.h"
#include "desktop/screenplay/RevisedLines.h"
#include "desktop/support/TestDesk.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::screenplay {

using namespace Qt::Literals::StringLiterals;

namespace {

class ScreenplayPageTest : public testing::Test
{
protected:
    ScreenplayPageTest()
    {
        page.setPageStyle(screenplayStyle({}));
        page.resize(900, 700);
        page.show();
    }

    QString text() { return page.currentBody().text; }

    /** Left margin of each line, in characters. */
    std::vector<int> indents() const
    {
        std::vector<int> found;
        const qreal width = QFontMetricsF(page.document()->defaultFont()).averageCharWidth();
        for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next())
            found.push_back(qRound(block.blockFormat().leftMargin() / width));
        return found;
    }

    test::TestDesk desk;
    ScreenplayPage page{desk.themes, nullptr};
};

} // namespace

TEST_F(ScreenplayPageTest, aSceneIsTypedWithTabAndReturnAlone)
{
    QTest::keyClicks(&page, u"int. lighthouse - night"_s);
    QTest::keyClick(&page, Qt::Key_Return);
    QTest::keyClicks(&page, u"Rain on the glass."_s);
    QTest::keyClick(&page, Qt::Key_Return);
    QTest::keyClick(&page, Qt::Key_Tab);
    EXPECT_EQ(page.elementAtCursor(), Element::Character);
    QTest::keyClicks(&page, u"mara"_s);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(page.elementAtCursor(), Element::Dialogue);
    QTest::keyClick(&page, Qt::Key_Tab);
    EXPECT_EQ(page.elementAtCursor(), Element::Parenthetical);
    QTest::keyClicks(&page, u"quietly"_s);
    QTest::keyClick(&page, Qt::Key_Return);
    QTest::keyClicks(&page, u"It is late."_s);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(page.elementAtCursor(), Element::Character);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(page.elementAtCursor(), Element::Action);
    QTest::keyClick(&page, Qt::Key_Backtab);
    EXPECT_EQ(page.elementAtCursor(), Element::SceneHeading);
    QTest::keyClicks(&page, u"ext. quay"_s);
    EXPECT_EQ(
        text(),
        u"INT. LIGHTHOUSE - NIGHT\n\nRain on the glass.\n\nMARA\n(quietly)\nIt is late.\n\nEXT. QUAY"_s);
    EXPECT_EQ(indents(), (std::vector<int>{0, 0, 0, 0, 22, 16, 10, 0, 0}));
}

TEST_F(ScreenplayPageTest, anElementIsWrittenIntoTheTextOnlyWhereItMust)
{
    page.applyBody({u"the pier\n\nMARA\nSo."_s, {}});
    QTextCursor cursor = page.textCursor();
    cursor.setPosition(4);
    page.setTextCursor(cursor);
    EXPECT_TRUE(page.setElement(Element::SceneHeading));
    EXPECT_EQ(text(), u".THE PIER\n\nMARA\nSo."_s);
    EXPECT_EQ(page.textCursor().position(), 5) << "before the same letter";
    EXPECT_TRUE(page.setElement(Element::Transition));
    EXPECT_EQ(text(), u"> THE PIER\n\nMARA\nSo."_s);
    EXPECT_TRUE(page.setElement(Element::Action));
    EXPECT_EQ(text(), u"!THE PIER\n\nMARA\nSo."_s);
    EXPECT_FALSE(page.setElement(Element::Dialogue)) << "nobody speaks";
    page.moveCursor(QTextCursor::End);
    EXPECT_TRUE(page.setElement(Element::Transition));
    EXPECT_EQ(text(), u"!THE PIER\n\nMARA\n\n> SO."_s);
    EXPECT_EQ(indents()[2], 0) << "nobody speaks below the name any more";
}

TEST_F(ScreenplayPageTest, aBodyFromElsewhereComesBackAsItWas)
{
    for (const QString& body :
         {u"\n\nINT. A\r\n\r\nMARA\r\nSo.\r\n"_s, u"MARA\n  \nSo.\u00A0Yes.\t"_s, QString(),
          u"\u05D0\n\u202Ex"_s}) {
        page.applyBody({body, {}});
        EXPECT_EQ(text(), body);
    }
}

TEST_F(ScreenplayPageTest, linesThatDifferFromTheBaselineAreMarked)
{
    EXPECT_EQ(revisedLinesOf(u"a\n\nb\n\nc"_s, u"a\n\nB\n\nc"_s), (std::set<int>{2}));
    EXPECT_EQ(revisedLinesOf(u"a\n\nb\n\nc"_s, u"a\n\nc"_s), (std::set<int>{2})) << "where lines went";
    EXPECT_EQ(revisedLinesOf(u"a\nb"_s, u"a \nb\nc"_s), (std::set<int>{2}));
    EXPECT_TRUE(revisedLinesOf(u"a"_s, u"a"_s).empty());

    page.applyBody({u"INT. A\n\nRain."_s, {}});
    page.setRevisionBaseline(u"INT. A\n\nSun."_s);
    EXPECT_EQ(page.revisedLines(), (std::set<int>{2}));
    page.applyBody({u"INT. A\n\nSun."_s, {}});
    page.markRevisedLines();
    EXPECT_TRUE(page.revisedLines().empty());
}

TEST_F(ScreenplayPageTest, namesOfThoseWhoSpeakAreOffered)
{
    page.applyBody({u"MARA\nLate.\n\nOLD TOM (O.S.)\nVery.\n\nMARA\nGood.\n\n"_s, {}});
    page.moveCursor(QTextCursor::End);
    page.setElement(Element::Character);
    QTest::keyClicks(&page, u"o"_s);
    auto* const names = page.findChild<manuscript::NameCompletion*>();
    ASSERT_TRUE(names && names->isVisible());
    EXPECT_EQ(names->item(0)->text(), u"OLD TOM"_s);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(page.textCursor().block().text(), u"OLD TOM"_s);
    EXPECT_FALSE(names->isVisible());
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(page.elementAtCursor(), Element::Dialogue) << "a whole name leaves the key to the text";
}

} // namespace tw::desktop::screenplay
