#include "core/document/markup/Attributes.h"

#include <gtest/gtest.h>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

TEST(AttributesTest, blockGroupsAreReadAndWritten)
{
    const struct
    {
        QString words;
        BlockAttributes attributes;
        QString written;
    } cases[] = {
        {QString(), {}, QString()},
        {u" pagebreak"_s, {.pageBreak = true}, u"{.tw pagebreak}"_s},
        {u" indent=2 spacing=1.5"_s, {.spacing = 1.5, .indent = 2}, u"{.tw spacing=1.5 indent=2}"_s},
        {u" spacing=2.0"_s, {.spacing = 2}, u"{.tw spacing=2}"_s},
        {u" style=\"Letter home\" align=center glow"_s,
         {.align = u"center"_s, .style = u"Letter home"_s},
         u"{.tw align=center style=\"Letter home\"}"_s},
        {u" style=plain pagebreak=1"_s, {.style = u"plain"_s}, u"{.tw style=\"plain\"}"_s},
        {u" spacing=x indent=1.5 align"_s, {}, QString()},
        {u" spacing=nan indent=99999999999"_s, {}, QString()},
        {u" spacing=inf indent=-3"_s, {}, QString()},
        {u" align=left align=right"_s, {.align = u"right"_s}, u"{.tw align=right}"_s},
        {u" style=\"a=b\" x=\"y"_s, {.style = u"a=b"_s}, u"{.tw style=\"a=b\"}"_s},
    };
    for (const auto& sample : cases) {
        EXPECT_EQ(readBlockAttributes(sample.words), sample.attributes) << sample.words.toStdString();
        EXPECT_EQ(writeBlockAttributes(sample.attributes), sample.written);
    }
}

TEST(AttributesTest, inlineGroupsAreReadAndWritten)
{
    const struct
    {
        QString words;
        InlineAttributes attributes;
        QString written;
    } cases[] = {
        {u" color=#c00000 u"_s, {.color = u"#c00000"_s, .underline = true}, u"{.tw color=#c00000 u}"_s},
        {u" sub sup size=14 font=\"Noto Serif\" bg=yellow"_s,
         {.background = u"yellow"_s,
          .font = u"Noto Serif"_s,
          .size = 14,
          .superscript = true,
          .subscript = true},
         u"{.tw bg=yellow font=\"Noto Serif\" size=14 sup sub}"_s},
        {u" size=abc glow"_s, {}, QString()},
        {u"\tcolor=\"rgb(1, 2, 3)\"\n"_s, {.color = u"rgb(1, 2, 3)"_s}, u"{.tw color=\"rgb(1, 2, 3)\"}"_s},
        {u"u=1 color"_s, {}, QString()},
        {u" font=\"\" color=\""_s, {}, QString()},
    };
    for (const auto& sample : cases) {
        EXPECT_EQ(readInlineAttributes(sample.words), sample.attributes) << sample.words.toStdString();
        EXPECT_EQ(writeInlineAttributes(sample.attributes), sample.written);
    }
}

TEST(AttributesTest, noValueBreaksOutOfItsGroup)
{
    EXPECT_EQ(writeInlineAttributes({.font = u"a\"} <b>\n"_s}), u"{.tw font=\"a <b> \"}"_s);
    EXPECT_EQ(writeBlockAttributes({.align = u"}\"\""_s, .spacing = -1}), u"{.tw}"_s);
}

} // namespace tw::core::document::markup
