#include "app/codex/NameOccurrences.h"
#include "app/codex/NameDistance.h"

#include <gtest/gtest.h>

#include <random>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::document::BodyFormat;
using core::document::DocumentKind;

TEST(NameOccurrencesTest, findsWholeWordsExactlyAsWritten)
{
    const struct
    {
        QString text;
        QString name;
        qsizetype count;
    } cases[] = {
        {u"Marda, Mardana and marda; Marda's, _Marda_ (Marda)-Marda"_s, u"Marda"_s, 5},
        {u"AMarda Marda1 Marda\u0301"_s, u"Marda"_s, 0},
        {u"Éa Éaë"_s, u"Éa"_s, 1},
        {u"Mr. O'Neil. Mr. O'Neils"_s, u"Mr. O'Neil"_s, 1},
        {u"the !Kung and a!Kung"_s, u"!Kung"_s, 2},
        {u"Zed?Zed?s"_s, u"Zed?"_s, 2},
        {u"\U00010400\U00010401 \U00010400"_s, u"\U00010400"_s, 1},
        {u"aa aa aa"_s, u"aa aa"_s, 1},
        {u"anything"_s, QString(), 0},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(std::ssize(findName(sample.text, sample.name)), sample.count) << sample.text.toStdString();
}

TEST(NameOccurrencesTest, aBodyKeepsEverythingAroundItsNames)
{
    const struct
    {
        QString body;
        NameChange change;
        QString expected;
        qsizetype count;
    } cases[] = {
        {u"*Marda*  and\r\n__Marda__ [Marda]{.tw color=Marda glow}\n\n* Marda {.tw indent=1 odd}"_s,
         {u"Marda"_s, u"Mara"_s},
         u"*Mara*  and\r\n__Mara__ [Mara]{.tw color=Marda glow}\n\n* Mara {.tw indent=1 odd}"_s,
         4},
        {u"[Marda](Marda.md) x[^Marda]\n\n[^Marda]: Marda"_s,
         {u"Marda"_s, u"Mara"_s},
         u"[Mara](Marda.md) x[^Marda]\n\n[^Marda]: Mara"_s,
         2},
        {u"Ada\nLove and **Ada** Love"_s, {u"Ada Love"_s, u"Ada"_s}, u"Ada and **Ada**"_s, 2},
        {u"old *x*"_s, {u"old"_s, u"n*e*w"_s}, u"n\\*e\\*w *x*"_s, 1},
        {u"D\\*Arc"_s, {u"D*Arc"_s, u"Jeanne"_s}, u"Jeanne"_s, 1},
        {u"Marda"_s, {u"Marda"_s, u"# One"_s}, u"\\# One"_s, 1},
        {u"Mardana"_s, {u"Marda"_s, u"Mara"_s}, u"Mardana"_s, 0},
    };
    for (const auto& sample : cases) {
        const auto renamed = renamedBody({sample.body}, DocumentKind::Prose, sample.change);
        EXPECT_EQ(renamed.text.text, sample.expected);
        EXPECT_EQ(renamed.count, sample.count) << sample.body.toStdString();
    }
    // Screenplays are plain text; a legacy body without the name stays what it is.
    const NameChange change{u"Marda"_s, u"*M*"_s};
    EXPECT_EQ(renamedBody({u"> Marda_"_s}, DocumentKind::Screenplay, change).text.text, u"> *M*_"_s);
    EXPECT_EQ(
        renamedBody({u"<p>Tom</p>"_s, BodyFormat::Html}, DocumentKind::Prose, change).text.format,
        BodyFormat::Html);
    EXPECT_EQ(
        renamedBody({u"<p>Mar<b>da</b></p>"_s, BodyFormat::Html}, DocumentKind::Prose, {u"Marda"_s, u"Ma"_s})
            .text,
        (core::document::DocumentBody{u"Ma"_s, BodyFormat::Markdown}));
}

namespace {

/** The whole table, without a bound. */
int slowDistance(std::u32string_view left, std::u32string_view right)
{
    std::vector<std::vector<int>> cost(left.size() + 1, std::vector<int>(right.size() + 1));
    for (std::size_t row = 0; row <= left.size(); ++row) {
        for (std::size_t column = 0; column <= right.size(); ++column) {
            if (row == 0 || column == 0) {
                cost[row][column] = static_cast<int>(row + column);
                continue;
            }
            cost[row][column] = std::min(
                {cost[row - 1][column] + 1, cost[row][column - 1] + 1,
                 cost[row - 1][column - 1] + (left[row - 1] == right[column - 1] ? 0 : 1)});
        }
    }
    return cost.back().back();
}

} // namespace

TEST(NameDistanceTest, agreesWithTheWholeTable)
{
    std::mt19937 random(7);
    const auto number = [&random](int least, int most) {
        return std::uniform_int_distribution(least, most)(random);
    };
    const auto word = [&number] {
        std::u32string text;
        for (int length = number(0, 9); length > 0; --length)
            text += static_cast<char32_t>(U'a' + number(0, 2));
        return text;
    };
    for (int round = 0; round < 20'000; ++round) {
        const std::u32string left = word();
        const std::u32string right = word();
        const int most = number(0, 6);
        const int distance = slowDistance(left, right);
        EXPECT_EQ(editDistance(left, right, most), distance > most ? std::nullopt : std::optional(distance))
            << "round " << round;
    }
    EXPECT_EQ(editDistance(comparableName(u" \U00010400x "_s), comparableName(u"\U00010428"_s), 5), 1);
    EXPECT_EQ(editDistance(comparableName(u"e\u0301"_s), comparableName(u"É"_s), 5), 0);
    EXPECT_EQ(editDistance(U"a", U"b", -1), std::nullopt);
}

} // namespace tw::app::codex
