#include "desktop/fields/EntityChoices.h"

#include "core/entity/Schema.h"

#include <QCollator>

#include <algorithm>
#include <set>

namespace tw::desktop::fields {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::project::Project;

namespace {

std::set<CategoryId> categoriesBeneath(const Project& project, const CategoryId& ancestorId)
{
    std::set<CategoryId> result;
    for (const auto& [id, category] : project.taxonomy().categories()) {
        if (core::entity::isCategoryBeneath(project, id, ancestorId))
            result.insert(id);
    }
    return result;
}

} // namespace

std::vector<EntityChoice> entityChoices(const Project& project, const CategoryId& beneathId)
{
    // A category that is gone restricts nothing: better too many choices than none.
    const bool isRestricted = project.taxonomy().category(beneathId) != nullptr;
    const std::set<CategoryId> allowed =
        isRestricted ? categoriesBeneath(project, beneathId) : std::set<CategoryId>();
    std::vector<EntityChoice> choices;
    for (const Entity* const entity : core::project::objectsOf<Entity>(project)) {
        if (isRestricted && !allowed.contains(entity->categoryId()))
            continue;
        choices.push_back({entity->id(), entity->name(), entity->name()});
        for (const QString& alias : entity->aliases())
            choices.push_back({entity->id(), alias, alias + u" — "_s + entity->name()});
    }
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, std::size_t>> order;
    order.reserve(choices.size());
    for (std::size_t index = 0; index < choices.size(); ++index)
        order.emplace_back(collator.sortKey(choices[index].text), index);
    std::ranges::sort(order, [](const auto& left, const auto& right) {
        const int texts = left.first.compare(right.first);
        return texts == 0 ? left.second < right.second : texts < 0;
    });
    std::vector<EntityChoice> sorted;
    sorted.reserve(choices.size());
    for (const auto& [key, index] : order)
        sorted.push_back(std::move(choices[index]));
    return sorted;
}

ContentId findEntityNamed(const std::vector<EntityChoice>& choices, const QString& name)
{
    ContentId found;
    for (const EntityChoice& choice : choices) {
        const bool isNamed = choice.name.compare(name, Qt::CaseInsensitive) == 0 ||
                             choice.text.compare(name, Qt::CaseInsensitive) == 0;
        if (!isNamed || choice.id == found)
            continue;
        if (!found.isNull())
            return {};
        found = choice.id;
    }
    return found;
}

void EntityChoiceModel::setChoices(std::vector<EntityChoice> choices)
{
    beginResetModel();
    m_choices = std::move(choices);
    endResetModel();
}

int EntityChoiceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_choices.size());
}

QVariant EntityChoiceModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= m_choices.size())
        return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return m_choices[row].text;
    return role == idRole ? QVariant(m_choices[row].id.toString()) : QVariant();
}

} // namespace tw::desktop::fields
