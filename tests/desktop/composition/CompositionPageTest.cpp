#include "desktop/composition/CompositionPage.h"

#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "desktop/composition/SceneSlot.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/ManuscriptEdits.h"
#include "desktop/manuscript/TypingSettings.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/screenplay/ScreenplayPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/support/TestDesk.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::composition {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::DocumentKind;

namespace {

class CompositionPageTest : public testing::Test
{
protected:
    CompositionPageTest()
    {
        part = desk.addDocument(u"Part"_s, {}, 0);
        one = desk.addDocument(u"One"_s, part, 0);
        two = desk.addDocument(u"Two"_s, part, 1);
        desk.document(one).setBody({u"First scene."_s, {}});
        desk.document(two).setBody({u"Second scene."_s, {}});
    }

    std::unique_ptr<CompositionPage> show()
    {
        desk.announce();
        auto page = std::make_unique<CompositionPage>(desk.context, part, nullptr);
        page->resize(900, 600);
        page->show();
        QApplication::setActiveWindow(page.get());
        QCoreApplication::processEvents();
        return page;
    }

    std::vector<ContentId> shown(const CompositionPage& page) const
    {
        std::vector<ContentId> ids;
        for (const SceneSlot* const slot : page.slotsInOrder())
            ids.push_back(slot->documentId());
        return ids;
    }

    test::TestDesk desk;
    ContentId part, one, two;
};

} // namespace

TEST_F(CompositionPageTest, comesBackToWhereTheWriterWas)
{
    auto page = show();
    page->takeFocus();
    EXPECT_EQ(page->editedDocument(), part) << "nothing is known yet";
    manuscript::BodyEditor& second = page->slotsInOrder()[2]->wake();
    second.setFocus();
    QTextCursor cursor = second.textCursor();
    cursor.setPosition(7);
    second.setTextCursor(cursor);
    ASSERT_EQ(page->editedDocument(), two);
    page.reset();

    page = show();
    page->takeFocus();
    ASSERT_EQ(page->editedDocument(), two);
    EXPECT_EQ(page->currentEditor()->textCursor().position(), 7);
    page.reset();
    EXPECT_TRUE(desk.session.projectForCommands().take(two));
    page = show();
    page->takeFocus();
    EXPECT_TRUE(page->currentEditor()) << "another document where that one is gone";
}

TEST_F(CompositionPageTest, theWholeManuscriptLeavesNothingOut)
{
    const ContentId orphan = desk.addDocument(u"Orphan"_s, ContentId::create(), 5);
    const ContentId child = desk.addDocument(u"Child"_s, orphan, 0);
    const ContentId loop = desk.addDocument(u"Loop"_s, {}, 6);
    desk.document(loop).setParentId(loop);
    desk.announce();
    const CompositionPage page(desk.context, {}, nullptr);
    EXPECT_EQ(shown(page), (std::vector{part, one, two, orphan, child, loop}));
    manuscript::moveDocuments(desk.session, {two}, part, one);
    EXPECT_EQ(shown(page), (std::vector{part, two, one, orphan, child, loop}));
    desk.session.apply(
        std::make_unique<core::document::SetDocumentKindCommand>(desk.document(two), DocumentKind::Note));
    EXPECT_EQ(shown(page), (std::vector{part, one, orphan, child, loop}));
}

TEST_F(CompositionPageTest, eachEditGoesToItsDocument)
{
    const auto page = show();
    ASSERT_EQ(shown(*page), (std::vector{part, one, two}));
    manuscript::BodyEditor& first = page->slotsInOrder()[1]->wake();
    first.setFocus();
    first.moveCursor(QTextCursor::End);
    QTest::keyClicks(&first, u" More."_s);
    QTest::keyClick(&first, Qt::Key_Down);
    EXPECT_EQ(page->editedDocument(), two) << "from the last line into the next document";
    EXPECT_EQ(manuscript::objectWorkedOn(page.get()), two) << "what the window shows about a text follows";
    QTest::keyClicks(page->currentEditor(), u"Then: "_s);
    desk.session.commitPendingEdits();
    EXPECT_EQ(desk.document(one).body().text, u"First scene. More."_s);
    EXPECT_EQ(desk.document(two).body().text, u"Then: Second scene."_s);
    QTest::keyClick(page->currentEditor(), Qt::Key_Home);
    QTest::keyClick(page->currentEditor(), Qt::Key_Left);
    EXPECT_EQ(page->editedDocument(), one);
    EXPECT_TRUE(page->currentEditor()->textCursor().atEnd());
    desk.session.undo();
    desk.session.undo();
    EXPECT_EQ(first.toPlainText(), u"First scene."_s);
}

TEST_F(CompositionPageTest, followsTheManuscript)
{
    const auto page = show();
    QPointer<manuscript::BodyEditor> editor = &page->slotsInOrder()[2]->wake();
    manuscript::stepDocument(desk.session, two, manuscript::MoveDirection::Up);
    EXPECT_EQ(shown(*page), (std::vector{part, two, one}));
    EXPECT_TRUE(editor) << "what was open stays so";
    const ContentId added =
        manuscript::addDocument(desk.session, DocumentKind::Prose, u"Three"_s, {part, {}});
    EXPECT_EQ(shown(*page), (std::vector{part, two, one, added}));
    static_cast<void>(manuscript::addDocument(desk.session, DocumentKind::Note, u"Note"_s, {part, {}}));
    EXPECT_EQ(shown(*page).size(), 4U) << "notes are beside the text";
    manuscript::removeDocuments(desk.session, {two});
    EXPECT_EQ(shown(*page), (std::vector{part, one, added}));
}

TEST_F(CompositionPageTest, anAudienceReadsWhatIsForIt)
{
    desk.document(two).setVisibleTo({u"Master"_s});
    const auto page = show();
    desk.navigator.setAudience(u"Players"_s);
    EXPECT_EQ(shown(*page), (std::vector{part, one}));
    const auto restrict = [this](const ContentId& id, const core::content::NameSet& audiences) {
        desk.session.apply(
            std::make_unique<core::content::SetObjectVisibilityCommand>(desk.document(id), audiences));
    };
    restrict(one, {u"Master"_s});
    EXPECT_EQ(shown(*page), (std::vector{part}));
    restrict(two, {u"Players"_s});
    EXPECT_EQ(shown(*page), (std::vector{part, two}));
    desk.navigator.setAudience({});
    EXPECT_EQ(shown(*page), (std::vector{part, one, two}));
}

TEST_F(CompositionPageTest, onlyWhatIsSeenHasEditors)
{
    const QString chapter = QString(u"It was low water, and the flats lay bare. "_s).repeated(400);
    std::vector<ContentId> many;
    for (int index = 2; index < 60; ++index) {
        many.push_back(desk.addDocument(QString::number(index), part, index));
        desk.document(many.back()).setBody({chapter, {}});
    }
    const auto page = show();
    const auto awake = [&] {
        return std::ranges::count_if(
            page->slotsInOrder(), [](const SceneSlot* slot) { return slot->editor(); });
    };
    EXPECT_LT(awake(), 6);
    QScrollBar& bar = *page->findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_GT(bar.maximum(), 58 * 1000) << "the bar tells how long the text is";
    bar.setValue(bar.maximum());
    QCoreApplication::processEvents();
    EXPECT_TRUE(page->slotsInOrder().back()->editor());
    EXPECT_LT(awake(), 12);
}

TEST_F(CompositionPageTest, findsAndReplacesAcrossTheDocuments)
{
    desk.document(one).setBody({u"A *tide* and a tide."_s, {}});
    desk.document(two).setBody({u"No tide here."_s, {}});
    const auto page = show();
    page->slotsInOrder()[1]->wake().setFocus();
    manuscript::FindBar* const bar = page->findBar();
    ASSERT_TRUE(bar);
    bar->open(manuscript::FindBar::Row::FindAndReplace);
    const auto fields = bar->findChildren<QLineEdit*>();
    ASSERT_EQ(fields.size(), 2);
    QTest::keyClicks(fields[0], u"tide"_s);
    EXPECT_EQ(page->editedDocument(), one);
    bar->step(true);
    bar->step(true);
    EXPECT_EQ(page->editedDocument(), two) << "from the last place of one scene into the next";
    EXPECT_EQ(page->currentEditor()->textCursor().selectedText(), u"tide"_s);
    bar->step(true);
    EXPECT_EQ(page->editedDocument(), one) << "and around";
    bar->step(false);
    EXPECT_EQ(page->editedDocument(), two);

    QTest::keyClicks(fields[1], u"ebb"_s);
    for (QPushButton* const button : bar->findChildren<QPushButton*>()) {
        if (button->text().contains(u"All"_s))
            button->click();
    }
    EXPECT_EQ(desk.document(one).body().text, u"A *ebb* and a ebb."_s);
    EXPECT_EQ(desk.document(two).body().text, u"No ebb here."_s);
    desk.session.undo();
    EXPECT_EQ(desk.document(one).body().text, u"A *tide* and a tide."_s) << "one step for all";
    EXPECT_EQ(desk.document(two).body().text, u"No tide here."_s);
}

TEST_F(CompositionPageTest, aSceneIsWrittenAsIfItStoodAlone)
{
    desk.settings.setValue(manuscript::typingkeys::quotes, u"en"_s);
    const auto page = show();
    auto* const first = qobject_cast<manuscript::rich::RichPage*>(&page->slotsInOrder()[1]->wake());
    ASSERT_TRUE(first);
    first->setFocus();
    first->moveCursor(QTextCursor::End);
    const auto typeQuoted = [first](const QString& word) {
        QTest::keyClicks(first, u" \""_s);
        QCoreApplication::processEvents();
        QTest::keyClicks(first, word);
    };
    typeQuoted(u"So"_s);
    EXPECT_EQ(first->toPlainText(), u"First scene. “So"_s) << "quotation marks are the settings'";
    desk.settings.setValue(manuscript::typingkeys::autoCorrect, false);
    page->applyStyle();
    typeQuoted(u"no"_s);
    EXPECT_EQ(first->toPlainText(), u"First scene. “So \"no"_s);

    QSignalSpy said(&desk.navigator, &shell::Navigator::said);
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::white);
    emit first->imagePasted(picture);
    EXPECT_EQ(said.count(), 1) << "a project without a file keeps no images, and says so";

    QSignalSpy opened(&desk.navigator, &shell::Navigator::openRequested);
    emit first->entityActivated(two);
    emit first->footnoteActivated(u"1"_s);
    ASSERT_EQ(opened.count(), 2);
    EXPECT_EQ(opened[0][0].value<ContentId>(), two);
    EXPECT_EQ(opened[1][0].value<ContentId>(), one) << "notes are written where the document is by itself";
    const auto saidBefore = said.count();
    emit first->linkActivated(u"file:///tmp"_s);
    EXPECT_EQ(said.count(), saidBefore + 1) << "a text never leads to files";
}

TEST_F(CompositionPageTest, screenplaysShowTheirRevisions)
{
    desk.document(one).setDocumentKind(DocumentKind::Screenplay);
    desk.document(one).setBody({u"INT. A\n\nSun."_s, {}});
    desk.document(one).setRevisionBaseline(u"INT. A\n\nRain."_s);
    const auto page = show();
    auto* const scene = qobject_cast<screenplay::ScreenplayPage*>(&page->slotsInOrder()[1]->wake());
    ASSERT_TRUE(scene);
    scene->markRevisedLines();
    EXPECT_FALSE(scene->revisedLines().empty());
    desk.session.apply(std::make_unique<core::document::SetDocumentRevisionBaselineCommand>(
        desk.document(one), u"INT. A\n\nSun."_s));
    scene->markRevisedLines();
    EXPECT_TRUE(scene->revisedLines().empty());
}

} // namespace tw::desktop::composition
