#include "app/style/spelling/Dictionaries.h"
#include "app/style/spelling/HunspellSpellChecker.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <thread>

namespace tw::test {

namespace {

using namespace Qt::StringLiterals;
using namespace app::style::spelling;

class Dictionaries : public testing::Test
{
protected:
    void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).absolutePath()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    auto openWith(const QByteArray& affixes, const QByteArray& words)
    {
        write(u"xx.aff"_s, affixes);
        write(u"xx.dic"_s, words);
        return HunspellSpellChecker::open(
            {u"xx"_s, folder.filePath(u"xx.aff"_s), folder.filePath(u"xx.dic"_s)});
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Dictionaries, areFoundByPairsOfFilesTheEarlierFolderFirst)
{
    for (const auto* name : {"own/de_DE", "system/de_DE", "system/en-GB", "system/hyph_en_GB"}) {
        write(QLatin1StringView(name) + u".aff"_s, "SET UTF-8\n");
        write(QLatin1StringView(name) + u".dic"_s, "1\nx\n");
    }
    write(u"system/fr_FR.dic"_s, "1\nx\n");
    const auto found = installedDictionaries(
        {folder.filePath(u"own"_s), folder.filePath(u"missing"_s), folder.filePath(u"system"_s)});
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].language, u"de_DE"_s);
    EXPECT_EQ(found[0].wordsPath, folder.filePath(u"own/de_DE.dic"_s));
    EXPECT_EQ(found[1].language, u"en_GB"_s);
    EXPECT_EQ(found[1].affixPath, folder.filePath(u"system/en-GB.aff"_s));
}

TEST(NearestLanguage, isTheSameElseAnotherOfItsCountries)
{
    const QStringList languages{u"de_AT"_s, u"de_DE"_s, u"en_GB"_s, u"en_US"_s, u"pt_BR"_s, u"ru"_s};
    EXPECT_EQ(nearestLanguage(languages, u"de-AT"_s), u"de_AT"_s);
    EXPECT_EQ(nearestLanguage(languages, u"de_CH"_s), u"de_DE"_s);
    EXPECT_EQ(nearestLanguage(languages, u"en"_s), u"en_US"_s);
    EXPECT_EQ(nearestLanguage(languages, u"pt_PT"_s), u"pt_BR"_s);
    EXPECT_EQ(nearestLanguage(languages, u"ru_RU"_s), u"ru"_s);
    EXPECT_EQ(nearestLanguage(languages, u"fi_FI"_s), QString());
    EXPECT_EQ(nearestLanguage(languages, QString()), QString());
}

TEST_F(Dictionaries, judgeBySpellingRulesInTheirOwnEncoding)
{
    const auto utf8 = openWith("SET UTF-8\nSFX S Y 1\nSFX S 0 s .\n", "3\nnaïve\nship/S\ncafé/S\n");
    ASSERT_TRUE(utf8) << qPrintable(utf8.message());
    EXPECT_TRUE(utf8.value()->isCorrect(u"ships"_s));
    EXPECT_TRUE(utf8.value()->isCorrect(u"Cafés"_s));
    EXPECT_FALSE(utf8.value()->isCorrect(u"naïves"_s));
    EXPECT_EQ(utf8.value()->suggestions(u"shpi"_s).value(0), u"ship"_s);

    const auto latin = openWith("SET ISO8859-1\nTRY \xe9\xf6\n", "2\ncaf\xe9\nsch\xf6n\n");
    ASSERT_TRUE(latin) << qPrintable(latin.message());
    EXPECT_TRUE(latin.value()->isCorrect(u"schön"_s));
    EXPECT_FALSE(latin.value()->isCorrect(u"schon"_s));
    EXPECT_EQ(latin.value()->suggestions(u"schon"_s).value(0), u"schön"_s);
}

TEST_F(Dictionaries, doNotJudgeScriptsTheyHaveNoWordsOf)
{
    const auto opened = openWith("SET UTF-8\n", "2\nship\nnaïve\n");
    ASSERT_TRUE(opened);
    const HunspellSpellChecker& checker = *opened.value();
    EXPECT_TRUE(checker.canJudge(u"xyzzy"_s));
    EXPECT_FALSE(checker.canJudge(u"корабль"_s));
    EXPECT_FALSE(checker.canJudge(u"λόγος"_s));
    EXPECT_FALSE(checker.canJudge(QString(65, u'x')));

    const auto latin = openWith("SET ISO8859-1\n", "1\nship\n");
    ASSERT_TRUE(latin);
    EXPECT_FALSE(latin.value()->canJudge(u"łódź"_s));
}

TEST_F(Dictionaries, thatAreBrokenSayWhichFileAndWhy)
{
    struct Case
    {
        QByteArray affixes;
        QByteArray words;
        QString said;
    };
    const Case cases[] = {
        {"SET UTF-8\n", "", u"xx.dic does not begin with the number"_s},
        {"SET UTF-8\n", "ship\nboat\n", u"xx.dic does not begin with the number"_s},
        {"SET UTF-8\n", "-5\nship\n", u"xx.dic does not begin with the number"_s},
        {"SET UTF-8\n", "2000000000\nship\nboat\n", u"xx.dic has fewer words than it says"_s},
        {"SET UTF-8\n", QByteArray("1\nsh\0p\n", 7), u"xx.dic is not a text"_s},
        {QByteArray(
             "\x7f"
             "ELF\0\0",
             6),
         "1\nship\n", u"xx.aff is not a text"_s},
        {"SET KLINGON-8\n", "1\nship\n", u"KLINGON-8"_s},
    };
    for (const Case& each : cases) {
        const auto opened = openWith(each.affixes, each.words);
        ASSERT_FALSE(opened) << qPrintable(each.said);
        EXPECT_TRUE(opened.message().contains(each.said)) << qPrintable(opened.message());
    }
    const auto missing = HunspellSpellChecker::open({u"yy"_s, u"/nowhere/yy.aff"_s, u"/nowhere/yy.dic"_s});
    ASSERT_FALSE(missing);
    EXPECT_TRUE(missing.message().contains(u"yy.aff"_s)) << qPrintable(missing.message());
}

TEST_F(Dictionaries, surviveRulesThatMakeNoSense)
{
    const QByteArray rules[] = {
        "SET UTF-8\nSFX S Y 99999\nSFX S 0 s\n", "PFX\nSFX A\nREP 3\nREP x\nMAP 9\nCOMPOUNDRULE 1\n",
        "AF 2\nAF AB\nAM 1\nFLAG num\nSFX 70000 Y 1\nSFX 70000 0 s .\n", QByteArray(5000, 'S')};
    for (const QByteArray& each : rules) {
        const auto opened = openWith(each, "2\nship/ABC,9\nboat/\xff\xfe\n");
        if (opened) {
            EXPECT_FALSE(opened.value()->isCorrect(u"qqqqq"_s));
            EXPECT_LE(opened.value()->suggestions(u"shpi"_s).size(), 100);
        }
    }
}

TEST_F(Dictionaries, serveSeveralThreads)
{
    const auto opened = openWith("SET UTF-8\n", "2\nship\nboat\n");
    ASSERT_TRUE(opened);
    std::vector<int> right(4);
    std::vector<std::thread> threads;
    for (int& count : right) {
        threads.emplace_back([&count, checker = opened.value()] {
            for (int index = 0; index < 500; ++index)
                count += checker->isCorrect(index % 2 == 0 ? u"ship"_s : u"word"_s + QChar('a' + index % 26))
                             ? 1
                             : 0;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(right, std::vector<int>(4, 250));
}

} // namespace tw::test
