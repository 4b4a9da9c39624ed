#include "desktop/project/PackTransfer.h"

#include "core/taxonomy/Category.h"
#include "desktop/project/ExportPackDialog.h"
#include "desktop/support/NextMessage.h"
#include "desktop/support/TestDesk.h"

#include <QTreeWidget>

#include <gtest/gtest.h>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::taxonomy::Category;

namespace {

Category makeCategory(const QString& name, const CategoryId& parent = {})
{
    Category category;
    category.id = CategoryId::create();
    category.name = name;
    category.parentId = parent;
    return category;
}

} // namespace

TEST(PackTransfer, importIsOneStepAndSaysWhatItDid)
{
    test::TestDesk desk;
    const Category ships = makeCategory(u"Ships"_s);
    const Category people = makeCategory(u"People"_s);
    core::project::Project other;
    other.taxonomyForEdit().insert(ships);
    other.taxonomyForEdit().insert(people);
    const QString folder = desk.folder.filePath(u"pack"_s);
    ASSERT_TRUE(app::persistence::exportPack(
        desk.environment, other, {ships.id, people.id}, {u"Sea"_s, {}, {}, {}}, folder));
    desk.session.projectForCommands().taxonomyForEdit().insert(people);
    desk.announce();

    const test::NextMessage close(u"Close"_s);
    importContentPackFrom(desk.context, folder, nullptr);
    EXPECT_TRUE(close.text.contains(u": Ships"_s)) << close.text.toStdString();
    EXPECT_TRUE(close.text.contains(u": People"_s)) << close.text.toStdString();
    EXPECT_TRUE(desk.session.project().taxonomy().category(ships.id));
    desk.session.undo();
    EXPECT_FALSE(desk.session.project().taxonomy().category(ships.id));
    EXPECT_FALSE(desk.session.canUndo());

    const test::NextMessage refusal(u"Close"_s);
    importContentPackFrom(desk.context, desk.folder.path(), nullptr);
    EXPECT_TRUE(refusal.text.contains(u"holds no content pack"_s)) << refusal.text.toStdString();
}

TEST(ExportPackDialog, offersEveryCategoryWhereverItHangs)
{
    test::TestDesk desk;
    auto& taxonomy = desk.session.projectForCommands().taxonomyForEdit();
    const Category places = makeCategory(u"Places"_s);
    const Category wards = makeCategory(u"Wards"_s, places.id);
    const Category loose = makeCategory(u"Loose"_s, CategoryId::create());
    Category hanging = makeCategory(u"Hanging"_s);
    hanging.parentEntityId = core::ContentId::create();
    for (const Category& category : {places, wards, loose, hanging})
        taxonomy.insert(category);
    const std::set<CategoryId> all{places.id, wards.id, loose.id, hanging.id};
    ExportPackDialog dialog(desk.context, {{u"Sea"_s, {}, {}, {}}, all}, nullptr);
    EXPECT_EQ(dialog.pack().selected, all);
    auto* const tree = dialog.findChild<QTreeWidget*>(u"packCategories"_s);
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
        tree->topLevelItem(row)->setCheckState(0, Qt::Unchecked);
    EXPECT_TRUE(dialog.pack().selected.empty());
}

} // namespace tw::desktop::project
