#include "app/search/DocumentSearch.h"
#include "app/search/Replacement.h"
#include "core/document/markup/PlainText.h"
#include "support/MarkdownBodies.h"

#include <gtest/gtest.h>

namespace tw::app::search {

using namespace Qt::Literals::StringLiterals;
using core::document::BodyFormat;
using core::document::DocumentBody;

namespace {

constexpr qsizetype all = 1000;

TextMatcher matcherOf(const TextQuery& query)
{
    auto matcher = TextMatcher::create(query);
    EXPECT_TRUE(matcher) << matcher.message().toStdString();
    return std::move(matcher).value();
}

/** The found texts as they stand in the body. */
QString found(const TextQuery& query, const QString& body)
{
    const auto matches = findMatches(matcherOf(query), {body}, all);
    if (!matches)
        return matches.message();
    QStringList texts;
    for (const TextMatch& match : matches.value())
        texts.append(body.mid(match.source.first, match.source.count));
    return texts.join(u" / "_s);
}

QString replaced(const TextQuery& query, const QString& body, const QString& replacement)
{
    const TextMatcher matcher = matcherOf(query);
    return buildReplacement({body}, matcher, findMatches(matcher, {body}, all).value(), replacement)
        .text.text;
}

} // namespace

TEST(SearchTest, looksThroughTheProseAndPointsIntoTheBody)
{
    const struct
    {
        TextQuery query;
        QString body;
        QString expected;
    } cases[] = {
        {{u"tide"_s}, u"Tide, tides and **ti**de."_s, u"Tide / tide / ti**de"_s},
        {{u"tide"_s, true}, u"Tide, tide"_s, u"tide"_s},
        {{u"tide"_s, false, true}, u"Tide, tides, low-tide"_s, u"Tide / tide"_s},
        {{u"red"_s}, u"[red]{.tw color=red} [^red] [x](red) {.tw style=\"red\"}"_s, u"red"_s},
        {{u"a & b"_s}, u"a &amp; b"_s, u"a &amp; b"_s},
        {{u"zzz"_s},
         u"a {.tw color=zzz} *{.tw zzz\nzzz}* `{.tw zzz}` \\{.tw zzz}\n\n```\n{.tw zzz}\n```\n\n| {.tw zzz} |\n|---|"_s,
         QString()},
        {{u"zzz"_s}, u"{.tw zzz {\\.tw zzz} zzz"_s, u"zzz"_s},
        {{u"one two"_s}, u"one\ntwo\n\n> one\n> two"_s, u"one\ntwo / one\n> two"_s},
        {{u"a\\s+b"_s, false, false, true}, u"a\n\nb a b"_s, u"a b"_s},
        {{u"^\\w+"_s, false, false, true}, u"# One two\n\n- three four"_s, u"One / three"_s},
        {{u"x*"_s, false, false, true}, u"axxb"_s, u"xx"_s},
        {{u"(a+)+$"_s, false, false, true},
         QString(5000, u'a') + u'b',
         u"The regular expression is too complex for this text. Make it simpler, for example with fewer "
         u"nested "
         "repetitions."_s},
        {{u"."_s}, u"a.b"_s, u"."_s},
        {{u"d"_s}, u"| a | b |\n|---|---|\n| c | d\\|d |"_s, u"d / d"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(found(sample.query, sample.body), sample.expected) << sample.body.left(80).toStdString();
    EXPECT_FALSE(TextMatcher::create({QString()}));
    const auto invalid = TextMatcher::create({u"a("_s, false, false, true});
    EXPECT_TRUE(invalid.message().contains("at character 3"_L1)) << invalid.message().toStdString();
}

TEST(SearchTest, matchesComeWithTheirSurroundingsAndEndAtTheLimit)
{
    const SearchedDocument document{
        core::ContentId::create(),
        u"The tide"_s,
        u"No tide"_s,
        {u"Before the *tide*\n\nand after the tide"_s}};
    const TextMatcher matcher = matcherOf({u"tide"_s});
    const DocumentMatches result = searchDocument(matcher, document, {}).value();
    ASSERT_EQ(result.matches.size(), 4U);
    EXPECT_EQ(result.matches[0].field, MatchField::Title);
    EXPECT_EQ(result.matches[1].field, MatchField::Synopsis);
    EXPECT_EQ(result.matches[2].before, u"Before the "_s);
    EXPECT_EQ(result.matches[2].found, u"tide"_s);
    EXPECT_EQ(result.matches[2].after, u" and after the tide"_s);
    EXPECT_EQ(searchDocument(matcher, document, {false, all}).value().matches.size(), 2U);
    EXPECT_EQ(searchDocument(matcher, document, {true, 3}).value().matches.size(), 3U);
}

TEST(SearchTest, replacementsLeaveTheMarkupWhole)
{
    const struct
    {
        TextQuery query;
        QString body;
        QString replacement;
        QString expected;
    } cases[] = {
        {{u"tide"_s}, u"the tide\r\n\r\n- ti**de** x"_s, u"sea"_s, u"the sea\r\n\r\n- sea x"_s},
        {{u"old"_s},
         u"**old** [old](old.md) [old]{.tw color=red}"_s,
         u"new"_s,
         u"**new** [new](old.md) [new]{.tw color=red}"_s},
        {{u"old"_s}, u"a **old** b"_s, QString(), u"a  b"_s},
        {{u"x"_s}, u"x y"_s, u"*[a](b) {.tw u}"_s, u"\\*[a\\](b) {\\.tw u} y"_s},
        {{u"x"_s}, u"x y"_s, u"# "_s, u"\\#  y"_s},
        {{u"(\\w+), (\\w+)"_s, false, false, true},
         u"Brandt, Mara!"_s,
         u"\\2 \\1 \\\\ \\0"_s,
         u"Mara Brandt \\ Brandt, Mara!"_s},
        {{u"a"_s},
         u"```\na\n```\n\n| a | `a` |\n|---|---|\n| b | a\\|c |"_s,
         u"z|"_s,
         u"```\nz|\n```\n\n| z\\| | `z\\|` |\n| --- | --- |\n| b | z\\|\\|c |"_s},
        {{u"one two"_s}, u"one\ntwo three"_s, u"1"_s, u"1 three"_s},
        {{u"b"_s},
         u"a {.tw align=center}\n\nb {.tw indent=2}"_s,
         u"c"_s,
         u"a {.tw align=center}\n\nc {.tw indent=2}"_s},
        {{u"b"_s},
         u"b {.tw color=b} `b {.tw b}` *b*{.tw b} b\n\n~~~\nb {.tw b} b\n~~~"_s,
         u"c"_s,
         u"c {.tw color=b} `c {.tw b}` *c*{.tw b} c\n\n~~~\nc {.tw b} c\n~~~"_s},
        {{u"a  b"_s}, u"x a {.tw u} b y"_s, u"c"_s, u"x c{.tw u} y"_s},
        // Marks that a group tears apart are left alone.
        {{u"b"_s}, u"b {.tw *b} b*"_s, u"c"_s, u"b {.tw *b} b*"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(replaced(sample.query, sample.body, sample.replacement), sample.expected)
            << sample.body.toStdString();
    const TextMatcher matcher = matcherOf({u"b"_s});
    const DocumentBody legacy{u"<p>a <b>b</b></p>"_s, BodyFormat::Html};
    EXPECT_EQ(
        buildReplacement(legacy, matcher, findMatches(matcher, legacy, all).value(), u"c"_s).text,
        (DocumentBody{u"a **c**"_s, BodyFormat::Markdown}));
}

TEST(SearchTest, tellsHowManyMatchesWereReplaced)
{
    const struct
    {
        QStringView body;
        QStringView replacement;
        qsizetype made;
        qsizetype refused;
    } cases[] = {
        {u"tide, Tide\n\nti**de**", u"sea", 3, 0},
        {u"tide, Tide\n\nTIDE", u"Tide", 2, 0},
        {u"tide **tide**", u"tide", 0, 0},
        {u"tide {.tw *x} tide*\n\ntide", u"sea", 1, 2},
        {u"| tide |\n|---|\n| {.tw *x} tide* |", u"sea", 1, 1},
        {u"no water", u"sea", 0, 0},
    };
    const TextMatcher matcher = matcherOf({u"tide"_s});
    for (const auto& sample : cases) {
        const DocumentBody body{sample.body.toString()};
        const auto result = buildReplacement(
            body, matcher, findMatches(matcher, body, all).value(), sample.replacement.toString());
        EXPECT_EQ(result.made, sample.made) << body.text.toStdString();
        EXPECT_EQ(result.refused, sample.refused) << body.text.toStdString();
        EXPECT_EQ(result.text == body, sample.made == 0) << body.text.toStdString();
    }
}

TEST(SearchTest, replacingInTheBodyIsReplacingInTheProse)
{
    test::MarkdownBodies random(17);
    const TextMatcher matcher = matcherOf({u"tide"_s});
    for (int round = 0; round < 300; ++round) {
        const QString body = random.body();
        const std::vector<TextMatch> matches = findMatches(matcher, {body}, all).value();
        const QString result = buildReplacement({body}, matcher, matches, u"*[sea"_s).text.text;
        QString prose = core::document::markup::PlainText(body).text();
        if (matches.empty()) {
            EXPECT_EQ(result, body);
        }
        for (auto match = matches.rbegin(); match != matches.rend(); ++match)
            prose.replace(match->range.first, match->range.count, u"*[sea"_s);
        // Writing a block anew drops blanks beside breaks, which are prose to nobody.
        EXPECT_EQ(core::document::markup::PlainText(result).text().simplified(), prose.simplified())
            << body.toStdString();
    }
}

} // namespace tw::app::search
