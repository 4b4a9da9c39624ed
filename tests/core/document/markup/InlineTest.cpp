#include "core/document/markup/Inline.h"
#include "core/document/markup/InlineWriter.h"
#include "support/MarkdownBodies.h"

#include <gtest/gtest.h>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

// Tests have a member of this name.
using TextRun = Run;
using Runs = std::vector<Run>;

/** "a <b>bold</b>": every run with what it is. */
QString shown(const std::vector<Run>& runs)
{
    QString text;
    for (const Run& run : runs) {
        QString styled = run.text;
        if (run.kind == RunKind::Image)
            styled = u"img(%1,%2,%3)"_s.arg(run.text, run.target, run.style.linkTitle);
        else if (run.kind == RunKind::FootnoteReference)
            styled = u"note(%1)"_s.arg(run.text);
        else if (run.kind == RunKind::SoftBreak)
            styled = u"/"_s;
        else if (run.kind == RunKind::HardBreak)
            styled = u"//"_s;
        if (run.style.code)
            styled = u"c(%1)"_s.arg(styled);
        if (run.style.strikethrough)
            styled = u"s(%1)"_s.arg(styled);
        if (run.style.italic)
            styled = u"i(%1)"_s.arg(styled);
        if (run.style.bold)
            styled = u"b(%1)"_s.arg(styled);
        if (!run.style.attributes.isEmpty())
            styled = writeInlineAttributes(run.style.attributes) + u'(' + styled + u')';
        if (!run.style.link.isEmpty())
            styled = u"link<%1,%2>(%3)"_s.arg(run.style.link, run.style.linkTitle, styled);
        text += styled;
    }
    return text;
}

} // namespace

TEST(InlineTest, marksAreReadByTheUsualRules)
{
    const struct
    {
        QString text;
        QString expected;
    } cases[] = {
        {u"a *b* **c** _d_ __e__"_s, u"a i(b) b(c) i(d) b(e)"_s},
        {u"***a** b*"_s, u"b(i(a))i( b)"_s},
        {u"***a* b**"_s, u"b(i(a))b( b)"_s},
        {u"*a **b* c**"_s, u"i(a b c)"_s},
        {u"a*b*c snake_case_x 5 * 3 * 2"_s, u"ai(b)c snake_case_x 5 * 3 * 2"_s},
        {u"**a ** b"_s, u"**a ** b"_s},
        {u"said*—fast*"_s, u"said*—fast*"_s},
        {u"~~a~~ ~b~ ~~~c~~~"_s, u"s(a) ~b~ ~~~c~~~"_s},
        {u"`a*b*` ``c`d`` `e"_s, u"c(a*b*) c(c`d) `e"_s},
        {u"`` ` `` ` x ` `  `"_s, u"c(`) c(x) c(  )"_s},
        {u"*a `b*` c*"_s, u"i(a )i(c(b*))i( c)"_s},
        {u"[t](u) [t](<a b> \"c\\\"d\") [t](u 'x') [t]()"_s,
         u"link<u,>(t) link<a b,c\"d>(t) link<u,x>(t) [t]()"_s},
        {u"[a *b*](x(y)z) [a](b c)"_s, u"link<x(y)z,>(a )link<x(y)z,>(i(b)) [a](b c)"_s},
        {u"[a [b](c) d](e)"_s, u"[a link<c,>(b) d](e)"_s},
        {u"<https://a.b/c> <me@a.b> <not a link> a<b>c"_s,
         u"link<https://a.b/c,>(https://a.b/c) link<mailto:me@a.b,>(me@a.b) <not a link> a<b>c"_s},
        {u"![a *b*](c.png \"d\") [![a](b)](c)"_s, u"img(a b,c.png,d) link<c,>(img(a,b,))"_s},
        {u"x[^1] [^a b] [^] [^x"_s, u"xnote(1) note(a b) [^] [^x"_s},
        {u"[red]{.tw color=red} [b]{.tw glow} [c]{.tw u"_s, u"{.tw color=red}(red) b [c]{.tw u"_s},
        {u"[*a* b]{.tw size=abc font=\"My Font\"}"_s,
         u"{.tw font=\"My Font\"}(i(a)){.tw font=\"My Font\"}( b)"_s},
        {u"[a]b]{.tw u} [a\\]b]{.tw u} [[x]{.tw u}](y)"_s,
         u"[a]b]{.tw u} [a]b]{.tw u} link<y,>({.tw u}(x))"_s},
        {u"a\nb  \nc\\\nd   e "_s, u"a/b//c//d   e "_s},
        {u"&amp;&#39;&#x41;&nbsp;&bogus; &#0; &lt"_s, u"&'A\u00a0&bogus; \ufffd &lt"_s},
        {u"\\*a\\* \\[b\\](c) \\a \\\\"_s, u"*a* [b](c) \\a \\"_s},
        {u"[[Mara]] sees [[Tom]] (!)"_s, u"[[Mara]] sees [[Tom]] (!)"_s},
        {u"**😀**x"_s, u"b(😀)x"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(shown(parseInline(sample.text)), sample.expected) << sample.text.toStdString();
}

TEST(InlineTest, textIsWrittenAsPeopleWouldWriteIt)
{
    const auto plain = [](const QString& text) { return Runs{{RunKind::Text, text, {}, {}}}; };
    const struct
    {
        Runs runs;
        QString expected;
    } cases[] = {
        {plain(u"What?! [[Mara]] (see) & snake_case ~5, 3 * 4 <3"_s),
         u"What?! [[Mara]] (see) & snake_case ~5, 3 * 4 <3"_s},
        {plain(u"1986. A year"_s), u"1986\\. A year"_s},
        {plain(u"- no item"_s), u"\\- no item"_s},
        {plain(u"# no #heading"_s), u"\\# no #heading"_s},
        {plain(u"*a* [b](c) &amp; {.tw u} [^1] `x`"_s),
         u"\\*a\\* [b\\](c) &amp;amp; {\\.tw u} [\\^1] \\`x\\`"_s},
        {{{RunKind::Text, u"a "_s, {}, {}},
          {RunKind::Text, u"b "_s, {}, {.bold = true}},
          {RunKind::Text, u"c"_s, {}, {.bold = true, .italic = true}},
          {RunKind::Text, u" d"_s, {}, {}}},
         u"a **b *c*** d"_s},
        {{{RunKind::Text, u"see "_s, {}, {.italic = true}}, {RunKind::Text, u"it"_s, {}, {}}}, u"*see* it"_s},
        {{{RunKind::Text, u"said"_s, {}, {}}, {RunKind::Text, u"—fast"_s, {}, {.italic = true}}},
         u"said[*—fast*]{.tw}"_s},
        {{{RunKind::Text, u"https://a.b"_s, {}, {.link = u"https://a.b"_s}}}, u"<https://a.b>"_s},
        {{{RunKind::FootnoteReference, u"1"_s, {}, {}}, {RunKind::Text, u": x"_s, {}, {}}}, u"[^1]\\: x"_s},
        {{{RunKind::Text, u"Oh!"_s, {}, {}}, {RunKind::Text, u"x"_s, {}, {.link = u"y"_s}}},
         u"Oh\\![x](y)"_s},
    };
    for (const auto& sample : cases) {
        EXPECT_EQ(writeInline(sample.runs), sample.expected);
        EXPECT_EQ(shown(parseInline(sample.expected)), shown(canonicalRuns(sample.runs)));
    }
}

TEST(InlineTest, whatIsWrittenReadsAsItWas)
{
    test::MarkdownBodies random(7);
    for (int count = 0; count < 5000; ++count) {
        const Runs runs = canonicalRuns(random.runs());
        const QString text = writeInline(runs);
        ASSERT_EQ(shown(parseInline(text)), shown(runs)) << count << ": " << text.toStdString();
        ASSERT_EQ(parseInline(text), runs);
    }
    for (int count = 0; count < 5000; ++count) {
        const QString noise = count % 2 ? random.noise() : random.inlineText();
        const Runs runs = canonicalRuns(parseInline(noise));
        const QString text = writeInline(runs);
        ASSERT_EQ(shown(parseInline(text)), shown(runs)) << noise.toStdString() << "\n" << text.toStdString();
    }
}

TEST(InlineTest, hostileTextsAreReadInOnePass)
{
    // 200,000 characters each: looking at every pair of them would never end.
    constexpr qsizetype many = 200'000;
    for (const QString& piece :
         {u"["_s,       u"]"_s,       u"[^"_s, u"!["_s,        u"[a]("_s, u"[a](b"_s, u"[a](b \""_s,
          u"![a](b)"_s, u"[a]{.tw"_s, u"*"_s,  u"*a "_s,       u"a* "_s,  u"*a_"_s,   u"_a *"_s,
          u"**a *b "_s, u"~~a"_s,     u"`"_s,  u"`a``b```c"_s, u"<"_s,    u"<a:"_s,   u"&"_s,
          u"\\"_s,      u"\n"_s,      u" "_s,  u"a**b"_s,      u"[*"_s,   u"![*a"_s,  u"(<"_s}) {
        const QString text = piece.repeated(many / piece.size());
        EXPECT_LE(parseInline(text).size(), static_cast<std::size_t>(many)) << piece.toStdString();
    }
    const QString nested = u"!["_s.repeated(20'000) + QString(many, u'x') + u"](a)"_s.repeated(20'000);
    EXPECT_FALSE(parseInline(nested).empty());
}

} // namespace tw::core::document::markup
