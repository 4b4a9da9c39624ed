#pragma once

#include "desktop/overview/OverviewPage.h"

#include <QSet>

class QTreeView;

namespace tw::desktop::overview {

/** The documents below one as a table that is edited in its cells. */
class OutlinePage final : public OverviewPage
{
    Q_OBJECT

public:
    OutlinePage(const OverviewContext& context, const core::ContentId& rootId, QWidget* parent);
    ~OutlinePage() override;

    [[nodiscard]] QIcon icon() const override;

    [[nodiscard]] QTreeView& tree() { return *m_tree; }

protected:
    void restoreView() override;

private:
    void setUpColumns();
    void renameIn(const core::ContentId& id);

    QTreeView* m_tree;
    QSet<core::ContentId> m_collapsed;
    bool m_isRestoring = false;
};

} // namespace tw::desktop::overview
