#include "bench/GeneratedWorld.h"

#include "core/canvas/Canvas.h"
#include "core/map/Map.h"
#include "core/media/Media.h"
#include "core/research/Comment.h"
#include "core/research/Source.h"
#include "core/task/Task.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

using core::ContentId;
using core::content::ContentKind;

namespace {

void addComments(GeneratedWorld& world)
{
    using namespace core::research;
    const std::vector<ContentId>& ids = world.ids(ContentKind::Comment);
    for (std::size_t index = 0; index < ids.size(); ++index) {
        const ContentKind commented = world.random.chance(60) ? ContentKind::Document : ContentKind::Entity;
        const QString created = world.time();
        auto comment = std::make_unique<Comment>(
            ids[index],
            CommentTarget{world.anyId(commented), world.language.phrase(world.random.count(2, 8))},
            CommentDetails{
                world.language.name(), world.language.sentences(world.random.count(8, 90)), created, created,
                world.random.chance(50)});
        if (index > 0 && world.random.chance(30))
            comment->setParentId(
                ids[static_cast<std::size_t>(world.random.below(static_cast<qint64>(index)))]);
        world.add(std::move(comment));
    }
}

void addSources(GeneratedWorld& world)
{
    using namespace core::research;
    static const std::vector<QString> types{u"book"_s, u"article"_s, u"web"_s, u"interview"_s};
    for (const ContentId& id : world.ids(ContentKind::Source)) {
        SourceDetails source;
        source.sourceType = world.random.oneOf(types);
        source.title = world.language.phrase(world.random.count(3, 9));
        source.citationKey = world.language.word() + QString::number(world.random.between(1800, 2025));
        source.fields = {
            {u"author"_s, world.language.name()},
            {u"year"_s, QString::number(world.random.between(1800, 2025))},
            {u"publisher"_s, world.language.name()},
            {u"pages"_s, QString::number(world.random.between(1, 400))},
            {u"abstract"_s, world.language.sentences(world.random.count(40, 160))}};
        world.add(std::make_unique<Source>(id, std::move(source)));
    }
}

void addTasks(GeneratedWorld& world)
{
    using namespace core::task;
    static const std::vector<QString> statuses{u"To do"_s, u"Doing"_s, u"Waiting"_s, u"Done"_s};
    qint32 sortIndex = 0;
    for (const ContentId& id : world.ids(ContentKind::Task)) {
        auto task = std::make_unique<Task>(id, world.language.phrase(world.random.count(3, 9)));
        task->setDescription(world.language.sentences(world.random.count(10, 80)));
        task->setDone(world.random.chance(40));
        task->setPriority(static_cast<TaskPriority>(world.random.below(4)));
        task->setStatus(world.random.oneOf(statuses));
        task->setSortIndex(sortIndex++);
        if (world.random.chance(30))
            task->setBoard(world.tag());
        if (world.random.chance(40))
            task->setDueDate(world.day());
        if (world.random.chance(60))
            task->setTargetId(world.anyId(ContentKind::Document));
        if (world.random.chance(3)) {
            task->setSubmission(
                Submission{world.language.name(), u"query"_s, world.day(), world.language.sentences(12)});
        }
        world.add(std::move(task));
    }
}

void addMedia(GeneratedWorld& world)
{
    using namespace core::media;
    for (const ContentId& id : world.ids(ContentKind::Media)) {
        auto media = std::make_unique<Media>(
            id, u"image"_s,
            u"assets/"_s + world.language.word() + QString::number(world.random.below(10'000)) + u".png"_s);
        media->setCaption(world.language.sentences(world.random.count(5, 60)));
        std::vector<MediaAnnotation> annotations;
        for (int count = world.random.count(0, 4); count > 0; --count)
            annotations.push_back({u"note"_s, world.color(), world.language.sentences(12)});
        media->setAnnotations(std::move(annotations));
        if (world.random.chance(20))
            media->setCrop(MediaCrop{world.random.fraction() / 2, world.random.fraction() / 2, 0.5, 0.5});
        world.add(std::move(media));
    }
}

core::map::MapPoint point(GeneratedWorld& world)
{
    return {world.random.fraction(), world.random.fraction()};
}

void addMap(GeneratedWorld& world, const ContentId& id)
{
    using namespace core::map;
    auto map = std::make_unique<Map>(id, world.language.name());
    map->setImageAssetPath(u"assets/"_s + world.language.word() + u".png"_s);
    std::vector<MapPin> pins;
    for (int count = world.random.count(10, 40); count > 0; --count) {
        pins.push_back(
            {world.language.name(),
             world.language.sentences(10),
             world.anyId(ContentKind::Entity),
             {},
             world.tag(),
             point(world)});
    }
    map->setPins(std::move(pins));
    std::vector<MapRegion> regions;
    for (int count = world.random.count(2, 6); count > 0; --count) {
        MapRegion region;
        region.label = world.language.name();
        for (int corner = world.random.count(5, 20); corner > 0; --corner)
            region.points.push_back(point(world));
        region.linkedEntityId = world.anyId(ContentKind::Entity);
        region.isRevealed = world.random.chance(50);
        region.color = world.color();
        regions.push_back(std::move(region));
    }
    map->setRegions(std::move(regions));
    std::vector<MapRoute> routes;
    for (int count = world.random.count(3, 12); count > 0; --count) {
        routes.push_back(
            {world.anyId(ContentKind::Entity),
             world.anyId(ContentKind::Entity),
             static_cast<double>(world.random.between(5, 900)),
             {}});
    }
    map->setRoutes(std::move(routes));
    map->setTokens({{world.language.name(), world.color(), world.anyId(ContentKind::Entity), point(world)}});
    map->setGrid({GridKind::Square, 24});
    map->setTravelSettings({4.5, u"miles"_s, 640.0});
    world.add(std::move(map));
}

void addCanvas(GeneratedWorld& world, const ContentId& id)
{
    using namespace core::canvas;
    auto canvas = std::make_unique<Canvas>(id, world.language.name());
    std::vector<CanvasCard> cards;
    for (const ContentId& entity : world.someIds(ContentKind::Entity, 8, 40)) {
        cards.push_back(
            {entity, static_cast<double>(world.random.between(-2000, 2000)),
             static_cast<double>(world.random.between(-2000, 2000)), 220, 140});
    }
    std::vector<CanvasConnection> connections;
    for (std::size_t index = 1; index < cards.size(); ++index)
        connections.push_back({cards[index - 1].objectId, cards[index].objectId, world.language.word()});
    canvas->setCards(std::move(cards));
    canvas->setConnections(std::move(connections));
    world.add(std::move(canvas));
}

} // namespace

void addResearch(GeneratedWorld& world)
{
    addComments(world);
    addSources(world);
    addTasks(world);
}

void addPictures(GeneratedWorld& world)
{
    addMedia(world);
    for (const ContentId& id : world.ids(ContentKind::Map))
        addMap(world, id);
    for (const ContentId& id : world.ids(ContentKind::Canvas))
        addCanvas(world, id);
}

} // namespace tw::bench
