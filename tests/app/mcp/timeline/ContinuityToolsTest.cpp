#include "app/mcp/ChangingToolFixture.h"
#include "app/mcp/ToolFamilies.h"
#include "core/entity/Entity.h"
#include "core/timeline/TimelineEvent.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;

namespace {

class ContinuityToolsTest : public ChangingToolFixture
{
protected:
    ContinuityToolsTest()
        : ChangingToolFixture({registerTimelineTools})
    {
        core::taxonomy::Field mood;
        mood.key = u"mood_1"_s;
        mood.label = u"Mood"_s;
        core::taxonomy::Category people;
        people.id = core::CategoryId::create();
        people.name = u"People"_s;
        core::taxonomy::Field home;
        home.key = u"home"_s;
        home.type = core::taxonomy::FieldType::Reference;
        core::taxonomy::Field met;
        met.key = u"met"_s;
        met.type = core::taxonomy::FieldType::Date;
        people.fields = {mood, home, met};
        workspace.projectForEdit().taxonomyForEdit().insert(people);
        ann = &add<Entity>(people.id, u"Ann"_s);
        ann->setValue(u"mood_1"_s, u"glad"_s);
        add<Entity>(people.id, u"Secret"_s).setAiExcluded(true);
    }

    Entity* ann = nullptr;
};

const QString createLabel = u"MCP: create continuity rule"_s;

} // namespace

TEST_F(ContinuityToolsTest, conflictsAreNumbered)
{
    EXPECT_EQ(call("get_conflicts").text, u"No conflicts found."_s);
    ann->setLifespan({100, {}});
    core::timeline::EventDetails feast;
    feast.title = u"Feast %1"_s;
    feast.participants = {ann->id(), core::ContentId::create()};
    core::timeline::TimelineEvent& event = add<core::timeline::TimelineEvent>(feast);
    EXPECT_EQ(
        call("get_conflicts").text,
        u"1. \"Feast %1\" lists a participant that no longer exists.\n2. Ann takes part in \"Feast %1\" before being born."_s);
    event.setAiExcluded(true);
    EXPECT_EQ(call("get_conflicts").text, u"No conflicts found."_s);
    expectNothingToDo("get_conflicts", {{"{}", u"No conflicts found."_s}});
}

TEST_F(ContinuityToolsTest, rulesAreMadeOfFieldsThatReachTheEntity)
{
    EXPECT_EQ(call("list_continuity_rules").text, u"There are no continuity rules in this project."_s);
    expectChange(
        "create_continuity_rule", createLabel,
        {R"({"name":"Glad","entity":"ann","field":"mood","value":"glad"})",
         u"Created continuity rule 'Glad'."_s});
    expectChange(
        "create_continuity_rule", createLabel,
        {R"({"name":"Sad","entity":"Ann","field":"mood_1","comparison":"oneOf","value":"sad|blue","date":"5"})",
         u"Created continuity rule 'Sad'. It does not hold now: Rule \"Sad\": Ann's mood_1 must be one of \"sad, blue\", but is \"glad\"."_s});
    expectChange(
        "create_continuity_rule", createLabel,
        {R"({"name":"Any","entity":"Ann","field":"Mood","comparison":"isNonEmpty"})",
         u"Created continuity rule 'Any'."_s});
    auto rules = project().continuityRules();
    rules.push_back({u"Odd"_s, ann->id(), u"mood_1"_s, u"rhymes"_s, u"x"_s, {}});
    rules.push_back(
        {u"Hidden"_s, project().names().named(u"Secret").front(), u"mood_1"_s, u"equals"_s, u"x"_s, {}});
    workspace.projectForEdit().setContinuityRules(rules);
    EXPECT_EQ(
        call("list_continuity_rules").text,
        u"- Glad: Ann's mood_1 must be \"glad\", at any time\n"
        "- Sad: Ann's mood_1 must be one of \"sad, blue\", on 1 January, Year 5 CE\n"
        "- Any: Ann's mood_1 must be non-empty, at any time\n"
        "- Odd: Ann's mood_1 (unknown comparison 'rhymes') \"x\", at any time\n"
        "- Hidden: (an entity excluded from AI)"_s);
    EXPECT_EQ(
        call("get_conflicts").text.section(u'\n', 0, 0),
        u"1. Rule \"Sad\": Ann's mood_1 must be one of \"sad, blue\", but is \"glad\"."_s);
    expectChange(
        "delete_continuity_rule", u"MCP: delete continuity rule"_s,
        {R"({"name":"sad"})", u"Deleted continuity rule 'Sad'."_s});
}

TEST_F(ContinuityToolsTest, referencesAndDatesAreComparedAsTheyAreRead)
{
    Entity& house = add<Entity>(ann->categoryId(), u"Registry House"_s);
    Entity& mill = add<Entity>(ann->categoryId(), u"The Mill"_s);
    ann->setValue(u"home"_s, house.id().toString());
    ann->setValue(u"met"_s, QString::number(project().calendar().minutesFromParts({7, 1, 1, 0, 0})));
    expectChange(
        "create_continuity_rule", createLabel,
        {R"({"name":"Lives","entity":"Ann","field":"home","value":"registry house"})",
         u"Created continuity rule 'Lives'."_s});
    EXPECT_EQ(project().continuityRules().back().value, house.id().toString());
    expectChange(
        "create_continuity_rule", createLabel,
        {R"({"name":"Met","entity":"Ann","field":"met","comparison":"lessThan","value":"8"})",
         u"Created continuity rule 'Met'."_s});
    ann->setValue(u"home"_s, mill.id().toString());
    expectChange(
        "create_continuity_rule", createLabel,
        {R"({"name":"Near","entity":"Ann","field":"home","comparison":"oneOf","value":"Registry House|Ann"})",
         u"Created continuity rule 'Near'. It does not hold now: Rule \"Near\": Ann's home must be one of "
         "\"Registry House, Ann\", but is \"The Mill\"."_s});
    EXPECT_EQ(
        call("list_continuity_rules").text,
        u"- Lives: Ann's home must be \"Registry House\", at any time\n"
        "- Met: Ann's met must be less than \"1 January, Year 8 CE\", at any time\n"
        "- Near: Ann's home must be one of \"Registry House, Ann\", at any time"_s);
    expectRefused(
        "create_continuity_rule", {{R"({"name":"R","entity":"Ann","field":"home","value":"Nowhere"})",
                                    u"No entity named 'Nowhere' exists."_s}});
}

TEST_F(ContinuityToolsTest, rulesThatMeanNothingAreRefused)
{
    workspace.projectForEdit().setContinuityRules({{u"Glad"_s, ann->id(), u"mood_1"_s, u"equals"_s, {}, {}}});
    expectRefused(
        "create_continuity_rule",
        {{"{}", u"create_continuity_rule needs \"name\", \"entity\", and \"field\"."_s},
         {R"({"name":"","entity":"Ann","field":"Mood","value":"x"})", u"A non-empty name is required."_s},
         {R"({"name":"GLAD","entity":"Ann","field":"Mood","value":"x"})",
          u"A continuity rule named 'GLAD' already exists."_s},
         {R"({"name":"R","entity":"Bert","field":"Mood","value":"x"})", u"No entity named 'Bert' exists."_s},
         {R"({"name":"R","entity":"Secret","field":"Mood","value":"x"})",
          u"'Secret' is excluded from AI and cannot be used here."_s},
         {R"({"name":"R","entity":"Ann","field":"Hair","value":"x"})", u"'Ann' has no field 'Hair'."_s},
         {R"({"name":"R","entity":"Ann","field":"Mood"})",
          u"create_continuity_rule needs \"value\" for the comparison equals."_s},
         {R"({"name":"R","entity":"Ann","field":"Mood","comparison":"rhymes","value":"x"})",
          u"Unknown \"comparison\" 'rhymes'; use equals (default), notEquals, contains, notContains, "
          u"lessThan, "
          "lessOrEqual, greaterThan, greaterOrEqual, isEmpty, isNonEmpty, or oneOf."_s},
         {R"({"name":"R","entity":"Ann","field":"Mood","value":"x","date":"then"})",
          u"The date 'then' was not understood; use the project calendar (e.g. \"25 Harvestmoon 1250\" or \"1250\")."_s}});
    expectRefused(
        "delete_continuity_rule", {{"{}", u"delete_continuity_rule needs \"name\"."_s},
                                   {R"({"name":"Other"})", u"No continuity rule named 'Other' exists."_s}});
}

} // namespace tw::app::mcp
