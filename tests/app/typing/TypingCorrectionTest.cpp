#include "app/typing/TypingCorrection.h"

#include <gtest/gtest.h>

namespace tw::app::typing {

using namespace Qt::Literals::StringLiterals;

namespace {

/** As keys come in: each character is corrected once it is there. */
QString typed(QStringView keys, const TypingRules& rules)
{
    QString text;
    for (const QChar key : keys) {
        text += key;
        if (const auto correction = correctTyping(text, rules)) {
            text.chop(correction->removed);
            text += correction->inserted;
        }
    }
    return text;
}

TypingRules all(QStringView language)
{
    return {&quotationMarksOf(language), true, true};
}

} // namespace

TEST(TypingCorrectionTest, setsWhatIsTypedAsATypesetterWould)
{
    const struct
    {
        const char16_t* language;
        const char16_t* keys;
        const char16_t* text;
    } cases[] = {
        {u"en", u"\"It's 'so',\" she said.", u"“It’s ‘so’,” she said."},
        {u"en-GB", u"(\"a\") -\"b\"", u"(“a”) -“b”"},
        {u"de", u"\"Geht's 'gut'?\"", u"„Geht’s ‚gut‘?“"},
        {u"de-CH", u"\"Ja\"", u"«Ja»"},
        {u"de_AT", u"\"Ja\"", u"„Ja“"},
        {u"fr", u"\"Oui\" l'eau", u"«\u202fOui\u202f» l’eau"},
        {u"sv", u"\"Ja\" 'nej'", u"”Ja” ’nej’"},
        {u"xx", u"\"a\"", u"“a”"},
        {u"en", u"a--b", u"a–b"},
        {u"en", u"a---b", u"a—b"},
        {u"en", u"a - b", u"a – b"},
        {u"en", u"---", u"---"},
        {u"en", u"- item", u"- item"},
        {u"en", u"well-known", u"well-known"},
        {u"en", u"Wait...", u"Wait…"},
        {u"en", u"a.b..c", u"a.b..c"},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(typed(sample.keys, all(sample.language)), QString::fromUtf16(sample.text))
            << QString::fromUtf16(sample.language).toStdString();
}

TEST(TypingCorrectionTest, leavesAloneWhatIsSwitchedOff)
{
    EXPECT_EQ(typed(u"\"a\" -- '...", {}), u"\"a\" -- '..."_s);
    EXPECT_EQ(typed(u"\"a\" x-- ...", {nullptr, true, false}), u"\"a\" x– ..."_s);
}

} // namespace tw::app::typing
