#include "WorldFixture.h"
#include "core/document/Document.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;

namespace {

class EntityToolsTest : public WorldFixture
{
protected:
    const QString lockedText =
        u"'%1' is locked. Only the person writing it can unlock it, from the app -- there is no tool for that."_s;
};

} // namespace

TEST_F(EntityToolsTest, anEntityIsCreatedWithEverythingInOneStep)
{
    expectCalls({
        {"create_entity", R"({"name": "Ada", "category": "Characters"})", oneStep,
         u"Created entity 'Ada' in 'Characters'."_s},
        {"create_entity", R"({"name": "Marda", "category": "Characters"})", failure,
         u"An entity named 'Marda' already exists."_s},
        {"create_entity", R"({"name": "Ada"})", failure, u"create_entity needs \"name\" and \"category\"."_s},
        {"create_entity", R"({"name": " ", "category": "Places"})", failure,
         u"A non-empty name is required."_s},
        {"create_entity", R"({"name": "Ada", "category": "Cooks"})", failure,
         u"No category named 'Cooks' exists."_s},
        {"create_entity", R"({"name": "Ada", "category": "Characters", "fields": {"Crest": "a gull"}})",
         failure, u"'Ada' has no field 'Crest'."_s},
        {"create_entity", R"({"name": "Ada", "category": "Nobles", "fields": {"Liege": "Tom"}})", failure,
         u"'Liege' is a fixed field: its value is given by the category 'Nobles'. Change it there with add_field."_s},
        {"create_entity", R"({"name": "Ada", "category": "Characters", "fields": {"Rank": "Cook"}})", failure,
         u"'Cook' does not suit the choice field 'Rank', which takes one of: Captain, Marda's guard."_s},
        {"create_entity", R"({"name": "Ada", "category": "Characters", "fields": {"Alive": []}})", failure,
         u"\"Alive\" in \"fields\" must be a text, a number, or true or false."_s},
        {"create_entity", R"({"name": "Ada", "category": "Characters", "references": {"Spouse": "Nobody"}})",
         failure, u"No entity named 'Nobody' exists."_s},
        {"create_entity", R"({"name": "Ada", "category": "Characters", "references": {"Age": "Tom"}})",
         failure, u"'Age' is a number field, not a reference; pass its value in \"fields\"."_s},
        {"create_entity", R"({"name": "Ada", "category": "Characters", "birth": "soon"})", failure,
         u"The date 'soon' was not understood; use the project calendar (e.g. \"25 Harvestmoon 1250\" or \"1250\")."_s},
    });
    run("create_entity", R"({"name": "Ada", "category": "Characters", "birth": "1250", "death": null,
        "aliases": ["Countess", " ", "Countess"], "tags": ["crew"], "references": {"spouse": ["Tom", "the gull"]},
        "fields": {"Age": 7, "Alive": true, "First Met": "1251", "Rank": "captain", "Summary": ""}})");
    const auto found = project().names().named(u"ada");
    ASSERT_EQ(found.size(), 1U);
    const Entity& ada = entity(found[0]);
    const qint64 met = project().calendar().minutesFromParts({1251, 1, 1, 0, 0});
    EXPECT_EQ(
        ada.values(), (core::entity::FieldValues{
                          {u"age"_s, u"7"_s},
                          {u"alive"_s, u"true"_s},
                          {u"met"_s, QString::number(met)},
                          {u"rank"_s, u"Captain"_s},
                          {u"spouse"_s, ids.tom.toString() + u'\n' + ids.marda.toString()}}));
    EXPECT_EQ(ada.aliases(), QStringList{u"Countess"_s});
    EXPECT_TRUE(ada.lifespan().birth && !ada.lifespan().death);
}

TEST_F(EntityToolsTest, anEntityIsUpdatedSparsely)
{
    expectCalls({
        {"update_entity", R"({"name": "the gull", "fields": {"Age": null, "Rank": "Marda's guard"}})",
         oneStep, u"Updated entity 'Marda'."_s},
        {"update_entity", R"({"name": "Marda", "new_name": "Mara", "tags": [], "birth": null})", oneStep,
         u"Updated entity 'Mara'."_s},
        {"update_entity", R"({"name": "Tom", "category": "Characters", "fields": {"Age": 50}})", oneStep,
         u"Updated entity 'Tom'."_s},
        {"update_entity", R"({"name": "Tom", "category": null})", oneStep, u"Updated entity 'Tom'."_s},
        {"update_entity", R"({"name": "Tom", "birth": "1260", "death": "1250"})", oneStep,
         u"Updated entity 'Tom'. Note: its death lies before its birth."_s},
        {"update_entity", R"({"name": "Tom", "tags": ["late"]})", oneStep, u"Updated entity 'Tom'."_s},
        {"update_entity", R"({"name": "Marda", "timed_values": [{"field": "Rank", "date": "1260",
            "value": "Captain"}]})",
         oneStep, u"Updated entity 'Marda'."_s},
        {"update_entity", R"({"name": "Marda", "fields": {"Age": 41}, "tags": ["crew"]})", none,
         u"Entity 'Marda' already matches; nothing changed."_s},
        {"update_entity", R"({"name": "Marda"})", none,
         u"Entity 'Marda' already matches; nothing changed."_s},
        {"update_entity", R"({"name": "Marda", "new_name": "tom"})", failure,
         u"An entity named 'tom' already exists; renaming onto it would leave both unreachable by name."_s},
        {"update_entity", R"({"name": "Marda", "tags": ["a"], "fields": {"Crest": "x"}})", failure,
         u"'Marda' has no field 'Crest'."_s},
        {"update_entity", R"({"name": "Marda", "timed_values": [{"field": "Rank"}]})", failure,
         u"Entry 1 of \"timed_values\" needs \"field\" and \"date\"."_s},
        {"update_entity", R"({"name": "Vaertis", "category": "Cities"})", failure,
         u"Can't move 'Vaertis' to 'Cities': that category hangs somewhere beneath the entity, so the tree "
         "would loop."_s},
        {"update_entity", R"({"name": "Tom", "references": {"Spouse": "Marda, Mardana"}, "tags": []})", none,
         u"Entity 'Tom' already matches; nothing changed."_s},
        {"update_entity", R"({"name": "Tom", "fields": {"Spouse": "Mardana, the gull"}})", oneStep,
         u"Updated entity 'Tom'."_s},
        {"update_entity", R"({"name": "Tom", "references": {"Spouse": "Marda, Nobody"}})", failure,
         u"No entity named 'Marda, Nobody' exists."_s},
        {"update_entity", R"({"name": "Tom", "aliases": ["Old\nTom"]})", failure,
         u"A name is one line; 'Old Tom' holds a line break."_s},
        {"update_entity", R"({"name": "Tom", "references": {"Spouse": [{}]}})", failure,
         u"Entry 1 of \"Spouse\" must be a text."_s},
        {"update_entity", R"({"id": "5eed000a", "fields": {}})", failure,
         u"No entity with id '5eed000a' exists."_s},
        {"update_entity", R"({"fields": {"Age": 1}})", failure,
         u"update_entity needs \"name\" (or \"id\")."_s},
    });
    entity(ids.marda).setLocked(true);
    entity(ids.mardana).setAiExcluded(true);
    save();
    expectCalls({
        {"update_entity", R"({"name": "Marda", "tags": []})", failure, lockedText.arg(u"Marda"_s)},
        {"update_entity", R"({"name": "mardana", "tags": []})", failure,
         u"'mardana' is excluded from AI and cannot be changed."_s},
        {"update_entity", R"({"name": "Tom", "references": {"Spouse": "Mardana"}})", failure,
         u"'Mardana' is excluded from AI and cannot be used here."_s},
        {"merge_entities", R"({"source": "Tom", "target": "Marda"})", failure, lockedText.arg(u"Marda"_s)},
        {"delete_object", R"({"name": "Marda"})", failure, lockedText.arg(u"Marda"_s)},
        {"set_visibility", R"({"name": "Marda", "audiences": []})", failure, lockedText.arg(u"Marda"_s)},
        {"set_ai_exclusion", R"({"name": "Marda"})", failure, lockedText.arg(u"Marda"_s)},
        {"get_entity", R"({"name": "Mardana"})", failure, u"No entity named 'Mardana' exists."_s},
        {"get_relationships", R"({"entity": "Tom"})", none,
         u"Tom --Spouse--> Marda\nTom --Spouse--> (an entity excluded from AI)\nTom --Liege--> Marda"_s},
    });
}

TEST_F(EntityToolsTest, anEntityIsReadWithAllItHolds)
{
    entity(ids.tom).setValue(u"summary"_s, QString(301, u'x'));
    entity(ids.mardana).setValue(u"summary"_s, QString(300, u'y'));
    save();
    expectCall(
        {"get_entity", R"({"name": "captain marda"})", none,
         u"# Marda\nId: %1\nCategory: Characters\nAliases: Captain Marda, The Gull\nTags: crew\nLifespan: "
         "born %2\n\nFields\n- Summary: Marda sails. MARDA drinks; Mardana does not.\n- Spouse: (unset)\n- "
         "Rank: Captain\n- Age: 41\n- First Met: %3\n- Alive: (unset)\n\nState over time\n- Rank from %4: "
         "Marda's guard\n\nGallery: 1 image(s)\n\nMentioned in\n- document 'Marda at Sea' (3)\n- document "
         "'The Quay' (2)\n- timeline event 'Marda returns' (participant)"_s.arg(
             ids.marda.toString(), project().calendar().formatInstant(0),
             project().calendar().formatInstant(1250), project().calendar().formatInstant(100))});
    const QString shortened = run("get_entity", R"({"name": "Tom"})");
    EXPECT_TRUE(shortened.contains(u"- Summary: "_s + QString(300, u'x') + u"...\n"_s));
    EXPECT_TRUE(shortened.endsWith(
        u"NOTE: one or more field values above were shortened for brevity. Call get_entity again with "
        "\"full\": true before editing any of them, or the unseen tail will be lost when you write the field "
        "back."_s));
    EXPECT_TRUE(shortened.contains(u"- Liege [fixed]: Marda\n"_s));
    const QString full = run("get_entity", R"({"name": "Tom", "full": true})");
    EXPECT_TRUE(full.contains(QString(301, u'x')) && !full.contains(u"NOTE"_s));
    EXPECT_FALSE(run("get_entity", R"({"name": "Mardana"})").contains(u"NOTE"_s));
}

TEST_F(EntityToolsTest, mentionsAreFoundHoweverTheNameIsMarked)
{
    using namespace core::document;
    Entity& seven = add<Entity>(ids.characters, u"Agent_Seven"_s);
    seven.setAliases({u"Salt & Sons"_s});
    add<Document>(DocumentKind::Prose, u"Escaped"_s)
        .setBody({u"Agent\\_Seven came."_s, BodyFormat::Markdown});
    add<Document>(DocumentKind::Prose, u"Stressed"_s)
        .setBody({u"*Agent*\\_Seven came."_s, BodyFormat::Markdown});
    add<Document>(DocumentKind::Prose, u"Rich"_s)
        .setBody({u"<p>Salt &amp; Sons came.</p>"_s, BodyFormat::Html});
    add<Document>(DocumentKind::Prose, u"Apart"_s).setBody({u"Agent Sevens"_s, BodyFormat::Markdown});
    save();
    const QString report = run("get_entity", R"({"name": "Agent_Seven"})");
    for (const QString& title : {u"Escaped"_s, u"Stressed"_s, u"Rich"_s})
        EXPECT_TRUE(report.contains(u"- document '%1' (1)"_s.arg(title))) << report.toStdString();
    EXPECT_FALSE(report.contains(u"Apart"_s));
}

TEST_F(EntityToolsTest, entitiesAreMergedAndSplit)
{
    expectCalls({
        {"merge_entities", R"({"source": "Marda", "target": "Mardana"})", oneStep,
         u"Merged 'Marda' into 'Mardana': 20 reference(s) re-pointed."_s},
        {"merge_entities", R"({"source": "Marda", "target": "the gull"})", failure,
         u"An entity cannot be merged into itself."_s},
        {"merge_entities", R"({"source": "Vaertis", "target": "Salthaven"})", failure,
         u"Can't hang 'Cities' from 'Salthaven': that entity is already somewhere beneath it, so the tree "
         "would loop."_s},
        {"merge_entities", R"({"source": "Marda"})", failure,
         u"merge_entities needs \"source\" and \"target\"."_s},
        {"split_entity",
         R"({"source": "Tom", "new_name": "Tomas", "fields": ["spouse"], "copy_lifespan": true})", oneStep,
         u"Split 'Tomas' off 'Tom'."_s},
        {"split_entity", R"({"source": "Tom", "new_name": "Marda"})", failure,
         u"An entity named 'Marda' already exists."_s},
        {"split_entity", R"({"source": "Tom", "new_name": "Tomas", "fields": ["Age"]})", failure,
         u"'Tom' has no field 'Age'."_s},
        {"split_entity", R"({"source": "Nobody", "new_name": "Tomas"})", failure,
         u"No entity named 'Nobody' exists."_s},
    });
    entity(ids.marda).setVisibleTo({u"Editors"_s});
    save();
    expectCall(
        {"merge_entities", R"({"source": "Marda", "target": "Mardana"})", oneStep,
         u"Merged 'Marda' into 'Mardana': 20 reference(s) re-pointed. Note: 'Marda' was visible only to "
         "Editors, and what came from it is now visible to whoever sees 'Mardana'; set_visibility changes "
         "that."_s});
    workspace.projectForEdit().findForEdit(ids.map)->setLocked(true);
    save();
    expectCall(
        {"merge_entities", R"({"source": "Marda", "target": "Mardana"})", failure,
         lockedText.arg(u"Coast"_s)});
    workspace.projectForEdit().findForEdit(ids.canvas)->setAiExcluded(true);
    workspace.projectForEdit().findForEdit(ids.map)->setLocked(false);
    save();
    expectCall(
        {"merge_entities", R"({"source": "Marda", "target": "Mardana"})", failure,
         u"Something that is excluded from AI would have to be changed to re-point its references to "
         "'Marda', so tools cannot do it. Ask the writer to do it in the desktop app."_s});
    // Two of one name are told apart by their ids.
    Entity& twin = add<Entity>(ids.characters, u"Tom"_s);
    expectCalls({
        {"merge_entities",
         QStringLiteral(R"({"source": "%1", "target": "%2"})")
             .arg(twin.id().toString(), ids.tom.toString())
             .toUtf8(),
         oneStep, u"Merged 'Tom' into 'Tom': 0 reference(s) re-pointed."_s},
        {"merge_entities", R"({"source": "Tom", "target": "Vaertis"})", failure,
         u"The name 'Tom' matches 2 entitys: 'Tom'; 'Tom'. Make the name unique in the desktop app, or use a "
         "more specific name."_s},
    });
}

TEST_F(EntityToolsTest, relationshipsAreListed)
{
    expectCalls({
        {"get_relationships", "{}", none,
         u"Tom --Spouse--> Marda\nTom --Spouse--> Mardana\nTom --Liege--> Marda"_s},
        {"get_relationships", R"({"entity": "Mardana"})", none, u"Tom --Spouse--> Mardana"_s},
        {"get_relationships", R"({"entity": "Vaertis"})", none, u"'Vaertis' has no relationships."_s},
        {"get_relationships", R"({"entity": 3})", failure, u"\"entity\" must be a text."_s},
    });
    workspace.projectForEdit().findForEdit(ids.tom)->setAiExcluded(true);
    save();
    expectCall(
        {"get_relationships", "{}", none,
         u"There are no relationships in this project.\n1 entity(ies) excluded from AI were omitted."_s});
}

TEST_F(EntityToolsTest, librariesAreReadButNeverChanged)
{
    mountLibrary(u"Lore"_s, [this](core::project::Project& library) {
        core::taxonomy::Category gods;
        gods.id = core::CategoryId::create();
        gods.name = u"Gods"_s;
        library.taxonomyForEdit().insert(gods);
        core::calendar::Calendar calendar;
        calendar.setEraName(u"of the Gods"_s);
        library.setCalendar(calendar);
        auto god = std::make_unique<Entity>(core::ContentId::create(), gods.id, u"Orm"_s);
        god->setAliases({u"Marda's god"_s});
        god->setLifespan({0, {}});
        library.insert(std::move(god));
        Q_UNUSED(this);
    });
    const QString edited = u"'Orm' lives in the mounted library 'Lore'; this server edits only the open "
                           "project. Open the library as its own project to change it."_s;
    expectCalls({
        {"list_category", R"({"category": "Gods"})", none,
         u"From the mounted library 'Lore'.\n- Orm: (no summary)"_s},
        {"update_entity", R"({"name": "Orm", "tags": []})", failure, edited},
        {"delete_object", R"({"name": "Orm"})", failure, edited},
        {"set_ai_exclusion", R"({"name": "Orm"})", failure, edited},
        {"merge_entities", R"({"source": "Tom", "target": "Orm"})", failure, edited},
        {"add_comment", R"({"target": "Orm", "body": "x"})", failure,
         u"'Orm' lives in the mounted library 'Lore'; this server works on the open project's own content."_s},
        {"add_field", R"({"category": "Places", "label": "God", "type": "reference",
            "reference_category": "Gods"})",
         failure, u"'Gods' lives in the mounted library 'Lore', which this server cannot change."_s},
        {"create_category", R"({"name": "Temples", "parent_entity": "Orm"})", failure,
         u"'Orm' lives in the mounted library 'Lore'; this server works on the open project's own content."_s},
        {"update_entity", R"({"name": "Mardana", "references": {"Spouse": "Orm"}})", oneStep,
         u"Updated entity 'Mardana'."_s},
        {"search", R"({"query": "orm", "type": "entity"})", none,
         u"- entity 'Orm': Orm (from the mounted library 'Lore')"_s},
        {"check_name", R"({"name": "ormo", "max_distance": 1})", none,
         u"Names close to 'ormo':\n- Orm (entity in the mounted library 'Lore') -- 1 edit(s) away"_s},
        {"rename_object", R"({"old_name": "god", "new_name": "idol"})", none,
         u"'god' occurs nowhere else; nothing changed.\nLeft alone in the mounted library 'Lore': 1 occurrence(s)."_s},
    });
    const QString report = run("get_entity", R"({"name": "orm"})");
    EXPECT_TRUE(report.contains(u"From the mounted library 'Lore'."_s));
    EXPECT_TRUE(report.contains(u"Lifespan: born "_s + project().calendar().formatInstant(0) + u'\n'));
}

} // namespace tw::app::mcp
