#include "desktop/shell/SettingsMigration.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

class SettingsMigrationTest : public testing::Test
{
protected:
    QString path(QStringView name) const { return folder.filePath(name.toString()); }

    QTemporaryDir folder;
    QSettings former{path(u"former.ini"), QSettings::IniFormat};
    QSettings present{path(u"present.ini"), QSettings::IniFormat};
};

} // namespace

TEST_F(SettingsMigrationTest, bringsOverWhatIsNotHeldYetWithItsType)
{
    const QStringList recent{u"/a, b"_s, u"/c"_s};
    former.setValue("recentProjects", recent);
    former.setValue("window/geometry", QByteArray("\x01\x00\xff", 3));
    former.setValue("appearance/theme", u"Sepia"_s);
    present.setValue("appearance/theme", u"Dark"_s);
    migrateLegacySettings(former, present);

    // Read from disk: the next start may come before this one ends.
    const QSettings reread(path(u"present.ini"), QSettings::IniFormat);
    EXPECT_EQ(reread.value("recentProjects").toStringList(), recent);
    EXPECT_EQ(reread.value("window/geometry").toByteArray(), QByteArray("\x01\x00\xff", 3));
    EXPECT_EQ(reread.value("appearance/theme").toString(), u"Dark"_s);
    EXPECT_EQ(reread.value("migration/fromTarnwick").toString(), u"true"_s);
    EXPECT_EQ(former.value("appearance/theme").toString(), u"Sepia"_s) << "the former store stays";
}

TEST_F(SettingsMigrationTest, runsOnceEvenWithoutFormerSettings)
{
    migrateLegacySettings(former, present);
    former.setValue("appearance/theme", u"Sepia"_s);
    migrateLegacySettings(former, present);
    EXPECT_EQ(present.allKeys(), QStringList{u"migration/fromTarnwick"_s});
}

TEST_F(SettingsMigrationTest, aFormerStoreThatCannotBeReadIsTriedAgain)
{
    // A folder in the place of the file: readable for nobody, the administrator included.
    ASSERT_TRUE(QDir().mkpath(path(u"locked.ini")));
    QSettings locked(path(u"locked.ini"), QSettings::IniFormat);
    migrateLegacySettings(locked, present);
    EXPECT_FALSE(present.contains("migration/fromTarnwick"));
}

} // namespace tw::desktop::shell
