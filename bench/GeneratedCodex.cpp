#include "bench/GeneratedWorld.h"

#include "core/entity/Entity.h"
#include "core/timeline/Timeline.h"
#include "core/timeline/TimelineEvent.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

using core::CategoryId;
using core::ContentId;
using core::content::ContentKind;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldType;

namespace {

constexpr int entitiesInCategory = 150;
constexpr std::size_t topCategories = 10;

Field makeField(GeneratedWorld& world, const CategoryId& referenceCategory)
{
    Field field;
    field.label = world.language.phrase(world.random.count(1, 2));
    field.key = world.language.word() + QString::number(world.random.below(1000));
    field.type = static_cast<FieldType>(world.random.below(7));
    field.isRequired = world.random.chance(10);
    if (world.random.chance(30))
        field.description = world.language.sentences(world.random.count(6, 15));
    if (field.type == FieldType::Choice) {
        for (int count = world.random.count(3, 7); count > 0; --count)
            field.options.append(world.language.word());
    }
    if (field.type == FieldType::Reference && world.random.chance(50))
        field.referenceCategory = referenceCategory;
    return field;
}

std::vector<CategoryId> addCategories(GeneratedWorld& world)
{
    const auto count = std::max(topCategories, world.ids(ContentKind::Entity).size() / entitiesInCategory);
    std::vector<CategoryId> ids;
    for (std::size_t index = 0; index < count; ++index) {
        Category category;
        category.id = world.random.id<CategoryId>();
        category.name = world.language.name();
        category.sortIndex = static_cast<qint32>(index);
        // Below the top, the first half takes children: the tree becomes four or five levels deep.
        if (index >= topCategories)
            category.parentId = ids[static_cast<std::size_t>(world.random.below((std::ssize(ids) + 1) / 2))];
        const int fields = index < topCategories ? world.random.count(5, 8) : world.random.count(1, 3);
        for (int field = 0; field < fields; ++field)
            category.fields.push_back(makeField(world, ids.empty() ? category.id : world.random.oneOf(ids)));
        ids.push_back(category.id);
        world.project.taxonomyForEdit().insert(std::move(category));
    }
    return ids;
}

QString makeValue(GeneratedWorld& world, const Field& field)
{
    switch (field.type) {
    case FieldType::Text:
        return world.language.sentences(world.random.count(4, 24));
    case FieldType::Number:
        return QString::number(world.random.between(0, 5000));
    case FieldType::Boolean:
        return world.random.chance(50) ? u"true"_s : u"false"_s;
    case FieldType::Date:
        return QString::number(world.instant());
    case FieldType::Reference: {
        QStringList ids;
        for (const ContentId& id : world.someIds(ContentKind::Entity, 1, 3))
            ids.append(id.toString());
        return ids.join(u'\n');
    }
    case FieldType::Choice:
        return field.options.at(world.random.below(field.options.size()));
    case FieldType::Url:
        return u"https://example.org/"_s + world.language.word();
    }
    Q_UNREACHABLE();
}

void fillValues(GeneratedWorld& world, core::entity::Entity& entity)
{
    core::entity::FieldValues values;
    core::entity::TimedValues timedValues;
    for (const Field& field : world.project.taxonomy().effectiveFields(entity.categoryId())) {
        if (world.random.chance(85))
            values.insert_or_assign(field.key, makeValue(world, field));
        if (world.random.chance(3)) {
            for (int count = world.random.count(1, 4); count > 0; --count)
                timedValues[field.key].push_back({world.instant(), makeValue(world, field)});
        }
    }
    entity.setValues(std::move(values));
    entity.setTimedValues(std::move(timedValues));
}

void addEntities(GeneratedWorld& world, const std::vector<CategoryId>& categories)
{
    qint32 sortIndex = 0;
    for (const ContentId& id : world.ids(ContentKind::Entity)) {
        auto entity =
            std::make_unique<core::entity::Entity>(id, world.random.oneOf(categories), world.language.name());
        fillValues(world, *entity);
        if (world.random.chance(60)) {
            const qint64 birth = world.instant();
            entity->setLifespan({birth, birth + world.random.between(1'000'000, 50'000'000)});
        }
        entity->setSortIndex(sortIndex++);
        QStringList aliases;
        for (int count = world.random.count(0, 2); count > 0; --count)
            aliases.append(world.language.name());
        entity->setAliases(std::move(aliases));
        if (world.random.chance(10))
            entity->setGallery(world.someIds(ContentKind::Media, 1, 4));
        if (world.random.chance(5))
            entity->setOwnFields({makeField(world, entity->categoryId())});
        world.add(std::move(entity));
    }
}

core::timeline::EventDetails makeEvent(GeneratedWorld& world, std::size_t index)
{
    using namespace core::timeline;
    static const std::vector<QString> qualifiers{u"circa"_s, u"before"_s, u"after"_s};
    const std::vector<ContentId>& ids = world.ids(ContentKind::TimelineEvent);
    const auto earlier = [&] {
        return ids[static_cast<std::size_t>(world.random.below(static_cast<qint64>(index)))];
    };
    EventDetails event;
    event.timelineId = world.anyId(ContentKind::Timeline);
    event.title = world.language.phrase(world.random.count(2, 7));
    event.startMinute = world.instant();
    event.durationMinutes = world.random.chance(40) ? 0 : world.random.between(30, 200'000);
    event.ordinal = static_cast<qint32>(index);
    if (world.random.chance(12))
        event.dateQualifier = world.random.oneOf(qualifiers);
    event.participants = world.someIds(ContentKind::Entity, 0, 6);
    if (world.random.chance(80))
        event.locationId = world.anyId(ContentKind::Entity);
    if (index > 0 && world.random.chance(10))
        event.parentId = earlier();
    if (index > 0 && world.random.chance(15))
        event.constraints.push_back({earlier(), static_cast<ConstraintKind>(world.random.below(3))});
    if (world.random.chance(20))
        event.sceneIds = world.someIds(ContentKind::Document, 1, 2);
    event.description = world.language.sentences(world.random.count(10, 120));
    if (world.random.chance(30))
        event.styleColor = world.color();
    if (world.random.chance(20))
        event.styleLabel = world.tag();
    if (world.random.chance(30))
        event.layer = world.tag();
    return event;
}

} // namespace

void addCodex(GeneratedWorld& world)
{
    addEntities(world, addCategories(world));
}

void addTimelines(GeneratedWorld& world)
{
    using namespace core::timeline;
    qint32 sortIndex = 0;
    for (const ContentId& id : world.ids(ContentKind::Timeline)) {
        auto timeline = std::make_unique<Timeline>(id, world.language.name());
        timeline->setDescription(world.language.sentences(25));
        timeline->setSortIndex(sortIndex++);
        world.add(std::move(timeline));
    }
    const std::vector<ContentId>& events = world.ids(ContentKind::TimelineEvent);
    for (std::size_t index = 0; index < events.size(); ++index)
        world.add(std::make_unique<TimelineEvent>(events[index], makeEvent(world, index)));
}

} // namespace tw::bench
