#include "app/persistence/files/SafeWriter.h"
#include "app/persistence/files/FaultyFileSystem.h"
#include "app/persistence/files/JsonFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;
using namespace std::chrono_literals;
using tw::core::Failure;
using tw::core::Result;

namespace {

QString lockedMessage(const QString& path)
{
    return u"Could not write '"_s + path +
           u"' (it may be locked by another program -- the desktop app, a sync client, or antivirus)."_s;
}

class SafeWriterTest : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    /** A list of files that all exist with the content "old". */
    QList<FileWrite> oldFiles(int count) const
    {
        QList<FileWrite> files;
        for (int index = 0; index < count; ++index) {
            files.append({path(u"%1.json"_s.arg(index)), "new " + QByteArray::number(index)});
            store(files.last().path, "old");
        }
        return files;
    }

    static void store(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    /** The first files are new, all others old, and no temporary file is left. */
    void expectCommitted(const QList<FileWrite>& files, qsizetype count) const
    {
        for (qsizetype index = 0; index < files.size(); ++index)
            EXPECT_EQ(content(files.at(index).path), index < count ? files.at(index).bytes : "old") << index;
        const QDir folder(m_folder.path());
        EXPECT_EQ(folder.entryList(QDir::Files | QDir::Hidden | QDir::System).size(), files.size());
    }

    SafeWriter writer()
    {
        return SafeWriter(
            m_files, {}, [this](std::chrono::milliseconds delay) { m_slept.fetch_add(delay.count()); });
    }

    QTemporaryDir m_folder;
    FaultyFileSystem m_files;
    std::atomic<qint64> m_slept = 0;
};

} // namespace

TEST(RetryFileWrite, waitsTwiceAsLongAfterEveryFailure)
{
    using Delays = QList<qint64>;
    const struct
    {
        RetryPolicy policy;
        int failures;
        Delays delays;
        QString message;
    } cases[] = {
        {{}, 0, {}, {}},
        {{}, 2, {40, 80}, {}},
        {{}, 4, {40, 80, 160, 320}, {}},
        {{}, 99, {40, 80, 160, 320}, u"failure 5"_s},
        {{8, 40ms, 500ms}, 99, {40, 80, 160, 320, 500, 500, 500}, u"failure 8"_s},
        {{2, 900ms, 500ms}, 99, {500}, u"failure 2"_s},
        {{0, 40ms, 500ms}, 99, {}, u"failure 1"_s},
        {{-3, 40ms, 500ms}, 0, {}, {}},
    };
    for (const auto& expected : cases) {
        int attempts = 0;
        Delays delays;
        const Result<void> result = retryFileWrite(
            [&]() -> Result<void> {
                if (attempts++ < expected.failures)
                    return Failure{u"failure %1"_s.arg(attempts)};
                return {};
            },
            expected.policy, [&](std::chrono::milliseconds delay) { delays.append(delay.count()); });
        EXPECT_EQ(result.message(), expected.message);
        EXPECT_EQ(delays, expected.delays);
    }
}

TEST_F(SafeWriterTest, replacesABatchInTheListedOrderWithFewTemporariesAtATime)
{
    const QList<FileWrite> files = oldFiles(2500);
    SafeWriter safeWriter = writer();
    QList<qsizetype> asked;
    const BatchOutcome outcome = safeWriter.writeAll(files, [&](qsizetype index) -> Result<void> {
        EXPECT_EQ(content(files.at(index).path), "old");
        asked.append(index);
        return {};
    });
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.committed, files.size());
    expectCommitted(files, files.size());
    EXPECT_LE(m_files.mostTemporaries(), 1024);
    EXPECT_EQ(asked.size(), files.size());
    for (qsizetype index = 0; index < files.size(); ++index) {
        EXPECT_EQ(asked.at(index), index);
        EXPECT_EQ(m_files.replaced().at(index), files.at(index).path);
    }
    EXPECT_TRUE(safeWriter.syncFolders());
    EXPECT_TRUE(safeWriter.syncFolders());
    EXPECT_EQ(m_files.synced(), QStringList{m_folder.path()}) << "once for each changed folder";
    EXPECT_TRUE(safeWriter.writeAll({}).result);
}

TEST_F(SafeWriterTest, stopsAtTheFirstFailureWhereverItHappens)
{
    constexpr int count = 40;
    constexpr int broken = 17;
    const QString brokenPath = path(u"17.json"_s);
    const struct
    {
        const char* name;
        std::function<void(FaultyFileSystem&)> spoil;
    } cases[] = {
        {"write",
         [&](FaultyFileSystem& files) {
             files.failingWrites = {{brokenPath, files.always}};
         }},
        {"sync",
         [&](FaultyFileSystem& files) {
             files.failingSyncs = {{brokenPath, files.always}};
         }},
        {"replace",
         [&](FaultyFileSystem& files) {
             files.failingReplacements = {{brokenPath, files.always}};
         }},
        {"both late",
         [&](FaultyFileSystem& files) {
             files.failingWrites = {{brokenPath, files.always}, {path(u"39.json"_s), files.always}};
         }},
    };
    for (const auto& fault : cases) {
        const QList<FileWrite> files = oldFiles(count);
        FaultyFileSystem faulty;
        fault.spoil(faulty);
        std::atomic<qint64> slept = 0;
        SafeWriter safeWriter(faulty, {}, [&](std::chrono::milliseconds delay) { slept += delay.count(); });
        const BatchOutcome outcome = safeWriter.writeAll(files);
        EXPECT_EQ(outcome.result.message(), lockedMessage(brokenPath)) << fault.name;
        EXPECT_EQ(outcome.committed, broken) << fault.name;
        EXPECT_GE(slept, 600) << fault.name;
        expectCommitted(files, broken);
    }
}

TEST_F(SafeWriterTest, leavesEverythingFromARefusedFileOnAsItIs)
{
    const QList<FileWrite> files = oldFiles(30);
    const BatchOutcome outcome = writer().writeAll(files, [](qsizetype index) -> Result<void> {
        if (index == 3)
            return Failure{u"changed meanwhile"_s};
        return {};
    });
    EXPECT_EQ(outcome.result.message(), u"changed meanwhile"_s);
    EXPECT_EQ(outcome.committed, 3);
    expectCommitted(files, 3);
}

TEST_F(SafeWriterTest, outlastsBriefLocksAndKeepsFilesWholeOnAFullMedium)
{
    const QList<FileWrite> locked = oldFiles(20);
    m_files.failingWrites = {{locked.at(4).path, 3}, {locked.at(9).path, 4}};
    m_files.failingReplacements = {{locked.at(4).path, 4}};
    m_files.failingSyncs = {{locked.at(7).path, 4}};
    EXPECT_TRUE(writer().writeAll(locked).result);
    expectCommitted(locked, locked.size());

    std::mt19937 random(3);
    for (int round = 0; round < 10; ++round) {
        const QList<FileWrite> files = oldFiles(20);
        FaultyFileSystem full;
        full.bytesLeft = std::uniform_int_distribution<qint64>(0, 90)(random);
        SafeWriter safeWriter(full, {}, [](std::chrono::milliseconds) {});
        const BatchOutcome outcome = safeWriter.writeAll(files);
        EXPECT_FALSE(outcome.result);
        expectCommitted(files, outcome.committed);
    }
}

TEST_F(SafeWriterTest, writesASingleFileTheSameWay)
{
    const FileWrite file = oldFiles(1).first();
    m_files.failingReplacements = {{file.path, 5}};
    EXPECT_EQ(writer().write(file).message(), lockedMessage(file.path));
    EXPECT_EQ(m_slept, 600);
    expectCommitted({file}, 0);
    EXPECT_EQ(writer().writeAll({file}).committed, 1);
    expectCommitted({file}, 1);

    const QString missing = path(u"missing/%1.json"_s);
    EXPECT_EQ(writer().write({missing, "x"}).message(), lockedMessage(missing));
    EXPECT_EQ(writer().write({m_folder.path(), "x"}).message(), lockedMessage(m_folder.path())) << "a folder";
}

TEST_F(SafeWriterTest, reportsAFolderThatCannotBeSynced)
{
    m_files.failingSyncs = {{m_folder.path(), 1}};
    SafeWriter safeWriter = writer();
    EXPECT_TRUE(safeWriter.syncFolders()) << "nothing has changed yet";
    EXPECT_TRUE(safeWriter.remove(path(u"never-there"_s)));
    EXPECT_EQ(safeWriter.syncFolders().message(), lockedMessage(m_folder.path()));
}

TEST_F(SafeWriterTest, leavesAJsonFileAloneThatHoldsTheBytesAlready)
{
    const QString target = path(u"a.json"_s);
    SafeWriter safeWriter = writer();
    for (const int number : {1, 1, 2, 2})
        EXPECT_TRUE(writeJsonFile(m_files, safeWriter, target, {{u"b"_s, 1}, {u"a"_s, number}}));
    EXPECT_EQ(m_files.writes(), 2);
    EXPECT_EQ(content(target), "{\n    \"a\": 2,\n    \"b\": 1\n}\n");
}

TEST_F(SafeWriterTest, keepsLinksAndPermissions)
{
    const QString target = path(u"target.json"_s);
    const QString link = path(u"link.json"_s);
    store(target, "old");
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(target, permissions));
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_TRUE(writer().write({link, "new"}));
    EXPECT_EQ(content(target), "new");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(QFile::permissions(target) & ~(QFile::ReadUser | QFile::WriteUser), permissions);
}

TEST_F(SafeWriterTest, whatAKilledProgramLeftGoesAfterADay)
{
    FaultyFileSystem files;
    const auto temporary = files.writeTemporary(path(u"tide.vellory"_s), "half", Durability::Cached);
    ASSERT_TRUE(temporary);
    const QStringList others{u"tide.vellory"_s, u".vellory-save"_s, u"vellory-save-1"_s};
    for (const QString& other : others)
        store(path(other), "other");
    const qint64 written = files.stamp(*temporary)->mtimeNs;
    const auto later = [&](std::chrono::nanoseconds time) { return written + time.count(); };
    removeAbandonedTemporaries(files, m_folder.path(), later(23h));
    EXPECT_TRUE(QFile::exists(*temporary)) << "its program may be at work";
    removeAbandonedTemporaries(files, m_folder.path(), later(25h));
    EXPECT_FALSE(QFile::exists(*temporary));
    for (const QString& other : others)
        EXPECT_EQ(content(path(other)), "other");
}
