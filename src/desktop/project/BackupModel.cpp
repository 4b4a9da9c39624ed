#include "desktop/project/BackupModel.h"

#include <QDir>
#include <QLocale>

namespace tw::desktop::project {

using app::persistence::BackupFile;

void BackupModel::setBackups(std::vector<BackupFile> backups)
{
    beginResetModel();
    m_backups = std::move(backups);
    endResetModel();
}

const BackupFile& BackupModel::backup(int row) const
{
    return m_backups.at(static_cast<std::size_t>(row));
}

int BackupModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_backups.size());
}

int BackupModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant BackupModel::data(const QModelIndex& index, int role) const
{
    const BackupFile& file = backup(index.row());
    if (role == Qt::ToolTipRole)
        return QDir::toNativeSeparators(file.path);
    if (role == Qt::TextAlignmentRole && index.column() == Size)
        return QVariant(Qt::AlignTrailing | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Time:
        return tr("%1, %2").arg(
            QLocale().toString(file.name.date, QLocale::ShortFormat),
            QLocale().toString(file.name.time, QLocale::ShortFormat));
    case Project:
        return file.name.project;
    case Size:
        return QLocale().formattedDataSize(file.size);
    default:
        return {};
    }
}

QVariant BackupModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Time:
        return tr("Made on");
    case Project:
        return tr("Project");
    case Size:
        return tr("Size");
    default:
        return {};
    }
}

} // namespace tw::desktop::project
