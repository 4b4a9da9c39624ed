#pragma once

#include "app/persistence/bundle/BackupList.h"

#include <QAbstractTableModel>

#include <vector>

namespace tw::desktop::project {

/** Backups in rows: time, project, size. */
class BackupModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        Project,
        Size,
        ColumnCount,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setBackups(std::vector<app::persistence::BackupFile> backups);
    /** The row must exist. */
    [[nodiscard]] const app::persistence::BackupFile& backup(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<app::persistence::BackupFile> m_backups;
};

} // namespace tw::desktop::project
