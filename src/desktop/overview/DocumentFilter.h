#pragma once

#include "core/foundation/Id.h"
#include "desktop/trees/WithholdingFilter.h"

namespace tw::desktop::manuscript {
class ManuscriptModel;
}

namespace tw::desktop::overview {

/**
 * The part of the manuscript below one document (null: all of it), of which only what contains a text is
 * shown: in its title, synopsis, status or point of view.
 */
class DocumentFilter final : public trees::WithholdingFilter
{
    Q_OBJECT

public:
    /** The model must outlive the filter. */
    DocumentFilter(manuscript::ManuscriptModel& model, const core::ContentId& rootId, QObject* parent);

    [[nodiscard]] QModelIndex rootIndex() const;
    [[nodiscard]] QModelIndex indexOf(const core::ContentId& id) const;
    [[nodiscard]] core::ContentId idAt(const QModelIndex& index) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    manuscript::ManuscriptModel& m_model;
    core::ContentId m_rootId;
};

} // namespace tw::desktop::overview
