#include "core/entity/EntityCommands.h"
#include "desktop/codex/PropertyCleanUpDialog.h"
#include "desktop/support/NextDialog.h"
#include "desktop/support/NextMessage.h"
#include "desktop/support/TestDesk.h"

#include <QPushButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;
using test::NextDialog;
using test::NextMessage;

TEST(PropertyCleanUpTest, putsInOrderWhatIsTickedBehindABackup)
{
    test::TestDesk desk;
    core::project::Project& project = desk.session.projectForCommands();
    core::taxonomy::Category people;
    people.id = core::CategoryId::create();
    people.name = u"People"_s;
    people.fields = {{.key = u"oath"_s, .label = u"Oath"_s}, {.key = u"trade"_s, .label = u"Trade"_s}};
    project.taxonomyForEdit().insert(people);
    auto made = std::make_unique<Entity>(core::ContentId::create(), people.id, u"Annis"_s);
    made->setValues({{u"oath"_s, u"sworn"_s}, {u"trade"_s, u"clerk"_s}});
    const core::ContentId annis = made->id();
    project.add(std::move(made));
    desk.announce();
    ASSERT_TRUE(desk.session.saveAs(desk.folder.filePath(u"project"_s)));

    const NextDialog<PropertyCleanUpDialog> next([](PropertyCleanUpDialog& dialog) {
        auto& tree = *dialog.findChild<QTreeWidget*>(u"cleanUp"_s);
        EXPECT_EQ(tree.topLevelItem(0)->child(0)->text(0), u"Oath"_s);
        tree.topLevelItem(0)->child(1)->setCheckState(0, Qt::Unchecked);
        dialog.accept();
    });
    cleanUpProperties(desk.context, nullptr);
    ASSERT_TRUE(next.wasSeen());
    const auto* const entity = project.findAs<Entity>(annis);
    ASSERT_EQ(entity->ownFields().size(), 1U);
    EXPECT_EQ(entity->ownFields().front().key, u"oath"_s);
    EXPECT_EQ(entity->values().at(u"oath"_s), u"sworn"_s);
    EXPECT_EQ(project.taxonomy().category(people.id)->fields.size(), 1U);
    EXPECT_EQ(desk.session.undoText(), u"Clean up properties"_s);
    EXPECT_FALSE(
        QDir(desk.folder.filePath(u"data/backups/project"_s)).entryList({u"*.twbackup"_s}).isEmpty());

    // Locked, the other one has to stay.
    project.findAsForEdit<Entity>(annis)->setLocked(true);
    const NextMessage message(u"Close"_s);
    cleanUpProperties(desk.context, nullptr);
    EXPECT_TRUE(message.text.contains(u"There is nothing to clean up"_s)) << message.text.toStdString();
    EXPECT_TRUE(message.text.contains(u"unlocked"_s));
}

} // namespace tw::desktop::codex
