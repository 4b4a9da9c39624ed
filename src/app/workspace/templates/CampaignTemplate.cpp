#include "app/workspace/templates/TemplateBuilder.h"

#include "core/ttrpg/RandomTable.h"

namespace tw::app::workspace::templates {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::document::DocumentKind;
using core::taxonomy::FieldType;

namespace {

constexpr int daysOfAMonth = 30;

void addSessions(TemplateBuilder& builder)
{
    const ContentId sessions =
        builder.addDocument({DocumentKind::Prose, TemplateText::tr("Sessions"), {}, {}});
    const QString plan = u"## "_s + TemplateText::tr("What happened last time") + u"\n\n\n## "_s +
                         TemplateText::tr("Scenes to be ready for") + u"\n\n\n## "_s +
                         TemplateText::tr("Rewards and consequences") + u"\n\n"_s;
    builder.addDocument(
        {DocumentKind::Prose,
         TemplateText::tr("Session 0"),
         TemplateText::tr("Who plays whom, and what kind of game it is."),
         {},
         sessions});
    builder.addDocument({DocumentKind::Prose, TemplateText::tr("Session 1"), {}, plan, sessions});
    const ContentId table =
        builder.addDocument({DocumentKind::Note, TemplateText::tr("At the table"), {}, {}});
    builder.addDocument({DocumentKind::Note, TemplateText::tr("House rules"), {}, {}, table});
    builder.addDocument({DocumentKind::Note, TemplateText::tr("Secrets and clues"), {}, {}, table});
}

void addCodex(TemplateBuilder& builder)
{
    const CategoryId locations = builder.addCategory(
        TemplateText::tr("Locations"), {makeField(u"firstSight"_s, TemplateText::tr("What one sees first")),
                                        makeField(u"danger"_s, TemplateText::tr("Danger")),
                                        makeField(u"treasure"_s, TemplateText::tr("What can be found"))});
    const CategoryId factions = builder.addCategory(
        TemplateText::tr("Factions"),
        {makeField(u"goal"_s, TemplateText::tr("Goal")), makeField(u"means"_s, TemplateText::tr("Means")),
         makeReference(u"seat"_s, TemplateText::tr("Seat"), locations)});
    const CategoryId people = builder.addCategory(
        TemplateText::tr("Characters"),
        {makeReference(u"faction"_s, TemplateText::tr("Faction"), factions),
         makeReference(u"place"_s, TemplateText::tr("Where to find them"), locations)});
    builder.addCategory(
        TemplateText::tr("Player characters"),
        {makeField(u"player"_s, TemplateText::tr("Player")),
         makeField(u"level"_s, TemplateText::tr("Level"), FieldType::Number)},
        people);
    builder.addCategory(
        TemplateText::tr("NPCs"),
        {makeChoice(
             u"attitude"_s, TemplateText::tr("Attitude"),
             {TemplateText::tr("Friendly"), TemplateText::tr("Indifferent"), TemplateText::tr("Hostile")}),
         makeField(u"want"_s, TemplateText::tr("Wants")), makeField(u"secret"_s, TemplateText::tr("Secret")),
         makeField(u"alive"_s, TemplateText::tr("Alive"), FieldType::Boolean)},
        people);
}

void addRandomTable(TemplateBuilder& builder)
{
    core::ttrpg::RandomTableDetails details{
        TemplateText::tr("On the road"),
        {{4, TemplateText::tr("Nothing but weather")},
         {3, TemplateText::tr("Travellers with news")},
         {2, TemplateText::tr("A toll that was not there last time")},
         {2, TemplateText::tr("Tracks of something large")},
         {1, TemplateText::tr("Someone from a player's past")}}};
    builder.project().add(
        std::make_unique<core::ttrpg::RandomTable>(ContentId::create(), std::move(details)));
}

/** Twelve even months: easy to count at the table. */
core::calendar::Calendar campaignCalendar()
{
    core::calendar::Calendar calendar;
    QList<core::calendar::CalendarMonth> months = calendar.months();
    for (core::calendar::CalendarMonth& month : months)
        month.days = daysOfAMonth;
    calendar.setMonths(std::move(months));
    return calendar;
}

} // namespace

void fillCampaign(TemplateBuilder& builder)
{
    builder.project().setAudiences({TemplateText::tr("Players"), TemplateText::tr("Game master")});
    builder.project().setCalendar(campaignCalendar());
    addSessions(builder);
    addCodex(builder);
    addRandomTable(builder);
}

} // namespace tw::app::workspace::templates
