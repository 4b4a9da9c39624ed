#include "desktop/review/ConflictModel.h"

#include <algorithm>

namespace tw::desktop::review {

using app::persistence::FileMerge;
using app::persistence::Resolution;

ConflictModel::ConflictModel(
    const app::persistence::ProjectMerge& merge, const icons::IconSet& icons, QObject* parent)
    : QAbstractTableModel(parent)
    , m_icons(icons)
{
    for (const FileMerge* const conflict : merge.conflicts()) {
        // The one choice that gives up nothing and leaves nothing to do.
        const bool goTogether = conflict->byParagraphs && !conflict->hasMarks;
        const Resolution first = goTogether ? Resolution::Paragraphs : Resolution::Open;
        m_rows.push_back({conflict, fileTitle(*conflict), first});
    }
}

bool ConflictModel::isDecided() const
{
    return std::ranges::none_of(m_rows, [](const Row& row) { return row.resolution == Resolution::Open; });
}

void ConflictModel::choose(int row, Resolution resolution)
{
    if (choiceText(file(row), resolution).isEmpty())
        return;
    m_rows[at(row)].resolution = resolution;
    emit dataChanged(index(row, ResolutionColumn), index(row, ResolutionColumn));
    emit chosen();
}

QString ConflictModel::choiceText(const FileMerge& file, Resolution resolution)
{
    switch (resolution) {
    case Resolution::Open:
        break;
    case Resolution::Mine:
        return file.versions.mine ? tr("Keep my version") : tr("Keep my version (delete the file)");
    case Resolution::Theirs:
        return file.versions.theirs ? tr("Take on-disk version")
                                    : tr("Take on-disk version (delete the file)");
    case Resolution::Paragraphs:
        if (!file.byParagraphs)
            return {};
        return file.hasMarks ? tr("Keep both, marked in the text") : tr("Merge both by paragraphs");
    }
    return {};
}

int ConflictModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ConflictModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ConflictModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row& row = m_rows[at(index.row())];
    if (role == Qt::ToolTipRole)
        return row.file->path;
    if (index.column() == FileColumn) {
        if (role == Qt::DisplayRole)
            return row.title.text;
        if (role == Qt::DecorationRole)
            return m_icons.icon(row.title.icon);
        return {};
    }
    if (role != Qt::DisplayRole)
        return {};
    return row.resolution == Resolution::Open ? tr("Not chosen yet") : choiceText(*row.file, row.resolution);
}

QVariant ConflictModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return section == FileColumn ? tr("File") : tr("Resolution");
}

} // namespace tw::desktop::review
