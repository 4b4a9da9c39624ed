#pragma once

#include "core/document/DocumentPlaces.h"
#include "core/project/ProjectChanges.h"
#include "desktop/icons/Icon.h"
#include "desktop/manuscript/OutlineColumns.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/trees/TreeRoles.h"

#include <QAbstractItemModel>

#include <map>
#include <memory>
#include <vector>

namespace tw::desktop::manuscript {

[[nodiscard]] icons::Icon iconForDocument(const core::document::Document& document, bool hasChildren);

/** What the model gives beside the roles of every tree. */
enum DocumentRole
{
    StatusRole = trees::FirstOwnRole,
    SynopsisRole,
    /** How many there are with all beneath, as a number. */
    WordCountRole,
};

/**
 * The tree of documents with its OutlineColumns: titles to rename in place, rows to drag, words and status.
 * Follows the session; a change of structure resets it, and whoever shows it restores what was open by id.
 */
class ManuscriptModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit ManuscriptModel(const shell::DeskContext& desk, QObject* parent = nullptr);
    ~ManuscriptModel() override;

    [[nodiscard]] core::ContentId idAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const core::ContentId& id) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) const override;
    bool dropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) override;

private:
    struct Node;

    void followChanges(const core::project::ProjectChanges& changes);
    void rebuild();
    [[nodiscard]] Node& addNode(const core::ContentId& id, Node* parent);
    [[nodiscard]] const Node* nodeAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOfNode(const Node& node, int column = 0) const;
    [[nodiscard]] QVariant textAt(const Node& node, OutlineColumn column) const;
    [[nodiscard]] qint64 wordsBeneath(const Node& node) const;

    shell::DeskContext m_desk;
    core::document::DocumentPlaces m_places;
    /** By id, the top level under the null one. Held here and not by their parents: a damaged manuscript may
     * be as deep as it is long. */
    std::map<core::ContentId, std::unique_ptr<Node>> m_nodes;
};

} // namespace tw::desktop::manuscript
