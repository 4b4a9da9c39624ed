#include "desktop/manuscript/rich/RichPageFixture.h"

#include <QScrollBar>

#include <random>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Bodies as people and other programs leave them: none of this is how we would write it. */
const QString untidyBodies[] = {
    u""_s,
    u"\n\n"_s,
    u"Plain."_s,
    u"Two\nlines, one paragraph.  \nA hard break.\\\nAnother.\n"_s,
    u"\n\nLead and tail.\n\n\n\nGap of three.\n\n\n"_s,
    u"Windows\r\nlines\r\n\r\nand more\r\n"_s,
    u"Heading\n=======\n\n## Second ##\n\n__bold__ and _italic_, *also* **so**\n"_s,
    u"* a\n* b\n    * c\n\n1) one\n1) same\n2. other\n"_s,
    u"> quoted\n> on\n>> deeper\n\n***\n- - -\n___\nend\n"_s,
    u"```cpp\nint a;\n\nint b;\n```\n\n~~~\nopen\n"_s,
    u"| a | b |\n|---|:-:|\n| 1 | 2 |\n\nafter\n"_s,
    u"a\n\n| a | b\n|---|---\n| 1\n"_s,
    u"Note[^1] and ![sea](assets/sea.png \"t\") [link](http://x \"t\")\n\n[^1]: The note.\n"_s,
    u"{.tw align=center pagebreak glow} ?\n\n[red]{.tw color=red wobble} run\n\nText {.tw indent=2}\n"_s,
    u"Stray *marks and [brackets and `ticks\n\\*escaped\\*\n"_s,
    u"tab\there, non\u00a0breaking, line\u2028separator, par\u2029separator\n"_s,
    u"<b>html</b> &amp; &nbsp; entities\n\n<div>\nblock\n</div>\n"_s,
};

} // namespace

TEST_F(RichPageTest, whatNobodyTouchedIsWrittenBackByteForByte)
{
    for (const QString& text : untidyBodies) {
        open(text);
        EXPECT_EQ(page->currentBody().text, text) << text.toStdString();
    }
}

TEST_F(RichPageTest, aLetterChangesItsBlockAloneAndUndoGivesTheSameBytes)
{
    const QString before = u"Setext\n=====\n\n* a\n* b\n\n"_s;
    const QString after = u"\n\n\n| x | y\n|--|--\n| 1 | 2\n\n__bold__ end  \n\n"_s;
    for (const QString& middle : {u"middle text"_s, u"> middle quoted"_s, u"- middle item"_s}) {
        open(before + middle + after);
        goTo(u"middle"_s);
        type(u"X"_s);
        EXPECT_EQ(body(), before + QString(middle).replace(u"middle"_s, u"middleX"_s) + after);
        desk.session.undo();
        EXPECT_EQ(body(), before + middle + after);
        EXPECT_EQ(page->currentBody().text, before + middle + after);
        desk.session.redo();
        EXPECT_TRUE(page->toPlainText().contains(u"middleX"_s));
    }
}

TEST_F(RichPageTest, typingAndTakingBackLeavesTheBytesAlone)
{
    for (const QString& text : untidyBodies) {
        open(text);
        for (const int place :
             {0, page->document()->characterCount() / 2, page->document()->characterCount() - 1}) {
            QTextCursor cursor = page->textCursor();
            cursor.setPosition(place);
            page->setTextCursor(cursor);
            type(u"x"_s);
            press(Qt::Key_Backspace);
            EXPECT_EQ(page->currentBody().text, text) << place;
        }
    }
}

TEST_F(RichPageTest, keysGiveTheBlocksAWriterExpects)
{
    const struct
    {
        const char16_t* before;
        const char16_t* at;
        std::vector<Qt::Key> keys;
        const char16_t* after;
    } cases[] = {
        {u"One two", u"One", {Qt::Key_Return}, u"One\n\n two"},
        {u"# Head", u"Head", {Qt::Key_Return, Qt::Key_X}, u"# Head\n\nx"},
        {u"- a\n- b", u"a", {Qt::Key_Return, Qt::Key_X}, u"- a\n- x\n- b"},
        {u"1. a\n2. b", u"a", {Qt::Key_Return, Qt::Key_X}, u"1. a\n2. x\n3. b"},
        {u"- a", u"a", {Qt::Key_Return, Qt::Key_Return, Qt::Key_X}, u"- a\n\nx"},
        {u"- a", u"a", {Qt::Key_Return, Qt::Key_Tab, Qt::Key_X}, u"- a\n    - x"},
        {u"- a", u"a", {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_X}, u"- a\n- x"},
        {u"## H", u"H", {Qt::Key_Home, Qt::Key_Backspace}, u"H"},
        {u"> q", u"q", {Qt::Key_Home, Qt::Key_Backspace}, u"q"},
        {u"a\n\n---\n\nb", u"b", {Qt::Key_Home, Qt::Key_Backspace}, u"a\n\nb"},
        {u"a\n\nb", u"b", {Qt::Key_Home, Qt::Key_Backspace}, u"ab"},
        {u"a\n\nb\n", u"b", {Qt::Key_Home, Qt::Key_Return}, u"a\n\n\nb\n"},
    };
    for (const auto& sample : cases) {
        open(QString::fromUtf16(sample.before));
        goTo(QString::fromUtf16(sample.at));
        for (const Qt::Key key : sample.keys) {
            if (key == Qt::Key_X)
                type(u"x"_s);
            else
                press(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        }
        EXPECT_EQ(body(), QString::fromUtf16(sample.after))
            << QString::fromUtf16(sample.before).toStdString();
    }
}

TEST_F(RichPageTest, whatIsTypedBesideANoteOrALinkIsPlain)
{
    open(u"word[^1] [link](u) end"_s);
    QTextCursor cursor = page->document()->find(QString(QChar::ObjectReplacementCharacter));
    cursor.clearSelection();
    page->setTextCursor(cursor);
    type(u"x"_s);
    goTo(u"link"_s);
    type(u"y"_s);
    EXPECT_EQ(body(), u"word[^1]x [link](u)y end"_s);
}

TEST_F(RichPageTest, undoKeepsCursorAndScrollAwayFromTheChange)
{
    QString text;
    for (int index = 0; index < 200; ++index)
        text += u"Paragraph %1 of many.\n\n"_s.arg(index);
    open(text);
    goTo(u"Paragraph 3 "_s);
    press(Qt::Key_Return);
    desk.session.commitPendingEdits();
    goTo(u"Paragraph 150"_s);
    page->ensureCursorVisible();
    const int scrolled = page->verticalScrollBar()->value();
    desk.session.undo();
    EXPECT_EQ(page->textCursor().block().text(), u"Paragraph 150 of many."_s);
    EXPECT_EQ(page->textCursor().positionInBlock(), 13);
    EXPECT_NEAR(page->verticalScrollBar()->value(), scrolled, 100);
    EXPECT_EQ(body(), text);
}

TEST_F(RichPageTest, twoPagesStayInStepThroughRandomEdits)
{
    open(u"One **two**.\n\n- a\n- b\n\nThree."_s);
    RichPage other(desk.context, id, nullptr);
    std::mt19937 random(7);
    RichPage* const pages[] = {page.get(), &other};
    for (int round = 0; round < 150; ++round) {
        RichPage& typed = *pages[random() % 2];
        QTextCursor cursor = typed.textCursor();
        cursor.setPosition(
            static_cast<int>(random() % static_cast<unsigned>(typed.document()->characterCount())));
        typed.setTextCursor(cursor);
        switch (random() % 6) {
        case 0:
            QTest::keyClick(&typed, Qt::Key_Return);
            break;
        case 1:
            QTest::keyClick(&typed, Qt::Key_Backspace);
            break;
        case 2:
            QTest::keyClick(&typed, Qt::Key_Delete);
            break;
        case 3:
            desk.session.undo();
            break;
        default:
            QTest::keyClicks(&typed, u"a *"_s);
        }
        desk.session.commitPendingEdits();
        const QString body = desk.document(id).body().text;
        ASSERT_EQ(page->currentBody().text, body) << round;
        ASSERT_EQ(other.currentBody().text, body) << round;
    }
    while (desk.session.canUndo())
        desk.session.undo();
    EXPECT_EQ(body(), u"One **two**.\n\n- a\n- b\n\nThree."_s);
}

TEST_F(RichPageTest, wordsAreCountedByBlock)
{
    open(u"One two.\n\n| a | b |\n|---|---|\n| c | d |\n\n- item here"_s);
    EXPECT_EQ(page->words(), 8);
    goTo(u"two"_s);
    type(u" three"_s);
    EXPECT_EQ(page->words(), 9);
    goTo(u"c"_s);
    type(u" c"_s);
    EXPECT_EQ(page->words(), 10);
    desk.session.undo();
    EXPECT_EQ(page->words(), 8);
    page->selectAll();
    press(Qt::Key_Delete);
    EXPECT_EQ(page->words(), 0);
}

} // namespace tw::desktop::manuscript::rich
