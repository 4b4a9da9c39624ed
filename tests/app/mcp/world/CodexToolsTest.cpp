#include "WorldFixture.h"
#include "core/entity/Schema.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;

namespace {

class CodexToolsTest : public WorldFixture
{};

} // namespace

TEST_F(CodexToolsTest, categoriesAreCreatedUnderCategoriesAndEntities)
{
    expectCalls({
        {"create_category", R"({"name": "Ships"})", oneStep, u"Created category 'Ships'."_s},
        {"create_category", R"({"name": "Towns", "parent": " places "})", oneStep,
         u"Created category 'Towns' under 'Places'."_s},
        {"create_category", R"({"name": "Houses", "parent_entity": "Vaertis"})", oneStep,
         u"Created category 'Houses' under the entity 'Vaertis'. It starts with NO inherited properties -- "
         "nothing crosses an entity boundary by default; name what it should take with update_category's "
         "\"inherited\"."_s},
        {"create_category", "{}", failure, u"create_category needs a non-empty \"name\"."_s},
        {"create_category", R"({"name": "  "})", failure, u"create_category needs a non-empty \"name\"."_s},
        {"create_category", R"({"name": 7})", failure, u"\"name\" must be a text."_s},
        {"create_category", R"({"name": "a\nb"})", failure,
         u"A name is one line; 'a b' holds a line break."_s},
        {"create_category", R"({"name": "PLACES"})", failure, u"Category 'PLACES' already exists."_s},
        {"create_category", R"({"name": "X", "parent": "Nope"})", failure,
         u"No category named 'Nope' exists."_s},
        {"create_category", R"({"name": "X", "parent": "Places", "parent_entity": "Tom"})", failure,
         u"Pass at most one of \"parent\" or \"parent_entity\"."_s},
        {"create_category", R"({"name": "X", "parent_entity": "Nobody"})", failure,
         u"No entity named 'Nobody' exists."_s},
    });
    run("create_category", R"({"name": "Ships"})");
    run("create_category", R"({"name": "Barges", "parent": "Ships"})");
    for (const auto& [id, category] : project().taxonomy().categories()) {
        if (category.name == u"Ships" || category.name == u"Barges") {
            EXPECT_EQ(core::entity::schemaOfCategory(project(), id).size(), 1U);
            EXPECT_EQ(core::entity::schemaOfCategory(project(), id)[0].field.label, u"Summary"_s);
        }
    }
}

TEST_F(CodexToolsTest, categoriesAreRenamedMovedAndDeleted)
{
    expectCalls({
        {"update_category", R"({"name": "Nobles", "new_name": "Gentry", "parent": null})", oneStep,
         u"Updated category 'Gentry'."_s},
        {"update_category", R"({"name": "Nobles", "parent_entity": "Vaertis"})", oneStep,
         u"Updated category 'Nobles'."_s},
        {"update_category", R"({"name": "Nobles", "excluded": ["Age", "First met"]})", oneStep,
         u"Updated category 'Nobles'."_s},
        {"update_category", R"({"name": "Cities", "inherited": ["summary", "Ruler"]})", oneStep,
         u"Updated category 'Cities'."_s},
        {"update_category", R"({"name": "Nobles", "delete": true})", oneStep,
         u"Deleted category 'Nobles'; its entities moved to 'Characters'."_s},
        {"update_category", R"({"name": "Cities", "delete": true})", oneStep,
         u"Deleted category 'Cities'; its entities are now uncategorized."_s},
        {"update_category", R"({"name": "Nobles", "parent": "Characters", "excluded": ["age"]})", none,
         u"Category 'Nobles' already matches; nothing changed."_s},
        {"update_category", R"({"name": "Characters", "parent": "Nobles"})", failure,
         u"Can't move 'Characters' under 'Nobles': that would nest a category inside one of its own "
         "subcategories."_s},
        {"update_category", R"({"name": "Characters", "parent_entity": "Tom"})", failure,
         u"Can't hang 'Characters' from 'Tom': that entity is already somewhere beneath it, so the tree "
         "would loop."_s},
        // What was already pushed is taken back.
        {"update_category", R"({"name": "Characters", "new_name": "People", "parent": "Nobles"})", failure,
         u"Can't move 'People' under 'Nobles': that would nest a category inside one of its own subcategories."_s},
        {"update_category", R"({"name": "Nobles", "new_name": "places"})", failure,
         u"A category named 'places' already exists; renaming onto it would leave both unreachable by name."_s},
        {"update_category", R"({"name": "Nobles", "new_name": ""})", failure,
         u"A non-empty name is required."_s},
        {"update_category", R"({"name": "Nobles", "inherited": ["Age"]})", failure,
         u"'Nobles' does not hang under an entity, so it inherits everything from above already; use "
         "\"excluded\" to drop properties."_s},
        {"update_category", R"({"name": "Nobles", "excluded": ["Crest"]})", failure,
         u"Nothing named 'Crest' comes to 'Nobles' from above; get_category of its parent lists what does."_s},
        {"update_category", R"({"name": "Nobles", "excluded": "Age"})", failure,
         u"\"excluded\" must be a list."_s},
        {"update_category", R"({"new_name": "X"})", failure, u"update_category needs \"name\"."_s},
    });
    entity(ids.tom).setLocked(true);
    save();
    expectCall(
        {"update_category", R"({"name": "Nobles", "delete": true})", failure,
         u"'Tom' is locked. Only the person writing it can unlock it, from the app -- there is no tool for that."_s});
}

TEST_F(CodexToolsTest, fieldsAreDefinedReplacedMovedAndRemoved)
{
    expectCalls({
        {"add_field", R"({"category": "Places", "label": "Founded", "type": "date"})", oneStep,
         u"Added field 'Founded' to 'Places'."_s},
        {"add_field", R"({"category": "Places", "label": "RULER", "type": "reference",
                          "reference_category": "Characters"})",
         oneStep, u"Replaced field 'RULER' on 'Places'."_s},
        {"add_field", R"({"category": "Places", "label": "Realm", "fixed": true, "fixed_value": "Vaertis"})",
         oneStep, u"Added field 'Realm' to 'Places'."_s},
        {"add_field", R"({"category": "Places", "label": "Ruler"})", none,
         u"Field 'Ruler' on 'Places' already matches; nothing changed."_s},
        {"add_field", R"({"category": "Places", "label": " "})", failure,
         u"A non-empty \"label\" is required."_s},
        {"add_field", R"({"category": "Places", "label": "?!"})", failure,
         u"'?!' holds no letter or digit; give the field a \"label\" with one."_s},
        {"add_field", R"({"category": "Places", "label": "X", "type": "colour"})", failure,
         u"Unknown field type 'colour'; use one of: text, number, boolean, date, reference, choice, url."_s},
        {"add_field", R"({"category": "Places", "label": "X", "type": "choice", "options": [" "]})", failure,
         u"A choice field needs a non-empty \"options\" array."_s},
        {"add_field", R"({"category": "Places", "label": "X", "fixed": true, "required": true})", failure,
         u"A field cannot be both \"fixed\" and \"required\": a fixed field's value is supplied once by the "
         "category, so there is nothing for an entity to be required to fill in."_s},
        {"add_field", R"({"category": "Places", "label": "X", "fixed_value": "y"})", failure,
         u"\"fixed_value\" is only for a field with \"fixed\": true."_s},
        {"add_field", R"({"category": "Places", "label": "X", "reference_category": "Nope"})", failure,
         u"No category named 'Nope' exists."_s},
        {"add_field", R"({"category": "Places"})", failure, u"add_field needs \"category\" and \"label\"."_s},
        {"remove_field", R"({"category": "Characters", "field": "first met"})", oneStep,
         u"Removed field 'First Met' from 'Characters'. Values already entered are kept."_s},
        {"remove_field", R"({"category": "Nobles", "field": "Spouse"})", failure,
         u"Field 'Spouse' is inherited; remove it from 'Characters'."_s},
        {"remove_field", R"({"category": "Nobles", "field": "Crest"})", failure,
         u"'Nobles' has no field 'Crest'."_s},
        {"move_field", R"({"category": "Characters", "field": "Rank", "index": 0})", oneStep,
         u"Moved field 'Rank' on 'Characters' to position 0."_s},
        {"move_field", R"({"category": "Characters", "field": "Summary", "after": "Rank"})", oneStep,
         u"Moved field 'Summary' on 'Characters' to position 2."_s},
        {"move_field", R"({"category": "Characters", "field": "Alive", "before": "Rank"})", oneStep,
         u"Moved field 'Alive' on 'Characters' to position 2."_s},
        {"move_field", R"({"category": "Characters", "field": "Rank", "index": 99})", oneStep,
         u"Moved field 'Rank' on 'Characters' to position 5."_s},
        {"move_field", R"({"category": "Characters", "field": "Rank", "after": "Spouse"})", none,
         u"Field 'Rank' on 'Characters' is already at position 2; nothing changed."_s},
        {"move_field", R"({"category": "Characters", "field": "Rank", "index": 0, "before": "Age"})", failure,
         u"Pass exactly one of \"index\", \"before\", or \"after\"."_s},
        {"move_field", R"({"category": "Characters", "field": "Rank"})", failure,
         u"Pass exactly one of \"index\", \"before\", or \"after\"."_s},
        {"move_field", R"({"category": "Characters", "field": "Rank", "index": "first"})", failure,
         u"\"index\" must be a whole number."_s},
    });
    run("move_field", R"({"category": "Characters", "field": "Alive", "before": "Rank"})");
    EXPECT_EQ(project().taxonomy().category(ids.characters)->fields[2].label, u"Alive"_s);
}

TEST_F(CodexToolsTest, fieldsAreConvertedWithTheirValues)
{
    entity(ids.mardana).setValue(u"spouse"_s, ids.tom.toString());
    save();
    expectCalls({
        {"convert_field", R"({"category": "Characters", "field": "Age", "type": "text"})", oneStep,
         u"Converted field 'Age' on 'Characters' from number to text. Migrated 3 value(s)."_s},
        {"convert_field", R"({"category": "Characters", "field": "Rank", "type": "reference"})", oneStep,
         u"Converted field 'Rank' on 'Characters' from choice to reference. Migrated 0 value(s). Kept 2 "
         "value(s) that name no entity, as literal text: 'Captain', 'Marda's guard'."_s},
        {"convert_field",
         R"({"category": "Characters", "field": "Spouse", "type": "choice", "options": ["Tom"]})", oneStep,
         u"Converted field 'Spouse' on 'Characters' from reference to choice. Migrated 1 value(s). Kept 4 "
         "value(s) that are none of the options, as literal text: 'Marda Mardana', 'Marda', 'Mardana', "
         "'Marda'. The continuity rule 'Wed' still compares it with the literal text 'Marda'."_s},
        {"convert_field", R"({"category": "Characters", "field": "Spouse", "type": "text"})", oneStep,
         u"Converted field 'Spouse' on 'Characters' from reference to text. Migrated 5 value(s). Converted "
         "what 1 continuity rule(s) compare it with."_s},
        {"convert_field", R"({"category": "Characters", "field": "Age", "type": "number"})", none,
         u"Field 'Age' on 'Characters' is already a number field; nothing changed."_s},
        {"convert_field", R"({"category": "Characters", "field": "Age", "type": "choice"})", failure,
         u"Converting to a choice field needs a non-empty \"options\" array."_s},
        {"convert_field", R"({"category": "Nobles", "field": "Spouse", "type": "text"})", failure,
         u"Field 'Spouse' is inherited; convert it on 'Characters'."_s},
        {"convert_field", R"({"category": "Characters", "field": "Age"})", failure,
         u"convert_field needs \"category\", \"field\", and \"type\"."_s},
        {"convert_field", R"({"category": "Characters", "field": "Age", "type": "x"})", failure,
         u"Unknown field type 'x'; use one of: text, number, boolean, date, reference, choice, url."_s},
    });
    entity(ids.marda).setAiExcluded(true);
    save();
    expectCall(
        {"convert_field", R"({"category": "Characters", "field": "Age", "type": "text"})", oneStep,
         u"Converted field 'Age' on 'Characters' from number to text. Migrated 2 value(s). Left 1 value(s) "
         "of locked entities or entities excluded from AI as they were."_s});
}

TEST_F(CodexToolsTest, anEntityHasPropertiesOfItsOwn)
{
    expectCalls({
        {"entity_property", R"({"entity": "Vaertis", "property": "Noble Houses", "value": "three"})", oneStep,
         u"Added property 'Noble Houses' to 'Vaertis'."_s},
        {"entity_property", R"({"entity": "Marda", "property": "Age", "type": "text", "value": 42})", oneStep,
         u"Added property 'Age' to 'Marda'. “Age” already comes from the category “Characters”. Adding it "
         "here gives this entity its own version, which overrides the inherited one for it alone."_s},
        {"entity_property", R"({"entity": "Tom", "property": "Liege"})", failure,
         u"“Liege” is a fixed property of the category “Nobles”, which supplies its value for everything "
         "beneath it. An entity cannot hold its own — change it on the category, or give this one a "
         "differently-named property."_s},
        {"entity_property", R"({"entity": "Tom", "property": "X", "type": "number", "value": "many"})",
         failure,
         u"'many' does not suit the number field 'X', which takes a number such as \"3\" or \"2.5\"."_s},
        {"entity_property", R"({"entity": "Tom", "property": "X", "type": "choice"})", failure,
         u"A choice field needs a non-empty \"options\" array."_s},
        {"entity_property", R"({"entity": "Tom", "property": "X", "action": "drop"})", failure,
         u"Unknown \"action\" 'drop'; use add (default), remove, or promote."_s},
        {"entity_property", R"({"entity": "Tom", "property": "Spouse", "action": "remove"})", failure,
         u"'Tom' has no property 'Spouse' of its own."_s},
        {"entity_property", R"({"property": "X"})", failure,
         u"entity_property needs \"entity\" (or \"id\") and \"property\"."_s},
    });
    run("entity_property", R"({"entity": "Vaertis", "property": "Houses", "value": "three"})");
    expectCalls({
        {"entity_property", R"({"entity": "Vaertis", "property": "houses", "value": "three"})", oneStep,
         u"Updated property 'houses' of 'Vaertis'."_s},
        {"entity_property", R"({"entity": "Vaertis", "property": "Houses", "value": "three"})", none,
         u"Property 'Houses' of 'Vaertis' already matches; nothing changed."_s},
        {"entity_property", R"({"entity": "Vaertis", "property": "Houses", "action": "promote"})", oneStep,
         u"Promoted 'Houses' to 'Places'."_s},
        {"entity_property", R"({"entity": "Vaertis", "property": "Houses", "action": "remove"})", oneStep,
         u"Removed property 'Houses' from 'Vaertis'. Values already entered are kept."_s},
    });
    core::taxonomy::FieldList fields = entity(ids.vaertis).ownFields();
    fields.push_back(
        {.key = u"seat"_s, .label = u"Seat of power"_s, .type = core::taxonomy::FieldType::Reference});
    fields.back().isRequired = true;
    fields.back().referenceCategory = ids.cities;
    fields.push_back({.key = u"motto"_s, .isFixed = true, .fixedValue = u"Onwards"_s});
    entity(ids.vaertis).setOwnFields(fields);
    save();
    run("entity_property", R"({"entity": "Vaertis", "property": "seat", "description": "Where"})");
    run("entity_property", R"({"entity": "Vaertis", "property": "motto", "description": "What"})");
    fields[fields.size() - 2].description = u"Where"_s;
    fields.back().description = u"What"_s;
    EXPECT_EQ(entity(ids.vaertis).ownFields(), fields) << "nothing but what the calls name";

    run("entity_property", R"({"entity": "Vaertis", "property": "Houses", "action": "promote"})");
    EXPECT_EQ(project().taxonomy().category(ids.places)->fields.back().label, u"Houses"_s);
    EXPECT_EQ(entity(ids.vaertis).value(u"houses"_s), u"three"_s);
}

TEST_F(CodexToolsTest, categoriesAndTheirSchemasAreRead)
{
    entity(ids.mardana).setAiExcluded(true);
    save();
    expectCalls({
        {"list_category", R"({"category": "characters"})", none,
         u"- Marda: Marda sails. MARDA drinks; Mardana does not.\nSubcategories: Nobles\n1 entity(ies) "
         "excluded from AI were omitted."_s},
        {"list_category", R"({"category": "Cities"})", none, u"- Salthaven: Nobody"_s},
        {"list_category", R"({"category": "Nowhere"})", failure, u"No category named 'Nowhere' exists."_s},
        {"list_category", "{}", failure, u"list_category needs \"category\"."_s},
        {"get_category", R"({"name": "Nobles"})", none,
         u"# Nobles\nParent: Characters\nEntities: 1\nDropped from above: age\n\nFields\n- Summary (text; "
         "inherited from 'Characters')\n- Spouse (reference; inherited from 'Characters')\n- Rank (choice: "
         "Captain, Marda's guard; inherited from 'Characters')\n- First Met (date; inherited from "
         "'Characters')\n- Alive (boolean; inherited from 'Characters')\n- Liege (reference; fixed to "
         "'Marda'; own)"_s},
        {"get_category", R"({"name": "Cities"})", none,
         u"# Cities\nUnder the entity: Vaertis\nEntities: 1\nTaken through the entity: ruler\n\nFields\n- "
         "Ruler (text; inherited from 'Places')"_s},
    });
    const QByteArray description(301, 'x');
    run("add_field", R"({"category": "Cities", "label": "Harbour", "description": ")" + description + "\"}");
    const QString brief = run("get_category", R"({"name": "Cities"})");
    EXPECT_FALSE(brief.contains(QLatin1String(description)));
    EXPECT_TRUE(brief.contains(u"Call get_category again with \"full\": true"));
    EXPECT_TRUE(run("get_category", R"({"name": "Cities", "full": true})")
                    .endsWith(u"- Harbour (text; own) -- "_s + QLatin1String(description)));
}

} // namespace tw::app::mcp
