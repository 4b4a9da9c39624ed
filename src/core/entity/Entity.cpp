#include "core/entity/Entity.h"

#include <algorithm>

namespace tw::core::entity {

TimedValues normalised(TimedValues values)
{
    std::erase_if(values, [](const auto& entry) { return entry.second.empty(); });
    for (auto& [key, list] : values)
        std::ranges::stable_sort(list, {}, &TimedValue::instant);
    return values;
}

Entity::Entity(ContentId id, CategoryId categoryId, QString name)
    : ContentObject(id, staticKind)
    , m_categoryId(categoryId)
    , m_name(std::move(name))
{}

Entity::~Entity() = default;

std::optional<QString> Entity::value(const QString& key) const
{
    const auto entry = m_values.find(key);
    if (entry == m_values.end())
        return std::nullopt;
    return entry->second;
}

void Entity::setValue(const QString& key, std::optional<QString> value)
{
    if (value)
        m_values.insert_or_assign(key, *std::move(value));
    else
        m_values.erase(key);
}

bool operator==(const Entity& left, const Entity& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_categoryId == right.m_categoryId && left.m_sortIndex == right.m_sortIndex &&
           left.m_name == right.m_name && left.m_values == right.m_values &&
           left.m_lifespan == right.m_lifespan && left.m_timedValues == right.m_timedValues &&
           left.m_aliases == right.m_aliases && left.m_gallery == right.m_gallery &&
           left.m_ownFields == right.m_ownFields;
}

} // namespace tw::core::entity
