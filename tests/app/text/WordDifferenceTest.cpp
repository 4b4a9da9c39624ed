#include "app/text/WordDifference.h"
#include "support/MarkdownBodies.h"

#include <gtest/gtest.h>

namespace tw::app::text {

using namespace Qt::Literals::StringLiterals;

namespace {

/** "a [-old-][+new+] b". */
QString shown(const QString& before, const QString& after)
{
    QString text;
    for (const DifferencePiece& piece : layOver(before, after, compareTexts(before, after))) {
        if (piece.kind == PieceKind::Same)
            text += piece.text;
        else
            text += (piece.kind == PieceKind::Added ? u"[+%1+]"_s : u"[-%1-]"_s).arg(piece.text);
    }
    return text;
}

QString side(const std::vector<DifferencePiece>& pieces, PieceKind kind)
{
    QString text;
    for (const DifferencePiece& piece : pieces) {
        if (piece.kind == PieceKind::Same || piece.kind == kind)
            text += piece.text;
    }
    return text;
}

} // namespace

TEST(WordDifferenceTest, showsTheWordsThatChanged)
{
    const struct
    {
        QString before;
        QString after;
        QString expected;
    } cases[] = {
        {u"same"_s, u"same"_s, u"same"_s},
        {QString(), u"new"_s, u"[+new+]"_s},
        {u"a quick fox"_s, u"a slow fox"_s, u"a [-quick-][+slow+] fox"_s},
        {u"a quick brown fox"_s, u"a slow red fox"_s, u"a [-quick brown-][+slow red+] fox"_s},
        {u"I don't."_s, u"I don’t!"_s, u"I [-don't.-][+don’t!+]"_s},
        {u"one\ntwo\nthree"_s, u"one\nthree"_s, u"one\n[-two\n-]three"_s},
        {u"end"_s, u"end."_s, u"end[+.+]"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(shown(sample.before, sample.after), sample.expected);
}

TEST(WordDifferenceTest, everyPassageCanBeRestored)
{
    test::MarkdownBodies random(3);
    for (int round = 0; round < 200; ++round) {
        const QString before = random.body();
        const QString after =
            round % 4 == 0 ? random.body() : before.left(before.size() / 2) + random.body(2);
        const std::vector<ChangedPassage> passages = compareTexts(before, after);
        const std::vector<DifferencePiece> pieces = layOver(before, after, passages);
        EXPECT_EQ(side(pieces, PieceKind::Removed), before);
        EXPECT_EQ(side(pieces, PieceKind::Added), after);
        QString restored = after;
        for (auto passage = passages.rbegin(); passage != passages.rend(); ++passage)
            restored = withPassageRestored(before, restored, *passage);
        EXPECT_EQ(restored, before);
    }
}

TEST(WordDifferenceTest, unlikeTextsTakeBoundedWork)
{
    // Nothing in common, and everything in common many times over: the square of the length would never end.
    constexpr int many = 100'000;
    QString before;
    QString after;
    for (int word = 0; word < many; ++word) {
        before += QString::number(word) + u' ';
        after += u"w%1 "_s.arg(word);
    }
    EXPECT_FALSE(compareTexts(before, after).empty());
    EXPECT_FALSE(compareTexts(u"a b "_s.repeated(many), u"b c a "_s.repeated(many)).empty());
    EXPECT_FALSE(compareTexts(u"a\nb\n"_s.repeated(many), u"b\nc\na\n"_s.repeated(many)).empty());
}

} // namespace tw::app::text
