#include "desktop/codex/CodexModel.h"

#include "core/entity/Schema.h"
#include "desktop/codex/CategoryPaths.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/trees/TreeRoles.h"

#include <QLocale>
#include <QMimeData>

#include <algorithm>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::entity::Entity;
using core::project::ProjectChanges;
using icons::Icon;
using Kind = CodexItem::Kind;

namespace {

const QString itemMimeType = u"application/x-vellory-codex-node"_s;

} // namespace

CodexModel::CodexModel(const shell::DeskContext& desk, QObject* parent)
    : QAbstractItemModel(parent)
    , m_desk(desk)
    , m_categoryIcon(desk.icons.icon(Icon::Category))
    , m_categoryUnderEntityIcon(desk.icons.icon(Icon::CategoryUnderEntity))
    , m_entityIcon(desk.icons.icon(Icon::Entity))
{
    connect(&desk.session, &shell::ProjectSession::changed, this, &CodexModel::followChanges);
    takeTree(CodexTree(desk.session.project(), m_order));
}

void CodexModel::takeTree(CodexTree tree)
{
    m_tree = std::move(tree);
    m_places.clear();
    for (const Entity* const entity : core::project::objectsOf<Entity>(m_desk.session.project()))
        m_places.insert(entity->id(), {entity->categoryId(), entity->sortIndex(), entity->name()});
}

void CodexModel::followChanges(const ProjectChanges& changes)
{
    if (changes.isEverything || mayMoveRows(changes)) {
        CodexTree tree(m_desk.session.project(), m_order);
        if (changes.isEverything || tree != m_tree) {
            beginResetModel();
            takeTree(std::move(tree));
            endResetModel();
            return;
        }
        takeTree(std::move(tree));
    }
    announceRows(changes);
}

bool CodexModel::mayMoveRows(const ProjectChanges& changes) const
{
    if (changes.isTaxonomyChanged)
        return true;
    const auto& project = m_desk.session.project();
    const auto stands = [this](const ContentId& id) { return m_places.contains(id); };
    const auto arrives = [&](const ContentId& id) { return project.findAs<Entity>(id) != nullptr; };
    const auto moves = [&](const ContentId& id) {
        const auto* const entity = project.findAs<Entity>(id);
        const auto place = m_places.constFind(id);
        return entity && (place == m_places.cend() ||
                          *place != EntityPlace{entity->categoryId(), entity->sortIndex(), entity->name()});
    };
    return std::ranges::any_of(changes.removed, stands) || std::ranges::any_of(changes.added, arrives) ||
           std::ranges::any_of(changes.changed, moves);
}

void CodexModel::announceRows(const ProjectChanges& changes)
{
    if (changes.isTaxonomyChanged)
        announceCategories();
    for (const ContentId& id : changes.changed) {
        if (const QModelIndex index = indexOf(CodexItem::entity(id)); index.isValid())
            emit dataChanged(index, index);
    }
}

void CodexModel::announceCategories()
{
    for (std::size_t index = 0; index < m_tree.nodeCount(); ++index) {
        const CodexTree::Node& node = m_tree.node(index);
        // Categories stand before entities, so they are one run of rows.
        std::size_t count = 0;
        while (count < node.childCount && m_tree.node(node.firstChild + count).item.isCategory())
            ++count;
        if (count > 0)
            emit dataChanged(indexOfNode(node.firstChild), indexOfNode(node.firstChild + count - 1));
    }
}

std::size_t CodexModel::nodeAt(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<std::size_t>(index.internalId()) : CodexTree::root;
}

QModelIndex CodexModel::indexOfNode(std::size_t node) const
{
    return node == CodexTree::root ? QModelIndex() : createIndex(m_tree.rowOf(node), 0, quintptr(node));
}

CodexItem CodexModel::itemAt(const QModelIndex& index) const
{
    return m_tree.node(nodeAt(index)).item;
}

QModelIndex CodexModel::indexOf(const CodexItem& item) const
{
    const auto node = m_tree.find(item);
    return node ? indexOfNode(*node) : QModelIndex();
}

QModelIndex CodexModel::index(int row, int column, const QModelIndex& parent) const
{
    const CodexTree::Node& node = m_tree.node(nodeAt(parent));
    if (column != 0 || row < 0 || static_cast<std::size_t>(row) >= node.childCount)
        return {};
    return createIndex(row, 0, quintptr(node.firstChild + static_cast<std::size_t>(row)));
}

QModelIndex CodexModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? indexOfNode(m_tree.node(nodeAt(child)).parent) : QModelIndex();
}

int CodexModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(m_tree.node(nodeAt(parent)).childCount);
}

int CodexModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QString CodexModel::name(const CodexItem& item) const
{
    const auto& project = m_desk.session.project();
    if (const auto* const entity = project.findAs<Entity>(item.entityId))
        return shell::objectTitle(*entity);
    if (const auto* const category = project.taxonomy().category(item.categoryId))
        return shell::shownName(category->name);
    return item.kind == Kind::Uncategorised ? tr("Uncategorised") : QString();
}

QString CodexModel::toolTip(const CodexItem& item) const
{
    const auto& project = m_desk.session.project();
    const auto* const entity = project.findAs<Entity>(item.entityId);
    if (entity && !entity->aliases().isEmpty())
        return tr("%1, also called %2").arg(name(item), entity->aliases().join(u", "_s));
    if (item.isCategory())
        return categoryPath(project, item.categoryId);
    return item.kind == Kind::Uncategorised ? tr("Entities without a category") : name(item);
}

QVariant CodexModel::icon(std::size_t node) const
{
    const CodexTree::Node& row = m_tree.node(node);
    if (row.item.isEntity())
        return m_entityIcon;
    return m_tree.node(row.parent).item.isEntity() ? m_categoryUnderEntityIcon : m_categoryIcon;
}

QVariant CodexModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const CodexTree::Node& node = m_tree.node(nodeAt(index));
    switch (role) {
    case Qt::DisplayRole:
        return name(node.item);
    case Qt::EditRole:
        // A thing without a name is not named after the word that stands in for it.
        if (const auto* const entity = m_desk.session.project().findAs<Entity>(node.item.entityId))
            return entity->name();
        return name(node.item);
    case Qt::ToolTipRole:
        return toolTip(node.item);
    case Qt::DecorationRole:
        return icon(nodeAt(index));
    case trees::IdRole:
        return node.item.toString();
    case trees::CountRole:
        return node.item.isEntity() ? QVariant() : QVariant(QLocale().toString(node.entityCount));
    default:
        return {};
    }
}

bool CodexModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return false;
    const CodexItem item = itemAt(index);
    if (item.isEntity())
        return renameEntity(m_desk.session, item.entityId, value.toString());
    return item.isCategory() && renameCategory(m_desk.session, item.categoryId, value.toString());
}

Qt::ItemFlags CodexModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const CodexTree::Node& node = m_tree.node(nodeAt(index));
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
    if (node.childCount == 0)
        flags |= Qt::ItemNeverHasChildren;
    const auto* const entity = m_desk.session.project().findAs<Entity>(node.item.entityId);
    if (node.item.isCategory() || entity)
        flags |= Qt::ItemIsDragEnabled;
    if (node.item.isCategory() || (entity && !entity->isLocked()))
        flags |= Qt::ItemIsEditable;
    return flags;
}

Qt::DropActions CodexModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList CodexModel::mimeTypes() const
{
    return {itemMimeType};
}

QMimeData* CodexModel::mimeData(const QModelIndexList& indexes) const
{
    QStringList items;
    for (const QModelIndex& index : indexes)
        items.append(itemAt(index).toString());
    auto* const data = new QMimeData;
    data->setData(itemMimeType, items.join(u'\n').toUtf8());
    return data;
}

CodexSelection CodexModel::draggedItems(const QMimeData& data) const
{
    QSet<std::size_t> nodes;
    for (const QString& line : QString::fromUtf8(data.data(itemMimeType)).split(u'\n', Qt::SkipEmptyParts)) {
        if (const auto node = m_tree.find(CodexItem::fromString(line)))
            nodes.insert(*node);
    }
    // What lies beneath something else that is dragged goes along with it.
    const auto isCarried = [&](std::size_t node) {
        for (node = m_tree.node(node).parent; node != CodexTree::root; node = m_tree.node(node).parent) {
            if (nodes.contains(node))
                return true;
        }
        return false;
    };
    std::vector<std::size_t> order(nodes.cbegin(), nodes.cend());
    std::ranges::sort(order);
    CodexSelection selection;
    for (const std::size_t node : order) {
        const CodexItem& item = m_tree.node(node).item;
        if (isCarried(node))
            continue;
        if (item.isEntity())
            selection.entities.push_back(item.entityId);
        else if (item.isCategory())
            selection.categories.push_back(item.categoryId);
    }
    return selection;
}

bool CodexModel::canHold(const core::CategoryId& categoryId, const std::vector<ContentId>& entities) const
{
    const auto& project = m_desk.session.project();
    return std::ranges::all_of(entities, [&](const ContentId& id) {
        const auto* const entity = project.findAs<Entity>(id);
        return entity && core::entity::checkMoveOfEntity(project, *entity, categoryId);
    });
}

bool CodexModel::canDropMimeData(
    const QMimeData* data, Qt::DropAction action, int, int, const QModelIndex& parent) const
{
    if (!data || action != Qt::MoveAction || !data->hasFormat(itemMimeType))
        return false;
    const CodexSelection dragged = draggedItems(*data);
    const CodexItem target = itemAt(parent);
    switch (target.kind) {
    case Kind::Category:
        return canHold(target.categoryId, dragged.entities);
    case Kind::Uncategorised:
        return dragged.categories.empty();
    case Kind::Entity:
    case Kind::None:
        return dragged.entities.empty();
    }
    return false;
}

bool CodexModel::dropMimeData(
    const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const CodexItem target = itemAt(parent);
    const CodexItem before = itemAt(index(row, 0, parent));
    const CategoryPlace place{{target.categoryId, target.entityId}, before.categoryId};
    if (const auto moved = moveInCodex(m_desk.session, draggedItems(*data), place); !moved)
        m_desk.navigator.say(moved.message());
    // The move is done: the view must not remove the dragged rows itself.
    return false;
}

} // namespace tw::desktop::codex
