#include "desktop/finder/FinderModel.h"

namespace tw::desktop::finder {

using namespace Qt::Literals::StringLiterals;

void FinderModel::setRows(std::vector<FinderRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int FinderModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FinderModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const FinderRow& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case Qt::DecorationRole:
        return row.icon;
    case PlaceRole:
        return row.place;
    case NoteRole:
        return row.note;
    case AvailableRole:
        return row.isAvailable;
    case Qt::AccessibleTextRole: {
        QStringList parts{row.text, row.place, row.note};
        if (!row.isAvailable)
            parts.append(tr("not available now"));
        parts.removeAll(QString());
        return parts.join(u", "_s);
    }
    default:
        return {};
    }
}

} // namespace tw::desktop::finder
