#include "core/document/markup/CharacterSet.h"

#include "core/document/markup/Inline.h"
#include "core/document/markup/InlinePieces.h"
#include "support/MarkdownBodies.h"

#include <gtest/gtest.h>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

TEST(CharacterSetTest, findsWhatLookingAtEveryCharacterFinds)
{
    constexpr std::u16string_view characters = u"*\n[\u2028\ufffc";
    constexpr CharacterSet set(characters);
    // Among them such as share the lower half of their code with one of the set, and with nothing.
    constexpr std::u16string_view alphabet = u"ab*\n[\u2028\ufffc\u042a\u010a\u305b(\u00fc\u4e2a";
    test::MarkdownBodies random(3);
    for (int count = 0; count < 2000; ++count) {
        QString text;
        for (int length = random.number(0, 40); length > 0; --length) {
            // Long stretches without any, too.
            const int last = random.number(0, 3) > 0 ? 1 : static_cast<int>(alphabet.size()) - 1;
            text += QChar(alphabet[static_cast<std::size_t>(random.number(0, last))]);
        }
        for (qsizetype from = 0; from <= text.size(); ++from) {
            qsizetype expected = from;
            while (expected < text.size() &&
                   characters.find(text[expected].unicode()) == std::u16string_view::npos)
                ++expected;
            ASSERT_EQ(set.findIn(text, from), expected) << text.toStdString() << " from " << from;
        }
    }
}

TEST(CharacterSetTest, whatIsSaidToBePlainIsTakenApartAsOnePiece)
{
    test::MarkdownBodies random(5);
    int plainTexts = 0;
    for (int count = 0; count < 20'000; ++count) {
        const QString text = count % 2 ? random.noise(6) : random.inlineText();
        if (!isPlainInline(text))
            continue;
        ++plainTexts;
        const InlinePieces pieces = takeApart(text);
        ASSERT_EQ(pieces.list.size(), text.isEmpty() ? 0U : 1U) << text.toStdString();
        ASSERT_EQ(parseInline(text).size(), pieces.list.size());
        for (const InlinePiece& piece : pieces.list) {
            ASSERT_EQ(piece.text, text);
            ASSERT_EQ(piece.kind, RunKind::Text);
            ASSERT_FALSE(piece.isCode || piece.isBold || piece.isItalic || piece.isStruck);
            ASSERT_EQ(std::pair(piece.link, piece.attributes), std::pair(-1, -1));
        }
    }
    EXPECT_GT(plainTexts, 1000);
    EXPECT_TRUE(isPlainInline(u"“Wait!” she said] (so)."));
}

} // namespace tw::core::document::markup
