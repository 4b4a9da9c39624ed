#include "core/entity/CategoryLinks.h"

#include "core/entity/Entity.h"

namespace tw::core::entity {

using taxonomy::Category;

CategoryLinks::CategoryLinks(const project::Project& project)
    : m_project(project)
{
    for (const auto& [id, category] : project.taxonomy().categories())
        findLoop(category);
}

CategoryParent CategoryLinks::parentOf(const Category& category) const
{
    if (m_loopHeads.contains(category.id))
        return {};
    if (m_project.findAs<Entity>(category.parentEntityId))
        return {{}, category.parentEntityId};
    if (m_project.taxonomy().category(category.parentId))
        return {category.parentId, {}};
    return {};
}

std::vector<CategoryId> CategoryLinks::strays() const
{
    std::vector<CategoryId> strays;
    for (const auto& [id, category] : m_project.taxonomy().categories()) {
        const bool saysOtherwise = !category.parentId.isNull() || !category.parentEntityId.isNull();
        if (saysOtherwise && parentOf(category).isNull())
            strays.push_back(id);
    }
    return strays;
}

/** Walks up to where the way is known; a category met twice on one walk heads its loop. */
void CategoryLinks::findLoop(const Category& start)
{
    std::vector<CategoryId> way;
    const Category* current = &start;
    while (current && !m_walked.contains(current->id)) {
        m_walked.insert(current->id, Walk::OnTheWay);
        way.push_back(current->id);
        current = categoryAbove(*current);
    }
    if (current && m_walked.value(current->id) == Walk::OnTheWay)
        m_loopHeads.insert(current->id);
    for (const CategoryId& id : way)
        m_walked.insert(id, Walk::Done);
}

const Category* CategoryLinks::categoryAbove(const Category& category) const
{
    const CategoryParent parent = parentOf(category);
    const auto* const entity = m_project.findAs<Entity>(parent.entityId);
    return m_project.taxonomy().category(entity ? entity->categoryId() : parent.categoryId);
}

} // namespace tw::core::entity
