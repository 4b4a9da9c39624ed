#include "app/mcp/ToolFamilies.h"
#include "app/mcp/ToolFixture.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/Entity.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::document::Document;
using core::document::DocumentKind;
using core::entity::Entity;
using core::taxonomy::Category;
using core::taxonomy::Field;

class CoreToolsTest : public ToolFixture
{
protected:
    CoreToolsTest()
        : ToolFixture({registerMcpCoreTools})
    {}

    void rename(Document& document, const QString& title)
    {
        workspace.undoStack().push(
            std::make_unique<core::document::SetDocumentTitleCommand>(document, title));
    }

    CategoryId addCategory(const QString& name, const QString& key = {})
    {
        Category category;
        category.id = CategoryId::create();
        category.name = name;
        if (!key.isEmpty())
            category.fields.push_back(Field{.key = key, .label = u"Noble houses"_s});
        workspace.projectForEdit().taxonomyForEdit().insert(category);
        EXPECT_TRUE(workspace.save());
        return category.id;
    }

    /** Has every backup fail: there is a file where their folder should be. */
    void spoilBackups() const
    {
        QDir(environment.dataFolder + u"/backups"_s).removeRecursively();
        QFile file(environment.dataFolder + u"/backups"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
};

TEST_F(CoreToolsTest, undoesAsManyAsThereAre)
{
    Document& document = add<Document>(DocumentKind::Prose, u"0"_s);
    EXPECT_EQ(call("undo_last"), McpToolResult::failure(u"Nothing to undo."_s));
    for (const QString& title : {u"1"_s, u"2"_s, u"3"_s})
        rename(document, title);
    EXPECT_EQ(call("undo_last", R"({"count":0})"), McpToolResult::success(u"Undid the last change."_s));
    EXPECT_EQ(document.title(), u"2"_s);
    EXPECT_EQ(call("undo_last", R"({"count":5})"), McpToolResult::success(u"Undid the last 2 changes."_s));
    EXPECT_EQ(document.title(), u"0"_s);
    EXPECT_FALSE(workspace.isModified());
    EXPECT_EQ(call("get_recent_changes").text, u"Undid the last change.\nUndid the last 2 changes."_s);
    EXPECT_FALSE(call("undo_last", R"({"count":"many"})").ok);
}

TEST_F(CoreToolsTest, saysWhenWhatWasUndoneCannotBeSaved)
{
    EXPECT_EQ(call("get_recent_changes").text, u"No changes this session."_s);
    Document& document = add<Document>(DocumentKind::Prose, u"0"_s);
    rename(document, u"1"_s);
    spoilSaving();
    EXPECT_TRUE(
        call("undo_last")
            .text.startsWith(
                u"1 change(s) were undone in the open project, but saving failed: The project changed on disk"_s));
    EXPECT_FALSE(call("save_project").ok);
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(CoreToolsTest, aBackupHoldsWhatWasNotSavedYet)
{
    Document& document = add<Document>(DocumentKind::Prose, u"0"_s);
    rename(document, u"Unsaved"_s);
    const McpToolResult result = call("backup_project");
    ASSERT_TRUE(result.ok) << result.text.toStdString();
    EXPECT_FALSE(workspace.isModified());
    QString path = result.text;
    path.remove(u"Backed up the project to "_s).chop(1);
    EXPECT_TRUE(path.endsWith(u".twbackup"));
    EXPECT_TRUE(QFile::exists(path));

    spoilBackups();
    EXPECT_FALSE(call("backup_project").ok);
}

TEST_F(CoreToolsTest, movesPropertiesDownOnlyWithABackup)
{
    const CategoryId kingdoms = addCategory(u"Kingdoms"_s, u"houses"_s);
    EXPECT_EQ(
        call("property_migration").text,
        u"Nothing to move: no category property is held by exactly one entity."_s);
    Entity& vaertis = add<Entity>(kingdoms, u"Vaertis"_s);
    vaertis.setValues({{u"houses"_s, u"Ombre"_s}});
    vaertis.touch();
    ASSERT_TRUE(workspace.save());
    EXPECT_TRUE(
        call("property_migration", R"({"action":"preview"})")
            .text.endsWith(u"- \"Noble houses\" of the category 'Kingdoms' to the entity 'Vaertis'"_s));
    EXPECT_EQ(
        call("property_migration", R"({"action":"run"})").text,
        u"Unknown \"action\" 'run'; use preview (default), apply, decline, duplicates, or merge_duplicates."_s);

    spoilBackups();
    EXPECT_FALSE(call("property_migration", R"({"action":"apply"})").ok);
    expectUntouched(0);
    EXPECT_TRUE(vaertis.ownFields().empty());

    QFile::remove(environment.dataFolder + u"/backups"_s);
    const McpToolResult applied = call("property_migration", R"({"action":"apply"})");
    ASSERT_TRUE(applied.ok) << applied.text.toStdString();
    EXPECT_EQ(vaertis.ownFields().size(), 1u);
    EXPECT_EQ(workspace.history().undoText(), u"MCP: apply property migration"_s);
    EXPECT_EQ(log.entries, QStringList{applied.text});
    workspace.undoStack().undo();
    EXPECT_TRUE(vaertis.ownFields().empty());
    EXPECT_EQ(project().propertyMigration(), std::nullopt);
}

TEST_F(CoreToolsTest, decliningIsRecordedOnce)
{
    const QString answer = u"Recorded. Nothing moved, and nothing will ask again."_s;
    EXPECT_EQ(call("property_migration", R"({"action":"decline"})"), McpToolResult::success(answer));
    EXPECT_EQ(project().propertyMigration()->answer, u"declined"_s);
    EXPECT_EQ(workspace.history().undoText(), u"MCP: decline property migration"_s);
    EXPECT_EQ(call("property_migration", R"({"action":"decline"})"), McpToolResult::success(answer));
    expectUntouched(1, 1);
}

TEST_F(CoreToolsTest, mergesTwinsOnlyWithABackup)
{
    EXPECT_EQ(
        call("property_migration", R"({"action":"duplicates"})").text,
        u"No category in this project has a twin."_s);
    const CategoryId plain = addCategory(u"Lore & Concepts"_s);
    const CategoryId escaped = addCategory(u"Lore &amp; Concepts"_s);
    add<Entity>(escaped, u"Tide"_s);
    EXPECT_EQ(
        call("property_migration", R"({"action":"duplicates"})").text,
        u"These are one category written two ways:\n\n- \"Lore & Concepts\": 2 categories, keeping the one "
        u"with 1 "
        u"entities and moving 0 across."_s);
    EXPECT_EQ(
        call("property_migration", R"({"action":"merge_duplicates","name":"Lore"})"),
        McpToolResult::failure(
            u"Nothing matched, so nothing was merged. Run \"duplicates\" to see what this project has."_s));
    spoilBackups();
    EXPECT_EQ(
        call("property_migration", R"({"action":"merge_duplicates"})"),
        McpToolResult::failure(u"Could not back the project up, so nothing was merged. This repair removes a "
                               u"category and is only run "
                               u"with a backup behind it."_s));
    expectUntouched(0);
    QFile::remove(environment.dataFolder + u"/backups"_s);
    EXPECT_TRUE(
        call("property_migration", R"({"action":"merge_duplicates","name":"Lore &amp;amp; Concepts"})").ok);
    EXPECT_EQ(workspace.history().undoText(), u"MCP: merge duplicate categories"_s);
    EXPECT_FALSE(project().taxonomy().category(plain));
    EXPECT_TRUE(project().taxonomy().category(escaped));
}

} // namespace tw::app::mcp
