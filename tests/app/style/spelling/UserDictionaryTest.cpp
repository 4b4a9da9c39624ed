#include "app/style/spelling/UserDictionary.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tw::test {

namespace {

using namespace Qt::StringLiterals;
using app::style::spelling::UserDictionary;

class UserDictionaryFile : public testing::Test
{
protected:
    void write(const QByteArray& bytes)
    {
        ASSERT_TRUE(QDir().mkpath(folder.filePath(u"data"_s)));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read()
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"data/userdictionary.txt"_s);
};

} // namespace

TEST_F(UserDictionaryFile, keepsWordsFromOneStartToTheNext)
{
    UserDictionary dictionary(path);
    ASSERT_TRUE(dictionary.load());
    EXPECT_TRUE(dictionary.words().isEmpty());
    ASSERT_TRUE(dictionary.add(u"Thalos"_s));
    ASSERT_TRUE(dictionary.add(u"o’dunn"_s));
    ASSERT_TRUE(dictionary.add(u"Thalos"_s));
    EXPECT_EQ(read(), "Thalos\no'dunn\n");

    UserDictionary next(path);
    ASSERT_TRUE(next.load());
    EXPECT_EQ(next.words(), (QStringList{u"o'dunn"_s, u"Thalos"_s}));
    EXPECT_TRUE(next.checker()->isCorrect(u"THALOS"_s));
    ASSERT_TRUE(next.remove(u"thalos"_s));
    EXPECT_EQ(read(), "o'dunn\n");
    EXPECT_FALSE(next.checker()->isCorrect(u"Thalos"_s));
}

TEST_F(UserDictionaryFile, leavesWhatIsNoWordAsItIs)
{
    const QByteArray odd = "\xef\xbb\xbfskiff\r\n\r\n# my words\n\xff\xfe\xff\n" + QByteArray(70, 'x') +
                           "\nna\xc3\xafve\nskiff\nlast";
    write(odd);
    UserDictionary dictionary(path);
    ASSERT_TRUE(dictionary.load());
    EXPECT_EQ(dictionary.words(), (QStringList{u"last"_s, u"naïve"_s, u"skiff"_s}));
    ASSERT_TRUE(dictionary.add(u"added"_s));
    EXPECT_EQ(read(), odd + "\nadded\n");
    ASSERT_TRUE(dictionary.remove(u"skiff"_s));
    EXPECT_EQ(
        read(), "\r\n# my words\n\xff\xfe\xff\n" + QByteArray(70, 'x') + "\nna\xc3\xafve\nlast\nadded\n");
}

TEST_F(UserDictionaryFile, keepsWhatAnotherProgramAddedMeanwhile)
{
    UserDictionary dictionary(path);
    ASSERT_TRUE(dictionary.add(u"mine"_s));
    write("mine\ntheirs\n");
    ASSERT_TRUE(dictionary.add(u"second"_s));
    EXPECT_EQ(dictionary.words(), (QStringList{u"mine"_s, u"second"_s, u"theirs"_s}));
}

TEST_F(UserDictionaryFile, refusesWhatIsNoWordAndSaysWhenItCannotWrite)
{
    UserDictionary dictionary(path);
    for (const QString& word : {QString(), u"two words"_s, u"line\nend"_s, QString(65, u'x')})
        EXPECT_FALSE(dictionary.add(word)) << qPrintable(word);
    EXPECT_EQ(read(), "none");

    write("word\n");
    QDir().mkpath(folder.filePath(u"taken/userdictionary.txt"_s));
    UserDictionary blocked(folder.filePath(u"taken/userdictionary.txt"_s));
    const auto added = blocked.add(u"word"_s);
    ASSERT_FALSE(added);
    EXPECT_TRUE(added.message().contains(u"userdictionary.txt"_s)) << qPrintable(added.message());
}

} // namespace tw::test
