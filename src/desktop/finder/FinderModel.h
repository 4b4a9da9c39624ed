#pragma once

#include "desktop/finder/FinderSource.h"

#include <QAbstractListModel>

namespace tw::desktop::finder {

/** The rows of a finder as a list. */
class FinderModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        PlaceRole = Qt::UserRole,
        NoteRole,
        /** Whether it can be chosen. Flags do not say so: also what cannot is gone to, and read aloud. */
        AvailableRole,
    };

    using QAbstractListModel::QAbstractListModel;

    void setRows(std::vector<FinderRow> rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<FinderRow> m_rows;
};

} // namespace tw::desktop::finder
