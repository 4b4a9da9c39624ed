#include "desktop/manuscript/rich/RichPageFixture.h"

#include "core/document/DocumentCommands.h"
#include "desktop/manuscript/Footnotes.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;
using markup::BlockKind;

TEST_F(RichPageTest, everyCommandIsOneNamedStep)
{
    using Edit = std::function<void(RichPage&)>;
    const auto block = [](auto change) -> Edit {
        return [change](RichPage& written) { written.changeBlocks(u"Step"_s, change); };
    };
    const auto text = [](auto change) -> Edit {
        return [change](RichPage& written) { written.changeStyle(u"Step"_s, change); };
    };
    const struct
    {
        const char16_t* before;
        const char16_t* selected;
        Edit edit;
        const char16_t* after;
    } cases[] = {
        {u"a word b", u"word", [](RichPage& written) { written.toggleStyle(TextToggle::Bold, u"Step"_s); },
         u"a **word** b"},
        {u"a **word** b", u"word",
         [](RichPage& written) { written.toggleStyle(TextToggle::Bold, u"Step"_s); }, u"a word b"},
        {u"a *word* b", u"a word",
         [](RichPage& written) { written.toggleStyle(TextToggle::Italic, u"Step"_s); }, u"*a word* b"},
        {u"a word b", u"word",
         [](RichPage& written) { written.toggleStyle(TextToggle::Underline, u"Step"_s); },
         u"a [word]{.tw u} b"},
        {u"a word b", u"word", text([](markup::RunStyle& style) { style.attributes.color = u"#c00000"_s; }),
         u"a [word]{.tw color=#c00000} b"},
        {u"H2O", u"2", [](RichPage& written) { written.toggleStyle(TextToggle::Subscript, u"Step"_s); },
         u"H[2]{.tw sub}O"},
        {u"a word b", u"word", [](RichPage& written) { written.setLink(u"https://example.org/"_s); },
         u"a [word](https://example.org/) b"},
        {u"one\n\ntwo", u"two", block([](BlockShape& shape) { shape.attributes.align = u"center"_s; }),
         u"one\n\ntwo {.tw align=center}"},
        {u"one\n\ntwo", u"one", block([](BlockShape& shape) { shape.attributes.pageBreak = true; }),
         u"one {.tw pagebreak}\n\ntwo"},
        {u"one\n\ntwo", u"two", block([](BlockShape& shape) {
             shape.kind = BlockKind::Heading;
             shape.level = 3;
         }),
         u"one\n\n### two"},
        {u"one\n\ntwo", u"two",
         [](RichPage& written) {
             written.selectAll();
             written.toggleList(BlockKind::NumberedItem, u"Step"_s);
         },
         u"1. one\n2. two"},
        {u"- one\n- two", u"two",
         [](RichPage& written) { written.toggleList(BlockKind::BulletItem, u"Step"_s); }, u"- one\n\ntwo"},
        {u"- one\n- two", u"two", [](RichPage& written) { written.indentBlocks(1); }, u"- one\n    - two"},
        {u"one\n\ntwo", u"two", [](RichPage& written) { written.indentBlocks(1); },
         u"one\n\ntwo {.tw indent=1}"},
        {u"one\n\ntwo {.tw indent=12}", u"two", [](RichPage& written) { written.indentBlocks(-1); },
         u"one\n\ntwo {.tw indent=11}"},
    };
    for (const auto& sample : cases) {
        open(QString::fromUtf16(sample.before));
        select(QString::fromUtf16(sample.selected));
        sample.edit(*page);
        EXPECT_EQ(body(), QString::fromUtf16(sample.after))
            << QString::fromUtf16(sample.before).toStdString();
        desk.session.undo();
        EXPECT_EQ(body(), QString::fromUtf16(sample.before));
        EXPECT_EQ(page->currentBody().text, QString::fromUtf16(sample.before));
        EXPECT_FALSE(desk.session.undoText() == u"Step"_s) << "one step";
    }
}

TEST_F(RichPageTest, indentingTakesNothingFromWhatIsDeeperThanItGoes)
{
    for (const QString& text :
         {u"two {.tw indent=8}"_s, u"two {.tw indent=12}"_s, u"two {.tw indent=2147483647}"_s}) {
        open(text);
        goTo(u"two"_s);
        page->indentBlocks(1);
        EXPECT_EQ(body(), text);
    }
}

TEST_F(RichPageTest, aCommandLeavesTheTypingBeforeItAStepOfItsOwn)
{
    open(u"word"_s);
    goTo(u"word"_s);
    type(u"s"_s);
    page->selectAll();
    page->toggleStyle(TextToggle::Bold, u"Bold"_s);
    EXPECT_EQ(body(), u"**words**"_s);
    EXPECT_EQ(desk.session.undoText(), u"Bold"_s);
    desk.session.undo();
    EXPECT_EQ(body(), u"words"_s);
    desk.session.undo();
    EXPECT_EQ(body(), u"word"_s);
}

TEST_F(RichPageTest, styleChosenWithoutASelectionIsThatOfWhatIsTypedNext)
{
    open(u"a "_s);
    goTo(u"a"_s);
    press(Qt::Key_End);
    page->toggleStyle(TextToggle::Italic, u"Italic"_s);
    type(u"b"_s);
    EXPECT_EQ(body(), u"a *b*"_s);
}

TEST_F(RichPageTest, tablesGrowAndShrink)
{
    open(u"before\n\nafter"_s);
    goTo(u"before"_s);
    page->insertTable(2, 2);
    type(u"h"_s);
    press(Qt::Key_Tab);
    type(u"i"_s);
    EXPECT_EQ(body(), u"before\n\n| h | i |\n| --- | --- |\n| | |\n\nafter"_s);
    page->editTable(RichPage::TableEdit::ColumnAfter, u"Insert column"_s);
    page->editTable(RichPage::TableEdit::RowBelow, u"Insert row"_s);
    EXPECT_EQ(body(), u"before\n\n| h | i | |\n| --- | --- | --- |\n| | | |\n| | | |\n\nafter"_s);
    goTo(u"i"_s);
    page->editTable(RichPage::TableEdit::RemoveColumn, u"Remove column"_s);
    EXPECT_EQ(body(), u"before\n\n| h | |\n| --- | --- |\n| | |\n| | |\n\nafter"_s);
    desk.session.undo();
    EXPECT_EQ(body(), u"before\n\n| h | i | |\n| --- | --- | --- |\n| | | |\n| | | |\n\nafter"_s);
    goTo(u"h"_s);
    page->editTable(RichPage::TableEdit::RemoveTable, u"Remove table"_s);
    EXPECT_EQ(body(), u"before\n\nafter"_s);
    desk.session.undo();
    EXPECT_TRUE(body().contains(u"| h | i |"_s));
}

TEST_F(RichPageTest, pasteTakesWhatTheMarkupHoldsAndNothingElse)
{
    const struct
    {
        const char* type;
        const char16_t* data;
        const char16_t* after;
    } cases[] = {
        {"text/plain", u"two\nlines *x*", u"a two\n\nlines \\*x\\*b"},
        {"text/html", u"<p style='mso-x:1'><b>bold</b> <script>x</script><i>it</i></p>", u"a **bold** *it*b"},
        {"text/html", u"<h2>Head</h2><ul><li>one</li></ul>", u"a \n\n## Head\n\n- one\n\nb"},
        {"text/markdown", u"**m**", u"a **m**b"},
    };
    for (const auto& sample : cases) {
        open(u"a b"_s);
        goTo(u"a "_s);
        auto* const data = new QMimeData;
        if (qstrcmp(sample.type, "text/plain") == 0)
            data->setText(QString::fromUtf16(sample.data));
        else
            data->setData(QLatin1String(sample.type), QString::fromUtf16(sample.data).toUtf8());
        QApplication::clipboard()->setMimeData(data);
        page->paste();
        EXPECT_EQ(body(), QString::fromUtf16(sample.after)) << sample.type;
    }
}

TEST_F(RichPageTest, aTableSetIntoAParagraphDividesItAndLeavesNothingEmpty)
{
    const QString table = u"| x | y |\n| --- | --- |\n| 1 | 2 |"_s;
    const struct
    {
        const char16_t* behind;
        const char16_t* before;
        const char16_t* after;
    } cases[] = {
        {u"", u"", u"\n\nabc def"}, {u"abc", u"abc\n\n", u"\n\n def"}, {u"def", u"abc def\n\n", u""}};
    for (const auto& sample : cases) {
        open(u"abc def"_s);
        if (*sample.behind)
            goTo(QString::fromUtf16(sample.behind));
        page->insertMarkdown(table);
        EXPECT_EQ(body(), QString::fromUtf16(sample.before) + table + QString::fromUtf16(sample.after));
    }
}

TEST_F(RichPageTest, whatIsCopiedPastesAsItWas)
{
    for (const QString& text :
         {u"# Head\n\nText **bold**.\n\n- a\n- b\n\n> q\n\n| x | y |\n| --- | --- |\n| 1 | 2 |\n\nend"_s,
          u"```\ncode\n```\n\nend"_s}) {
        open(text);
        page->selectAll();
        page->copy();
        open(u""_s);
        page->paste();
        EXPECT_EQ(body(), text);
    }
}

TEST_F(RichPageTest, typographicCorrectionsAreUndoneAlone)
{
    open(u"Say "_s);
    page->setTypingRules({&app::typing::quotationMarksOf(u"en"), true, true});
    press(Qt::Key_End);
    type(u"so\""_s);
    QCoreApplication::processEvents();
    EXPECT_TRUE(page->toPlainText().endsWith(u"so”"_s));
    desk.session.undo();
    EXPECT_TRUE(page->toPlainText().endsWith(u"so\""_s)) << page->toPlainText().toStdString();
    desk.session.undo();
    EXPECT_FALSE(page->toPlainText().contains(u"so"_s));
}

TEST_F(RichPageTest, notesAreMadeWithTheirReferenceInOneStep)
{
    open(u"Word.[^1]"_s);
    desk.document(id).setFootnotes({{u"1"_s, u"First"_s, false}});
    goTo(u"Word"_s);
    EXPECT_EQ(insertNote(desk.session, *page, true), u"2"_s);
    EXPECT_EQ(body(), u"Word[^2].[^1]"_s);
    EXPECT_EQ(desk.document(id).footnotes().size(), 2U);
    EXPECT_EQ(page->footnoteReferences(), (QStringList{u"2"_s, u"1"_s}));
    EXPECT_EQ(inReadingOrder(desk.document(id).footnotes(), page->footnoteReferences()).front().id, u"2"_s);
    desk.session.undo();
    EXPECT_EQ(body(), u"Word.[^1]"_s);
    EXPECT_EQ(desk.document(id).footnotes().size(), 1U);
}

TEST_F(RichPageTest, theVariantInUseIsWhatIsWritten)
{
    desk.document(id).setVariants({{{u"Other"_s, u"variant"_s, {}}}, u"Other"_s});
    open(u"main"_s);
    goTo(u"variant"_s);
    type(u"s"_s);
    EXPECT_EQ(body(), u"main"_s);
    EXPECT_EQ(desk.document(id).variants().list.front().body, u"variants"_s);
    desk.session.undo();
    EXPECT_EQ(page->currentBody().text, u"variant"_s);
}

TEST_F(RichPageTest, aLegacyBodyIsLeftAloneUntilItIsEdited)
{
    desk.document(id).setBody({u"<p>Old <b>bold</b></p>"_s, core::document::BodyFormat::Html});
    RichPage legacy(desk.context, id, nullptr);
    desk.session.commitPendingEdits();
    EXPECT_FALSE(desk.session.canUndo());
    QTest::keyClicks(&legacy, u"X"_s);
    desk.session.commitPendingEdits();
    EXPECT_EQ(desk.document(id).body(), (core::document::DocumentBody{u"XOld **bold**"_s, {}}));
    desk.session.undo();
    EXPECT_EQ(desk.document(id).body().format, core::document::BodyFormat::Html);
}

} // namespace tw::desktop::manuscript::rich
