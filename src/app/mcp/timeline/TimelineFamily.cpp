#include "app/mcp/ToolFamilies.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/timeline/ContinuityTools.h"
#include "app/mcp/timeline/EventArguments.h"
#include "app/mcp/timeline/EventTools.h"
#include "app/mcp/timeline/TimelineTools.h"
#include "app/timeline/RuleComparison.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject dateProperty(const QString& what)
{
    return textProperty(
        u"%1, in the project calendar: \"1250\", \"Harvestmoon 1250\", \"25 Harvestmoon 1250, 14:05\"."_s.arg(
            what));
}

/** What an event holds beside its title, for making and for changing one. */
QJsonObject eventProperties()
{
    const QJsonObject constraint = recordProperty(
        u"A relation to another event."_s,
        {{u"kind"_s, choiceProperty(u"How the events relate."_s, constraintWords(), Default::None)},
         {u"other"_s, textProperty(u"The title of the other event."_s)}},
        {u"kind"_s, u"other"_s});
    return {
        {u"date"_s, dateProperty(u"When it begins"_s)},
        {u"end"_s, dateProperty(u"When it ends; null makes it a moment"_s)},
        {u"timeline"_s, textProperty(u"The title of the timeline it belongs to."_s)},
        {u"participants"_s,
         listProperty(u"Who takes part: names of entities."_s, textProperty(u"An entity's name."_s))},
        {u"location"_s, textProperty(u"Where it happens: the name of an entity; null clears it."_s)},
        {u"description"_s, textProperty(u"What happens; null clears it."_s)},
        {u"parent"_s, textProperty(u"The title of the event it is part of; null clears it."_s)},
        {u"scenes"_s,
         listProperty(u"Documents that tell it, by title."_s, textProperty(u"A document's title."_s))},
        {u"constraints"_s, listProperty(u"Relations that get_conflicts checks."_s, constraint)},
        {u"color"_s, textProperty(u"\"#rrggbb\"; null clears it."_s)},
        {u"label"_s, textProperty(u"A short label on the timeline; null clears it."_s)},
        {u"create_missing_entities"_s,
         booleanProperty(
             u"Create a stub entity for any participant/location name that does not exist yet."_s)},
    };
}

QJsonObject createEventSchema()
{
    QJsonObject properties = eventProperties();
    properties.insert(u"title"_s, textProperty(u"The event's title; no other event may have it."_s));
    return makeObjectSchema(properties, {u"title"_s, u"date"_s});
}

QJsonObject updateEventSchema()
{
    QJsonObject properties = eventProperties();
    properties.insert(u"new_title"_s, textProperty(u"Renames the event."_s));
    return makeSubjectSchema(u"title"_s, u"The event's title."_s, properties);
}

QStringList comparisonKeys()
{
    QStringList keys;
    for (const timeline::RuleComparison comparison : timeline::allRuleComparisons)
        keys += timeline::ruleComparisonKey(comparison);
    return keys;
}

QJsonObject ruleSchema()
{
    return makeObjectSchema(
        {{u"name"_s, textProperty(u"The rule's name; no other rule may have it."_s)},
         {u"entity"_s, textProperty(u"The name of the entity it is about."_s)},
         {u"field"_s, textProperty(u"The field's key or label, as get_entity shows it."_s)},
         {u"comparison"_s,
          choiceProperty(u"How the value must compare."_s, comparisonKeys(), Default::First)},
         {u"value"_s,
          valueProperty(
              u"What it is compared with: for a reference the entity's name, for a date one of the project's "
              "calendar; pieces for oneOf stand between bars: \"red|green\"."_s)},
         {u"date"_s,
          dateProperty(u"The moment at which the field is read; without it, its current value counts"_s)}},
        {u"name"_s, u"entity"_s, u"field"_s});
}

ToolTable timelineAndEventTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Read the timeline"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"get_timeline"_s,
                 u"Reads the project's timeline(s): every event with its date(s) in the project calendar, "
                 "participants and location by name, plus the named eras. Events stand in the order of the "
                 "story. Without \"timeline\" all timelines are read, those of mounted libraries as well. "
                 "Events excluded from AI are left out; a timeline that is excluded is not named, and its "
                 "events stand under a heading of their own. Descriptions longer than 300 characters are "
                 "shortened unless \"full\" is true (default false): ask for the full ones before you edit "
                 "one, or its unseen tail is lost. Call it before you add or change events: they are "
                 "addressed by the titles it prints."_s,
                 makeObjectSchema(
                     {{u"timeline"_s, textProperty(u"Only the timeline of this title."_s)},
                      {u"full"_s, booleanProperty(u"Show every description in full length."_s)},
                      {u"id"_s, textProperty(u"The timeline's id, in place of its title."_s)}})},
            .handler = getTimeline,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Rename a timeline"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"update_timeline"_s,
                 u"Renames a timeline container. Its events stay as they are. A title that another timeline "
                 u"has "
                 "is refused."_s,
                 makeSubjectSchema(
                     u"title"_s, u"The timeline's title."_s,
                     {{u"new_title"_s, textProperty(u"The new title."_s)}}, {u"new_title"_s})},
            .subject = u"title"_s,
            .handler = updateTimeline,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Create a timeline event"_s,
            .spec =
                {u"create_timeline_event"_s,
                 u"Creates a timeline event dated in the project calendar. Call get_calendar first for the "
                 u"names "
                 "of its months. Without \"end\" the event is a moment; an end before the date is refused. "
                 "It "
                 "goes to the timeline you name, else to the first one, and a timeline called Timeline is "
                 "made "
                 "when the project has none. Participants and location are entities by name, also of mounted "
                 "libraries; a name that does not exist is refused unless \"create_missing_entities\" is "
                 "true, "
                 "which creates a stub without a category for it in the same step. \"constraints\" relate it "
                 "to "
                 "other events: this event starts_after the other's end, ends_before its start, or "
                 "happens_during it. A title that another event has is refused. Call get_conflicts afterwards."_s,
                 createEventSchema()},
            .handler = createTimelineEvent,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Create missing entities"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"create_missing_entities"_s,
                 u"Create a stub entity for any participant/location name that does not exist yet (default "
                 "false). \"names\" are the names to look at; those that an entity or an alias already has, "
                 "here "
                 "or in a mounted library, are passed over, and a name that is excluded from AI is refused. "
                 "The "
                 "stubs go into \"category\", or have none. create_timeline_event and update_timeline_event "
                 "do "
                 "the same for their own names when their argument of this name is true."_s,
                 makeObjectSchema(
                     {{u"names"_s, listProperty(u"The names to look at."_s, textProperty(u"A name."_s))},
                      {u"category"_s, textProperty(u"The name of the codex category for the stubs."_s)}},
                     {u"names"_s})},
            .handler = createMissingEntities,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Update a timeline event"_s,
            .hints = {.isDestructive = true, .isIdempotent = true},
            .spec =
                {u"update_timeline_event"_s,
                 u"Updates an existing timeline event, addressed by its title. Only the keys you pass "
                 u"change; "
                 "null clears one. A new \"date\" alone moves the event and keeps how long it lasts; \"end\" "
                 "sets how long. Lists (participants, scenes, constraints) replace the whole list, so call "
                 "get_timeline first. Names that do not exist are refused unless \"create_missing_entities\" "
                 "is "
                 "true. An event cannot be part of itself, nor be constrained by itself."_s,
                 updateEventSchema()},
            .subject = u"title"_s,
            .handler = updateTimelineEvent,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Manage eras"_s,
            .hints = {.isDestructive = true},
            .spec =
                {u"manage_eras"_s,
                 u"Adds, removes, or renames a named era (the labelled background bands of story time). "
                 u"\"add\" "
                 "is the default and needs \"start\" and \"end\" dates; \"rename\" needs \"new_name\"; "
                 "\"remove\" takes the band away and leaves all events. These are not the eras in which the "
                 "calendar counts its years: update_calendar sets those. get_timeline lists the bands. A "
                 "name "
                 "that another era has and an end before the start are refused."_s,
                 makeObjectSchema(
                     {{u"action"_s,
                       choiceProperty(
                           u"What to do."_s, {u"add"_s, u"remove"_s, u"rename"_s}, Default::First)},
                      {u"name"_s, textProperty(u"The era's name."_s)},
                      {u"new_name"_s, textProperty(u"The new name, to rename."_s)},
                      {u"start"_s, dateProperty(u"When it begins, to add"_s)},
                      {u"end"_s, dateProperty(u"When it ends, to add"_s)},
                      {u"color"_s, textProperty(u"The band's colour, \"#rrggbb\"."_s)}},
                     {u"name"_s})},
            .handler = manageEras,
        },
    };
}

ToolTable continuityTools()
{
    return {
        {
            .access = ToolAccess::ReadOnly,
            .title = u"Find conflicts"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"get_conflicts"_s,
                 u"Runs the validating timeline and the user-authored continuity rules and reports every "
                 u"conflict "
                 "found: an entity in two places at once, events outside a lifespan, impossible travel, "
                 "dangling "
                 "references, broken relative constraints, and violated continuity assertions. Takes no "
                 "arguments and changes nothing. Travel is checked along direct routes of maps that have a "
                 "travel speed. What is excluded from AI is neither named nor counted as missing. The answer "
                 "is "
                 "a numbered list, or \"No conflicts found.\"."_s,
                 makeObjectSchema({})},
            .handler = getConflicts,
        },
        {
            .access = ToolAccess::ReadOnly,
            .title = u"List continuity rules"_s,
            .hints = {.isIdempotent = true},
            .spec =
                {u"list_continuity_rules"_s,
                 u"Lists the writer-authored continuity rules the validator checks: for each, the entity, "
                 u"field, "
                 "whether it must or must not equal a value, and when (a story date or at any time). Takes "
                 "no "
                 "arguments. It does not say which rules hold; get_conflicts does."_s,
                 makeObjectSchema({})},
            .handler = listContinuityRules,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Create a continuity rule"_s,
            .spec =
                {u"create_continuity_rule"_s,
                 u"Adds a continuity rule the validator checks: entity E's field F, compared against a value "
                 u"V. "
                 "The comparison is equals unless you name another; isEmpty and isNonEmpty take no value, "
                 "all "
                 "others need one. Comparisons with less or greater read both sides as numbers and fail for "
                 "texts. With a \"date\" the field's value as of that date counts, without one its current "
                 "value. Call get_entity first for the fields; one that the entity does not have is refused, "
                 "and "
                 "so is a name that another rule has. The answer says when the rule does not hold now."_s,
                 ruleSchema()},
            .handler = createContinuityRule,
        },
        {
            .access = ToolAccess::Changing,
            .title = u"Delete a continuity rule"_s,
            .hints = {.isDestructive = true},
            .spec =
                {u"delete_continuity_rule"_s,
                 u"Removes a continuity rule from the project by its name. list_continuity_rules shows the "
                 u"names. "
                 "Nothing else changes."_s,
                 makeObjectSchema({{u"name"_s, textProperty(u"The rule's name."_s)}}, {u"name"_s})},
            .handler = deleteContinuityRule,
        },
    };
}

} // namespace

ToolTable timelineTools()
{
    ToolTable tools = timelineAndEventTools();
    const ToolTable continuity = continuityTools();
    tools.insert(tools.end(), continuity.begin(), continuity.end());
    return tools;
}

void registerTimelineTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerTools(server, workspace, changeLog, timelineTools());
}

} // namespace tw::app::mcp
