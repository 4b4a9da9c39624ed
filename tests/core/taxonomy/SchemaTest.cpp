#include "core/entity/Schema.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "core/undo/UndoStack.h"

#include <gtest/gtest.h>

namespace tw::core::entity {

using namespace Qt::Literals::StringLiterals;
using taxonomy::Category;
using taxonomy::Field;

namespace {

Field field(const QString& key, const QString& label = {})
{
    Field result;
    result.key = key;
    result.label = label;
    return result;
}

class SchemaTest : public testing::Test
{
protected:
    CategoryId addCategory(const QString& name, const CategoryId& parent, std::vector<Field> fields)
    {
        Category category;
        category.id = CategoryId::create();
        category.name = name;
        category.parentId = parent;
        category.fields = std::move(fields);
        project.taxonomyForEdit().insert(category);
        return category.id;
    }

    Entity& addEntity(const QString& name, const CategoryId& category)
    {
        auto entity = std::make_unique<Entity>(ContentId::create(), category, name);
        Entity& added = *entity;
        project.add(std::move(entity));
        return added;
    }

    Category& edit(const CategoryId& id) { return *project.taxonomyForEdit().categoryForEdit(id); }

    QStringList keys(const Schema& schema) const
    {
        QStringList result;
        for (const ResolvedField& resolved : schema)
            result.append(resolved.field.key);
        return result;
    }

    project::Project project;
};

} // namespace

TEST_F(SchemaTest, descendantReplacesADeclarationInPlace)
{
    const auto a = addCategory(u"A"_s, {}, {field(u"k1"_s), field(u"k2"_s, u"old"_s)});
    const auto b = addCategory(u"B"_s, a, {});
    const auto c = addCategory(u"C"_s, b, {field(u"k2"_s, u"new"_s), field(u"k3"_s)});
    const auto schema = schemaOfCategory(project, c);
    EXPECT_EQ(keys(schema), (QStringList{u"k1"_s, u"k2"_s, u"k3"_s}));
    EXPECT_EQ(schema[0].origin, FieldOrigin::Ancestor);
    EXPECT_EQ(schema[1].field.label, u"new"_s);
    EXPECT_EQ(schema[1].definedBy, c);
    EXPECT_EQ(project.taxonomy().effectiveFields(c).size(), 3U);
    EXPECT_EQ(project.taxonomy().categoriesDefining(c, u"k2"), (std::vector{a, c}));
}

TEST_F(SchemaTest, excludedKeysAreDroppedForTheWholeBranchAndComeBack)
{
    const auto a = addCategory(u"A"_s, {}, {field(u"k1"_s), field(u"k2"_s)});
    const auto b = addCategory(u"B"_s, a, {});
    const auto c = addCategory(u"C"_s, b, {});
    edit(b).excludedKeys = {u"k1"_s};
    EXPECT_EQ(keys(schemaOfCategory(project, c)), QStringList{u"k2"_s});
    edit(c).fields = {field(u"k1"_s)};
    EXPECT_EQ(keys(schemaOfCategory(project, c)), (QStringList{u"k2"_s, u"k1"_s}));
    edit(b).excludedKeys.clear();
    edit(c).fields.clear();
    EXPECT_EQ(keys(schemaOfCategory(project, c)), (QStringList{u"k1"_s, u"k2"_s}));
}

TEST_F(SchemaTest, onlyListedKeysCrossFromAnEntity)
{
    const auto kingdoms = addCategory(u"Kingdoms"_s, {}, {field(u"climate"_s), field(u"ruler"_s)});
    Entity& realm = addEntity(u"Realm"_s, kingdoms);
    realm.setOwnFields({field(u"motto"_s)});
    const auto cities = addCategory(u"Cities"_s, {}, {field(u"walls"_s)});
    edit(cities).parentEntityId = realm.id();
    EXPECT_EQ(keys(schemaOfCategory(project, cities)), QStringList{u"walls"_s});
    edit(cities).inheritedKeys = {u"motto"_s, u"climate"_s, u"nonsense"_s};
    const auto schema = schemaOfCategory(project, cities);
    EXPECT_EQ(keys(schema), (QStringList{u"climate"_s, u"motto"_s, u"walls"_s}));
    EXPECT_EQ(schema[0].origin, FieldOrigin::ParentEntity);
    EXPECT_EQ(schema[2].origin, FieldOrigin::Category);

    const Entity& city = addEntity(u"Port"_s, cities);
    EXPECT_TRUE(ownFieldNotice(project, city, field(u"climate"_s)).contains(u"the category “Kingdoms”"_s));
    EXPECT_TRUE(ownFieldNotice(project, city, field(u"motto"_s)).contains(u"already comes from “Realm”."_s));
    Field motto = field(u"motto"_s);
    motto.isFixed = true;
    realm.setOwnFields({motto});
    EXPECT_TRUE(checkOwnField(project, city, field(u"motto"_s))
                    .message()
                    .startsWith(u"“motto” is a fixed property of “Realm”, "_s));
}

TEST_F(SchemaTest, ownFieldsOverrideAllButFixedOnes)
{
    Field fixed = field(u"law"_s, u"Law"_s);
    fixed.isFixed = true;
    fixed.fixedValue = u"Registry"_s;
    const auto category = addCategory(u"Islands"_s, {}, {field(u"area"_s, u"Area"_s), fixed});
    Entity& island = addEntity(u"Skerrow"_s, category);
    island.setOwnFields({field(u"area"_s, u"Own area"_s), field(u"law"_s, u"Own law"_s)});
    island.setValue(u"law"_s, u"none"_s);
    const auto schema = schemaOfEntity(project, island);
    EXPECT_EQ(keys(schema), (QStringList{u"law"_s, u"area"_s}));
    EXPECT_EQ(schema[1].origin, FieldOrigin::Entity);
    EXPECT_EQ(shownValue(schema[0], island), u"Registry"_s);

    EXPECT_EQ(
        checkOwnField(project, island, field(u"law"_s)).message(),
        u"“Law” is a fixed property of the category “Islands”, which supplies its value for everything "
        u"beneath "
        u"it. An entity cannot hold its own — change it on the category, or give this one a "
        u"differently-named property."_s);
    EXPECT_TRUE(checkOwnField(project, island, field(u"area"_s)));
    EXPECT_TRUE(ownFieldNotice(project, island, field(u"area"_s)).contains(u"“Islands”"_s));
    fixed.isRequired = true;
    EXPECT_TRUE(taxonomy::checkField(fixed).message().startsWith(u"A field cannot be both \"fixed\""_s));
}

TEST_F(SchemaTest, valueAsOfAnInstantIsTheLatestAtOrBefore)
{
    const auto category = addCategory(u"People"_s, {}, {field(u"rank"_s)});
    Entity& person = addEntity(u"Someone"_s, category);
    person.setValue(u"rank"_s, u"none"_s);
    person.setTimedValues({{u"rank"_s, {{200, u"captain"_s}, {100, u"clerk"_s}}}});
    const auto schema = schemaOfEntity(project, person);
    EXPECT_EQ(shownValueAt(schema[0], person, 99), u"none"_s);
    EXPECT_EQ(shownValueAt(schema[0], person, 100), u"clerk"_s);
    EXPECT_EQ(shownValueAt(schema[0], person, 5000), u"captain"_s);
}

TEST_F(SchemaTest, damagedLoopsEnd)
{
    const auto a = addCategory(u"A"_s, {}, {field(u"a"_s)});
    const auto b = addCategory(u"B"_s, a, {field(u"b"_s)});
    edit(a).parentId = b;
    EXPECT_EQ(project.taxonomy().ancestorChain(a).size(), 2U);
    EXPECT_EQ(schemaOfCategory(project, b).size(), 2U);

    // A category under an entity of its own subtree.
    Entity& inner = addEntity(u"Inner"_s, b);
    edit(a).parentId = {};
    edit(a).parentEntityId = inner.id();
    edit(a).inheritedKeys = {u"b"_s};
    EXPECT_EQ(keys(schemaOfEntity(project, inner)), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(isCategoryBeneath(project, b, a));
}

TEST_F(SchemaTest, movesThatWouldCloseALoopAreRefused)
{
    const auto a = addCategory(u"A"_s, {}, {});
    const auto b = addCategory(u"B"_s, a, {});
    Entity& inner = addEntity(u"Inner"_s, b);
    const auto c = addCategory(u"C"_s, {}, {});
    edit(c).parentEntityId = inner.id();
    const auto unknown = CategoryId::create();

    const QString cycle = u"Reparenting there would create a cycle."_s;
    EXPECT_EQ(checkMoveToCategory(project, a, a).message(), cycle);
    EXPECT_EQ(checkMoveToCategory(project, a, b).message(), cycle);
    EXPECT_EQ(checkMoveToCategory(project, a, c).message(), cycle);
    EXPECT_EQ(checkMoveToCategory(project, unknown, a).message(), u"Cannot reparent an unknown category."_s);
    EXPECT_EQ(
        checkMoveToCategory(project, a, unknown).message(), u"Cannot reparent under an unknown category."_s);
    EXPECT_TRUE(checkMoveToCategory(project, b, {}));
    EXPECT_FALSE(checkMoveToEntity(project, a, inner.id()));
    EXPECT_TRUE(checkMoveToEntity(project, c, inner.id()));
    taxonomy::Taxonomy copy = project.taxonomy();
    EXPECT_TRUE(copy.reparent(c, a));
    EXPECT_TRUE(copy.category(c)->parentEntityId.isNull());
}

TEST_F(SchemaTest, removingACategoryPromotesWhatItHeld)
{
    undo::UndoStack stack;
    const auto kingdoms = addCategory(u"Kingdoms"_s, {}, {});
    Entity& realm = addEntity(u"Realm"_s, kingdoms);
    const auto cities = addCategory(u"Cities"_s, {}, {});
    edit(cities).parentEntityId = realm.id();
    const auto ports = addCategory(u"Ports"_s, cities, {});
    Entity& harbour = addEntity(u"Harbour"_s, cities);

    stack.push(std::make_unique<taxonomy::RemoveCategoryCommand>(project, cities));
    EXPECT_EQ(project.taxonomy().category(ports)->parentEntityId, realm.id());
    EXPECT_TRUE(harbour.categoryId().isNull());
    stack.undo();
    EXPECT_EQ(project.taxonomy().category(ports)->parentId, cities);
    EXPECT_TRUE(project.taxonomy().category(ports)->parentEntityId.isNull());
    EXPECT_EQ(harbour.categoryId(), cities);

    stack.push(std::make_unique<taxonomy::SetCategoryKeyListCommand>(
        project, CategoryId::create(), taxonomy::CategoryKeyList::Excluded, QStringList{u"x"_s}));
    EXPECT_EQ(stack.undoText(), u"Set excluded properties"_s);
    stack.undo();
    EXPECT_EQ(project.taxonomy().categories().size(), 3U);
}

TEST_F(SchemaTest, aWayThroughAnyNumberOfEntitiesIsWalked)
{
    const auto outermost = addCategory(u"0"_s, {}, {field(u"key"_s)});
    CategoryId innermost = outermost;
    for (int level = 1; level < 20'000; ++level) {
        const Entity& holder = addEntity(QString(), innermost);
        innermost = addCategory(QString(), {}, {});
        edit(innermost).parentEntityId = holder.id();
        edit(innermost).inheritedKeys = {u"key"_s};
    }
    const auto schema = schemaOfCategory(project, innermost);
    EXPECT_EQ(keys(schema), QStringList{u"key"_s});
    EXPECT_EQ(schema[0].origin, FieldOrigin::ParentEntity);
    EXPECT_EQ(schema[0].definedBy, outermost);
}

} // namespace tw::core::entity
