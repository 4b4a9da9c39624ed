#include "app/persistence/codec/KindCodec.h"

#include "app/persistence/codec/FieldCodec.h"
#include "core/entity/Entity.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::entity::Entity;
using core::entity::Lifespan;
using core::entity::TimedValues;

/** One value over time as files have it; in memory the values of a key stand together. */
struct TimedValueRecord
{
    QString key;
    core::calendar::StoryInstant instant = 0;
    QString value;

    friend bool operator==(const TimedValueRecord&, const TimedValueRecord&) = default;
};

template <>
struct RecordOf<TimedValueRecord>
{
    static constexpr auto entries = std::tuple(
        always<Data<&TimedValueRecord::key>>("key"_L1),
        always<Data<&TimedValueRecord::instant>>("instant"_L1),
        always<Data<&TimedValueRecord::value>>("value"_L1));
};

struct TimedValueList
{
    static std::vector<TimedValueRecord> get(const Entity& entity)
    {
        std::vector<TimedValueRecord> records;
        for (const auto& [key, values] : entity.timedValues()) {
            for (const core::entity::TimedValue& value : values)
                records.push_back({key, value.instant, value.value});
        }
        return records;
    }
    static void edit(Entity& entity, auto change)
    {
        std::vector<TimedValueRecord> records;
        change(records);
        TimedValues values;
        for (TimedValueRecord& record : records)
            values[record.key].push_back({record.instant, std::move(record.value)});
        entity.setTimedValues(std::move(values));
    }
};

struct OwnFieldList
{
    static const core::taxonomy::FieldList& get(const Entity& entity) { return entity.ownFields(); }
    static void edit(Entity& entity, auto change)
    {
        core::taxonomy::FieldList fields = entity.ownFields();
        change(fields);
        core::taxonomy::keepFixedUnrequired(fields);
        entity.setOwnFields(std::move(fields));
    }
};

template <>
struct RecordOf<Entity>
{
    static constexpr auto entries = std::tuple(
        ifSet<Property<&Entity::categoryId, &Entity::setCategoryId>>("categoryId"_L1),
        always<Property<&Entity::name, &Entity::setName>>("name"_L1),
        ifSet<Property<&Entity::values, &Entity::setValues>>("values"_L1),
        ifSet<Part<&Entity::lifespan, &Entity::setLifespan, &Lifespan::birth>>("birthInstant"_L1),
        ifSet<Part<&Entity::lifespan, &Entity::setLifespan, &Lifespan::death>>("deathInstant"_L1),
        ifSet<TimedValueList>("timedValues"_L1),
        always<Property<&Entity::sortIndex, &Entity::setSortIndex>>("sortIndex"_L1),
        ifSet<Property<&Entity::aliases, &Entity::setAliases>>("aliases"_L1),
        ifSet<Property<&Entity::gallery, &Entity::setGallery>>("gallery"_L1),
        ifSet<OwnFieldList>("ownFields"_L1));
};

KindCodec entityCodec()
{
    return objectKindCodec<Entity, [](const core::ContentId& id) {
        return std::make_unique<Entity>(id, core::CategoryId(), QString());
    }>();
}

} // namespace tw::app::persistence
