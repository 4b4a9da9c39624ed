#include "core/document/markup/BodyWords.h"
#include "core/document/WordCount.h"
#include "core/document/markup/PlainText.h"
#include "support/MarkdownBodies.h"

#include <gtest/gtest.h>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

TEST(BodyWordsTest, marksAreNoWords)
{
    const struct
    {
        QString body;
        qint64 words;
    } cases[] = {
        {u"[red]{.tw color=red}"_s, 1},
        {u"[the sea](https://a.example/b-c \"title\") rose"_s, 3},
        {u"![a map](assets/map.png) here (and) there"_s, 3},
        {u"not [a link]( over\nlines"_s, 5},
        {u"sea[^1]-side don't 5-6 a--b"_s, 5},
        {u"1. one\n2. two\n10) three"_s, 3},
        {u"1. one\n\n   12) twelve\n\n1.5 litres\n\n1984. A year."_s, 7},
        {u"```cpp\nint main\n```"_s, 2},
        {u"~~~ a label\n\none\n\n~~~\n\ntwo"_s, 2},
        {u"a&#32;b &amp; c&eacute;d&nbsp;e"_s, 4},
        {u"<https://a.example> <x@y.example>"_s, 6},
        {u"un*believ*able **bold**ly snake_case _so_ *don*'t"_s, 5},
        {u"don\\'t \\# \\1\\. x"_s, 3},
        {u"| a | b |\n|---|:-:|\n| c d | `e` |"_s, 5},
        {u"# One {.tw align=center}\n\n> two\n> three\n\n- four\n- [x] five\n\n* * *"_s, 6},
        {u"a {.tw x\n\ny} b [^c\n\nd] e"_s, 3},
        {u"[^1]: the note\n\nText[^1]."_s, 3},
        {u"\uFFFC a\uFFFCb"_s, 1},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(countBodyWords(sample.body), sample.words) << sample.body.toStdString();
    EXPECT_EQ(countBodyWords({u"<p>two <b>wo</b>rds</p>"_s, BodyFormat::Html}), 2);
}

TEST(BodyWordsTest, whatIsCountedInPassingIsCountedAsIfItHadBeenRead)
{
    test::MarkdownBodies random(13);
    QStringList bodies = test::oddMarkdownBodies();
    for (int count = 0; count < 400; ++count) {
        bodies.append(random.body());
        bodies.append(random.noise());
    }
    for (const QString& body : bodies) {
        EXPECT_EQ(countBodyWords(body), countWords(PlainText(body).text()))
            << body.left(400).toUtf8().toPercentEncoding(" \n").toStdString();
    }
}

TEST(BodyWordsTest, longBodiesOfHalfWrittenMarksTakeNoLonger)
{
    for (const QStringView piece :
         {u"a]( ", u"{.tw [^ ", u"a*_", u"1. ", u"[a\n\n", u"```\n\n", u"{.tw a\n\n"}) {
        const QString body = piece.toString().repeated(20'000);
        EXPECT_LE(countBodyWords(body), body.size()) << piece.toUtf8().toStdString();
    }
}

} // namespace tw::core::document::markup
