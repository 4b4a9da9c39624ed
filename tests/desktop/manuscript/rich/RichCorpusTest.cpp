// Bodies of every construct through the real text document.
#include "core/document/WordCount.h"
#include "core/document/markup/BodyWords.h"
#include "desktop/manuscript/rich/RichBody.h"
#include "desktop/manuscript/rich/RichFormats.h"
#include "desktop/manuscript/rich/RichPageFixture.h"
#include "support/MarkdownBodies.h"
#include "support/TestFiles.h"

#include <QRegularExpression>
#include <QTextCursor>

#include <gtest/gtest.h>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;

namespace {

/** A text document with a body in it, as a page holds it. */
struct Shown
{
    Shown()
    {
        formats.setLook(theme::builtInThemes().front(), {}, 100);
        document.setUndoRedoEnabled(false);
        // Only a document with a layout says what changes.
        static_cast<void>(document.documentLayout());
        QObject::connect(&document, &QTextDocument::contentsChange, [this](int position, int, int added) {
            if (!isApplying)
                body.noteChange(position, added);
        });
    }

    void apply(const QString& text)
    {
        isApplying = true;
        body.apply(text);
        isApplying = false;
    }

    /** Has everything read back from the document, as if it had been touched. */
    const QString& reread()
    {
        body.noteChange(0, document.characterCount());
        return body.text();
    }

    QTextDocument document;
    RichFormats formats;
    RichBody body{document, formats};
    bool isApplying = false;
};

constexpr qsizetype megabyte = 1'000'000;

/** 200 odd bodies, 500 generated ones, and those of the sample; without the lines of a megabyte. */
const QStringList& corpus()
{
    static const QStringList bodies = [] {
        QStringList list = test::oddMarkdownBodies();
        for (quint32 seed = 0; seed < 500; ++seed)
            list.append(test::MarkdownBodies(seed).body());
        test::TestDesk desk;
        const auto sample = app::workspace::Workspace::open(
            desk.environment, test::repositoryPath(QStringLiteral("examples/low-water")));
        EXPECT_TRUE(sample);
        for (const auto* document :
             core::project::objectsOf<core::document::Document>(sample.value()->project()))
            list.append(document->body().text);
        list.removeIf([](const QString& body) { return body.size() >= megabyte; });
        return list;
    }();
    return bodies;
}

QStringList longLines()
{
    QStringList lines;
    for (const QStringView piece : {u"x", u"word ", u"{.tw ", u"שלום "})
        lines.append(piece.toString().repeated(megabyte / piece.size()));
    return lines;
}

/** How many blocks of the text reach into what is not the same in both. */
int blocksTouched(const QString& text, const QString& changed)
{
    const auto prefix =
        std::mismatch(text.begin(), text.end(), changed.begin(), changed.end()).first - text.begin();
    const auto most = std::min(text.size(), changed.size()) - prefix;
    qsizetype suffix = 0;
    while (suffix < most && text[text.size() - 1 - suffix] == changed[changed.size() - 1 - suffix])
        ++suffix;
    int touched = 0;
    for (const auto& block : core::document::markup::parseBlocks(text).list)
        touched += block.start < text.size() - suffix && block.start + block.length > prefix ? 1 : 0;
    return touched;
}

/** A body in the page of its document: shown, typed into, undone. */
class RichCorpusPageTest : public RichPageTest
{
protected:
    void typeAndUndo(const QString& text, double place)
    {
        const std::string name = text.left(400).toUtf8().toPercentEncoding(" ").toStdString();
        open(text);
        ASSERT_EQ(body(), text) << name;
        ASSERT_FALSE(desk.session.canUndo()) << "nothing was touched in " << name;
        QTextCursor cursor(page->document());
        cursor.setPosition(static_cast<int>(place * (page->document()->characterCount() - 1)));
        page->setTextCursor(cursor);
        type(u"q"_s);
        const QString changed = body();
        ASSERT_NE(changed, text) << name;
        EXPECT_LE(blocksTouched(text, changed), 1) << name;
        desk.session.undo();
        ASSERT_EQ(body(), text) << name;
        ASSERT_EQ(page->currentBody().text, text) << name;
    }
};

} // namespace

TEST_F(RichCorpusPageTest, typingAndUndoBringBackTheBytes)
{
    int index = 0;
    for (const QString& text : corpus())
        typeAndUndo(text, (index++ % 7) / 6.0);
}

TEST_F(RichCorpusPageTest, linesOfAMegabyteAreNoDifferent)
{
    for (const QString& text : longLines())
        typeAndUndo(text, 0.5);
}

TEST(RichCorpusTest, allIsCountedAsTheDocumentIs)
{
    Shown shown;
    static const QRegularExpression labelInGroup(u"\\{\\.tw[^}]*\\["_s);
    for (const QString& text : corpus()) {
        // There, what is left depends on which of the two is taken out first.
        if (labelInGroup.match(text).hasMatch())
            continue;
        shown.apply(text);
        QTextCursor all(&shown.document);
        all.select(QTextCursor::Document);
        EXPECT_EQ(
            core::document::countWords(all.selectedText()), core::document::markup::countBodyWords(text))
            << text.left(400).toUtf8().toPercentEncoding(" ").toStdString();
    }
}

TEST(RichCorpusTest, whatIsTouchedAndSaysTheSameKeepsItsBytes)
{
    Shown shown;
    for (const QString& text : corpus()) {
        shown.apply(text);
        ASSERT_EQ(shown.reread(), text);
    }
}

TEST(RichCorpusTest, aLetterChangesOneBlockAndUndoBringsTheBytesBack)
{
    for (const QString& text : corpus()) {
        Shown shown;
        shown.apply(text);
        const int places[] = {0, shown.document.characterCount() / 3, shown.document.characterCount() - 1};
        for (const int place : places) {
            QTextCursor cursor(&shown.document);
            cursor.setPosition(place);
            cursor.insertText(u"q"_s);
            const QString changed = shown.body.text();
            EXPECT_LE(blocksTouched(text, changed), 1)
                << place << text.toUtf8().toPercentEncoding().toStdString();
            ASSERT_NE(changed, text) << place << text.toUtf8().toPercentEncoding().toStdString();
            shown.apply(text);
            ASSERT_EQ(shown.reread(), text);
            Shown fresh;
            fresh.apply(text);
            ASSERT_EQ(shown.document.toRawText(), fresh.document.toRawText());
        }
    }
}

TEST(RichCorpusTest, anyBodyBecomesAnyOther)
{
    Shown shown;
    test::MarkdownBodies made(11);
    QString text = made.body();
    for (int round = 0; round < 300; ++round) {
        // Near relatives as undo brings them, and strangers.
        if (made.number(1, 4) == 1)
            text = made.body();
        else
            text.replace(
                made.number(0, static_cast<int>(text.size())), made.number(0, 20),
                made.number(1, 2) == 1 ? made.inlineText() : u"\n\n"_s + made.noise(8));
        shown.apply(text);
        Shown fresh;
        fresh.apply(text);
        ASSERT_EQ(shown.reread(), text);
        ASSERT_EQ(shown.document.toRawText(), fresh.document.toRawText()) << text.toStdString();
        ASSERT_EQ(shown.body.words(), fresh.body.words()) << text.toStdString();
    }
}

} // namespace tw::desktop::manuscript::rich
