#include "desktop/trees/TreeRowDelegate.h"

#include "desktop/theme/ThemeManager.h"
#include "desktop/trees/TreeRoles.h"

#include <QApplication>
#include <QPainter>

namespace tw::desktop::trees {

namespace {

constexpr int gap = 8;
constexpr int dotSize = 8;
/** Counts up to here leave the dots in one line. */
constexpr QLatin1StringView usualCount{"99,999"};

int countWidth(const QStyleOptionViewItem& option, const QString& count)
{
    return std::max(
        option.fontMetrics.horizontalAdvance(usualCount), option.fontMetrics.horizontalAdvance(count));
}

} // namespace

TreeRowDelegate::TreeRowDelegate(const theme::ThemeManager& themes, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_themes(themes)
{}

int TreeRowDelegate::trailingWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    int width = 0;
    if (const QString count = index.data(CountRole).toString(); !count.isEmpty())
        width += countWidth(option, count) + gap;
    if (index.data(DotRole).isValid())
        width += dotSize + gap;
    return width;
}

void TreeRowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle* const style = row.widget ? row.widget->style() : QApplication::style();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const int trailing = trailingWidth(row, index);
    // The whole row is selected, hovered and focused; the title ends before the count.
    QStyleOptionViewItem background = row;
    background.text.clear();
    background.icon = {};
    background.features &= ~QStyleOptionViewItem::HasDecoration;
    style->drawControl(QStyle::CE_ItemViewItem, &background, painter, row.widget);
    row.rect = QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(0, 0, -trailing, 0));
    row.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected | QStyle::State_MouseOver);
    row.backgroundBrush = Qt::NoBrush;
    if (isSelected)
        row.palette.setColor(QPalette::Text, m_themes.theme().color(theme::Role::SelectionInk));
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const auto inkRole = isSelected ? theme::Role::SelectionInk : theme::Role::QuietInk;
    int right = option.rect.right() - gap / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (const QString count = index.data(CountRole).toString(); !count.isEmpty()) {
        const int width = countWidth(option, count);
        const QRect place(right - width, option.rect.top(), width, option.rect.height());
        painter->setPen(m_themes.theme().color(inkRole));
        painter->drawText(
            QStyle::visualRect(option.direction, option.rect, place), Qt::AlignVCenter | Qt::AlignRight,
            count);
        right -= width + gap;
    }
    if (const QVariant dot = index.data(DotRole); dot.isValid()) {
        const QRect place(right - dotSize, option.rect.center().y() - dotSize / 2 + 1, dotSize, dotSize);
        painter->setPen(Qt::NoPen);
        painter->setBrush(dot.value<QColor>());
        painter->drawEllipse(QStyle::visualRect(option.direction, option.rect, place));
    }
    painter->restore();
}

} // namespace tw::desktop::trees
