#pragma once

#include "core/project/ProjectChanges.h"
#include "desktop/codex/CodexEdits.h"
#include "desktop/codex/CodexTree.h"
#include "desktop/shell/DeskContext.h"

#include <QAbstractItemModel>
#include <QIcon>

namespace tw::desktop::codex {

/**
 * The tree of categories and entities for a NavigatorTree: names to edit in place, rows to drag. Follows the
 * session; a change of shape resets it, any other change touches the rows it concerns, and what has nothing
 * to do with the codex costs nothing.
 */
class CodexModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CodexModel(const shell::DeskContext& desk, QObject* parent = nullptr);

    /** None for an invalid index. */
    [[nodiscard]] CodexItem itemAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const CodexItem& item) const;
    [[nodiscard]] const CodexTree& tree() const { return m_tree; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) const override;
    /** A move that is refused is said in the status line. */
    bool dropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) override;

private:
    /** What decides where an entity stands. */
    struct EntityPlace
    {
        core::CategoryId categoryId;
        qint32 sortIndex = 0;
        QString name;

        friend bool operator==(const EntityPlace&, const EntityPlace&) = default;
    };

    void followChanges(const core::project::ProjectChanges& changes);
    [[nodiscard]] bool mayMoveRows(const core::project::ProjectChanges& changes) const;
    void announceRows(const core::project::ProjectChanges& changes);
    void announceCategories();
    void takeTree(CodexTree tree);
    [[nodiscard]] std::size_t nodeAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOfNode(std::size_t node) const;
    [[nodiscard]] QString name(const CodexItem& item) const;
    [[nodiscard]] QString toolTip(const CodexItem& item) const;
    [[nodiscard]] QVariant icon(std::size_t node) const;
    [[nodiscard]] CodexSelection draggedItems(const QMimeData& data) const;
    [[nodiscard]] bool canHold(
        const core::CategoryId& categoryId, const std::vector<core::ContentId>& entities) const;

    shell::DeskContext m_desk;
    NameOrder m_order;
    CodexTree m_tree;
    QHash<core::ContentId, EntityPlace> m_places;
    QIcon m_categoryIcon;
    QIcon m_categoryUnderEntityIcon;
    QIcon m_entityIcon;
};

} // namespace tw::desktop::codex
