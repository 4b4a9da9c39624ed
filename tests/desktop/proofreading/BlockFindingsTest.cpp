#include "desktop/proofreading/BlockFindings.h"

#include <QTextBlock>
#include <QTextCursor>

#include <gtest/gtest.h>

#include <random>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Finds every "x" of a paragraph. */
std::vector<ProseFinding> marksOf(const QString& text)
{
    std::vector<ProseFinding> found;
    for (qsizetype index = text.indexOf(u'x'); index >= 0; index = text.indexOf(u'x', index + 1))
        found.push_back({index, 1, ProblemKind::Spelling, {}, {}});
    return found;
}

class BlockFindingsTest : public testing::Test
{
protected:
    void follow()
    {
        // Without a layout, a document tells nobody of its changes.
        [[maybe_unused]] const auto* const layout = document.documentLayout();
        QObject::connect(
            &document, &QTextDocument::contentsChange, &document,
            [this](int position, int removed, int added) { findings.noteChange(position, removed, added); });
    }

    int checkAll()
    {
        int checked = 0;
        for (int block = findings.nextExpired(); block >= 0; block = findings.nextExpired()) {
            findings.set(block, marksOf(document.findBlockByNumber(block).text()));
            ++checked;
        }
        return checked;
    }

    QTextDocument document;
    BlockFindings findings{document};
};

} // namespace

TEST_F(BlockFindingsTest, typingChecksItsOwnParagraphAgainAndMovesTheRest)
{
    follow();
    document.setPlainText(u"axb xx\nxc\nd"_s);
    EXPECT_EQ(checkAll(), 3);
    QTextCursor cursor(&document);
    cursor.setPosition(3);
    cursor.insertText(u"!!"_s);
    // Before anything is checked: the mark before the cursor stays, those behind it move.
    EXPECT_EQ(findings.of(0), marksOf(u"axb!! xx"_s));
    EXPECT_EQ(findings.of(1), marksOf(u"xc"_s));
    EXPECT_EQ(checkAll(), 1);
    cursor.setPosition(1);
    cursor.deleteChar();
    EXPECT_EQ(findings.of(0), marksOf(u"ab!! xx"_s));
}

TEST_F(BlockFindingsTest, staysInStepWithAnyChange)
{
    follow();
    std::mt19937 random(3);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    static const QStringList pieces{u"x"_s, u"ab"_s, u"\n"_s, u"x\nx\n"_s, u" "_s, u"xx a"_s};
    for (int step = 0; step < 600; ++step) {
        QTextCursor cursor(&document);
        cursor.setPosition(below(document.characterCount()));
        cursor.setPosition(below(document.characterCount()), QTextCursor::KeepAnchor);
        if (below(20) == 0)
            document.setPlainText(u"x\ny\nx"_s);
        else if (below(3) == 0)
            cursor.removeSelectedText();
        else
            cursor.insertText(pieces[below(static_cast<int>(pieces.size()))]);
        if (below(3) == 0)
            continue;
        checkAll();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            ASSERT_EQ(findings.of(block.blockNumber()), marksOf(block.text())) << "step " << step;
    }
}

} // namespace tw::desktop::proofreading
