#include "app/persistence/bundle/Backup.h"
#include "app/persistence/bundle/BundleFixture.h"
#include "app/persistence/bundle/ProjectBundle.h"

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

const QString failed = u"Could not create a backup of the project."_s;

class BackupTest : public BundleFixture
{
protected:
    QString backups() const { return path(u"backups/Tide"_s); }
    BackupRequest request(int minute) const
    {
        return {project(), backups(), u"Tide"_s, QDateTime(QDate(2026, 3, 9), QTime(7, minute, 5, 42))};
    }
    QStringList names() const { return QDir(backups()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
};

} // namespace

TEST_F(BackupTest, isAnArchiveNamedByProjectAndTime)
{
    const auto backup = backupProject(m_environment, request(8));
    ASSERT_TRUE(backup.isOk()) << backup.message().toStdString();
    EXPECT_EQ(backup.value().path, backups() + u"/Tide-20260309-070805042.twbackup"_s);
    EXPECT_EQ(backup.value().pruned, 0);
    EXPECT_TRUE(content(backup.value().path) == buildBundle(m_files, project()).value());

    // In the same millisecond: the first one stays.
    ASSERT_TRUE(backupProject(m_environment, request(8)).isOk());
    EXPECT_EQ(names().join(u' '), u"Tide-20260309-070805042.twbackup Tide-20260309-070805043.twbackup"_s);
}

TEST_F(BackupTest, keepsTheNewestFifteenAndWhatIsNotItsOwn)
{
    const QStringList others{
        u"Tide-.twbackup"_s,
        u"Tide-20260309.twbackup"_s,
        u"Tide-20261309-070805042.twbackup"_s,
        u"Tide-20260309-990805042.twbackup"_s,
        u"Tide-before the flood.twbackup"_s,
        u"Tide-Two-20200101-000000000.twbackup"_s,
        u"Tide-20200101-000000000.twbackup.old"_s,
        u"tide-20200101-000000000.twbackup"_s,
        u"Tideway-20200101-000000000.twbackup"_s,
    };
    for (const QString& name : others)
        store(u"backups/Tide/"_s + name, "kept");
    for (int minute = 0; minute < 15; ++minute)
        EXPECT_EQ(backupProject(m_environment, request(minute)).value().pruned, 0);
    EXPECT_EQ(backupProject(m_environment, request(15)).value().pruned, 1);
    EXPECT_FALSE(names().contains(u"Tide-20260309-070005042.twbackup"_s));
    EXPECT_EQ(names().size(), 15 + others.size());
    for (const QString& name : others)
        EXPECT_TRUE(names().contains(name)) << name.toStdString();

    // The clock was set back: the new one stays although it seems to be the oldest.
    BackupRequest early = request(0);
    early.timestamp = early.timestamp.addYears(-1);
    const auto backup = backupProject(m_environment, early);
    EXPECT_EQ(backup.value().pruned, 1);
    EXPECT_TRUE(QFileInfo::exists(backup.value().path));
    EXPECT_EQ(names().size(), 15 + others.size());
}

TEST_F(BackupTest, keepsProjectsApartWhoseNamesBeginAlike)
{
    const auto nameOf = [this](const QString& project) {
        return backupRequest(m_environment, project, {}, {}).name;
    };
    const QString series = u"/books/The Long and Winding Chronicle of the House of Ashgrove, Book "_s;
    EXPECT_EQ(nameOf(series + u"One.vellory"_s), QFileInfo(series + u"One"_s).fileName());
    EXPECT_NE(nameOf(series + u"One.vellory"_s), nameOf(series + u"Two.vellory"_s));

    // Too long for a file system.
    const QString tide = u"/books/"_s + QString(240, u'潮');
    EXPECT_NE(nameOf(tide + u"1"_s), nameOf(tide + u"2"_s));
    EXPECT_LT(nameOf(tide).toUtf8().size(), 220);
}

TEST_F(BackupTest, leavesOutTheBackupsThemselves)
{
    BackupRequest inside = request(0);
    inside.backupsFolder = project() + u"/backups"_s;
    store(u"project/backups-of-mine/a.txt"_s, "kept");
    const QByteArray expected = buildBundle(m_files, project()).value();
    for (int round = 0; round < 2; ++round)
        EXPECT_TRUE(content(backupProject(m_environment, inside).value().path) == expected);
}

TEST_F(BackupTest, removesNothingWhenItFails)
{
    BackupRequest homeless = request(0);
    homeless.folder.clear();
    EXPECT_EQ(
        backupProject(m_environment, homeless).message(),
        u"Save the project to a folder before backing it up."_s);
    for (int minute = 0; minute < 15; ++minute)
        ASSERT_TRUE(backupProject(m_environment, request(minute)).isOk());
    const QStringList before = names();

    BackupRequest missing = request(20);
    missing.folder = path(u"missing"_s);
    EXPECT_EQ(backupProject(m_environment, missing).message(), failed);
    m_files.bytesLeft = 10;
    EXPECT_EQ(backupProject(m_environment, request(20)).message(), failed);
    m_files.bytesLeft = 1 << 20;
    m_files.failingSyncs[backups()] = FaultyFileSystem::always;
    BackupRequest unsynced = request(20);
    EXPECT_EQ(backupProject(m_environment, unsynced).message(), failed);
    for (const QString& name : before)
        EXPECT_TRUE(names().contains(name)) << name.toStdString();
}
