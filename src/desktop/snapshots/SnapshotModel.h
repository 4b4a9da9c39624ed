#pragma once

#include "core/document/Document.h"
#include "desktop/icons/IconSet.h"

#include <QAbstractListModel>

#include <optional>

namespace tw::desktop::snapshots {

/** The present text and the snapshots of a document, newest first. */
class SnapshotModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    SnapshotModel(const icons::IconSet& icons, QObject* parent);

    /** Null for none. */
    void show(const core::document::Document* document);

    /** The place in Document::versions(); none for the present text. */
    [[nodiscard]] std::optional<std::size_t> snapshotAt(int row) const;
    [[nodiscard]] int rowOf(std::size_t snapshot) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    void renameRequested(std::size_t snapshot, const QString& label);

private:
    struct Row
    {
        QString label;
        QString time;

        friend bool operator==(const Row&, const Row&) = default;
    };

    const icons::IconSet& m_icons;
    /** In the order of the document; the present text has none. */
    std::vector<Row> m_rows;
    bool m_hasDocument = false;
};

} // namespace tw::desktop::snapshots
