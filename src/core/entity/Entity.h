#pragma once

#include "core/calendar/Calendar.h"
#include "core/content/ContentObject.h"
#include "core/taxonomy/Field.h"

#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace tw::core::entity {

/** A value that holds from a story instant on. */
struct TimedValue
{
    calendar::StoryInstant instant = 0;
    QString value;

    friend bool operator==(const TimedValue&, const TimedValue&) = default;
};

/** Field key to value text. An absent key is unset, which differs from empty. */
using FieldValues = std::map<QString, QString>;
/** Field key to the values over time, sorted by instant; equal instants keep their order. */
using TimedValues = std::map<QString, std::vector<TimedValue>>;

/** Sorts every list by instant, stably, and drops empty lists. */
[[nodiscard]] TimedValues normalised(TimedValues values);

struct Lifespan
{
    std::optional<calendar::StoryInstant> birth;
    std::optional<calendar::StoryInstant> death;

    friend bool operator==(const Lifespan&, const Lifespan&) = default;
};

/** A thing of the invented world: a person, a place, a ship. Its category gives it fields, it fills them. */
class Entity final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Entity;

    Entity(ContentId id, CategoryId categoryId, QString name);
    ~Entity() override;

    /** Null for an uncategorised entity. */
    [[nodiscard]] const CategoryId& categoryId() const { return m_categoryId; }
    void setCategoryId(CategoryId id) { m_categoryId = id; }

    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(QString name) { m_name = std::move(name); }

    /** Also holds values whose field no longer reaches the entity: hidden, never deleted. */
    [[nodiscard]] const FieldValues& values() const { return m_values; }
    void setValues(FieldValues values) { m_values = std::move(values); }
    /** The stored value of a key; none when it is unset. */
    [[nodiscard]] std::optional<QString> value(const QString& key) const;
    /** Stores a value, or makes the key unset. */
    void setValue(const QString& key, std::optional<QString> value);

    [[nodiscard]] const Lifespan& lifespan() const { return m_lifespan; }
    void setLifespan(Lifespan lifespan) { m_lifespan = lifespan; }

    [[nodiscard]] const TimedValues& timedValues() const { return m_timedValues; }
    void setTimedValues(TimedValues values) { m_timedValues = normalised(std::move(values)); }

    [[nodiscard]] qint32 sortIndex() const { return m_sortIndex; }
    void setSortIndex(qint32 index) { m_sortIndex = index; }

    [[nodiscard]] const QStringList& aliases() const { return m_aliases; }
    void setAliases(QStringList aliases) { m_aliases = std::move(aliases); }

    /** Media objects, in order. */
    [[nodiscard]] const std::vector<ContentId>& gallery() const { return m_gallery; }
    void setGallery(std::vector<ContentId> media) { m_gallery = std::move(media); }

    /** Fields that belong to this entity alone. */
    [[nodiscard]] const taxonomy::FieldList& ownFields() const { return m_ownFields; }
    void setOwnFields(taxonomy::FieldList fields) { m_ownFields = std::move(fields); }

    friend bool operator==(const Entity& left, const Entity& right);

private:
    CategoryId m_categoryId;
    qint32 m_sortIndex = 0;
    QString m_name;
    FieldValues m_values;
    Lifespan m_lifespan;
    TimedValues m_timedValues;
    QStringList m_aliases;
    std::vector<ContentId> m_gallery;
    taxonomy::FieldList m_ownFields;
};

} // namespace tw::core::entity
