#include "desktop/manuscript/TextFinder.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/manuscript/FindBar.h"
#include "desktop/manuscript/ReadingPlaces.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/support/TestDesk.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

TEST(TextFinderTest, findsAsAskedAndReplacesGroups)
{
    QTextDocument document;
    document.setPlainText(u"One fish two Fish\nredfish (bluefish)"_s);
    const struct
    {
        app::search::TextQuery query;
        std::size_t places;
    } cases[] = {
        {{u"fish"_s}, 4},
        {{u"fish"_s, true}, 3},
        {{u"fish"_s, false, true}, 2},
        {{u"("_s}, 1},
        {{u"(red|blue)fish"_s, false, false, true}, 2},
        {{u"x*"_s, false, false, true}, 0},
        {{u"("_s, false, false, true}, 0},
        {{u""_s}, 0},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(TextFinder(sample.query).findAll(document, 100).size(), sample.places)
            << sample.query.text.toStdString();
    EXPECT_FALSE(TextFinder({u"("_s, false, false, true}).error().isEmpty());
    const TextFinder groups({u"(red|blue)(fish)"_s, false, false, true});
    const FoundPlace redfish{18, 7};
    EXPECT_EQ(groups.replacementFor(document, redfish, u"\\2-\\1 \\\\"_s), u"fish-red \\"_s);
    EXPECT_EQ(TextFinder({u"red"_s}).replacementFor(document, {18, 3}, u"\\1"_s), u"\\1"_s);
    const TextFinder behind({u"(?<=red)(fish)"_s, false, false, true});
    EXPECT_EQ(behind.replacementFor(document, {21, 4}, u"[\\1]"_s), u"[fish]"_s)
        << "looks at what stands before";
    const TextFinder fish({u"fish"_s});
    EXPECT_EQ(fish.findFrom(document, 5)->position, 13);
    EXPECT_EQ(fish.findBefore(document, 13)->position, 4);
    EXPECT_EQ(fish.findBefore(document, document.characterCount())->position, 31);
    EXPECT_FALSE(fish.findBefore(document, 4));
}

TEST(FindBarTest, replacesAllInOneStepAndKeepsStyles)
{
    test::TestDesk desk;
    const core::ContentId id = desk.addDocument(u"Chapter"_s, {}, 0);
    const QString before = u"A **cat** and a cat.\n\n* odd  \n* cat"_s;
    desk.document(id).setBody({before, {}});
    DocumentPage page(desk.context, id, nullptr);
    page.resize(800, 600);
    page.show();
    page.findBar()->open(FindBar::Row::FindAndReplace);
    const auto fields = page.findBar()->findChildren<QLineEdit*>();
    ASSERT_EQ(fields.size(), 2);
    QTest::keyClicks(fields[0], u"cat"_s);
    QTest::keyClicks(fields[1], u"dog"_s);
    for (QPushButton* const button : page.findBar()->findChildren<QPushButton*>()) {
        if (button->text().contains(u"All"_s))
            button->click();
    }
    EXPECT_EQ(desk.document(id).body().text, u"A **dog** and a dog.\n\n* odd  \n* dog"_s);
    EXPECT_EQ(desk.session.undoText(), u"Replace all"_s);
    desk.session.undo();
    EXPECT_EQ(desk.document(id).body().text, before);
    page.findBar()->step(true);
    EXPECT_EQ(page.editor().textCursor().selectedText(), u"cat"_s);
    QTest::keyClick(page.findBar(), Qt::Key_Escape);
    EXPECT_FALSE(page.findBar()->isVisible());
}

TEST(ReadingPlacesTest, remembersTheLatestPlacesOfEveryProject)
{
    test::TestDesk desk;
    ReadingPlaces here(desk.settings, u"/projects/a"_s);
    ReadingPlaces there(desk.settings, u"/projects/b"_s);
    const auto first = core::ContentId::create();
    here.remember(first, {12, 100, 40});
    here.remember(first, {13, 100, -4});
    EXPECT_EQ(here.find(first), (ReadingPlace{13, 100, -4}));
    EXPECT_FALSE(there.find(first));
    for (qsizetype index = 0; index < ReadingPlaces::mostPlaces; ++index)
        there.remember(core::ContentId::create(), {});
    EXPECT_FALSE(here.find(first)) << "the oldest is forgotten";
    EXPECT_EQ((ReadingPlace{50, 100, 0}.positionIn(100)), 50);
    EXPECT_EQ((ReadingPlace{50, 100, 0}.positionIn(200)), 100) << "near it in another text";
    EXPECT_EQ((ReadingPlace{500, 0, 0}.positionIn(20)), 19);
}

TEST(ReadingPlacesTest, aPageOpensWhereItWasLeft)
{
    test::TestDesk desk;
    const core::ContentId id = desk.addDocument(u"Chapter"_s, {}, 0);
    QString text;
    for (int index = 0; index < 100; ++index)
        text += u"Paragraph %1.\n\n"_s.arg(index);
    desk.document(id).setBody({text, {}});
    int top = 0;
    {
        DocumentPage page(desk.context, id, nullptr);
        page.resize(800, 600);
        page.show();
        QCoreApplication::processEvents();
        page.editor().setTextCursor(page.editor().document()->find(u"Paragraph 70"_s));
        page.editor().ensureCursorVisible();
        top = page.editor().cursorRect().top();
        page.hide();
    }
    DocumentPage page(desk.context, id, nullptr);
    page.resize(800, 600);
    page.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(page.editor().textCursor().block().text(), u"Paragraph 70."_s);
    EXPECT_NEAR(page.editor().cursorRect().top(), top, 2);
}

} // namespace tw::desktop::manuscript
