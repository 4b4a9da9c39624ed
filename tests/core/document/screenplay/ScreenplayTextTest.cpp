#include "core/document/screenplay/ScreenplayText.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::core::document::screenplay {

namespace {

std::vector<QStringView> linesOf(const QString& text)
{
    std::vector<QStringView> lines;
    for (const QStringView line : QStringView(text).split(u'\n'))
        lines.push_back(line);
    return lines;
}

/** One letter a line. */
QString shortNames(const std::vector<Element>& elements)
{
    QString names;
    for (const Element element : elements)
        names += u"_SACDPT"[static_cast<int>(element)];
    return names;
}

} // namespace

TEST(ScreenplayText, linesAreReadByHowTheyAreWritten)
{
    const struct
    {
        QString text;
        const char* elements;
    } cases[] = {
        {u"INT. LIGHTHOUSE - NIGHT\n\nRain.\n\nMARA\n(quietly)\nIt is late.\n(beat)\nToo late.\n\nCUT TO:\n\nExt. quay"_s,
         "S_A_CPDPD_T_S"},
        {u"int./ext. boat\n\nI/E CABIN\n\nESTABLISHED ACTION\n\nINTERIOR of it"_s, "S_S_A_A"},
        {u"RAIN\n\nBANG!\nRAIN"_s, "A_CD"},
        {u".THE PIER\n\n...and then\n\n.\n\n> TITLE <\n\n> FADE OUT\n\n!MARA\nwalks\n\n@McAvoy\nSo."_s,
         "S_A_A_A_T_AA_CD"},
        {u"MARA (V.O.)\nYes.\n\nMara (calling)\nNo.\n\nR2D2\nBeep.\n\n23\nskidoo"_s, "CD_AA_CD_AA"},
        {u"MARA\nOne.\n  \nTwo.\n\nThree."_s, "CDDD_A"},
        {u"MARA\n> not a transition\n.neither a scene\n!An action\n@OTHER\nSpeech"_s, "CDDACD"},
        {u"The END TO:\n\nFADE TO:\nno blank below\n\nfade to:"_s, "A_CD_A"},
        {u""_s, "_"},
    };
    for (const auto& [text, elements] : cases) {
        EXPECT_EQ(shortNames(elementsOf(linesOf(text))), QLatin1String(elements)) << text.toStdString();
    }
}

TEST(ScreenplayText, aRewrittenLineIsReadAsWhatItWasMadeInto)
{
    const QStringList texts{u"the pier"_s, u"INT. PIER"_s, u"MARA"_s,  u"mara"_s, u"(softly)"_s,
                            u"CUT TO:"_s,  u"...so"_s,     u"!bang"_s, u"ß 1"_s};
    for (const QString& text : texts) {
        for (const Element wanted : chosenElements()) {
            SCOPED_TRACE(text.toStdString() + " as " + std::to_string(static_cast<int>(wanted)));
            const bool isSpeech = wanted == Element::Dialogue || wanted == Element::Parenthetical;
            const Element above = isSpeech ? Element::Character : Element::Blank;
            const bool isBlankBelow = wanted != Element::Character;
            const QString written = rewrittenAs(text, Element::Action, wanted);
            // What is said may not begin with the mark of an action.
            const bool isMarked = wanted == Element::Dialogue && written.startsWith(u'!');
            EXPECT_EQ(elementOf(written, above, isBlankBelow), isMarked ? Element::Action : wanted)
                << written.toStdString();
            // And back: no marks pile up.
            const QString again =
                rewrittenAs(rewrittenAs(written, wanted, Element::Action), Element::Action, wanted);
            EXPECT_EQ(again, written);
        }
    }
}

} // namespace tw::core::document::screenplay
