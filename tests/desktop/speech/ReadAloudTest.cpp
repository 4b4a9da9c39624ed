#include "desktop/speech/ReadAloud.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::desktop::speech {

TEST(ReadAloud, whatIsReadHasWordsAndALengthThatVoicesTake)
{
    EXPECT_EQ(
        speakablePieces(u"First\u2028line.\u2029\n* * *\n\uFFFC\nSecond\u00A0one."_s),
        (QStringList{u"First line."_s, u"Second one."_s}));
    const QString sentence = u"It was low water and nobody came. "_s;
    const QStringList pieces = speakablePieces(sentence.repeated(200));
    ASSERT_GT(pieces.size(), 3);
    for (const QString& piece : pieces) {
        EXPECT_LE(piece.size(), 2000);
        EXPECT_TRUE(piece.endsWith(u'.')) << "not in the middle of a sentence";
    }
    EXPECT_EQ(pieces.join(u' '), sentence.repeated(200).trimmed());
    EXPECT_EQ(speakablePieces(QString(5000, u'a')).join(QString()).size(), 5000);
}

TEST(ReadAloud, theVoiceSpeaksTheLanguageOfTheText)
{
    const QList<QLocale> voices{QLocale(u"en_US"_s), QLocale(u"de_AT"_s), QLocale(u"en_GB"_s)};
    EXPECT_EQ(nearestLocale(voices, QLocale(u"en_GB"_s)), QLocale(u"en_GB"_s));
    EXPECT_EQ(nearestLocale(voices, QLocale(u"de_DE"_s)), QLocale(u"de_AT"_s));
    EXPECT_EQ(nearestLocale(voices, QLocale(u"fr_FR"_s)), std::nullopt);
}

TEST(ReadAloud, aTextWithoutWordsIsToldFromAMissingVoice)
{
    ReadAloud reader(nullptr);
    for (const QString& text : {QString(), u" \u2029* * *\u2029\uFFFC"_s})
        EXPECT_EQ(reader.read(text, QLocale(QLocale::English)), ReadingStart::NothingToRead);
    EXPECT_FALSE(reader.isReading());
}

} // namespace tw::desktop::speech
