#pragma once

#include "desktop/overview/OverviewPage.h"

#include <QSet>

namespace tw::desktop::overview {

class OutlineTree;

/** The documents below one as a table that is edited in its cells. */
class OutlinePage final : public OverviewPage
{
    Q_OBJECT

public:
    OutlinePage(const OverviewContext& context, const core::ContentId& rootId, QWidget* parent);
    ~OutlinePage() override;

    [[nodiscard]] QIcon icon() const override;

    [[nodiscard]] OutlineTree& tree() { return *m_tree; }

protected:
    void restoreView() override;

private:
    void setUpColumns();
    /** Until the writer arranges the columns, they fill the width there is. */
    void fitColumns();
    void renameIn(const core::ContentId& id);

    OutlineTree* m_tree;
    QSet<core::ContentId> m_collapsed;
    bool m_isRestoring = false;
    bool m_isArranged = false;
    bool m_isFitting = false;
};

} // namespace tw::desktop::overview
