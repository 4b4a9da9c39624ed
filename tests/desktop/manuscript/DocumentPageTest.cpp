#include "desktop/manuscript/DocumentPage.h"
#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/document/WordCount.h"
#include "desktop/fields/GrowingTextEdit.h"
#include "desktop/manuscript/Footnotes.h"
#include "desktop/manuscript/MarkdownPage.h"
#include "desktop/manuscript/NotesPane.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/support/TestDesk.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Both ways of showing a text keep the same promises. */
class DocumentPageTest : public testing::TestWithParam<TextView>
{
protected:
    DocumentPageTest()
        : id(desk.addDocument(u"Chapter"_s, {}, 0))
    {
        desk.settings.setValue("editor/sourceMode", GetParam() == TextView::MarkdownSource);
        desk.document(id).setBody({u"First paragraph.\n\nSecond."_s, {}});
        page = std::make_unique<DocumentPage>(desk.context, id, nullptr);
        page->resize(900, 600);
        page->show();
    }

    void type(const QString& text) { QTest::keyClicks(&page->editor(), text); }
    const QString& body() { return desk.document(id).body().text; }

    test::TestDesk desk;
    core::ContentId id;
    std::unique_ptr<DocumentPage> page;
};

} // namespace

TEST_P(DocumentPageTest, typingIsOneStepABurstAndUndoKeepsTheCursor)
{
    QTextCursor cursor = page->editor().textCursor();
    cursor.setPosition(5);
    page->editor().setTextCursor(cursor);
    type(u"ly"_s);
    EXPECT_EQ(body(), u"First paragraph.\n\nSecond."_s) << "not yet committed";
    EXPECT_TRUE(desk.session.isModified()) << "but the project knows";
    desk.session.commitPendingEdits();
    EXPECT_EQ(body(), u"Firstly paragraph.\n\nSecond."_s);
    type(u","_s);

    desk.session.undo();
    EXPECT_EQ(body(), u"Firstly paragraph.\n\nSecond."_s) << "the typing still held is a step of its own";
    EXPECT_EQ(page->editor().currentBody().text, body());
    EXPECT_EQ(page->editor().textCursor().position(), 7);
    desk.session.undo();
    EXPECT_EQ(page->editor().currentBody().text, u"First paragraph.\n\nSecond."_s);
    EXPECT_EQ(page->editor().textCursor().position(), 5);
    EXPECT_EQ(desk.session.redoText(), u"Edit document body"_s);
    desk.session.redo();
    EXPECT_EQ(page->editor().currentBody().text, u"Firstly paragraph.\n\nSecond."_s);
}

TEST_P(DocumentPageTest, aPastedPictureBecomesAFileOfTheProject)
{
    if (GetParam() == TextView::MarkdownSource)
        GTEST_SKIP() << "the source takes text only";
    ASSERT_TRUE(desk.session.saveAs(desk.folder.filePath(u"project"_s)));
    page->editor().moveCursor(QTextCursor::End);
    auto* const data = new QMimeData;
    data->setImageData(QImage(4, 3, QImage::Format_RGB32));
    QApplication::clipboard()->setMimeData(data);
    page->editor().paste();
    desk.session.commitPendingEdits();
    EXPECT_EQ(body(), u"First paragraph.\n\nSecond.\n\n![](<assets/pasted image.png>)"_s);
    EXPECT_EQ(QImage(desk.folder.filePath(u"project/assets/pasted image.png"_s)).size(), QSize(4, 3));
}

TEST_P(DocumentPageTest, twoPagesOfOneDocumentShowTheSameText)
{
    DocumentPage other(desk.context, id, nullptr);
    type(u"X"_s);
    desk.session.commitPendingEdits();
    EXPECT_EQ(other.editor().currentBody().text, u"XFirst paragraph.\n\nSecond."_s);
    QTest::keyClicks(&other.editor(), u"Y"_s);
    desk.session.commitPendingEdits();
    EXPECT_EQ(page->editor().toPlainText(), other.editor().toPlainText());
}

TEST_P(DocumentPageTest, savingTakesTheLastWordsAlong)
{
    ASSERT_TRUE(desk.session.saveAs(desk.folder.filePath(u"p"_s)));
    type(u"Last words. "_s);
    ASSERT_TRUE(desk.session.save());
    EXPECT_FALSE(desk.session.isModified());
    auto reopened = app::workspace::Workspace::open(desk.environment, desk.folder.filePath(u"p"_s));
    ASSERT_TRUE(reopened);
    const auto* const document = reopened.value()->project().findAs<core::document::Document>(id);
    EXPECT_TRUE(document->body().text.startsWith(u"Last words. First"_s));
}

TEST_P(DocumentPageTest, lockedDocumentsAreReadOnly)
{
    desk.document(id).setLocked(true);
    DocumentPage locked(desk.context, id, nullptr);
    QTest::keyClicks(&locked.editor(), u"no"_s);
    desk.session.commitPendingEdits();
    EXPECT_EQ(body(), u"First paragraph.\n\nSecond."_s);
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_P(DocumentPageTest, notesOfALockedDocumentAreReadOnly)
{
    desk.document(id).setFootnotes({{u"1"_s, u"A note."_s, false}});
    desk.document(id).setLocked(true);
    setNoteText(desk.session, id, u"1"_s, u"no"_s);
    removeNote(desk.session, id, u"1"_s);
    EXPECT_EQ(desk.document(id).footnotes()[0].text, u"A note."_s);
    EXPECT_FALSE(desk.session.canUndo());

    const DocumentPage locked(desk.context, id, nullptr);
    auto* const note = locked.findChild<NotesPane*>()->findChild<fields::GrowingTextEdit*>();
    EXPECT_TRUE(note->isReadOnly());
    desk.session.apply(std::make_unique<core::content::SetObjectLockCommand>(desk.document(id), false));
    EXPECT_FALSE(note->isReadOnly());
}

TEST_P(DocumentPageTest, zoomIsApartFromTheFontAndChangesNoText)
{
    emit page->editor().zoomStepRequested(1);
    EXPECT_GT(desk.settings.value("editor/zoom").toReal(), 1.0);
    EXPECT_FALSE(desk.settings.contains("editor/fontSize"));
    EXPECT_FALSE(desk.session.isModified() && desk.session.canUndo());
    desk.session.commitPendingEdits();
    EXPECT_FALSE(desk.session.canUndo());
}

INSTANTIATE_TEST_SUITE_P(
    Views, DocumentPageTest, testing::Values(TextView::Rich, TextView::MarkdownSource),
    [](const auto& instance) { return instance.param == TextView::Rich ? "Rich" : "MarkdownSource"; });

TEST(MarkdownPageTest, keepsWhatPlainTextWouldChange)
{
    test::TestDesk desk;
    MarkdownPage page(desk.themes, nullptr);
    for (const QString& text :
         {u"a\r\nb\r\n"_s, u"non\u00a0breaking « vraiment »"_s, u"line\u2028separator"_s}) {
        page.applyBody({text, {}});
        EXPECT_EQ(page.currentBody().text, text);
    }
}

TEST(MarkdownPageTest, applyBodyMakesAnyTextOfAnyOther)
{
    test::TestDesk desk;
    MarkdownPage page(desk.themes, nullptr);
    std::mt19937 random(3);
    const QString letters = u"ab\n*# é"_s;
    QString text;
    for (int round = 0; round < 300; ++round) {
        const auto start = static_cast<qsizetype>(random() % static_cast<std::size_t>(text.size() + 1));
        const auto length = std::min<qsizetype>(random() % 5, text.size() - start);
        QString piece;
        for (auto count = random() % 6; count > 0; --count)
            piece += letters[static_cast<qsizetype>(random() % static_cast<std::size_t>(letters.size()))];
        text.replace(start, length, piece);
        page.applyBody({text, {}});
        ASSERT_EQ(page.currentBody().text, text);
    }
}

TEST(WordCountTest, countsAsAWriterDoes)
{
    const struct
    {
        const char16_t* text;
        qint64 words;
    } cases[] = {
        {u"", 0},
        {u"  \n ", 0},
        {u"It’s twenty-one o'clock.", 3},
        {u"salt—debt – weather", 3},
        {u"Loud[^1] and [^2]-so", 3},
        {u"* * *\n---", 0},
        {u"1,204 is two", 4},
        {u"Ærøskøbing naïve", 2},
        {u"'quoted' -dash- end-", 3},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(core::document::countWords(QStringView(sample.text)), sample.words)
            << QString::fromUtf16(sample.text).toStdString();
}

} // namespace tw::desktop::manuscript
