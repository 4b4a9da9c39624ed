#include "core/taxonomy/Taxonomy.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>
#include <tuple>

namespace tw::core::taxonomy {

namespace {

Failure failure(const char* text)
{
    return Failure{QCoreApplication::translate("Taxonomy", text)};
}

} // namespace

const Category* Taxonomy::category(const CategoryId& id) const
{
    const auto entry = m_categories.find(id);
    return entry == m_categories.end() ? nullptr : &entry->second;
}

Category* Taxonomy::categoryForEdit(const CategoryId& id)
{
    const auto entry = m_categories.find(id);
    return entry == m_categories.end() ? nullptr : &entry->second;
}

void Taxonomy::insert(Category category)
{
    const CategoryId id = category.id;
    m_categories.insert_or_assign(id, std::move(category));
}

void Taxonomy::remove(const CategoryId& id)
{
    m_categories.erase(id);
}

std::vector<CategoryId> Taxonomy::ancestorChain(const CategoryId& id) const
{
    std::vector<CategoryId> chain;
    std::set<CategoryId> visited;
    const Category* current = category(id);
    while (current && visited.insert(current->id).second) {
        chain.push_back(current->id);
        current = current->parentId.isNull() ? nullptr : category(current->parentId);
    }
    std::ranges::reverse(chain);
    return chain;
}

FieldList Taxonomy::effectiveFields(const CategoryId& id) const
{
    FieldList result;
    for (const CategoryId& ancestor : ancestorChain(id)) {
        for (const Field& field : m_categories.at(ancestor).fields) {
            const auto known = std::ranges::find(result, field.key, &Field::key);
            if (known == result.end())
                result.push_back(field);
            else
                *known = field;
        }
    }
    return result;
}

std::vector<CategoryId> Taxonomy::categoriesDefining(const CategoryId& id, QStringView key) const
{
    std::vector<CategoryId> chain = ancestorChain(id);
    std::erase_if(chain, [this, key](const CategoryId& ancestor) {
        return !indexOfField(m_categories.at(ancestor), key);
    });
    return chain;
}

template <class Predicate>
std::vector<CategoryId> Taxonomy::sortedSiblings(Predicate isSibling) const
{
    std::vector<const Category*> siblings;
    for (const auto& [id, category] : m_categories) {
        if (isSibling(category))
            siblings.push_back(&category);
    }
    std::ranges::sort(siblings, [](const Category* left, const Category* right) {
        return std::tie(left->sortIndex, left->name, left->id) <
               std::tie(right->sortIndex, right->name, right->id);
    });
    std::vector<CategoryId> ids;
    ids.reserve(siblings.size());
    for (const Category* category : siblings)
        ids.push_back(category->id);
    return ids;
}

std::vector<CategoryId> Taxonomy::childrenOf(const CategoryId& parentId) const
{
    return sortedSiblings([&parentId](const Category& category) {
        return category.parentId == parentId && category.parentEntityId.isNull();
    });
}

std::vector<CategoryId> Taxonomy::childrenUnderEntity(const ContentId& entityId) const
{
    return sortedSiblings([&entityId](const Category& category) {
        return !entityId.isNull() && category.parentEntityId == entityId;
    });
}

bool Taxonomy::isSameOrBeneath(const CategoryId& id, const CategoryId& ancestorId) const
{
    const std::vector<CategoryId> chain = ancestorChain(id);
    return std::ranges::find(chain, ancestorId) != chain.end();
}

Result<void> Taxonomy::checkReparent(const CategoryId& id, const CategoryId& newParentId) const
{
    if (!category(id))
        return failure(QT_TRANSLATE_NOOP("Taxonomy", "Cannot reparent an unknown category."));
    if (newParentId.isNull())
        return {};
    if (!category(newParentId))
        return failure(QT_TRANSLATE_NOOP("Taxonomy", "Cannot reparent under an unknown category."));
    if (isSameOrBeneath(newParentId, id))
        return failure(QT_TRANSLATE_NOOP("Taxonomy", "Reparenting there would create a cycle."));
    return {};
}

Result<void> Taxonomy::reparent(const CategoryId& id, const CategoryId& newParentId)
{
    if (auto checked = checkReparent(id, newParentId); !checked)
        return checked;
    Category& moved = m_categories.at(id);
    moved.parentId = newParentId;
    moved.parentEntityId = {};
    return {};
}

std::optional<std::size_t> indexOfField(const Category& category, QStringView key)
{
    const auto field = findField(category.fields, key);
    if (field == category.fields.end())
        return std::nullopt;
    return static_cast<std::size_t>(field - category.fields.begin());
}

} // namespace tw::core::taxonomy
