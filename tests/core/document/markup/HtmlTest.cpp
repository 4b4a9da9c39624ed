#include "core/document/markup/HtmlRenderer.h"
#include "core/document/markup/LegacyHtml.h"
#include "support/MarkdownBodies.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Whether the HTML holds nothing but elements and attributes that the renderer itself writes, with safe
 * values. */
bool isHarmless(const QString& html)
{
    static const QStringList elements = {
        u"h1"_s,    u"h2"_s,     u"h3"_s,   u"h4"_s,  u"h5"_s, u"h6"_s,     u"p"_s,     u"blockquote"_s,
        u"hr"_s,    u"pre"_s,    u"code"_s, u"ul"_s,  u"ol"_s, u"li"_s,     u"table"_s, u"thead"_s,
        u"tbody"_s, u"tr"_s,     u"th"_s,   u"td"_s,  u"a"_s,  u"img"_s,    u"span"_s,  u"sup"_s,
        u"sub"_s,   u"strong"_s, u"em"_s,   u"del"_s, u"br"_s, u"section"_s};
    static const QStringList attributes = {u"style"_s, u"data-tw-style"_s, u"class"_s, u"id"_s,
                                           u"href"_s,  u"title"_s,         u"src"_s,   u"alt"_s};
    for (qsizetype start = html.indexOf(u'<'); start >= 0; start = html.indexOf(u'<', start + 1)) {
        const qsizetype end = html.indexOf(u'>', start);
        if (end < 0)
            return false;
        QString tag = html.mid(start + 1, end - start - 1);
        if (tag.startsWith(u'/'))
            tag.remove(0, 1);
        const QString name = tag.section(u' ', 0, 0);
        if (!elements.contains(name))
            return false;
        QString rest = tag.mid(name.size());
        while (!rest.isEmpty()) {
            const qsizetype sign = rest.indexOf(u"=\""_s);
            const qsizetype close = rest.indexOf(u'"', sign + 2);
            if (!rest.startsWith(u' ') || sign < 0 || close < 0 ||
                !attributes.contains(rest.mid(1, sign - 1)))
                return false;
            const QString value = rest.mid(sign + 2, close - sign - 2).toLower();
            const QString key = rest.mid(1, sign - 1);
            if (key == "style"_L1 && (value.contains("url"_L1) || value.contains("expression"_L1) ||
                                      value.contains(u'{') || value.contains(u'\\')))
                return false;
            if ((key == "href"_L1 || key == "src"_L1) && value.section(u'/', 0, 0).contains(u':') &&
                !value.startsWith("http:"_L1) && !value.startsWith("https:"_L1) &&
                !value.startsWith("mailto:"_L1))
                return false;
            rest = rest.mid(close + 1);
        }
    }
    return true;
}

QStringList hostileTexts()
{
    QStringList texts = {
        u"<script>alert(1)</script>"_s,
        u"</p><script>x</script>"_s,
        u"<img src=x onerror=alert(1)>"_s,
        u"`</code><script>`"_s,
        u"```\n</code></pre><script>\n```"_s,
        u"```\" onload=\"x\ncode\n```"_s,
        u"| <b> | \" |\n|---|---|\n| </td><script> | x |"_s,
        u"# <svg/onload=x>"_s,
        u"&lt;script&gt;"_s,
        u"&#60;script&#62;"_s,
        u"&#x3c;img onerror=x&#x3e;"_s,
        u"[^\"><script>]\n\n[^\"><script>]: x"_s,
        u"x {.tw align=\"center;background:url(x)\"}"_s,
        u"x {.tw align=center\"onclick=x}"_s,
        u"x {.tw style=\"\\\"><script>\"}"_s,
        u"x {.tw style=\"' onmouseover='x\"}"_s,
        u"[x]{.tw color=red;background:url(javascript:x)}"_s,
        u"[x]{.tw color=expression(alert(1))}"_s,
        u"[x]{.tw color=\"url('x')\"}"_s,
        u"[x]{.tw bg=\"red\\\" onclick=x\"}"_s,
        u"[x]{.tw bg=\"rgb(1;2)\"}"_s,
        u"[x]{.tw font=\"a';background:url(x);'\"}"_s,
        u"[x]{.tw font=\"</span><script>\"}"_s,
        u"[x]{.tw font=\"a\\27;x:expression(1)\"}"_s,
        u"[x]{.tw color=#12<>}"_s,
        u"[x]{.tw color=\\65xpression}"_s,
        u"![\" onerror=\"x](a.png)"_s,
        u"![x](a.png \"\\\" onerror=\\\"x\")"_s,
        u"[x](a \"\\\"><script>\")"_s,
        u"![x](a.png\"onerror=\"x)"_s,
        u"[x](<a\" onclick=\"x>)"_s,
        u"<http://a\"onclick=x>"_s,
        u"<javascript:alert(1)>"_s,
        u"<data:text/html,x>"_s,
        u"<vbscript:x>"_s,
        u"<JaVaScRiPt:x>"_s,
        u"<file:///etc/passwd>"_s,
        u"[![x](javascript:a)](vbscript:b)"_s,
        u"[[x]{.tw color=url(x)}](data:x)"_s,
    };
    const QStringList targets = {
        u"javascript:alert(1)"_s,
        u"JAVASCRIPT:alert(1)"_s,
        u"JaVaScRiPt:x"_s,
        u" javascript:x"_s,
        u"<java script:x>"_s,
        u"<\tjavascript:x>"_s,
        u"<java\tscript:x>"_s,
        u"<java\u0001script:x>"_s,
        u"java\\script:x"_s,
        u"javascript&colon;x"_s,
        u"javascript&#58;x"_s,
        u"javascript&#x3a;x"_s,
        u"&#106;avascript:x"_s,
        u"&#x6A;avascript:x"_s,
        u"java&#10;script:x"_s,
        u"java&Tab;script:x"_s,
        u"javascript&amp;#58;x"_s,
        u"javascript%3ax"_s,
        u"data:text/html,<script>"_s,
        u"DATA:image/svg+xml,<svg>"_s,
        u"data&#58;x"_s,
        u"vbscript:x"_s,
        u"VbScript:x"_s,
        u"file:///etc/passwd"_s,
        u"//evil.example"_s,
        u"/\\evil.example"_s,
        u"\\\\\\\\server\\share"_s,
        u"x:y"_s,
        u"java\u200bscript:x"_s,
        u"\u2028javascript:x"_s,
        u"about:blank"_s,
        u"blob:x"_s,
        u"ms-settings:x"_s,
        u"feed:javascript:x"_s};
    for (const QString& target : targets) {
        texts.append(u"[x](%1)"_s.arg(target));
        texts.append(u"![x](%1)"_s.arg(target));
    }
    return texts;
}

} // namespace

TEST(HtmlRendererTest, constructsFollowTheirTemplates)
{
    const struct
    {
        QString body;
        QString html;
    } cases[] = {
        {u"## A *b*"_s, u"<h2>A <em>b</em></h2>\n"_s},
        {u"# A {.tw align=center pagebreak}"_s,
         u"<h1 style=\"text-align:center;page-break-before:always\">A</h1>\n"_s},
        {u"a & \"b\" {.tw spacing=1.5 indent=2 style=\"Letter home\"}"_s,
         u"<p style=\"line-height:1.5;margin-left:2em\" data-tw-style=\"Letter home\">a &amp; &quot;b&quot;</p>\n"_s},
        {u"**a *b*** ~~c~~ `d<`"_s,
         u"<p><strong>a <em>b</em></strong> <del>c</del> <code>d&lt;</code></p>\n"_s},
        {u"[red]{.tw color=#c00000 bg=yellow font=\"My Font\" size=14 u}"_s,
         u"<p><span style=\"color:#c00000;background-color:yellow;font-family:'My Font';font-size:14pt;"
         "text-decoration:underline\">red</span></p>\n"_s},
        {u"x[2]{.tw sup}[i]{.tw sub}"_s, u"<p>x<sup>2</sup><sub>i</sub></p>\n"_s},
        {u"[t](https://a.b/?x=1&y=2 \"T\") ![a](assets/b.png)"_s,
         u"<p><a href=\"https://a.b/?x=1&amp;y=2\" title=\"T\">t</a> <img src=\"assets/b.png\" alt=\"a\"></p>\n"_s},
        {u"a  \nb\nc"_s, u"<p>a<br>\nb\nc</p>\n"_s},
        {u"> q\n>> r"_s,
         u"<blockquote>\n<p>q</p>\n</blockquote>\n<blockquote>\n<blockquote>\n<p>r</p>\n</blockquote>\n</blockquote>\n"_s},
        {u"---"_s, u"<hr>\n"_s},
        {u"```cpp\na < b\n```\n\n~~~\nx\n~~~"_s,
         u"<pre><code class=\"language-cpp\">a &lt; b</code></pre>\n<pre><code>x</code></pre>\n"_s},
        {u"``` c++ \"x\"\n```"_s, u"<pre><code class=\"language-c++ &quot;x&quot;\"></code></pre>\n"_s},
        {u"- a\n  - b\n- c\n1. d"_s,
         u"<ul>\n<li>a\n<ul>\n<li>b</li>\n</ul>\n</li>\n<li>c</li>\n</ul>\n<ol>\n<li>d</li>\n</ol>\n"_s},
        {u"| a | b |\n|---|:-:|\n| c | d |"_s,
         u"<table>\n<thead>\n<tr>\n<th>a</th>\n<th "
         u"style=\"text-align:center\">b</th>\n</tr>\n</thead>\n<tbody>\n<tr>\n"
         "<td>c</td>\n<td style=\"text-align:center\">d</td>\n</tr>\n</tbody>\n</table>\n"_s},
        {u"x[^1]\n\n[^1]: note"_s,
         u"<p>x<sup class=\"footnote-ref\" id=\"fnref-1\"><a href=\"#fn-1\">1</a></sup></p>\n<section "
         "class=\"footnotes\">\n<ol>\n<li id=\"fn-1\"><p>note <a href=\"#fnref-1\" "
         "class=\"footnote-backref\">↩</a></p></li>\n</ol>\n</section>\n"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(renderHtml(sample.body), sample.html) << sample.body.toStdString();
    EXPECT_TRUE(renderHtml(u"a[^n]", {{{u"n"_s, u"kept apart"_s, true}}}).contains("<p>kept apart <a"_L1));
}

TEST(HtmlRendererTest, everyFootnoteHasIdsOfItsOwn)
{
    QStringList ids;
    const QString html = renderHtml(u"[^a b] [^a-b] [^a.b] [^a_b] [^a-b-2] [^a-b] [^a.2] [^a-b]"_s);
    static const QRegularExpression idAttribute(u"id=\"([^\"]*)\""_s);
    for (const auto& match : idAttribute.globalMatch(html))
        ids.append(match.captured(1));
    EXPECT_EQ(ids.size(), 8) << html.toStdString();
    EXPECT_EQ(ids.removeDuplicates(), 0) << html.toStdString();
    EXPECT_FALSE(ids.join(QString()).contains(u' '));
}

TEST(HtmlRendererTest, nothingHostileGetsThrough)
{
    const QStringList texts = hostileTexts();
    EXPECT_GE(texts.size(), 100);
    for (const QString& text : texts) {
        const QString html = renderHtml(text);
        EXPECT_TRUE(isHarmless(html)) << text.toStdString() << "\n" << html.toStdString();
        const QString pasted = renderHtml(htmlToMarkdown(text));
        EXPECT_TRUE(isHarmless(pasted)) << text.toStdString() << "\n" << pasted.toStdString();
    }
    test::MarkdownBodies random(5);
    for (int count = 0; count < 500; ++count) {
        const QString body = count % 2 ? random.body() : random.noise(60);
        EXPECT_TRUE(isHarmless(renderHtml(body))) << body.toStdString();
    }
}

TEST(LegacyHtmlTest, richTextBecomesMarkdownWithGroups)
{
    const struct
    {
        QString html;
        QString markdown;
    } cases[] = {
        {u"<p>One <b>two</b> <i>three</i></p>\n<p>4 &lt; 5 &amp; *</p>"_s,
         u"One **two** *three*\n\n4 < 5 & \\*"_s},
        {u"<html><head><title>T</title><style>p{}</style></head><body style=\"font-size:9pt\"><p "
         "align=\"center\">x</p></body></html>"_s,
         u"x {.tw align=center}"_s},
        {u"<p style=\" margin-top:12px; -qt-block-indent:2; text-indent:0px;\"><span style=\" "
         "font-family:'Noto Serif'; font-size:14pt; font-weight:600; color:#c00000;\">x</span></p>"_s,
         u"**[x]{.tw color=#c00000 font=\"Noto Serif\" size=14}** {.tw indent=2}"_s},
        {u"<u>u</u> <s>s</s> x<sup>2</sup> <font color=red size=5>f</font>"_s,
         u"[u]{.tw u} ~~s~~ x[2]{.tw sup} [f]{.tw color=red size=18}"_s},
        {u"<ul><li>a<ol><li>b</li><li>c</li></ol></li><li>d</li></ul>after"_s,
         u"- a\n    1. b\n    2. c\n- d\n\nafter"_s},
        {u"<h2>Title</h2><blockquote><p>q</p></blockquote><hr/><pre>a\n  b</pre>"_s,
         u"## Title\n\n> q\n\n---\n\n```\na\n  b\n```"_s},
        {u"<table><tr><th>a</th><th>b</th></tr><tr><td><p>c</p><p>d|</p></td><td></td></tr></table>"_s,
         u"| a | b |\n| --- | --- |\n| c d\\| | |"_s},
        {u"a<br>b<br/>"_s, u"a\\\nb"_s},
        {u"<a href=\"https://a.b\">t</a> <a href=\"javascript:x\">u</a> <img src=\"data:x\" alt=\"pic\">"_s,
         u"[t](https://a.b) u pic"_s},
        {u"a<!-- no --><script>no()</script><style>no</style>b"_s, u"ab"_s},
        {u"  unclosed <b>bold <i>both</p> x < y <"_s, u"unclosed **bold *both***\n\n***x < y <***"_s},
        {u"1. no list<p># no heading"_s, u"1\\. no list\n\n\\# no heading"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(htmlToMarkdown(sample.html), sample.markdown) << sample.html.toStdString();
}

TEST(LegacyHtmlTest, hostileInputIsReadInOnePass)
{
    constexpr qsizetype many = 100'000;
    for (const QString& piece :
         {u"<"_s, u"<a "_s, u"<a \""_s, u"<b>"_s, u"<!--"_s, u"<script>"_s, u"</b>"_s, u"<p>a"_s,
          u"<ul><li>a"_s, u"<table><tr><td>a"_s, u"&"_s, u"<a x="_s, u"<b>a<i>"_s, u"<blockquote>x"_s,
          u"<pre>\n"_s, u"<a href=x>[</a>"_s}) {
        const QString markdown = htmlToMarkdown(piece.repeated(many / piece.size()));
        EXPECT_LE(markdown.size(), 40 * many) << piece.toStdString();
    }
}

} // namespace tw::core::document::markup
