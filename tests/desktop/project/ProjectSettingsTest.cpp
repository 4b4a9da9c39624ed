#include "desktop/project/ProjectSettings.h"

#include "core/entity/Entity.h"
#include "desktop/support/TestDesk.h"

#include <gtest/gtest.h>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using core::content::NameSet;

namespace {

class ProjectSettingsTest : public testing::Test
{
protected:
    ProjectSettingsTest()
    {
        core::project::Project& project = desk.session.projectForCommands();
        project.setAudiences({u"Players"_s, u"Master"_s, u"Guests"_s});
        project.setDefaultAudiences({u"Players"_s, u"Elsewhere"_s});
        both = desk.addDocument(u"Both"_s, {}, 0);
        master = desk.addDocument(u"Master"_s, {}, 1);
        all = desk.addDocument(u"All"_s, {}, 2);
        desk.document(both).setVisibleTo({u"Players"_s, u"Master"_s});
        desk.document(master).setVisibleTo({u"Master"_s, u"Elsewhere"_s});
        desk.document(all).setVisibleTo({});
        desk.announce();
    }

    test::TestDesk desk;
    core::ContentId both;
    core::ContentId master;
    core::ContentId all;
};

} // namespace

TEST_F(ProjectSettingsTest, objectsFollowTheAudiencesInOneStep)
{
    ProjectSettings settings = settingsOf(desk.session.project());
    applySettings(desk.session, settings);
    EXPECT_FALSE(desk.session.canUndo()) << "nothing was changed";

    // Two change places by name, one goes, one comes.
    settings.name = u"Ebb"_s;
    settings.audiences[0].name = u"Master"_s;
    settings.audiences[1].name = u"Players"_s;
    settings.audiences[2] = {{}, u"Readers"_s, true};
    settings.libraries = {{u"../lib.vellory"_s}};
    applySettings(desk.session, settings);
    const core::project::Project& project = desk.session.project();
    EXPECT_EQ(project.name(), u"Ebb"_s);
    EXPECT_EQ(project.audiences(), (QStringList{u"Master"_s, u"Players"_s, u"Readers"_s}));
    EXPECT_EQ(project.defaultAudiences(), (NameSet{u"Elsewhere"_s, u"Master"_s, u"Readers"_s}));
    EXPECT_EQ(desk.document(both).visibleTo(), (NameSet{u"Players"_s, u"Master"_s}));
    EXPECT_EQ(desk.document(master).visibleTo(), (NameSet{u"Players"_s, u"Elsewhere"_s}));
    EXPECT_EQ(desk.session.workspace().libraryNotices().size(), 1) << "the library is looked for at once";

    desk.session.undo();
    EXPECT_FALSE(desk.session.canUndo());
    EXPECT_EQ(project.name(), u"Test"_s);
    EXPECT_EQ(desk.document(master).visibleTo(), (NameSet{u"Elsewhere"_s, u"Master"_s}));
    EXPECT_TRUE(desk.session.workspace().libraryNotices().isEmpty());
}

TEST_F(ProjectSettingsTest, removedAudiencesAreForgotten)
{
    EXPECT_EQ(useOf(desk.session.project(), u"Master"_s).objects, 2);
    EXPECT_EQ(useOf(desk.session.project(), u"Master"_s).alone, 0);
    ProjectSettings settings = settingsOf(desk.session.project());
    settings.audiences.clear();
    applySettings(desk.session, settings);
    EXPECT_TRUE(desk.document(both).visibleTo().empty());
    EXPECT_EQ(desk.document(master).visibleTo(), NameSet{u"Elsewhere"_s});
    EXPECT_EQ(useOf(desk.session.project(), u"Elsewhere"_s).alone, 1);
}

TEST(ProjectSettingsCheck, namesAreNeededAndDiffer)
{
    EXPECT_TRUE(checkSettings({u"a"_s, {{{}, u"x"_s}, {{}, u"y"_s}}, {}}));
    EXPECT_FALSE(checkSettings({u" "_s, {}, {}}));
    EXPECT_FALSE(checkSettings({u"a"_s, {{{}, u" "_s}}, {}}));
    EXPECT_EQ(
        checkSettings({u"a"_s, {{{}, u"x"_s}, {u"y"_s, u"x"_s}}, {}}).message(),
        u"Two audiences are called “x”. Give one another name."_s);
}

TEST(MountPath, isRelativeWhenBothMoveTogether)
{
    EXPECT_EQ(mountPath(u"/home/a/tide"_s, u"/home/a/tide/lib"_s), u"lib"_s);
    EXPECT_EQ(mountPath(u"/home/a/tide"_s, u"/home/a/lib.vellory"_s), u"../lib.vellory"_s);
    EXPECT_EQ(mountPath(u"/home/a/tide"_s, u"/home/b/lib"_s), u"/home/b/lib"_s);
    EXPECT_EQ(mountPath({}, u"/home/b/lib"_s), u"/home/b/lib"_s);
}

} // namespace tw::desktop::project
