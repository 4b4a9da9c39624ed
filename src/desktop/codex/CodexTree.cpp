#include "desktop/codex/CodexTree.h"

#include "core/entity/CategoryLinks.h"
#include "core/entity/Entity.h"

#include <algorithm>
#include <tuple>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Category;

namespace {

constexpr QLatin1StringView categoryPrefix{"category:"};
constexpr QLatin1StringView entityPrefix{"entity:"};
constexpr QLatin1StringView uncategorisedName{"uncategorised"};

struct EntityRow
{
    qint32 sortIndex;
    QCollatorSortKey name;
    ContentId id;
};

CodexItem itemOf(const core::entity::CategoryParent& parent)
{
    if (!parent.entityId.isNull())
        return CodexItem::entity(parent.entityId);
    return parent.categoryId.isNull() ? CodexItem() : CodexItem::category(parent.categoryId);
}

QHash<CodexItem, std::vector<const Category*>> categoriesByParent(const Project& project)
{
    const core::entity::CategoryLinks links(project);
    QHash<CodexItem, std::vector<const Category*>> result;
    for (const auto& [id, category] : project.taxonomy().categories())
        result[itemOf(links.parentOf(category))].push_back(&category);
    for (auto& siblings : result) {
        std::ranges::sort(siblings, [](const Category* left, const Category* right) {
            return std::tie(left->sortIndex, left->name, left->id) <
                   std::tie(right->sortIndex, right->name, right->id);
        });
    }
    return result;
}

/** By category; those without one, or of an unknown one, under the null id. */
QHash<CategoryId, std::vector<EntityRow>> entitiesByCategory(const Project& project, NameOrder& order)
{
    QHash<CategoryId, std::vector<EntityRow>> result;
    for (const Entity* const entity : core::project::objectsOf<Entity>(project)) {
        const bool isKnown = project.taxonomy().category(entity->categoryId()) != nullptr;
        result[isKnown ? entity->categoryId() : CategoryId()].push_back(
            {entity->sortIndex(), order.key(entity->name()), entity->id()});
    }
    for (auto& rows : result) {
        std::ranges::sort(rows, [](const EntityRow& left, const EntityRow& right) {
            if (left.sortIndex != right.sortIndex)
                return left.sortIndex < right.sortIndex;
            const int names = left.name.compare(right.name);
            return names == 0 ? left.id < right.id : names < 0;
        });
    }
    return result;
}

} // namespace

QString CodexItem::toString() const
{
    switch (kind) {
    case Kind::Category:
        return categoryPrefix + categoryId.toString();
    case Kind::Entity:
        return entityPrefix + entityId.toString();
    case Kind::Uncategorised:
        return uncategorisedName;
    case Kind::None:
        break;
    }
    return {};
}

CodexItem CodexItem::fromString(QStringView text)
{
    if (text == uncategorisedName)
        return uncategorised();
    if (text.startsWith(categoryPrefix)) {
        const auto id = CategoryId::fromString(text.mid(categoryPrefix.size()));
        return id.isNull() ? CodexItem() : category(id);
    }
    if (text.startsWith(entityPrefix)) {
        const auto id = ContentId::fromString(text.mid(entityPrefix.size()));
        return id.isNull() ? CodexItem() : entity(id);
    }
    return {};
}

NameOrder::NameOrder()
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    m_collator.setNumericMode(true);
}

QCollatorSortKey NameOrder::key(const QString& name)
{
    const auto known = m_keys.constFind(name);
    if (known != m_keys.cend())
        return *known;
    return *m_keys.insert(name, m_collator.sortKey(name));
}

CodexTree::CodexTree()
    : m_nodes(1)
{}

CodexTree::CodexTree(const Project& project, NameOrder& order)
    : m_nodes(1)
{
    const auto categories = categoriesByParent(project);
    const auto entities = entitiesByCategory(project, order);
    m_nodes.reserve(
        1 + project.taxonomy().categories().size() + 1 +
        project.objectsOfKind(core::content::ContentKind::Entity).size());

    const auto append = [this](std::size_t parent, const CodexItem& item) {
        m_indexes.insert(item, m_nodes.size());
        m_nodes.push_back({item, parent});
        ++m_nodes[parent].childCount;
    };
    const auto appendEntities = [&](std::size_t parent, const CategoryId& category) {
        if (const auto rows = entities.constFind(category); rows != entities.cend()) {
            for (const EntityRow& row : *rows)
                append(parent, CodexItem::entity(row.id));
        }
    };
    // Level by level, so that the children of a node stand together and no depth exhausts the stack.
    for (std::size_t index = 0; index < m_nodes.size(); ++index) {
        const CodexItem item = m_nodes[index].item;
        m_nodes[index].firstChild = m_nodes.size();
        if (item.kind == CodexItem::Kind::Uncategorised) {
            appendEntities(index, {});
            continue;
        }
        if (const auto children = categories.constFind(item); children != categories.cend()) {
            for (const Category* const category : *children)
                append(index, CodexItem::category(category->id));
        }
        if (item.isCategory())
            appendEntities(index, item.categoryId);
        else if (index == root && entities.contains(CategoryId()))
            append(index, CodexItem::uncategorised());
    }
    // Children stand behind their parents, so one way back adds everything up.
    for (std::size_t index = m_nodes.size() - 1; index > root; --index) {
        const Node& node = m_nodes[index];
        m_nodes[node.parent].entityCount += node.entityCount + (node.item.isEntity() ? 1 : 0);
    }
}

std::optional<std::size_t> CodexTree::find(const CodexItem& item) const
{
    const auto entry = m_indexes.constFind(item);
    return entry == m_indexes.cend() ? std::nullopt : std::optional(*entry);
}

int CodexTree::rowOf(std::size_t index) const
{
    return static_cast<int>(index - m_nodes[m_nodes[index].parent].firstChild);
}

} // namespace tw::desktop::codex
