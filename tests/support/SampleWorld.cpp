#include "support/SampleWorld.h"

#include "core/canvas/Canvas.h"
#include "core/chart/Chart.h"
#include "core/conlang/Language.h"
#include "core/document/Document.h"
#include "core/entity/Entity.h"
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

namespace tw::test {

using namespace Qt::Literals::StringLiterals;
using namespace core;
using project::Project;
using taxonomy::Category;
using taxonomy::Field;
using taxonomy::FieldType;

namespace {

QUuid numbered(int number)
{
    return QUuid(0x5eed0000U + static_cast<uint>(number), 0x1111, 0x4222, 0x80, 0, 0, 0, 0, 0, 0, 1);
}

ContentId object(int number)
{
    return ContentId(numbered(number));
}

Field field(const QString& key, const QString& label, FieldType type)
{
    Field made;
    made.key = key;
    made.label = label;
    made.type = type;
    return made;
}

void addCategories(Project& project, const SampleWorld& ids)
{
    Category characters{ids.characters, u"Characters"_s, {}, {}, {}, {}, 0, {}};
    characters.fields = {field(u"summary"_s, u"Summary"_s, FieldType::Text),
                         field(u"spouse"_s, u"Spouse"_s, FieldType::Reference),
                         field(u"rank"_s, u"Rank"_s, FieldType::Choice),
                         field(u"age"_s, u"Age"_s, FieldType::Number),
                         field(u"met"_s, u"First Met"_s, FieldType::Date),
                         field(u"alive"_s, u"Alive"_s, FieldType::Boolean)};
    characters.fields[2].options = {u"Captain"_s, u"Marda's guard"_s};
    Category nobles{ids.nobles, u"Nobles"_s, ids.characters, {}, {}, {u"age"_s}, 0, {}};
    nobles.fields = {field(u"liege"_s, u"Liege"_s, FieldType::Reference)};
    nobles.fields[0].isFixed = true;
    nobles.fields[0].fixedValue = ids.marda.toString();
    Category places{ids.places, u"Places"_s, {}, {}, {}, {}, 1, {}};
    places.fields = {
        field(u"summary"_s, u"Summary"_s, FieldType::Text), field(u"ruler"_s, u"Ruler"_s, FieldType::Text)};
    const Category cities{ids.cities, u"Cities"_s, {}, ids.vaertis, {u"ruler"_s}, {}, 0, {}};
    for (const Category& category : {characters, nobles, places, cities})
        project.taxonomyForEdit().insert(category);
}

std::unique_ptr<entity::Entity> entityNamed(
    const ContentId& id, const CategoryId& category, const QString& name, entity::FieldValues values)
{
    auto made = std::make_unique<entity::Entity>(id, category, name);
    made->setValues(std::move(values));
    return made;
}

void addEntities(Project& project, const SampleWorld& ids)
{
    auto marda = entityNamed(
        ids.marda, ids.characters, u"Marda"_s,
        {{u"summary"_s, u"Marda sails. MARDA drinks; Mardana does not."_s},
         {u"rank"_s, u"Captain"_s},
         {u"age"_s, u"41"_s},
         {u"met"_s, u"1250"_s}});
    marda->setAliases({u"Captain Marda"_s, u"The Gull"_s});
    marda->setTags({u"crew"_s});
    marda->setLifespan({0, std::nullopt});
    marda->setGallery({ids.portrait});
    marda->setTimedValues({{u"rank"_s, {{100, u"Marda's guard"_s}}}});
    project.insert(std::move(marda));

    auto mardana = entityNamed(
        ids.mardana, ids.characters, u"Mardana"_s, {{u"summary"_s, u"Lives with Marda's brother."_s}});
    mardana->setLifespan({std::nullopt, 5000});
    mardana->setTags({u"shore"_s});
    project.insert(std::move(mardana));

    auto tom = entityNamed(
        ids.tom, ids.nobles, u"Tom"_s,
        {{u"spouse"_s, ids.marda.toString() + u'\n' + ids.mardana.toString()}, {u"age"_s, u"old"_s}});
    tom->setTimedValues({{u"spouse"_s, {{10, ids.marda.toString()}, {20, ids.mardana.toString()}}}});
    project.insert(std::move(tom));

    project.insert(entityNamed(ids.vaertis, ids.places, u"Vaertis"_s, {{u"ruler"_s, u"Tom"_s}}));
    project.insert(entityNamed(ids.salthaven, ids.cities, u"Salthaven"_s, {{u"ruler"_s, u"Nobody"_s}}));
}

void addManuscript(Project& project, const SampleWorld& ids)
{
    auto chapter =
        std::make_unique<document::Document>(ids.chapter, document::DocumentKind::Prose, u"Marda at Sea"_s);
    chapter->setBody(
        {u"# Out\n\nThen *Marda* met [Marda]{.tw color=Marda glow} and Mardana.\n\n[Marda](entity:%1)"_s.arg(
            ids.marda.toString())});
    chapter->setSynopsis(u"Marda leaves."_s);
    chapter->setPointOfView(u"Marda"_s);
    chapter->setStatus(u"for Marda"_s);
    chapter->setVariants({{{u"Calm"_s, u"Marda stays."_s, document::BodyFormat::Markdown}}, {}});
    chapter->setVersions({{u"First"_s, u"2026-01-01T00:00:00Z"_s, u"Marda drowns."_s}});
    chapter->setFootnotes({{u"1"_s, u"Marda said so."_s, false}});
    project.insert(std::move(chapter));

    auto scene =
        std::make_unique<document::Document>(ids.scene, document::DocumentKind::Screenplay, u"The Quay"_s);
    scene->setParentId(ids.chapter);
    scene->setBody({u"EXT. QUAY\n\n_Marda_ waits.\n\nTOM\nMarda?"_s});
    project.insert(std::move(scene));
}

void addStory(Project& project, const SampleWorld& ids)
{
    const ContentId timelineId = object(60);
    project.insert(std::make_unique<timeline::Timeline>(timelineId, u"Voyages"_s));
    timeline::EventDetails details;
    details.timelineId = timelineId;
    details.title = u"Marda returns"_s;
    details.description = u"To Marda's house"_s;
    details.startMinute = 2000;
    details.participants = {ids.mardana, ids.marda};
    details.locationId = ids.marda;
    details.sceneIds = {ids.scene};
    project.insert(std::make_unique<timeline::TimelineEvent>(ids.event, details));

    auto map = std::make_unique<map::Map>(ids.map, u"Coast"_s);
    map->setPins({{u"Marda's Rest"_s, u"quiet"_s, ids.marda, {}, {}, {0.5, 0.5}}});
    map->setRegions({{u"Shoals"_s, {{0, 0}, {1, 0}, {1, 1}}, ids.marda, {}, {}, false, {}}});
    map->setTokens({{u"M"_s, {}, ids.marda, {0.1, 0.1}}});
    map->setRoutes({{ids.marda, ids.mardana, 3, {}}, {ids.marda, ids.vaertis, 5, {}}});
    project.insert(std::move(map));

    auto canvas = std::make_unique<canvas::Canvas>(ids.canvas, u"Board"_s);
    canvas->setCards({{ids.marda, 1, 2, 3, 4}, {ids.tom, 5, 6, 7, 8}});
    canvas->setConnections({{ids.marda, ids.tom, u"wed"_s}});
    project.insert(std::move(canvas));

    project.insert(std::make_unique<research::Comment>(
        ids.comment, research::CommentTarget{ids.marda, {}},
        research::CommentDetails{u"Ada"_s, u"Is Marda too old?"_s, {}, {}, false}));
    auto language = std::make_unique<conlang::Language>(ids.language, u"Gullish"_s);
    conlang::LanguageDetails spoken = language->details();
    spoken.speakerIds = {ids.marda, ids.tom};
    language->setDetails(spoken);
    project.insert(std::move(language));
    auto task = std::make_unique<task::Task>(ids.task, u"Interview Marda"_s);
    task->setTargetId(ids.marda);
    task->setDescription(u"Ask Marda about it"_s);
    project.insert(std::move(task));
    auto portrait = std::make_unique<media::Media>(ids.portrait, u"image"_s, u"assets/marda.png"_s);
    portrait->setCaption(u"Marda in oil"_s);
    project.insert(std::move(portrait));
}

void addOthers(Project& project)
{
    auto sheet = std::make_unique<spreadsheet::Spreadsheet>(object(70), u"Cargo of Marda"_s);
    sheet->setCell({0, 0}, {u"barrels of rum"_s, {}});
    project.insert(std::move(sheet));
    chart::ChartDetails chart;
    chart.title = u"Miles"_s;
    project.insert(std::make_unique<chart::Chart>(object(71), chart));
    project.insert(std::make_unique<research::Source>(
        object(72), research::SourceDetails{u"book"_s, u"Knots"_s, u"knots1"_s, {}}));
    project.insert(std::make_unique<ttrpg::RandomTable>(
        object(73), ttrpg::RandomTableDetails{u"Weather"_s, {{1, u"a squall"_s}}}));
    project.insert(std::make_unique<ttrpg::StatBlock>(
        object(74), ttrpg::StatBlockDetails{u"Kraken"_s, u"d20"_s, {}, {}, {}}));
}

void addProjectData(Project& project, const SampleWorld& ids)
{
    project.setName(u"Tides"_s);
    project.setAudiences({u"Players"_s, u"Editors"_s});
    project.setPinnedIds({ids.marda});
    project.setPlotThreads({{u"t1"_s, u"The fall of Marda"_s, u"How Marda fell"_s, ids.marda, {}}});
    project.setBeatSheet({u"three-act"_s, {{u"Hook"_s, ids.chapter}}});
    timeline::ContinuityRule rule;
    rule.name = u"Wed"_s;
    rule.entityId = ids.marda;
    rule.fieldKey = u"spouse"_s;
    rule.value = ids.marda.toString();
    project.setContinuityRules({rule});
    project.setEntityTemplates(
        {{u"Sailor"_s, ids.characters, {{u"spouse"_s, ids.marda.toString()}, {u"age"_s, u"20"_s}}}});
}

} // namespace

SampleWorld sampleWorldIds()
{
    return {
        .characters = CategoryId(numbered(1)),
        .nobles = CategoryId(numbered(2)),
        .places = CategoryId(numbered(3)),
        .cities = CategoryId(numbered(4)),
        .marda = object(10),
        .mardana = object(11),
        .tom = object(12),
        .vaertis = object(13),
        .salthaven = object(14),
        .chapter = object(20),
        .scene = object(21),
        .event = object(30),
        .map = object(31),
        .canvas = object(32),
        .comment = object(33),
        .language = object(34),
        .task = object(35),
        .portrait = object(36)};
}

void fillSampleWorld(Project& project)
{
    const SampleWorld ids = sampleWorldIds();
    addCategories(project, ids);
    addEntities(project, ids);
    addManuscript(project, ids);
    addStory(project, ids);
    addOthers(project);
    addProjectData(project, ids);
}

} // namespace tw::test
