#include "core/document/markup/PlainText.h"
#include "support/MarkdownBodies.h"

#include <gtest/gtest.h>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

TEST(PlainTextTest, onlyTheProseIsLeft)
{
    const struct
    {
        QString body;
        QString text;
    } cases[] = {
        {u"# A **b** {.tw align=center}\n\nx[^1] [red]{.tw color=red}, [t](u) ![alt](v)\n\n[^1]: note"_s,
         u"A b\nx red, t \nnote"_s},
        {u"- a\n  more\n- b  \n  c\n\n---\n\n> q"_s, u"a more\nb\nc\nq"_s},
        {u"| a | b\\|c |\n|---|---|\n| `d` | |"_s, u"a\tb|c\nd\t"_s},
        {u"```cpp\r\nx y\r\n```\r\n\r\nz &amp; \\*"_s, u"x y\nz & *"_s},
        {u"{.tw pagebreak}\n\na"_s, u"\na"_s},
        {u"a {.tw u} b `c{.tw\nu}d` [e]{.tw u} {.tw f"_s, u"a  b cd e {.tw f"_s},
        {u"```\na{.tw u\n}b\n{.tw c\n```"_s, u"ab\n{.tw c"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(PlainText(sample.body).text(), sample.text) << sample.body.toStdString();
    EXPECT_EQ(plainText({u"<p>a <b>b</b></p><p>c</p>"_s, BodyFormat::Html}), u"a b\nc"_s);
}

TEST(PlainTextTest, everyLetterIsFoundInItsPlaceInTheBody)
{
    test::MarkdownBodies random(11);
    for (int count = 0; count < 300; ++count) {
        const QString body = random.body();
        const PlainText plain(body);
        qsizetype last = -1;
        for (qsizetype offset = 0; offset < plain.text().size(); ++offset) {
            const QChar character = plain.text()[offset];
            const qsizetype place = plain.toBody(offset);
            if (character.isLetter()) {
                ASSERT_EQ(body[place], character) << body.toStdString();
                ASSERT_GT(place, last);
                ASSERT_EQ(plain.endInBody(offset + 1), place + 1);
                last = place;
            }
        }
    }
}

} // namespace tw::core::document::markup
