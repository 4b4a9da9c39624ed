#include "desktop/overview/CorkboardPage.h"

#include "desktop/icons/IconSet.h"
#include "desktop/overview/CardDelegate.h"
#include "desktop/shell/Navigator.h"
#include "desktop/theme/ThemeManager.h"
#include "desktop/trees/CommittingView.h"

#include <QDropEvent>
#include <QListView>

#include <algorithm>

namespace tw::desktop::overview {

using core::ContentId;

namespace {

class CardList final : public trees::CommittingView<QListView>
{
public:
    using CommittingView::CommittingView;

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        // With large text a card may be wider than the board: it then takes what there is.
        QSize cell = CardDelegate::cellSize(fontMetrics());
        cell.setWidth(std::clamp(viewport()->width() - 1, 1, cell.width()));
        if (cell != gridSize())
            setGridSize(cell);
        QListView::resizeEvent(event);
    }

    void dropEvent(QDropEvent* event) override
    {
        // The list's own way would move rows of the model itself; ours moves documents.
        QAbstractItemView::dropEvent(event);
        setState(NoState);
        viewport()->update();
    }
};

} // namespace

CorkboardPage::CorkboardPage(const OverviewContext& context, const ContentId& rootId, QWidget* parent)
    : OverviewPage(context, {rootId, corkboardView}, parent)
    , m_cards(new CardList(context.desk.session, this))
{
    m_cards->setAccessibleName(tr("Corkboard"));
    m_cards->setItemDelegate(new CardDelegate(context.desk, m_cards));
    m_cards->setFlow(QListView::LeftToRight);
    m_cards->setWrapping(true);
    m_cards->setResizeMode(QListView::Adjust);
    m_cards->setUniformItemSizes(true);
    m_cards->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_cards->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setList(*m_cards, [this](const ContentId& id) { edit(id); });
    m_cards->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    const auto takeTheme = [this] {
        QPalette colors = m_cards->palette();
        colors.setColor(QPalette::Base, this->context().desk.themes.theme().color(theme::Role::Window));
        m_cards->setPalette(colors);
    };
    connect(&context.desk.themes, &theme::ThemeManager::themeChanged, this, takeTheme);
    takeTheme();
}

QIcon CorkboardPage::icon() const
{
    return context().desk.icons.icon(icons::Icon::Layout);
}

void CorkboardPage::activate(const ContentId& id)
{
    if (filter().hasChildren(filter().indexOf(id)))
        context().desk.navigator.openView(id, corkboardView);
    else
        context().desk.navigator.open(id);
}

void CorkboardPage::edit(const ContentId& id)
{
    const QModelIndex index = filter().indexOf(id);
    m_cards->setCurrentIndex(index);
    m_cards->edit(index);
}

} // namespace tw::desktop::overview
