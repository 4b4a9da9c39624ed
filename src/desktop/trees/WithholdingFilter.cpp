#include "desktop/trees/WithholdingFilter.h"

#include "desktop/trees/TreeRoles.h"

namespace tw::desktop::trees {

WithholdingFilter::WithholdingFilter(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

void WithholdingFilter::setWithheld(std::function<bool(const QModelIndex& source)> isWithheld)
{
    m_isWithheld = std::move(isWithheld);
    invalidate();
}

bool WithholdingFilter::isSourceWithheld(const QModelIndex& source) const
{
    return m_isWithheld && m_isWithheld(source);
}

QVariant WithholdingFilter::data(const QModelIndex& index, int role) const
{
    if (role == IdRole || !isSourceWithheld(mapToSource(index)))
        return QSortFilterProxyModel::data(index, role);
    return role == Qt::DisplayRole && index.column() == 0 ? QVariant(QStringLiteral("…")) : QVariant();
}

Qt::ItemFlags WithholdingFilter::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QSortFilterProxyModel::flags(index);
    return isSourceWithheld(mapToSource(index)) ? flags & ~Qt::ItemIsEditable : flags;
}

} // namespace tw::desktop::trees
