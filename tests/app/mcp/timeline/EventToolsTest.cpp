#include "app/mcp/ChangingToolFixture.h"
#include "app/mcp/ToolFamilies.h"
#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "core/timeline/Timeline.h"
#include "core/timeline/TimelineEvent.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;
using core::timeline::EventDetails;
using core::timeline::Timeline;
using core::timeline::TimelineEvent;

namespace {

constexpr qint64 day = 1440;
const QString createLabel = u"MCP: create timeline event"_s;
const QString updateLabel = u"MCP: update timeline event"_s;

QString notUnderstood(const QString& date)
{
    return u"The date '%1' was not understood; use the project calendar (e.g. \"25 Harvestmoon 1250\" or \"1250\")."_s
        .arg(date);
}

class EventToolsTest : public ChangingToolFixture
{
protected:
    EventToolsTest()
        : ChangingToolFixture({registerTimelineTools})
    {
        add<Entity>(core::CategoryId(), u"Ann"_s);
        add<Entity>(core::CategoryId(), u"Quay"_s);
        add<Entity>(core::CategoryId(), u"Secret"_s).setAiExcluded(true);
        add<core::document::Document>(core::document::DocumentKind::Prose, u"Chapter %1"_s);
    }

    [[nodiscard]] core::ContentId idOf(const QString& name) const
    {
        return project().names().named(name).front();
    }
    [[nodiscard]] const EventDetails& event(const QString& title) const
    {
        return project().findAs<TimelineEvent>(idOf(title))->details();
    }

    TimelineEvent& addEvent(const QString& title, qint64 start, qint64 duration = 0)
    {
        EventDetails details;
        details.title = title;
        details.startMinute = start;
        details.durationMinutes = duration;
        return add<TimelineEvent>(std::move(details));
    }
};

} // namespace

TEST_F(EventToolsTest, createsAnEventWithAllThatBelongsToIt)
{
    addEvent(u"Storm"_s, 0);
    expectChange(
        "create_timeline_event", createLabel,
        {R"({"title":"Feast","date":"2 January 1","end":"3 January 1","participants":["ann","Ann"],"location":"QUAY",
             "description":"Loud","parent":"Storm","scenes":["chapter %1"],"color":"#112233","label":"F",
             "constraints":[{"kind":"starts_after","other":"storm"}]})",
         u"Created timeline event 'Feast' on 2 January, Year 1 CE."_s});
    const EventDetails& feast = event(u"Feast"_s);
    EXPECT_EQ(feast.startMinute, day);
    EXPECT_EQ(feast.durationMinutes, day);
    EXPECT_EQ(feast.participants, std::vector{idOf(u"Ann"_s)});
    EXPECT_EQ(feast.locationId, idOf(u"Quay"_s));
    EXPECT_EQ(feast.parentId, idOf(u"Storm"_s));
    ASSERT_EQ(feast.constraints.size(), 1U);
    EXPECT_EQ(feast.constraints[0].otherId, idOf(u"Storm"_s));
    EXPECT_EQ(feast.sceneIds.size(), 1U);
    ASSERT_EQ(objectsOf<Timeline>(project()).size(), 1U);
    EXPECT_EQ(objectsOf<Timeline>(project())[0]->title(), u"Timeline");

    expectChange(
        "create_timeline_event", createLabel,
        {R"({"title":"Fire","date":"5","participants":["Bert","Ann","bert "],"location":"Mill","create_missing_entities":true})",
         u"Created timeline event 'Fire' on 1 January, Year 5 CE. Created 2 stub entity(ies): Bert, Mill."_s});
    EXPECT_EQ(event(u"Fire"_s).timelineId, feast.timelineId);
    EXPECT_EQ(event(u"Fire"_s).ordinal, feast.ordinal + 1);
    EXPECT_EQ(event(u"Fire"_s).participants, (std::vector{idOf(u"Bert"_s), idOf(u"Ann"_s)}));
}

TEST_F(EventToolsTest, refusesEventsThatCannotBe)
{
    addEvent(u"Storm"_s, 0);
    mountLibrary(u"Atlas"_s, [](core::project::Project& library) {
        library.add(std::make_unique<Timeline>(core::ContentId::create(), u"Far"_s));
    });
    const auto excluded = u"'Secret' is excluded from AI and cannot be used here."_s;
    expectRefused(
        "create_timeline_event",
        {{"{}", u"create_timeline_event needs \"title\" and \"date\"."_s},
         {R"({"title":"A","date":1250})", u"create_timeline_event needs \"title\" and \"date\"."_s},
         {R"({"title":"A","date":""})", u"create_timeline_event needs \"title\" and \"date\"."_s},
         {R"({"title":" ","date":"1"})", u"A non-empty name is required."_s},
         {R"({"title":"STORM","date":"1"})", u"A timeline event titled 'STORM' already exists."_s},
         {R"({"title":"A","date":"some %1 day"})", notUnderstood(u"some %1 day"_s)},
         {R"({"title":"A","date":"5","end":"soon"})", notUnderstood(u"soon"_s)},
         {R"({"title":"A","date":"5","end":"4"})", u"The end date '4' is before the event's start."_s},
         {R"({"title":"A","date":"5","timeline":"Moon"})", u"No timeline named 'Moon' exists."_s},
         {R"({"title":"A","date":"5","timeline":"Far"})",
          u"'Far' lives in the mounted library 'Atlas'; this server works on the open project's own content."_s},
         {R"({"title":"A","date":"5","participants":["Bert"]})", u"No entity named 'Bert' exists."_s},
         {R"({"title":"A","date":"5","participants":["Secret"]})", excluded},
         {R"({"title":"A","date":"5","location":"Secret","create_missing_entities":true})", excluded},
         {R"({"title":"A","date":"5","participants":[" "],"create_missing_entities":true})",
          u"A non-empty name is required."_s},
         {R"({"title":"A","date":"5","participants":"Ann"})", u"\"participants\" must be a list."_s},
         {R"({"title":"A","date":"5","participants":[3]})", u"Entry 1 of \"participants\" must be a text."_s},
         {R"({"title":"A","date":"5","parent":"Calm"})", u"No timeline event named 'Calm' exists."_s},
         {R"({"title":"A","date":"5","scenes":["Chapter 2"]})", u"No document named 'Chapter 2' exists."_s},
         {R"({"title":"A","date":"5","color":"blue"})",
          u"'blue' is not a color; write \"#rrggbb\", e.g. \"#a03020\"."_s},
         {R"({"title":"A","date":"5","constraints":[{"kind":"near","other":"Storm"}]})",
          u"Unknown \"kind\" 'near'; use starts_after, ends_before, or happens_during."_s},
         {R"({"title":"A","date":"5","constraints":[{"kind":"starts_after"}]})",
          u"Entry 1 of \"constraints\" needs \"kind\" and \"other\"."_s}});
    EXPECT_EQ(objectsOf<Entity>(project()).size(), 3U) << "no stub of a refused call";
}

TEST_F(EventToolsTest, updatesOnlyWhatIsGiven)
{
    addEvent(u"Storm"_s, 0, 60);
    expectChange(
        "update_timeline_event", updateLabel,
        {R"({"title":"storm","date":"2 January 1","new_title":"Gale","participants":["Ann"],"location":"Quay"})",
         u"Updated timeline event 'Gale'."_s});
    EXPECT_EQ(event(u"Gale"_s).durationMinutes, 60) << "it keeps how long it lasts";
    expectChange(
        "update_timeline_event", updateLabel,
        {R"({"title":"Gale","end":"2 January 1, 12:00","location":null})",
         u"Updated timeline event 'Gale'."_s});
    EXPECT_EQ(event(u"Gale"_s).durationMinutes, 720);
    EXPECT_TRUE(event(u"Gale"_s).locationId.isNull());
    EXPECT_EQ(event(u"Gale"_s).participants.size(), 1U);
    expectChange(
        "update_timeline_event", updateLabel,
        {R"({"title":"Gale","end":null,"participants":[]})", u"Updated timeline event 'Gale'."_s});
    EXPECT_EQ(event(u"Gale"_s).durationMinutes, 0);
    addEvent(u"Part"_s, 0);
    expectChange(
        "update_timeline_event", updateLabel,
        {R"({"title":"Part","parent":"Gale"})", u"Updated timeline event 'Part'."_s});
    expectNothingToDo(
        "update_timeline_event", {{R"({"title":"Gale","date":"2 January 1"})",
                                   u"Timeline event 'Gale' already matches; nothing changed."_s}});
    expectRefused(
        "update_timeline_event",
        {{"{}", u"update_timeline_event needs \"title\" (or \"id\")."_s},
         {R"({"title":"Gale","parent":"Part"})",
          u"'Gale' cannot be part of 'Part' -- that would place the event inside itself."_s},
         {R"({"title":"Gale","constraints":[{"kind":"ends_before","other":"Gale"}]})",
          u"'Gale' cannot be constrained by itself."_s},
         {R"({"title":"Gale","end":"1 January 1"})",
          u"The end date '1 January 1' is before the event's start."_s},
         {R"({"title":"Gale","new_title":"part"})",
          u"A timeline event titled 'part' already exists; renaming onto it would leave both unreachable by name."_s},
         {R"({"title":"Gale","new_title":null})", u"A non-empty name is required."_s}});
    workspace.projectForEdit().findForEdit(idOf(u"Gale"_s))->setAiExcluded(true);
    expectRefused(
        "update_timeline_event",
        {{R"({"title":"Gale","end":null})", u"'Gale' is excluded from AI and cannot be changed."_s}});
}

TEST_F(EventToolsTest, stubsAreMadeForNamesThatNothingHas)
{
    core::taxonomy::Category category;
    category.id = core::CategoryId::create();
    category.name = u"People"_s;
    workspace.projectForEdit().taxonomyForEdit().insert(category);
    ASSERT_TRUE(workspace.save());
    expectChange(
        "create_missing_entities", u"MCP: create missing entities"_s,
        {R"({"names":["Ann","Cleo","cleo","Dov"],"category":"people"})",
         u"Created 2 stub entity(ies): Cleo, Dov."_s});
    EXPECT_EQ(project().findAs<Entity>(idOf(u"Cleo"_s))->categoryId(), category.id);
    expectNothingToDo(
        "create_missing_entities",
        {{R"({"names":["ann","dov"]})", u"Every name already exists; nothing changed."_s}});
    expectRefused(
        "create_missing_entities",
        {{"{}", u"create_missing_entities needs \"names\"."_s},
         {R"({"names":[]})", u"create_missing_entities needs \"names\"."_s},
         {R"({"names":["New","Secret"]})", u"'Secret' is excluded from AI and cannot be used here."_s},
         {R"({"names":["New"],"category":"Moons"})", u"No category named 'Moons' exists."_s},
         {R"({"names":["New\nborn"]})", u"A name is one line; 'New born' holds a line break."_s}});
}

TEST_F(EventToolsTest, theTimelineIsReadInTheOrderOfTheStory)
{
    EXPECT_EQ(call("get_timeline").text, u"There are no timelines in this project.\nNamed eras: none."_s);
    Timeline& main = add<Timeline>(u"Main"_s);
    TimelineEvent& late = addEvent(u"Late"_s, 2 * day, day);
    TimelineEvent& early = addEvent(u"Early"_s, 0);
    addEvent(u"Loose"_s, 0);
    addEvent(u"Hidden"_s, 0).setAiExcluded(true);
    EventDetails details = late.details();
    details.timelineId = main.id();
    details.participants = {idOf(u"Ann"_s), idOf(u"Secret"_s), core::ContentId::create()};
    details.constraints = {{early.id(), core::timeline::ConstraintKind::StartsAfter}};
    late.setDetails(details);
    details = early.details();
    details.timelineId = main.id();
    details.dateQualifier = u"circa"_s;
    early.setDetails(details);
    workspace.projectForEdit().setTimelineEras({{u"Age %1"_s, u"#000000"_s, 0, day}});
    EXPECT_EQ(
        call("get_timeline").text, u"Timeline 'Main'\n"
                                   "- Early: circa 1 January, Year 1 CE\n"
                                   "- Late: 3 January, Year 1 CE to 4 January, Year 1 CE\n"
                                   "  participants: Ann, (an entity excluded from AI), (missing)\n"
                                   "  constraints: starts_after Early\n"
                                   "Events without a timeline\n"
                                   "- Loose: 1 January, Year 1 CE\n"
                                   "Named eras:\n"
                                   "- Age %1: 1 January, Year 1 CE to 2 January, Year 1 CE (#000000)"_s);
    EXPECT_FALSE(call("get_timeline", R"({"timeline":"main"})").text.contains(u"Loose"));
    main.setAiExcluded(true);
    const QString withheld = call("get_timeline").text;
    EXPECT_TRUE(withheld.startsWith(u"Events of timelines excluded from AI\n- Early: "))
        << withheld.toStdString();
    EXPECT_FALSE(withheld.contains(u"Main"));
    main.setAiExcluded(false);
    expectRefused("get_timeline", {{R"({"timeline":"Side"})", u"No timeline named 'Side' exists."_s}});

    core::calendar::Calendar calendar;
    calendar.setEras({{u"Before Fall"_s, -10, true}, {u"After Fall"_s, 5, false}});
    workspace.projectForEdit().setCalendar(calendar);
    const QString date = u"1 January, Year 4 Before Fall [year 1]"_s;
    EXPECT_TRUE(call("get_timeline").text.contains(date));
    expectChange(
        "update_timeline_event", updateLabel,
        {R"({"title":"Late","date":")" + date.toUtf8() + R"("})", u"Updated timeline event 'Late'."_s});
    EXPECT_EQ(late.details().startMinute, 0) << "what is shown reads back";
}

TEST_F(EventToolsTest, longDescriptionsAreReadInFullOnRequest)
{
    const QString text = u"The first.\n\nThe second. "_s + QString(300, u'x');
    TimelineEvent& event = addEvent(u"Feast"_s, 0);
    EventDetails details = event.details();
    details.description = text;
    event.setDetails(details);
    const QString brief = call("get_timeline").text;
    EXPECT_TRUE(brief.contains(u"  description: The first. The second. xxx"));
    EXPECT_TRUE(brief.contains(u"...\n"));
    EXPECT_TRUE(brief.contains(u"\n\nNOTE: ") && brief.contains(u"Call get_timeline again"));
    const QString full = call("get_timeline", R"({"full": true})").text;
    EXPECT_TRUE(full.contains(u"  description: "_s + text));
    EXPECT_FALSE(full.contains(u"NOTE"));
}

TEST_F(EventToolsTest, timelinesAreRenamed)
{
    add<Timeline>(u"Main"_s);
    add<Timeline>(u"Side"_s);
    expectChange(
        "update_timeline", u"MCP: rename timeline"_s,
        {R"({"title":"main","new_title":"Story %2"})", u"Renamed timeline 'Main' to 'Story %2'."_s});
    expectNothingToDo(
        "update_timeline",
        {{R"({"title":"Side","new_title":"Side"})", u"Timeline 'Side' already matches; nothing changed."_s}});
    expectRefused(
        "update_timeline",
        {{"{}", u"update_timeline needs \"title\" (or \"id\") and \"new_title\"."_s},
         {R"({"title":"Side","new_title":"story %2"})",
          u"A timeline titled 'story %2' already exists; renaming onto it would leave both unreachable by name."_s}});
    mountLibrary(u"Atlas"_s, [](core::project::Project& library) {
        library.add(std::make_unique<Timeline>(core::ContentId::create(), u"Far"_s));
    });
    EXPECT_TRUE(call("get_timeline").text.contains(u"Timeline 'Far'. From the mounted library 'Atlas'."));
    expectRefused(
        "update_timeline",
        {{R"({"title":"Far","new_title":"Near"})",
          u"'Far' lives in the mounted library 'Atlas'; this server edits only the open project. Open the library as its own project to change it."_s}});
}

TEST_F(EventToolsTest, erasAreBandsOfStoryTime)
{
    const QString label = u"MCP: manage eras"_s;
    expectChange(
        "manage_eras", label,
        {R"({"name":"Dawn","start":"1","end":"2","color":"#010203"})",
         u"Added era 'Dawn' (1 January, Year 1 CE to 1 January, Year 2 CE)."_s});
    expectChange(
        "manage_eras", label,
        {R"({"action":"rename","name":"dawn","new_name":"Dusk"})", u"Renamed era 'Dawn' to 'Dusk'."_s});
    expectNothingToDo(
        "manage_eras", {{R"({"action":"rename","name":"Dusk","new_name":"Dusk"})",
                         u"Era 'Dusk' already matches; nothing changed."_s}});
    expectRefused(
        "manage_eras",
        {{"{}", u"manage_eras needs \"name\"."_s},
         {R"({"name":"Noon"})", u"manage_eras needs \"start\" and \"end\" to add an era."_s},
         {R"({"name":"DUSK","start":"1","end":"2"})", u"An era named 'DUSK' already exists."_s},
         {R"({"name":"Noon","start":"1","end":"later"})", notUnderstood(u"later"_s)},
         {R"({"name":"Noon","start":"3","end":"2"})", u"The end date '2' is before the era's start."_s},
         {R"({"action":"rename","name":"Dusk"})", u"manage_eras needs \"new_name\" to rename an era."_s},
         {R"({"action":"remove","name":"Noon"})", u"No era named 'Noon' exists."_s},
         {R"({"action":"paint","name":"Dusk"})",
          u"Unknown \"action\" 'paint'; use add (default), remove, or rename."_s}});
    expectChange("manage_eras", label, {R"({"action":"remove","name":"Dusk"})", u"Removed era 'Dusk'."_s});
}

} // namespace tw::app::mcp
