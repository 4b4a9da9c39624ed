#include "support/MarkdownBodies.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::test {

using namespace core::document::markup;

int MarkdownBodies::number(int least, int most)
{
    return least + static_cast<int>(m_random() % static_cast<quint32>(most - least + 1));
}

QString MarkdownBodies::oneOf(const QStringList& choices)
{
    return choices[number(0, static_cast<int>(choices.size()) - 1)];
}

QString MarkdownBodies::words()
{
    static const QStringList vocabulary = {
        u"tide"_s,       u"harbour"_s, u"don't"_s,    u"—"_s,     u"“No,”"_s, u"1986."_s, u"5*3"_s,
        u"snake_case"_s, u"a & b"_s,   u"[[Mara]]"_s, u"naïve"_s, u"שלום"_s,  u"😀"_s,     u"C:\\x"_s,
        u"wait..."_s,    u"(see)"_s,   u"what?!"_s,   u"~5"_s,    u"<3"_s,    u"a|b"_s};
    QStringList text;
    for (int count = number(1, 5); count > 0; --count)
        text.append(oneOf(vocabulary));
    return text.join(u' ');
}

QString MarkdownBodies::inlineText()
{
    static const QStringList wrappers = {
        u"%1"_s,
        u"*%1*"_s,
        u"**%1**"_s,
        u"_%1_"_s,
        u"***%1***"_s,
        u"~~%1~~"_s,
        u"**a *%1* b**"_s,
        u"`x%1`"_s,
        u"[t](https://example.org/a_b \"title\")"_s,
        u"<https://example.org>"_s,
        u"![alt](assets/map.png)"_s,
        u"[^1]"_s,
        u"[red]{.tw color=#c00000 u}"_s,
        u"[big]{.tw font=\"Noto Serif\" size=14 sup}"_s,
        u"&amp; &#39;"_s,
        u"\\*%1\\*"_s,
        u"one  \ntwo"_s,
        u"one\\\ntwo"_s,
        u"one\ntwo"_s,
        u"[[blue]{.tw bg=blue}](x.md)"_s};
    QString text;
    for (int count = number(1, 5); count > 0; --count) {
        const QString wrapper = oneOf(wrappers);
        text += (text.isEmpty() || chance(6) ? QString() : u" "_s) +
                (wrapper.contains("%1"_L1) ? wrapper.arg(words()) : wrapper);
    }
    return text;
}

QString MarkdownBodies::blockGroup()
{
    return oneOf(
        {QString(), QString(), QString(), u" {.tw align=center}"_s, u" {.tw spacing=1.5 indent=2}"_s,
         u" {.tw style=\"Letter home\" pagebreak}"_s, u" {.tw pagebreak glow}"_s});
}

QString MarkdownBodies::block()
{
    QString oneLine = inlineText();
    oneLine.replace(u"\\\n"_s, u" "_s).replace(u'\n', u' ');
    switch (number(0, 9)) {
    case 0:
        return QString(number(1, 6), u'#') + u' ' + oneLine + blockGroup();
    case 1:
        return oneOf({u"---"_s, u"* * *"_s, u"___"_s, u" -*-"_s});
    case 2:
        return oneOf({u"- "_s, u"* "_s, u"  - "_s, u"\t+ "_s}) + oneLine + blockGroup() +
               u"\n  more\n    - under"_s;
    case 3:
        return u"1. "_s + oneLine + u"\n2) "_s + oneLine + blockGroup();
    case 4:
        return u"> "_s + oneLine + u"\n> "_s + oneLine + blockGroup() + oneOf({QString(), u"\n>\n>> deep"_s});
    case 5:
        return oneOf({u"```cpp\n"_s, u"~~~~\n"_s}) + oneLine + u"\n\n  # no heading\n```\n~~~~"_s;
    case 6:
        return u"| a | b |\n|:--|:-:|\n| "_s + words().replace(u'|', u"\\|"_s) + u" | `x` |\n| short |"_s;
    case 7:
        return u"[^%1]: "_s.arg(number(1, 3)) + oneLine + u"\n    more of it"_s;
    default:
        return inlineText() + blockGroup();
    }
}

QString MarkdownBodies::body(int most)
{
    const QString lineEnd = oneOf({u"\n"_s, u"\n"_s, u"\r\n"_s, u"\r"_s});
    QString text = oneOf({QString(), QString(), u"\n\n"_s, u"  \n"_s});
    for (int count = number(0, most); count > 0; --count)
        text += block() + oneOf({u"\n\n"_s, u"\n\n"_s, u"\n"_s, u"\n \n\n"_s});
    if (chance())
        text.chop(1);
    return text.replace(u'\n', lineEnd);
}

RunStyle MarkdownBodies::style()
{
    RunStyle style;
    style.bold = chance(4);
    style.italic = chance(4);
    style.strikethrough = chance(8);
    style.code = chance(12);
    style.link =
        chance(8) ? oneOf({u"https://example.org/?a=1&amp=2"_s, u"a b(c).md"_s, u"<x>\\y"_s}) : QString();
    style.linkTitle = !style.link.isEmpty() && chance() ? u"a \"title\" \\"_s : QString();
    if (chance(8))
        style.attributes.color = oneOf({u"#c00000"_s, u"rgb(1, 2, 3)"_s});
    style.attributes.underline = chance(8);
    if (chance(16))
        style.attributes.font = u"Noto Serif"_s;
    return style;
}

std::vector<Run> MarkdownBodies::runs(int most)
{
    std::vector<Run> runs;
    for (int count = number(1, most); count > 0; --count) {
        Run run;
        run.style = style();
        switch (number(0, 11)) {
        case 0:
            run.kind = RunKind::Image;
            run.text = noise(4);
            run.target = u"assets/a.png"_s;
            break;
        case 1:
            run.kind = RunKind::FootnoteReference;
            run.text = u"n%1"_s.arg(number(1, 9));
            break;
        case 2:
            run.kind = chance() ? RunKind::SoftBreak : RunKind::HardBreak;
            break;
        case 3:
        case 4:
            run.text = noise(6);
            break;
        default:
            run.text = oneOf({QString(), u" "_s}) + words() + oneOf({QString(), u" "_s});
        }
        runs.push_back(std::move(run));
    }
    return runs;
}

QString MarkdownBodies::noise(int most)
{
    static const QStringList pieces = {
        u"*"_s, u"**"_s,     u"_"_s,     u"~~"_s,   u"~"_s,        u"`"_s,   u"``"_s, u"["_s,
        u"]"_s, u"("_s,      u")"_s,     u"{.tw"_s, u"}"_s,        u"[^"_s,  u"!"_s,  u"<"_s,
        u">"_s, u"\\"_s,     u"&amp;"_s, u"&"_s,    u"#"_s,        u"-"_s,   u"+"_s,  u"|"_s,
        u":"_s, u"1."_s,     u" "_s,     u" "_s,    u"\t"_s,       u"\""_s,  u"a"_s,  u"b"_s,
        u"é"_s, u"\u00a0"_s, u"—"_s,     u"😀"_s,    u"http://a"_s, u"x@y"_s, u"="_s,  u"color=red"_s};
    QString text;
    for (int count = number(1, most); count > 0; --count)
        text += oneOf(pieces);
    return text;
}

QStringList oddMarkdownBodies()
{
    QStringList bodies = {
        QString(),
        u"\n"_s,
        u" \t \r\n\r\n"_s,
        u"a"_s,
        u"{.tw"_s,
        u"{.tw align=center}"_s,
        u"{.tw}{.tw}"_s,
        u"a {.tw align=center"_s,
        u"a {.tw align=\"x y}"_s,
        u"a {.tw align=center} {.tw glow}"_s,
        u"a\n{.tw indent=2}\nb"_s,
        u"a {.tw\nalign=center}"_s,
        u"[a]{.tw color=red"_s,
        u"[a [b]{.tw u} c]{.tw color=red}"_s,
        u"[[[[a]]]]"_s,
        u"[[a](b)](c)"_s,
        u"[a](b (c) d"_s,
        u"![[a](b)](c)"_s,
        u"[^]"_s,
        u"[^a\nb]"_s,
        u"[^a]: "_s,
        u"[^a]:\n\n    x"_s,
        u"***a** b*"_s,
        u"*a **b* c**"_s,
        u"**a"_s,
        u"`` ` ``"_s,
        u"`a``b`"_s,
        u"```\nopen"_s,
        u"```\n\n\n"_s,
        u"~~~ x ~~~\na\n~~~~"_s,
        u"# "_s,
        u"#no"_s,
        u"####### seven"_s,
        u"- \n- a\n     - b\n  - c\n - d"_s,
        u"1.\n1. \n1) a"_s,
        u"-\n*\n+"_s,
        u">\n>\n> a\n>"_s,
        u">>>>>>>>>>>>>>>> deep"_s,
        u"> a\nlazy"_s,
        u"| a |\n|---|"_s,
        u"a | b\n---"_s,
        u"a | b\n--- | ---\nc\n"_s,
        u"|\n|-|\n|"_s,
        u"a\\|b | c\n-|-\n\\| | \\\\|"_s,
        u"===\n---\n==="_s,
        u"\\"_s,
        u"a\\\n"_s,
        u"a  \n"_s,
        u"\\\n\\\n\\"_s,
        u"a\rb\r\nc\n\rd"_s,
        u"\u2028a\u2029b"_s,
        u"שלום **עולם** {.tw align=right}"_s,
        u"👩‍👩‍👧 *👍🏽*"_s,
        QString(QChar(u'\0')) + u"a\u0001"_s,
        QString(QChar(char16_t(0xd83d))) + u"*a*"_s,
        u"&#0; &#x110000; &#xD800; &#10; &bogus; &amp"_s,
        u"\u00a0\n\u00a0"_s,
    };
    constexpr qsizetype large = 1'000'000;
    bodies.append(QString(large, u'x'));
    bodies.append(u"word "_s.repeated(large / 5));
    MarkdownBodies random(99);
    while (bodies.size() < 200)
        bodies.append(random.noise() + (random.number(0, 1) ? u"\n"_s : QString()) + random.noise());
    return bodies;
}

} // namespace tw::test
