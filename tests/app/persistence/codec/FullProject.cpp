#include "app/persistence/codec/FullProject.h"

#include "core/canvas/Canvas.h"
#include "core/chart/Chart.h"
#include "core/conlang/Language.h"
#include "core/document/Document.h"
#include "core/map/Map.h"
#include "core/media/Media.h"
#include "core/research/Comment.h"
#include "core/research/Source.h"
#include "core/spreadsheet/Spreadsheet.h"
#include "core/task/Task.h"
#include "core/timeline/Timeline.h"
#include "core/timeline/TimelineEvent.h"
#include "core/ttrpg/RandomTable.h"
#include "core/ttrpg/StatBlock.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace tw::test {

namespace {

using namespace core;
using content::ContentKind;

/** Beyond what a double can hold exactly. */
constexpr qint64 large = (qint64{1} << 60) + 1;

ContentId objectId(int number)
{
    return ContentId::fromString(u"00000000-0000-4000-8000-%1"_s.arg(number, 12, 10, QChar(u'0')));
}

CategoryId categoryId(int number)
{
    return CategoryId::fromString(u"00000000-0000-4000-9000-%1"_s.arg(number, 12, 10, QChar(u'0')));
}

taxonomy::Field choiceField()
{
    return {u"rank"_s, u"Rank"_s,         taxonomy::FieldType::Choice, true,
            false,     u"In the guild"_s, {u"low"_s, u"high"_s},       {},
            {}};
}

taxonomy::Field fixedField()
{
    return {u"lord"_s, u"Lord"_s,     taxonomy::FieldType::Reference, false, true, {},
            {},        categoryId(2), objectId(1).toString()};
}

std::unique_ptr<document::Document> fullDocument(ContentId id)
{
    using namespace document;
    auto document = std::make_unique<Document>(id, DocumentKind::Screenplay, u"The \"Ford\""_s);
    document->setBody({u"Line one\n\tline two — é 😀\u0001"_s, BodyFormat::Html});
    document->setSynopsis(u"They cross."_s);
    document->setStatus(u"Draft"_s);
    document->setPointOfView(u"Ibbet"_s);
    document->setTensionLevel(-7);
    document->setSceneInstant(-large);
    document->setWordCountTarget(1200);
    document->setParentId(objectId(1));
    document->setSortIndex(3);
    document->setSourceIds({objectId(8), objectId(3)});
    document->setRevisionBaseline(u"Line one"_s);
    document->setVersions(
        {{u"First"_s, u"2026-01-02T03:04:05Z"_s, u"Old"_s, BodyFormat::Html},
         {u"Second"_s, u"soon"_s, u"Older"_s, BodyFormat::Markdown}});
    document->setVariants({{{u"Short"_s, u"Line"_s, BodyFormat::Html}, {u"Long"_s, {}, {}}}, u"Short"_s});
    document->setFootnotes({{u"a"_s, u"See below"_s, true}, {u"2"_s, u"Ibid."_s, false}});
    return document;
}

std::unique_ptr<entity::Entity> fullEntity(ContentId id)
{
    auto entity = std::make_unique<entity::Entity>(id, categoryId(1), u"Orm"_s);
    entity->setValues({{u"rank"_s, u"high"_s}, {u"empty"_s, {}}, {u"allies"_s, u"a\nb"_s}});
    entity->setLifespan({-large, large});
    entity->setTimedValues(
        {{u"rank"_s, {{-5, u"low"_s}, {large, u"high"_s}, {large, u"higher"_s}}}, {u"allies"_s, {{0, {}}}}});
    entity->setSortIndex(-1);
    entity->setAliases({u"The Eel"_s, u"Ormling"_s});
    entity->setGallery({objectId(7)});
    entity->setOwnFields({choiceField(), fixedField()});
    return entity;
}

std::unique_ptr<spreadsheet::Spreadsheet> fullSpreadsheet(ContentId id)
{
    using namespace spreadsheet;
    auto sheet = std::make_unique<Spreadsheet>(id, u"Tides"_s);
    CellFormat format{true,         true,         true,       true,         u"Inter"_s, 10.5,
                      u"#111111"_s, u"#eeeeee"_s, u"right"_s, u"percent"_s, 0};
    sheet->setGrid(
        {2, 3, {{{0, 1}, {u"=A1*2"_s, format}}, {{0, 2}, {u"plain"_s, {}}}, {{90, 90}, {{}, format}}}});
    sheet->setSizes({{0, 120}, {30}});
    sheet->setLinkedCategoryId(categoryId(1));
    return sheet;
}

std::unique_ptr<map::Map> fullMap(ContentId id)
{
    using namespace map;
    const ContentId place = objectId(1);
    auto result = std::make_unique<Map>(id, u"The Reach"_s);
    result->setImageAssetPath(u"assets/reach.png"_s);
    result->setRegions({{u"Holm"_s, {{0.1, 0.25}, {1, 0}}, place, id, u"Hidden"_s, true, u"#aa0000"_s}});
    result->setRoutes({{place, objectId(2), 12.5, {4.5, u"miles"_s, 80.0}}});
    result->setPins({{u"Quay"_s, u"Busy"_s, place, id, u"Places"_s, {0.5, 0.123456789}}});
    result->setGrid({GridKind::Square, 20});
    result->setTokens({{u"Party"_s, u"#00aa00"_s, place, {0.75, 0.5}}});
    result->setTravelSettings({3.25, u"leagues"_s, 60.0});
    return result;
}

timeline::EventDetails fullEvent()
{
    using timeline::ConstraintKind;
    timeline::EventDetails event{
        objectId(5),
        u"The crossing"_s,
        -large,
        large,
        4,
        u"circa"_s,
        {objectId(1)},
        objectId(2),
        objectId(6),
        true,
        {{objectId(6), ConstraintKind::HappensDuring}, {objectId(5), ConstraintKind(77)}},
        {objectId(0)},
        u"At low water"_s,
        u"#123456"_s,
        u"Law"_s,
        u"Public"_s};
    return event;
}

std::unique_ptr<media::Media> fullMedia(ContentId id)
{
    auto media = std::make_unique<media::Media>(id, u"image"_s, u"assets/reach.png"_s);
    media->setCaption(u"As drawn"_s);
    media->setAnnotations({{u"note"_s, u"#ff0000"_s, u"Here"_s}});
    media->setCrop(media::MediaCrop{0.1, 0.2, 0.3, 0.4});
    return media;
}

std::unique_ptr<task::Task> fullTask(ContentId id)
{
    auto task = std::make_unique<task::Task>(id, u"Send it"_s);
    task->setDescription(u"To the agent"_s);
    task->setDone(true);
    task->setBoard(u"Submissions"_s);
    task->setPriority(task::TaskPriority::Urgent);
    task->setDueDate(u"2026-12-24"_s);
    task->setStatus(u"Waiting"_s);
    task->setTargetId(objectId(0));
    task->setSortIndex(9);
    task->setSubmission(task::Submission{u"Agency"_s, u"query"_s, u"2026-11-01"_s, u"No reply"_s});
    return task;
}

std::unique_ptr<canvas::Canvas> fullCanvas(ContentId id)
{
    auto canvas = std::make_unique<canvas::Canvas>(id, u"Who knew"_s);
    canvas->setCards({{objectId(0), -1.5, 2, 300, 200.25}, {objectId(1), 0, 0, 0, 0}});
    canvas->setConnections({{objectId(0), objectId(1), u"told"_s}});
    return canvas;
}

std::unique_ptr<conlang::Language> fullLanguage(ContentId id)
{
    using namespace conlang;
    auto language = std::make_unique<Language>(id, QString());
    LexiconEntry entry{u"mur"_s,          u"water"_s, u"noun"_s, u"Never the sea"_s, u"sea"_s,
                       u"weak"_s,         u"mu"_s,    u"old"_s,  u"land"_s,          {u"water"_s, u"tide"_s},
                       {u"m"_s, u"ur"_s}, u"m-r"_s,   u"CuC"_s,  u"stem"_s,          true};
    language->setDetails(
        {u"Skerric"_s,
         {u"p"_s, u"sk"_s},
         {u"a"_s},
         {u"CVC"_s},
         2,
         5,
         u"Verb first"_s,
         {objectId(1)},
         {entry, LexiconEntry()},
         {{{u"p"_s, 2.5, u"C"_s, {u"plosive"_s}}}, u"initial"_s, {u"high"_s}, {u"breathy"_s}}});
    language->setPhonotactics(
        {{{u"C"_s, {u"p"_s}}},
         {{u"CV"_s, 0.5}},
         {{u"nk"_s, u"ng"_s}},
         {u"pp"_s},
         {{u"a"_s, u"o"_s}, {u"e"_s}},
         u"slow"_s,
         0.45});
    language->setOrthography({{{u"Row"_s, {{u"k"_s, u"c"_s}}}}, u"Row"_s, u"un-"_s});
    language->setSoundChanges({{u"To the Reach"_s, {{u"k"_s, u"g"_s, u"V_V"_s}}}});
    language->setGrammar(
        {u"fusional"_s,
         u"VSO"_s,
         u"after"_s,
         u"Strict"_s,
         {{u"stem"_s, 1, u"root"_s, {u"noun"_s}, true}},
         {{u"number"_s, {{u"noun"_s, u"plural"_s, u"suffix"_s, u"ar"_s, u"stem"_s, true, u"mur"_s}}}},
         {{u"I"_s, u"eg"_s, u"first"_s}},
         {12, u"By dozens"_s, {{large, u"many"_s}}}});
    language->setWritingSystem(
        {{u"kind"_s, u"alphabet"_s}, {u"glyphs"_s, QJsonArray{QJsonArray{10, 0.5}, true}}});
    return language;
}

void fillSettings(project::Project& project)
{
    using namespace timeline;
    project.setPinnedIds({objectId(1), objectId(3)});
    project.setSavedSearches({{u"Slip"_s, u"slip"_s}});
    project.setEntityTemplates({{u"Debtor"_s, categoryId(1), {{u"rank"_s, u"low"_s}}}});
    project.setAudiences({u"Table"_s, u"Author"_s});
    project.setPropertyMigration(project::PropertyMigration{u"declined"_s});
    project.setDefaultAudiences({u"Author"_s});
    project.setPlotThreads({{u"thread-1"_s, u"The account"_s, u"What is owed"_s, objectId(1), u"#222222"_s}});
    project.setContinuityRules({{u"Alive"_s, objectId(1), u"rank"_s, u"is odd"_s, u"high"_s, large}, {}});
    project.setTimelineEras({{u"Dry"_s, u"#d9c98a"_s, -large, large}});
    project.setTimelineMarkers({{u"Now"_s, large, true}});
    project.setTimelineBookmarks({{u"Crossing"_s, -large, large}});
    project.setBeatSheet({u"three-act"_s, {{u"Hook"_s, objectId(0)}}});
    project.setLibraryMounts({{u"../library"_s, true}});
    project.setWritingLog({{u"2026-05-06"_s, large}});
    project.setWritingGoal({500, large, u"2027-01-01"_s});
    project.setProofreading(
        {{objectId(1), {u"en_GB"_s, u"fr_FR"_s}, {u"spelling Orm"_s, u"adverb quickly"_s}},
         {objectId(2), {}, {u"cliche the end of the day"_s}}});
    calendar::Calendar calendar;
    calendar.setMonths({{u"Thaw"_s, 40}, {u"Dark"_s, -3}});
    calendar.setWeekdays({u"First"_s});
    calendar.setEraName({});
    calendar.setEras({{u"Before"_s, -large, true}, {u"After"_s, 12, false}});
    project.setCalendar(calendar);
    project.setReckonings({{u"Republic"_s, calendar, -large}});
    const TimelineViewSettings view{
        u"thread"_s,        u"location"_s, u"compact"_s, 30,    12,   false,     u"inline"_s,
        u"titleAndYear"_s,  false,         false,        false, true, u"area"_s, {{{}, u"Orm"_s, true, true}},
        {{u"Pace"_s, true}}};
    project.setTimelineView(view);
    project.setTimelineViewPresets({{u"Tight"_s, view}});
    project.setName(u"Low Water"_s);
}

void fillTaxonomy(project::Project& project)
{
    taxonomy::Taxonomy& taxonomy = project.taxonomyForEdit();
    taxonomy.insert({categoryId(1), u"People"_s, categoryId(2), {}, {}, {u"lord"_s}, 4, {choiceField()}});
    taxonomy.insert({categoryId(2), u"Houses"_s, {}, objectId(1), {u"rank"_s}, {}, 0, {fixedField()}});
}

std::unique_ptr<content::ContentObject> fullObject(ContentKind kind, ContentId id)
{
    switch (kind) {
    case ContentKind::Document:
        return fullDocument(id);
    case ContentKind::Entity:
        return fullEntity(id);
    case ContentKind::Spreadsheet:
        return fullSpreadsheet(id);
    case ContentKind::Chart:
        return std::make_unique<chart::Chart>(
            id, chart::ChartDetails{
                    u"Lows"_s,
                    u"line"_s,
                    {u"10"_s, u"11"_s},
                    {{u"Printed"_s, {-3.1, 0, 1e300}}},
                    u"Feet"_s,
                    u"Day"_s});
    case ContentKind::Map:
        return fullMap(id);
    case ContentKind::Timeline: {
        auto timeline = std::make_unique<timeline::Timeline>(id, u"Before"_s);
        timeline->setDescription(u"Three centuries"_s);
        timeline->setSortIndex(2);
        return timeline;
    }
    case ContentKind::TimelineEvent:
        return std::make_unique<timeline::TimelineEvent>(id, fullEvent());
    case ContentKind::Media:
        return fullMedia(id);
    case ContentKind::Source:
        return std::make_unique<research::Source>(
            id, research::SourceDetails{
                    u"book"_s,
                    u"Tides"_s,
                    u"whewell1833"_s,
                    {{u"author"_s, u"Whewell"_s}, {u"issued"_s, u"1833"_s}}});
    case ContentKind::Task:
        return fullTask(id);
    case ContentKind::Canvas:
        return fullCanvas(id);
    case ContentKind::Comment: {
        auto comment = std::make_unique<research::Comment>(
            id, research::CommentTarget{objectId(0), u"line two"_s},
            research::CommentDetails{
                u"Ed"_s, u"Really?"_s, u"2026-01-01T00:00:00Z"_s, u"2026-01-02T00:00:00Z"_s, true});
        comment->setParentId(id);
        return comment;
    }
    case ContentKind::Language:
        return fullLanguage(id);
    case ContentKind::RandomTable:
        return std::make_unique<ttrpg::RandomTable>(
            id, ttrpg::RandomTableDetails{u"Ebb"_s, {{6, u"Nothing"_s}, {0, {}}}});
    case ContentKind::StatBlock:
        return std::make_unique<ttrpg::StatBlock>(
            id, ttrpg::StatBlockDetails{
                    u"Bailiff"_s,
                    u"Quiet Water"_s,
                    u"Reluctant"_s,
                    {{u"Paper"_s, u"9"_s}},
                    {{u"Serve"_s, u"On dry ground"_s}}});
    }
    return nullptr;
}

} // namespace

std::unique_ptr<project::Project> fullProject()
{
    auto project = std::make_unique<project::Project>();
    for (const ContentKind kind : content::allContentKinds) {
        std::unique_ptr<content::ContentObject> object = fullObject(kind, objectId(static_cast<int>(kind)));
        object->setVisibleTo({u"Table"_s, u"Author"_s});
        object->setTags({u"wet"_s, u"cold"_s});
        object->setLocked(true);
        object->setAiExcluded(true);
        object->setPlotThreadIds({u"thread-2"_s, u"thread-1"_s});
        project->insert(std::move(object));
    }
    fillTaxonomy(*project);
    fillSettings(*project);
    return project;
}

std::unique_ptr<content::ContentObject> freshObject(ContentKind kind, const ContentId& id)
{
    switch (kind) {
    case ContentKind::Document:
        return std::make_unique<document::Document>(id, document::DocumentKind::Prose, QString());
    case ContentKind::Entity:
        return std::make_unique<entity::Entity>(id, CategoryId(), QString());
    case ContentKind::Spreadsheet:
        return std::make_unique<spreadsheet::Spreadsheet>(id, QString());
    case ContentKind::Chart:
        return std::make_unique<chart::Chart>(id, chart::ChartDetails());
    case ContentKind::Map:
        return std::make_unique<map::Map>(id, QString());
    case ContentKind::Timeline:
        return std::make_unique<timeline::Timeline>(id, QString());
    case ContentKind::TimelineEvent:
        return std::make_unique<timeline::TimelineEvent>(id, timeline::EventDetails());
    case ContentKind::Media:
        return std::make_unique<media::Media>(id, QString(), QString());
    case ContentKind::Source:
        return std::make_unique<research::Source>(id, research::SourceDetails());
    case ContentKind::Task:
        return std::make_unique<task::Task>(id, QString());
    case ContentKind::Canvas:
        return std::make_unique<canvas::Canvas>(id, QString());
    case ContentKind::Comment:
        return std::make_unique<research::Comment>(id, research::CommentTarget(), research::CommentDetails());
    case ContentKind::Language:
        return std::make_unique<conlang::Language>(id, QString());
    case ContentKind::RandomTable:
        return std::make_unique<ttrpg::RandomTable>(id, ttrpg::RandomTableDetails());
    case ContentKind::StatBlock:
        return std::make_unique<ttrpg::StatBlock>(id, ttrpg::StatBlockDetails());
    }
    return nullptr;
}

} // namespace tw::test
