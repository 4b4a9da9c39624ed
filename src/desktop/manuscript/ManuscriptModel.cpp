#include "desktop/manuscript/ManuscriptModel.h"

#include "core/document/DocumentCommands.h"
#include "core/document/DocumentTree.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptEdits.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"
#include "desktop/trees/TreeRoles.h"

#include <QLocale>
#include <QMimeData>

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
    std::vector<std::unique_ptr<Node>> children;
};

ManuscriptModel::ManuscriptModel(const shell::DeskContext& desk, QObject* parent)
    : QAbstractItemModel(parent)
    , m_desk(desk)
    , m_root(std::make_unique<Node>())
{
    connect(&desk.session, &shell::ProjectSession::changed, this, &ManuscriptModel::followChanges);
    rebuild();
}

ManuscriptModel::~ManuscriptModel() = default;

void ManuscriptModel::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.isEverything || !isSameStructure()) {
        beginResetModel();
        rebuild();
        endResetModel();
        return;
    }
    for (const ContentId& id : changes.changed) {
        // Words count upwards, so the parents show something else as well.
        for (QModelIndex index = indexOf(id); index.isValid(); index = index.parent())
            emit dataChanged(index, index);
    }
}

bool ManuscriptModel::isSameStructure() const
{
    const DocumentTree tree = core::document::documentTree(m_desk.session.project());
    std::size_t shown = 0;
    for (const auto& [parentId, childIds] : tree) {
        const auto entry = m_nodes.find(parentId);
        if (entry == m_nodes.end())
            return false;
        const bool isSame = std::ranges::equal(
            childIds, entry->second->children, {}, {}, [](const auto& child) { return child->id; });
        if (!isSame)
            return false;
        shown += childIds.size();
    }
    // The root counts among the nodes.
    return shown + 1 == m_nodes.size();
}

void ManuscriptModel::rebuild()
{
    const DocumentTree tree = core::document::documentTree(m_desk.session.project());
    m_root = std::make_unique<Node>();
    m_nodes = {{ContentId(), m_root.get()}};
    const auto fill = [&](auto&& self, Node& node) -> void {
        const auto children = tree.find(node.id);
        if (children == tree.end())
            return;
        for (const ContentId& id : children->second) {
            auto child = std::make_unique<Node>();
            child->id = id;
            child->parent = &node;
            child->row = static_cast<int>(node.children.size());
            m_nodes.emplace(id, child.get());
            self(self, *child);
            node.children.push_back(std::move(child));
        }
    };
    fill(fill, *m_root);
}

const ManuscriptModel::Node* ManuscriptModel::nodeAt(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<const Node*>(index.constInternalPointer()) : m_root.get();
}

QModelIndex ManuscriptModel::indexOfNode(const Node& node) const
{
    return node.parent ? createIndex(node.row, 0, &node) : QModelIndex();
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
    if (column != 0 || row < 0 || row >= static_cast<int>(node->children.size()))
        return {};
    return indexOfNode(*node->children[static_cast<std::size_t>(row)]);
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
    return 1;
}

qint64 ManuscriptModel::wordsBeneath(const Node& node) const
{
    qint64 words = m_desk.session.words().ofDocument(node.id);
    for (const auto& child : node.children)
        words += wordsBeneath(*child);
    return words;
}

QVariant ManuscriptModel::data(const QModelIndex& index, int role) const
{
    const Node* const node = nodeAt(index);
    const auto* const document = m_desk.session.project().findAs<Document>(node->id);
    if (!index.isValid() || !document)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shell::objectTitle(*document);
    case Qt::EditRole:
        return document->title();
    case Qt::ToolTipRole:
        return document->synopsis().isEmpty() ? document->title() : document->synopsis();
    case Qt::DecorationRole:
        return m_desk.icons.icon(iconForDocument(*document, !node->children.empty()));
    case trees::IdRole:
        return node->id.toString();
    case trees::CountRole:
        return QLocale().toString(wordsBeneath(*node));
    case trees::DotRole:
        return dotColor(*document);
    default:
        return {};
    }
}

QVariant ManuscriptModel::dotColor(const Document& document) const
{
    if (document.status().isEmpty())
        return {};
    // Equal words, equal colour, whatever statuses the writer invents.
    uint sum = 0;
    for (const QChar character : document.status().toCaseFolded())
        sum = sum * 31 + character.unicode();
    return m_desk.themes.theme().threadColor(static_cast<int>(sum % theme::threadColorCount));
}

bool ManuscriptModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    auto& project = m_desk.session.projectForCommands();
    auto* const document = project.findAsForEdit<Document>(idAt(index));
    const QString title = value.toString().trimmed();
    if (role != Qt::EditRole || !document || title.isEmpty() || title == document->title())
        return false;
    m_desk.session.apply(std::make_unique<core::document::SetDocumentTitleCommand>(*document, title));
    return true;
}

Qt::ItemFlags ManuscriptModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const auto* const document = m_desk.session.project().findAs<Document>(idAt(index));
    const Qt::ItemFlags always =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    return document && document->isLocked() ? always : always | Qt::ItemIsEditable;
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
    for (const QModelIndex& index : indexes)
        ids.append(idAt(index).toString());
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
