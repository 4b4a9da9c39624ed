#include "desktop/overview/DocumentFilter.h"

#include "desktop/manuscript/ManuscriptModel.h"

namespace tw::desktop::overview {

using core::ContentId;

DocumentFilter::DocumentFilter(manuscript::ManuscriptModel& model, const ContentId& rootId, QObject* parent)
    : WithholdingFilter(parent)
    , m_model(model)
    , m_rootId(rootId)
{
    setFilterKeyColumn(-1);
    setSourceModel(&model);
}

QModelIndex DocumentFilter::rootIndex() const
{
    return indexOf(m_rootId);
}

QModelIndex DocumentFilter::indexOf(const ContentId& id) const
{
    return mapFromSource(m_model.indexOf(id));
}

ContentId DocumentFilter::idAt(const QModelIndex& index) const
{
    return m_model.idAt(mapToSource(index));
}

bool DocumentFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    // The list is of what lies below its root, whether that itself matches or not.
    for (QModelIndex above = m_model.indexOf(m_rootId); above.isValid(); above = above.parent()) {
        if (above.row() == row && above.parent() == parent)
            return true;
    }
    return !isSourceWithheld(m_model.index(row, 0, parent)) &&
           QSortFilterProxyModel::filterAcceptsRow(row, parent);
}

} // namespace tw::desktop::overview
