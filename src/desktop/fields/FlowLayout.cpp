#include "desktop/fields/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tw::desktop::fields {

FlowLayout::FlowLayout(LastItem lastItem, int spacing, QWidget* parent)
    : QLayout(parent)
    , m_lastItem(lastItem)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::insertWidget(int index, QWidget* widget)
{
    addChildWidget(widget);
    m_items.insert(m_items.begin() + index, std::make_unique<QWidgetItem>(widget));
    invalidate();
}

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem* const item = place->release();
    m_items.erase(place);
    invalidate();
    return item;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return Qt::Horizontal;
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return layOut(QRect(0, 0, width, 0), Pass::Measure);
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    }
    return size.grownBy(contentsMargins());
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    layOut(rect, Pass::Place);
}

int FlowLayout::layOut(const QRect& rect, Pass pass) const
{
    const QRect area = rect.marginsRemoved(contentsMargins());
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    QPoint next = area.topLeft();
    int lineHeight = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        QSize size = item->sizeHint().boundedTo({std::max(area.width(), 1), QWIDGETSIZE_MAX});
        const bool isFirst = next.x() == area.left();
        if (!isFirst && next.x() + size.width() > area.left() + area.width()) {
            next = {area.left(), next.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        if (item == m_items.back() && m_lastItem == LastItem::FillsItsLine)
            size.setWidth(area.left() + area.width() - next.x());
        if (pass == Pass::Place)
            item->setGeometry(QStyle::visualRect(direction, area, QRect(next, size)));
        next.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return next.y() + lineHeight - rect.top() + contentsMargins().bottom();
}

} // namespace tw::desktop::fields
