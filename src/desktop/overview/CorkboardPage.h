#pragma once

#include "desktop/overview/OverviewPage.h"

class QListView;

namespace tw::desktop::overview {

/** The documents right below one as cards on a board, in their order; dragging a card reorders them. */
class CorkboardPage final : public OverviewPage
{
    Q_OBJECT

public:
    CorkboardPage(const OverviewContext& context, const core::ContentId& rootId, QWidget* parent);

    [[nodiscard]] QIcon icon() const override;

    [[nodiscard]] QListView& cards() { return *m_cards; }

protected:
    /** A card with others below it opens as a board of its own. */
    void activate(const core::ContentId& id) override;

private:
    void edit(const core::ContentId& id);

    QListView* m_cards;
};

} // namespace tw::desktop::overview
