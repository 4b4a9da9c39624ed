#include "desktop/manuscript/ManuscriptModel.h"

#include "core/document/DocumentTree.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptEdits.h"
#include "desktop/manuscript/StatusColors.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"
#include "desktop/trees/TreeRoles.h"

#include <QLocale>
#include <QMimeData>

#include <optional>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentTree;

namespace {

const QString documentMimeType = u"application/x-vellory-documents"_s;

std::vector<ContentId> draggedIds(const QMimeData& data)
{
    std::vector<ContentId> ids;
    for (const QString& text :
         QString::fromUtf8(data.data(documentMimeType)).split(u'\n', Qt::SkipEmptyParts))
        ids.push_back(ContentId::fromString(text));
    return ids;
}

Qt::Alignment alignmentOf(OutlineColumn column)
{
    const bool isNumber = column == OutlineColumn::Words || column == OutlineColumn::Target;
    return Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft);
}

} // namespace

icons::Icon iconForDocument(const Document& document, bool hasChildren)
{
    switch (document.documentKind()) {
    case core::document::DocumentKind::Screenplay:
        return icons::Icon::Screenplay;
    case core::document::DocumentKind::Note:
        return icons::Icon::Note;
    case core::document::DocumentKind::Prose:
        break;
    }
    return hasChildren ? icons::Icon::Folder : icons::Icon::Document;
}

struct ManuscriptModel::Node
{
    ContentId id;
    Node* parent = nullptr;
    int row = 0;
    std::vector<Node*> children;
    /** Of the document and all beneath it; none until it is asked for. */
    mutable std::optional<qint64> words = {};
};

ManuscriptModel::ManuscriptModel(const shell::DeskContext& desk, QObject* parent)
    : QAbstractItemModel(parent)
    , m_desk(desk)
    , m_places(desk.session.project())
{
    connect(&desk.session, &shell::ProjectSession::changed, this, &ManuscriptModel::followChanges);
    rebuild();
}

ManuscriptModel::~ManuscriptModel() = default;

void ManuscriptModel::followChanges(const core::project::ProjectChanges& changes)
{
    if (m_places.follow(m_desk.session.project(), changes)) {
        beginResetModel();
        rebuild();
        endResetModel();
        return;
    }
    for (const ContentId& id : changes.changed) {
        const auto entry = m_nodes.find(id);
        if (entry == m_nodes.end())
            continue;
        // Words count upwards, so the parents show something else as well.
        for (Node* node = entry->second.get(); node; node = node->parent)
            node->words.reset();
        for (const Node* node = entry->second.get(); node->parent; node = node->parent)
            emit dataChanged(indexOfNode(*node), indexOfNode(*node, outlineColumnCount - 1));
    }
}

ManuscriptModel::Node& ManuscriptModel::addNode(const ContentId& id, Node* parent)
{
    auto node = std::make_unique<Node>();
    node->id = id;
    node->parent = parent;
    if (parent) {
        node->row = static_cast<int>(parent->children.size());
        parent->children.push_back(node.get());
    }
    return *m_nodes.insert_or_assign(id, std::move(node)).first->second;
}

void ManuscriptModel::rebuild()
{
    const DocumentTree tree = core::document::documentTree(m_desk.session.project());
    m_nodes.clear();
    std::vector<Node*> open{&addNode({}, nullptr)};
    while (!open.empty()) {
        Node& node = *open.back();
        open.pop_back();
        const auto children = tree.find(node.id);
        if (children == tree.end())
            continue;
        for (const ContentId& id : children->second)
            open.push_back(&addNode(id, &node));
    }
}

const ManuscriptModel::Node* ManuscriptModel::nodeAt(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<const Node*>(index.constInternalPointer()) : m_nodes.at({}).get();
}

QModelIndex ManuscriptModel::indexOfNode(const Node& node, int column) const
{
    return node.parent ? createIndex(node.row, column, &node) : QModelIndex();
}

ContentId ManuscriptModel::idAt(const QModelIndex& index) const
{
    return nodeAt(index)->id;
}

QModelIndex ManuscriptModel::indexOf(const ContentId& id) const
{
    const auto entry = m_nodes.find(id);
    return entry == m_nodes.end() ? QModelIndex() : indexOfNode(*entry->second);
}

QModelIndex ManuscriptModel::index(int row, int column, const QModelIndex& parent) const
{
    const Node* const node = nodeAt(parent);
    if (column < 0 || column >= outlineColumnCount || row < 0 ||
        row >= static_cast<int>(node->children.size()))
        return {};
    return indexOfNode(*node->children[static_cast<std::size_t>(row)], column);
}

QModelIndex ManuscriptModel::parent(const QModelIndex& child) const
{
    const Node* const parent = nodeAt(child)->parent;
    return parent ? indexOfNode(*parent) : QModelIndex();
}

int ManuscriptModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->children.size());
}

int ManuscriptModel::columnCount(const QModelIndex&) const
{
    return outlineColumnCount;
}

QVariant ManuscriptModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= outlineColumnCount)
        return {};
    const auto column = static_cast<OutlineColumn>(section);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(column));
    return role == Qt::DisplayRole ? QVariant(outlineHeading(column)) : QVariant();
}

qint64 ManuscriptModel::wordsBeneath(const Node& node) const
{
    if (node.words)
        return *node.words;
    // Children before their parents.
    std::vector<const Node*> open{&node};
    while (!open.empty()) {
        const Node& current = *open.back();
        const std::size_t before = open.size();
        qint64 words = m_desk.session.words().ofDocument(current.id);
        for (const Node* const child : current.children) {
            if (child->words)
                words += *child->words;
            else
                open.push_back(child);
        }
        if (open.size() > before)
            continue;
        current.words = words;
        open.pop_back();
    }
    return *node.words;
}

QVariant ManuscriptModel::data(const QModelIndex& index, int role) const
{
    const Node* const node = nodeAt(index);
    const auto* const document = m_desk.session.project().findAs<Document>(node->id);
    if (!index.isValid() || !document)
        return {};
    const auto column = static_cast<OutlineColumn>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return textAt(*node, column);
    case Qt::EditRole:
        return outlineValue(*document, column);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignmentOf(column));
    case Qt::ToolTipRole:
        return document->synopsis().isEmpty() ? document->title() : document->synopsis();
    case Qt::DecorationRole:
        if (column == OutlineColumn::Title)
            return m_desk.icons.icon(iconForDocument(*document, !node->children.empty()));
        return column == OutlineColumn::Status
                   ? QVariant(statusIcon(m_desk.themes.theme(), document->status()))
                   : QVariant();
    case trees::IdRole:
        return node->id.toString();
    case trees::CountRole:
        return QLocale().toString(wordsBeneath(*node));
    case trees::DotRole: {
        const QColor color = statusColor(m_desk.themes.theme(), document->status());
        return color.isValid() ? QVariant(color) : QVariant();
    }
    case StatusRole:
        return document->status();
    case SynopsisRole:
        return document->synopsis();
    case WordCountRole:
        return wordsBeneath(*node);
    default:
        return {};
    }
}

QVariant ManuscriptModel::textAt(const Node& node, OutlineColumn column) const
{
    const auto& document = *m_desk.session.project().findAs<Document>(node.id);
    switch (column) {
    case OutlineColumn::Title:
        return shell::objectTitle(document);
    case OutlineColumn::Words:
        return QLocale().toString(wordsBeneath(node));
    default:
        return outlineText(document, column, m_desk.session);
    }
}

bool ManuscriptModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role == SynopsisRole)
        return setOutlineValue(m_desk.session, idAt(index), OutlineColumn::Synopsis, value);
    return role == Qt::EditRole &&
           setOutlineValue(m_desk.session, idAt(index), static_cast<OutlineColumn>(index.column()), value);
}

Qt::ItemFlags ManuscriptModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const auto* const document = m_desk.session.project().findAs<Document>(idAt(index));
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
    if (document && !document->isLocked()) {
        flags |= Qt::ItemIsDragEnabled;
        if (isEditable(static_cast<OutlineColumn>(index.column())))
            flags |= Qt::ItemIsEditable;
    }
    return flags;
}

Qt::DropActions ManuscriptModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList ManuscriptModel::mimeTypes() const
{
    return {documentMimeType};
}

QMimeData* ManuscriptModel::mimeData(const QModelIndexList& indexes) const
{
    QStringList ids;
    for (const QModelIndex& index : indexes) {
        if (index.column() == 0)
            ids.append(idAt(index).toString());
    }
    auto* const data = new QMimeData;
    data->setData(documentMimeType, ids.join(u'\n').toUtf8());
    return data;
}

bool ManuscriptModel::canDropMimeData(
    const QMimeData* data, Qt::DropAction action, int, int, const QModelIndex& parent) const
{
    if (!data || action != Qt::MoveAction || !data->hasFormat(documentMimeType))
        return false;
    const ContentId target = idAt(parent);
    return std::ranges::all_of(draggedIds(*data), [this, &target](const ContentId& id) {
        return core::document::canMoveDocument(m_desk.session.project(), id, target);
    });
}

bool ManuscriptModel::dropMimeData(
    const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const Node* const target = nodeAt(parent);
    const bool isBefore = row >= 0 && row < static_cast<int>(target->children.size());
    const ContentId before = isBefore ? target->children[static_cast<std::size_t>(row)]->id : ContentId();
    moveDocuments(m_desk.session, draggedIds(*data), target->id, before);
    // The move is done: the view must not remove the dragged rows itself.
    return false;
}

} // namespace tw::desktop::manuscript
