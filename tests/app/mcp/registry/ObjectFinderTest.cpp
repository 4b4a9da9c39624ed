#include "app/mcp/registry/ObjectFinder.h"

#include "app/mcp/ToolFixture.h"
#include "app/mcp/registry/CategoryFinder.h"
#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "core/task/Task.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentKind;
using core::entity::Entity;
using core::task::Task;

class ObjectFinderTest : public ToolFixture
{
protected:
    ObjectFinderTest()
        : ToolFixture({})
    {}

    Entity& addEntity(const QString& name, const QStringList& aliases = {})
    {
        Entity& entity = add<Entity>(core::CategoryId(), name);
        entity.setAliases(aliases);
        entity.touch();
        return entity;
    }

    QString refusal(const QString& name, const char* kindWord, Purpose purpose) const
    {
        return resolveByName(workspace, name, QString::fromLatin1(kindWord), purpose).message();
    }
};

TEST_F(ObjectFinderTest, namesAliasesAndLibrariesInThisOrder)
{
    const Entity& marda = addEntity(u"Marda"_s, {u"The Grey"_s});
    const Entity& grey = addEntity(u"Grey"_s, {u"Lamp"_s});
    mountLibrary(u"Old World"_s, [](core::project::Project& library) {
        const auto put = [&library](const QString& name, const QStringList& aliases) {
            auto entity = std::make_unique<Entity>(ContentId::create(), core::CategoryId(), name);
            entity->setAliases(aliases);
            library.add(std::move(entity));
        };
        put(u"marda"_s, {});
        put(u"Lamp"_s, {});
        put(u"Harbour"_s, {u"The Port"_s});
    });
    const auto found = [this](const QString& name) {
        const auto result = resolveByName(workspace, name, u"entity"_s, Purpose::Read);
        EXPECT_TRUE(result) << result.message().toStdString();
        return result ? result.value() : FoundObject{};
    };
    EXPECT_EQ(found(u"  MARDA "_s).object, &marda);
    EXPECT_EQ(found(u"the grey"_s).object, &marda);
    EXPECT_EQ(found(u"lamp"_s).object, &grey) << "an alias of the project before a name of a library";
    ASSERT_TRUE(found(u"harbour"_s).library);
    EXPECT_EQ(found(u"harbour"_s).library->name, u"Old World"_s);
    EXPECT_EQ(found(u"the port"_s).object, found(u"harbour"_s).object);

    EXPECT_EQ(refusal(u"Mard"_s, "entity", Purpose::Read), u"No entity named 'Mard' exists."_s);
    EXPECT_EQ(refusal(u"Marda"_s, "document", Purpose::Read), u"No document named 'Marda' exists."_s);
    EXPECT_EQ(refusal(u"Marda"_s, "object", Purpose::Change), QString());
    EXPECT_EQ(refusal(u"Harbour"_s, "entity", Purpose::Refer), QString());
    EXPECT_EQ(
        refusal(u"Harbour"_s, "entity", Purpose::Use),
        u"'Harbour' lives in the mounted library 'Old World'; this server works on the open project's own content."_s);
    EXPECT_EQ(
        refusal(u"Harbour"_s, "entity", Purpose::Change),
        u"'Harbour' lives in the mounted library 'Old World'; this server edits only the open project. Open "
        u"the "
        u"library as its own project to change it."_s);
}

TEST_F(ObjectFinderTest, severalOfANameAreListed)
{
    add<Document>(DocumentKind::Prose, u"Dawn %1"_s);
    const Document& second = add<Document>(DocumentKind::Note, u"dawn %1"_s);
    for (const char* board : {"Draft", "Edit"}) {
        Task& task = add<Task>(u"Read"_s);
        task.setBoard(QString::fromLatin1(board));
        task.setStatus(u"open"_s);
        task.touch();
    }
    const QString message = refusal(u"Dawn %1"_s, "document", Purpose::Change);
    EXPECT_TRUE(message.startsWith(u"The name 'Dawn %1' matches 2 documents: '"_s)) << message.toStdString();
    EXPECT_TRUE(message.contains(u"'Dawn %1'; 'dawn %1'"_s) || message.contains(u"'dawn %1'; 'Dawn %1'"_s));
    EXPECT_TRUE(
        message.endsWith(u". Make the name unique in the desktop app, or use a more specific name."_s));
    EXPECT_TRUE(refusal(u"read"_s, "task", Purpose::Read).contains(u"'Read' (board Edit, status open)"_s));

    const ToolArguments byId(QJsonObject{{u"title"_s, u"Dawn %1"_s}, {u"id"_s, second.id().toString()}});
    const auto found = findForChange<Document>(workspace, byId, u"title");
    ASSERT_TRUE(found) << found.message().toStdString();
    EXPECT_EQ(found.value(), &second);
    EXPECT_EQ(
        resolveById(workspace, u"nonsense"_s, u"document"_s, Purpose::Read).message(),
        u"No document with id 'nonsense' exists."_s);
    EXPECT_FALSE(resolveById(workspace, second.id().toString(), u"entity"_s, Purpose::Read));
}

TEST_F(ObjectFinderTest, excludedAndLockedObjectsAreRefusedByPurpose)
{
    Entity& hidden = addEntity(u"Hidden"_s);
    hidden.setAiExcluded(true);
    addEntity(u"Locked"_s).setLocked(true);
    mountLibrary(u"Library"_s, [](core::project::Project& library) {
        library.add(std::make_unique<Entity>(ContentId::create(), core::CategoryId(), u"Hidden"_s));
    });
    EXPECT_EQ(refusal(u"hidden"_s, "entity", Purpose::Read), u"No entity named 'hidden' exists."_s);
    EXPECT_EQ(
        refusal(u"hidden"_s, "entity", Purpose::Refer),
        u"'hidden' is excluded from AI and cannot be used here."_s);
    EXPECT_EQ(
        refusal(u"hidden"_s, "entity", Purpose::Change),
        u"'hidden' is excluded from AI and cannot be changed."_s);
    const QString id = hidden.id().toString();
    EXPECT_EQ(
        resolveById(workspace, id, u"entity"_s, Purpose::Read).message(),
        u"'%1' is excluded from AI."_s.arg(id));
    for (const Purpose purpose : {Purpose::Read, Purpose::Refer, Purpose::Use})
        EXPECT_EQ(refusal(u"locked"_s, "entity", purpose), QString());
    EXPECT_EQ(
        refusal(u"locked"_s, "entity", Purpose::Change),
        u"'Locked' is locked. Only the person writing it can unlock it, from the app -- there is no tool for that."_s);

    // Once another of that name can be seen, the hidden one is as if it were not there.
    const Entity& open = addEntity(u"Hidden"_s);
    const auto found = resolveByName(workspace, u"Hidden"_s, u"entity"_s, Purpose::Change);
    ASSERT_TRUE(found);
    EXPECT_EQ(found.value().object, &open);
}

TEST_F(ObjectFinderTest, newNamesMustBeFree)
{
    const Document& dawn = add<Document>(DocumentKind::Prose, u"Dawn"_s);
    const Document& dusk = add<Document>(DocumentKind::Prose, u"Dusk"_s);
    addEntity(u"Night"_s).setAiExcluded(true);
    using core::content::ContentKind;
    EXPECT_EQ(
        checkNewName(project(), ContentKind::Document, u" DAWN"_s).message(),
        u"A document titled ' DAWN' already exists."_s);
    EXPECT_TRUE(checkNewName(project(), ContentKind::Entity, u"Dawn"_s));
    EXPECT_TRUE(checkNewName(project(), ContentKind::Entity, u"Night"_s));
    EXPECT_EQ(
        checkNewName(project(), ContentKind::Entity, u"  "_s).message(), u"A non-empty name is required."_s);
    EXPECT_TRUE(checkRename(project(), dawn, u"dawn"_s));
    EXPECT_EQ(
        checkRename(project(), dusk, u"dawn"_s).message(),
        u"A document titled 'dawn' already exists; renaming onto it would leave both unreachable by name."_s);
    for (const QString& name : {u"Two\nlines"_s, u"Two\u2028lines"_s, u"Two\vlines"_s}) {
        const QString refusal = u"A name is one line; 'Two lines' holds a line break."_s;
        EXPECT_EQ(checkNewName(project(), ContentKind::Map, name).message(), refusal);
        EXPECT_EQ(checkRename(project(), dusk, name).message(), refusal);
    }
}

TEST_F(ObjectFinderTest, categoriesOfOneNameAreReachedById)
{
    const auto insert = [](core::project::Project& into, const QString& name) {
        core::taxonomy::Category category;
        category.id = core::CategoryId::create();
        category.name = name;
        into.taxonomyForEdit().insert(category);
        return category.id;
    };
    const core::CategoryId first = insert(workspace.projectForEdit(), u"Ships"_s);
    insert(workspace.projectForEdit(), u"ships"_s);
    mountLibrary(u"Lore"_s, [&](core::project::Project& library) { insert(library, u"Gods"_s); });
    const auto several = resolveCategory(workspace, u"Ships"_s);
    ASSERT_FALSE(several);
    EXPECT_TRUE(several.message().contains(u"'Ships' (id %1)"_s.arg(first.toString())));
    const auto byId = resolveCategory(workspace, u' ' + first.toString());
    ASSERT_TRUE(byId);
    EXPECT_EQ(byId.value(), first);
    EXPECT_EQ(
        resolveCategory(workspace, u"gods"_s).message(),
        u"'Gods' lives in the mounted library 'Lore', which this server cannot change."_s);
    EXPECT_EQ(resolveCategory(workspace, u"Moons"_s).message(), u"No category named 'Moons' exists."_s);
}

} // namespace tw::app::mcp
