#include "desktop/snapshots/SnapshotModel.h"

#include "desktop/trees/TreeRoles.h"

#include <QDateTime>
#include <QLocale>

namespace tw::desktop::snapshots {

namespace {

/** The time as the user reads it; a text that is no time stays as it was written. */
QString timeText(const QString& createdAt)
{
    const QDateTime time = QDateTime::fromString(createdAt, Qt::ISODate);
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat) : createdAt;
}

} // namespace

SnapshotModel::SnapshotModel(const icons::IconSet& icons, QObject* parent)
    : QAbstractListModel(parent)
    , m_icons(icons)
{}

void SnapshotModel::show(const core::document::Document* document)
{
    std::vector<Row> rows;
    if (document) {
        for (const core::document::DocumentVersion& version : document->versions())
            rows.push_back({version.label, timeText(version.createdAt)});
    }
    if (m_hasDocument == (document != nullptr) && rows == m_rows)
        return;
    beginResetModel();
    m_rows = std::move(rows);
    m_hasDocument = document != nullptr;
    endResetModel();
}

std::optional<std::size_t> SnapshotModel::snapshotAt(int row) const
{
    if (row <= 0 || row >= rowCount())
        return std::nullopt;
    return m_rows.size() - static_cast<std::size_t>(row);
}

int SnapshotModel::rowOf(std::size_t snapshot) const
{
    return static_cast<int>(m_rows.size() - snapshot);
}

int SnapshotModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_hasDocument ? 0 : static_cast<int>(m_rows.size()) + 1;
}

QVariant SnapshotModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto snapshot = snapshotAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        if (!snapshot)
            return tr("Present text");
        return m_rows[*snapshot].label.isEmpty() ? tr("Snapshot") : m_rows[*snapshot].label;
    case Qt::EditRole:
        return snapshot ? m_rows[*snapshot].label : QString();
    case Qt::ToolTipRole:
        return snapshot ? data(index, Qt::DisplayRole).toString() + u'\n' + m_rows[*snapshot].time
                        : QString();
    case Qt::DecorationRole:
        return m_icons.icon(snapshot ? icons::Icon::Snapshot : icons::Icon::Document);
    case trees::CountRole:
        return snapshot ? m_rows[*snapshot].time : QString();
    default:
        return {};
    }
}

bool SnapshotModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const auto snapshot = index.isValid() ? snapshotAt(index.row()) : std::nullopt;
    if (!snapshot || role != Qt::EditRole)
        return false;
    emit renameRequested(*snapshot, value.toString().trimmed());
    return true;
}

Qt::ItemFlags SnapshotModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return index.isValid() && snapshotAt(index.row()) ? flags | Qt::ItemIsEditable : flags;
}

} // namespace tw::desktop::snapshots
