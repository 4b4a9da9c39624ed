#include "app/persistence/pack/ContentPack.h"

#include "app/persistence/files/FaultyFileSystem.h"
#include "core/undo/UndoStack.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace tw::core;
using namespace tw::app::persistence;
using taxonomy::Category;
using taxonomy::Field;
using taxonomy::FieldType;

namespace {

class ContentPackTest : public testing::Test
{
protected:
    QString folder() const { return root.filePath(u"pack"_s); }

    static Category category(const QString& name, const CategoryId& parent = {})
    {
        Category made;
        made.id = CategoryId::create();
        made.name = name;
        made.parentId = parent;
        return made;
    }

    static Field reference(const QString& key, const CategoryId& target)
    {
        Field field;
        field.key = key;
        field.type = FieldType::Reference;
        field.referenceCategory = target;
        return field;
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        const QString path = folder() + u'/' + name;
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    static QStringList names(const std::vector<Category>& categories)
    {
        QStringList names;
        for (const Category& category : categories)
            names.append(category.name);
        names.sort();
        return names;
    }

    QTemporaryDir root;
    FaultyFileSystem files;
    StorageEnvironment environment{files, root.filePath(u"data"_s), {}, [](auto) {}};
    const PackInfo info{u"Seas"_s, u"Ships and \"harbours\""_s, u"M."_s, u"1.2"_s};
};

} // namespace

TEST_F(ContentPackTest, carriesCategoriesWithAllThatTheyNeed)
{
    const Category place = category(u"Place"_s);
    const Category harbour = category(u"Harbour"_s, place.id);
    const Category person = category(u"Person"_s);
    const Category captain = category(u"Captain"_s, person.id);
    Category ship = category(u"Ship"_s);
    for (const auto& [key, target] :
         {std::pair(u"home"_s, harbour.id), std::pair(u"captain"_s, captain.id),
          std::pair(u"self"_s, ship.id)}) {
        ship.fields.push_back(reference(key, target));
    }
    project::Project source;
    for (const Category& each : {place, harbour, person, captain, ship, category(u"Other"_s)})
        source.taxonomyForEdit().insert(each);
    write(u"pack.json"_s, "{}");
    write(u"taxonomy/of an earlier version.json"_s, "{}");
    const auto written = exportPack(environment, source, {ship.id}, info, folder());
    ASSERT_TRUE(written) << written.message().toStdString();

    const auto pack = readPack(files, folder());
    ASSERT_TRUE(pack) << pack.message().toStdString();
    EXPECT_EQ(pack.value().info, info);
    EXPECT_EQ(names(pack.value().categories).join(u' '), u"Captain Harbour Person Place Ship"_s);

    project::Project target;
    target.taxonomyForEdit().insert(person);
    const taxonomy::Taxonomy before = target.taxonomy();
    undo::UndoStack history;
    history.push(importPack(target, pack.value()));
    EXPECT_EQ(target.taxonomy().categories().size(), 5U);
    for (const Category& each : {place, harbour, person, captain, ship})
        EXPECT_TRUE(*target.taxonomy().category(each.id) == each) << each.name.toStdString();
    EXPECT_FALSE(importPack(target, pack.value())) << "all of it is there already";
    history.undo();
    EXPECT_TRUE(target.taxonomy() == before);
}

TEST_F(ContentPackTest, leavesNothingDangling)
{
    project::Project target;
    ContentPack pack;
    Category lost = category(u"Lost"_s, CategoryId::create());
    lost.fields.push_back(reference(u"ally"_s, CategoryId::create()));
    Category under = category(u"Under"_s);
    under.parentEntityId = ContentId::create();
    under.inheritedKeys = {u"ally"_s};
    // The project knows the parent of its category by id only, and that one would hang under the category.
    Category present = category(u"Present"_s, CategoryId::create());
    target.taxonomyForEdit().insert(present);
    Category looping = category(u"Looping"_s, present.id);
    looping.id = present.parentId;
    pack.categories = {lost, under, looping};

    const std::vector<Category> missing = missingCategories(target, pack);
    ASSERT_EQ(missing.size(), 3U);
    for (const Category& each : missing) {
        EXPECT_TRUE(each.parentId.isNull()) << each.name.toStdString();
        EXPECT_TRUE(each.parentEntityId.isNull());
        EXPECT_TRUE(each.inheritedKeys.isEmpty());
    }
    EXPECT_TRUE(missing.front().fields.front().referenceCategory.isNull());
}

TEST_F(ContentPackTest, refusesWhatIsNoPackInClearWords)
{
    const auto message = [this] { return readPack(files, folder()).message(); };
    const auto categoryFile = [](const CategoryId& id, const CategoryId& parent) {
        return "{\"id\": \"" + id.toString().toUtf8() +
               "\", \"name\": \"X\", \"fields\": [], \"parentId\": \"" + parent.toString().toUtf8() + "\"}";
    };
    const CategoryId a = CategoryId::create();
    const CategoryId b = CategoryId::create();
    EXPECT_TRUE(message().contains(u"holds no content pack"));
    write(u"pack.json"_s, "[]");
    EXPECT_EQ(message(), u"Invalid JSON in file: "_s + folder() + u"/pack.json"_s);
    write(u"pack.json"_s, "{\"name\": 7}");
    EXPECT_EQ(message(), QString()) << "a pack may be empty";
    write(u"taxonomy/a.json"_s, "{ half");
    EXPECT_TRUE(message().contains(u"/taxonomy/a.json"));
    write(u"taxonomy/a.json"_s, categoryFile(a, b));
    EXPECT_EQ(message(), QString());
    write(u"taxonomy/b.json"_s, categoryFile(a, {}));
    EXPECT_TRUE(message().contains(u"the files taxonomy/a.json and taxonomy/b.json hold the same category"));
    write(u"taxonomy/b.json"_s, categoryFile(b, a));
    EXPECT_TRUE(message().contains(u"is above itself"));
    write(u"taxonomy/b.json"_s, categoryFile(b, b));
    EXPECT_TRUE(message().contains(u"is above itself"));
    files.unreadable.insert(folder() + u"/taxonomy/b.json"_s);
    EXPECT_TRUE(message().startsWith(u"Cannot read file: "));
}

TEST_F(ContentPackTest, isWrittenWholeOrNotAtAll)
{
    project::Project source;
    const Category ship = category(u"Ship"_s);
    source.taxonomyForEdit().insert(ship);
    write(u"novel.txt"_s, "mine");
    EXPECT_TRUE(
        exportPack(environment, source, {ship.id}, info, folder()).message().contains(u"something else"));
    const QString other = root.filePath(u"other"_s);
    files.writesLeft = 1;
    EXPECT_FALSE(exportPack(environment, source, {ship.id}, info, other));
    EXPECT_TRUE(readPack(files, other).message().contains(u"holds no content pack"));
    files.writesLeft = FaultyFileSystem::always;
    ASSERT_TRUE(exportPack(environment, source, {ship.id}, info, other));
    EXPECT_EQ(readPack(files, other).value().categories.size(), 1U);
}
