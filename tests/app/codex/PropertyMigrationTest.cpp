#include "app/codex/PropertyMigration.h"

#include "app/codex/CategoryTwins.h"
#include "core/entity/Entity.h"
#include "core/entity/Schema.h"
#include "core/undo/UndoStack.h"

#include <gtest/gtest.h>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;

namespace {

class CodexFixture : public testing::Test
{
protected:
    CategoryId addCategory(const QString& name, const QStringList& keys, const CategoryId& parent = {})
    {
        Category category;
        category.id = CategoryId::create();
        category.name = name;
        category.parentId = parent;
        for (const QString& key : keys)
            category.fields.push_back(Field{.key = key});
        project.taxonomyForEdit().insert(category);
        return category.id;
    }

    Category& edit(const CategoryId& id) { return *project.taxonomyForEdit().categoryForEdit(id); }

    Entity& addEntity(const CategoryId& category, const QStringList& heldKeys = {})
    {
        auto entity = std::make_unique<Entity>(ContentId::create(), category, u"E"_s);
        core::entity::FieldValues values;
        for (const QString& key : heldKeys)
            values[key] = QString();
        entity->setValues(values);
        Entity& added = *entity;
        project.add(std::move(entity));
        return added;
    }

    QStringList plannedKeys() const
    {
        QStringList keys;
        for (const PropertyMove& move : planPropertyMigration(project, Actor::Assistant).moves)
            keys.append(move.field.key);
        keys.sort();
        return keys;
    }

    Project project;
};

using PropertyMigrationTest = CodexFixture;
using CategoryTwinsTest = CodexFixture;

} // namespace

TEST_F(PropertyMigrationTest, exactlyOneHolderMovesWhateverTheValueSays)
{
    const CategoryId realms = addCategory(
        u"Realms"_s, {u"none"_s, u"one"_s, u"two"_s, u"timed"_s, u"own"_s, u"fixed"_s, u"below"_s});
    const CategoryId isles = addCategory(u"Isles"_s, {u"replaced"_s}, realms);
    edit(realms).fields.push_back(Field{.key = u"replaced"_s});
    edit(realms).fields[5].isFixed = true;
    addEntity(realms, {u"one"_s, u"two"_s, u"fixed"_s});
    addEntity(realms, {u"two"_s});
    Entity& owner = addEntity(realms, {u"own"_s});
    owner.setOwnFields({Field{.key = u"own"_s}});
    owner.setTimedValues({{u"timed"_s, {{0, u"x"_s}}}});
    addEntity(isles, {u"below"_s, u"replaced"_s, u"unknown"_s});
    EXPECT_EQ(plannedKeys(), (QStringList{u"below"_s, u"one"_s, u"replaced"_s, u"timed"_s}));
    for (const PropertyMove& move : planPropertyMigration(project, Actor::Assistant).moves)
        EXPECT_EQ(move.from, move.field.key == u"replaced"_s ? isles : realms);
}

TEST_F(PropertyMigrationTest, whoeverIsToBeLeftAloneHoldsItsPropertyBack)
{
    const CategoryId realms =
        addCategory(u"Realms"_s, {u"locked"_s, u"excluded"_s, u"hidden"_s, u"shared"_s});
    addEntity(realms, {u"locked"_s}).setLocked(true);
    addEntity(realms, {u"excluded"_s}).setAiExcluded(true);
    const CategoryId isles = addCategory(u"Isles"_s, {}, realms);
    edit(isles).excludedKeys = {u"hidden"_s, u"shared"_s};
    addEntity(isles, {u"hidden"_s, u"shared"_s});
    addEntity(realms, {u"shared"_s});
    EXPECT_EQ(plannedKeys(), QStringList());
    EXPECT_EQ(planPropertyMigration(project, Actor::Assistant).heldBack, 2);
    EXPECT_EQ(planPropertyMigration(project, Actor::Writer).heldBack, 1) << "a writer's own may move";
}

TEST_F(PropertyMigrationTest, movesDefinitionsAndNothingElse)
{
    const CategoryId realms = addCategory(u"Realms"_s, {u"a"_s, u"b"_s, u"c"_s});
    Entity& entity = addEntity(realms, {u"a"_s, u"b"_s});
    const auto values = entity.values();
    const auto schema = core::entity::schemaOfEntity(project, entity);
    core::undo::UndoStack stack;
    for (auto& command :
         makePropertyMigration(project, planPropertyMigration(project, Actor::Assistant).moves))
        stack.push(std::move(command));
    EXPECT_EQ(entity.values(), values);
    EXPECT_EQ(entity.ownFields().size(), 2u);
    EXPECT_EQ(core::entity::schemaOfEntity(project, entity).size(), schema.size());
    ASSERT_EQ(project.taxonomy().category(realms)->fields.size(), 1u);
    EXPECT_EQ(project.taxonomy().category(realms)->fields[0].key, u"c"_s);
    EXPECT_TRUE(planPropertyMigration(project, Actor::Assistant).moves.empty())
        << "a second time there is nothing to move";
}

TEST_F(CategoryTwinsTest, areNamesThatDifferByEscapingAlone)
{
    addCategory(u"Same"_s, {});
    addCategory(u"Same"_s, {});
    const CategoryId plain = addCategory(u"Lore & Concepts"_s, {});
    const CategoryId escaped = addCategory(u"Lore &amp; Concepts"_s, {});
    const CategoryId twice = addCategory(u"Lore &amp;amp; Concepts"_s, {});
    addCategory(u"A & B"_s, {});
    addEntity(escaped);
    addEntity(escaped);
    addEntity(plain);
    const auto groups = findCategoryTwins(project);
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].name, u"Lore & Concepts"_s);
    EXPECT_EQ(groups[0].kept, escaped);
    EXPECT_EQ(groups[0].keptEntities, 2);
    EXPECT_EQ(groups[0].movedEntities, 1);
    EXPECT_EQ(std::set(groups[0].merged.begin(), groups[0].merged.end()), (std::set{plain, twice}));
    EXPECT_FALSE(isMergeHindered(project, groups[0], Actor::Writer));
    addEntity(twice).setLocked(true);
    EXPECT_TRUE(isMergeHindered(project, groups[0], Actor::Writer));
}

TEST_F(CategoryTwinsTest, amongEqualsTheOneThatIsNotEscapedStays)
{
    const CategoryId plain = addCategory(u"A & B"_s, {});
    addCategory(u"A &amp; B"_s, {});
    EXPECT_EQ(findCategoryTwins(project).at(0).kept, plain);
}

TEST_F(CategoryTwinsTest, whatTheKeptOneHangsUnderMovesUp)
{
    const CategoryId top = addCategory(u"Top"_s, {});
    const CategoryId kept = addCategory(u"A & B"_s, {});
    const CategoryId twin = addCategory(u"A &amp; B"_s, {}, top);
    addEntity(kept);
    addEntity(kept);
    const Entity& holder = addEntity(twin);
    edit(kept).parentEntityId = holder.id();
    core::undo::UndoStack stack;
    mergeCategoryTwins(project, findCategoryTwins(project).at(0), [&stack](auto command) {
        stack.push(std::move(command));
    });
    EXPECT_EQ(holder.categoryId(), top);
    EXPECT_TRUE(core::entity::isCategoryBeneath(project, kept, top));
}

TEST_F(CategoryTwinsTest, mergingBringsEverythingAcross)
{
    const CategoryId kept = addCategory(u"A & B"_s, {u"x"_s});
    const CategoryId twin = addCategory(u"A &amp; B"_s, {u"x"_s, u"y"_s});
    const CategoryId child = addCategory(u"Child"_s, {}, twin);
    const CategoryId other = addCategory(u"Other"_s, {u"first"_s, u"target"_s, u"last"_s});
    edit(other).fields[1].referenceCategory = twin;
    addEntity(kept);
    addEntity(kept);
    Entity& moved = addEntity(twin);
    moved.setOwnFields({Field{.key = u"own"_s, .referenceCategory = twin}});
    // The kept one lies beneath the other: what holds it must not end up beneath it.
    edit(kept).parentId = child;

    core::undo::UndoStack stack;
    mergeCategoryTwins(project, findCategoryTwins(project).at(0), [&stack](auto command) {
        stack.push(std::move(command));
    });
    EXPECT_FALSE(project.taxonomy().category(twin));
    EXPECT_EQ(moved.categoryId(), kept);
    EXPECT_EQ(moved.ownFields()[0].referenceCategory, kept);
    const auto& fields = project.taxonomy().category(kept)->fields;
    ASSERT_EQ(fields.size(), 2u);
    EXPECT_EQ(fields[1].key, u"y"_s);
    EXPECT_EQ(project.taxonomy().category(other)->fields[1].key, u"target"_s) << "in its old place";
    EXPECT_EQ(project.taxonomy().category(other)->fields[1].referenceCategory, kept);
    EXPECT_EQ(project.taxonomy().category(child)->parentId, CategoryId());
    EXPECT_EQ(project.taxonomy().category(kept)->parentId, child);
}

} // namespace tw::app::codex
