#include "app/persistence/bundle/BackupList.h"

#include "app/persistence/bundle/Backup.h"
#include "app/persistence/bundle/BundleFixture.h"

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

class BackupListTest : public BundleFixture
{
protected:
    QString backUp(const QString& projectPath, int hour) const
    {
        const QDateTime time(QDate(2026, 3, 9), QTime(hour, 0));
        const auto backup =
            backupProject(m_environment, backupRequest(m_environment, projectPath, project(), time));
        EXPECT_TRUE(backup);
        return backup.value().path;
    }
};

} // namespace

TEST(BackupName, isReadFromTheEnd)
{
    struct Case
    {
        QString fileName;
        QString project; ///< Empty when it is none of ours.
    };
    const Case cases[] = {
        {u"Tide-20260309-070805042.twbackup"_s, u"Tide"_s},
        {u"Low-Water-2-20260309-070805042.twbackup"_s, u"Low-Water-2"_s},
        // Lies in the hour that daylight saving leaves out somewhere.
        {u"Tide-20260329-023000000.twbackup"_s, u"Tide"_s},
        {u"-20260309-070805042.twbackup"_s, u""_s},
        {u"20260309-070805042.twbackup"_s, u""_s},
        {u"Tide_20260309-070805042.twbackup"_s, u""_s},
        {u"Tide-20261309-070805042.twbackup"_s, u""_s},
        {u"Tide-20260309 070805042.twbackup"_s, u""_s},
        {u"Tide-2026030٩-070805042.twbackup"_s, u""_s},
        {u"Tide-20260309-070805042.zip"_s, u""_s},
        {u".twbackup"_s, u""_s},
    };
    for (const Case& each : cases) {
        const auto name = parseBackupName(each.fileName);
        EXPECT_EQ(name ? name->project : QString(), each.project) << each.fileName.toStdString();
    }
}

TEST_F(BackupListTest, listsThoseOfAllProjectsTheNewestFirst)
{
    const QString tide = backUp(path(u"Tide.vellory"_s), 8);
    const QString ebb = backUp(path(u"Ebb"_s), 9);
    const QString later = backUp(path(u"Tide.vellory"_s), 10);
    store(u"data/backups/Tide/notes.txt"_s, "not a backup");
    QStringList listed;
    for (const BackupFile& backup : listBackups(m_environment)) {
        listed.append(backup.path);
        EXPECT_EQ(backup.size, QFileInfo(backup.path).size());
    }
    EXPECT_EQ(listed, (QStringList{later, ebb, tide}));
}

TEST_F(BackupListTest, restoresIntoBothFormsAndOverNothing)
{
    const QString backup = backUp(path(u"Tide.vellory"_s), 8);
    const QByteArray archive = content(backup);
    ASSERT_TRUE(restoreBackup(m_environment, backup, path(u"new/again.vellory"_s)));
    EXPECT_TRUE(content(path(u"new/again.vellory"_s)) == archive);
    ASSERT_TRUE(restoreBackup(m_environment, backup, path(u"new/again"_s)));
    EXPECT_TRUE(buildBundle(m_files, path(u"new/again"_s)).value() == archive);

    store(u"taken.vellory"_s, "theirs");
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"taken"_s));
    for (const QString& place : {u"taken.vellory"_s, u"taken"_s, u"new/again"_s}) {
        const auto refused = restoreBackup(m_environment, backup, path(place));
        EXPECT_TRUE(refused.message().startsWith(u"There is already something at "_s)) << place.toStdString();
    }
    EXPECT_EQ(content(path(u"taken.vellory"_s)), "theirs");
    EXPECT_TRUE(content(backup) == archive);
}

TEST_F(BackupListTest, restoresNothingOfADamagedBackup)
{
    const QString backup = backUp(path(u"Tide.vellory"_s), 8);
    store(u"damaged.twbackup"_s, content(backup).chopped(40));
    for (const QString& place : {u"new.vellory"_s, u"new"_s}) {
        EXPECT_FALSE(restoreBackup(m_environment, path(u"damaged.twbackup"_s), path(place)));
        EXPECT_FALSE(restoreBackup(m_environment, path(u"nowhere.twbackup"_s), path(place)));
        EXPECT_FALSE(QFileInfo::exists(path(place))) << place.toStdString();
    }
    m_files.bytesLeft = 0;
    EXPECT_FALSE(restoreBackup(m_environment, backup, path(u"new"_s)));
    EXPECT_FALSE(QFileInfo::exists(path(u"new"_s)));
}
