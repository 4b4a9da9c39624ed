#include "desktop/finder/FinderDelegate.h"

#include "desktop/finder/FinderModel.h"
#include "desktop/theme/ThemeManager.h"

#include <QApplication>
#include <QPainter>

namespace tw::desktop::finder {

using theme::Role;

namespace {

constexpr int gap = 12;
constexpr int verticalPadding = 4;

/** Draws in one line, from the leading edge or at the trailing one. */
void drawPart(
    QPainter& painter, const QStyleOptionViewItem& option, const QRect& place, Qt::Alignment alignment,
    const QString& text, Qt::TextElideMode elide)
{
    const QRect seen = QStyle::visualRect(option.direction, option.rect, place);
    painter.drawText(
        seen, QStyle::visualAlignment(option.direction, alignment) | Qt::AlignVCenter,
        option.fontMetrics.elidedText(text, elide, place.width()));
}

} // namespace

FinderDelegate::FinderDelegate(const theme::ThemeManager& themes, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_themes(themes)
{}

QSize FinderDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(size.height(), option.fontMetrics.height()) + 2 * verticalPadding);
    return size;
}

void FinderDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle* const style = row.widget ? row.widget->style() : QApplication::style();
    const QString text = std::exchange(row.text, QString());
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const theme::Theme& theme = m_themes.theme();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isAvailable = index.data(FinderModel::AvailableRole).toBool();
    const auto ink = [&](Role usual) {
        if (!isAvailable)
            return theme.color(Role::FaintInk);
        return theme.color(isSelected ? Role::SelectionInk : usual);
    };
    // Laid out from left to right; turned round where that is how one reads.
    const int iconWidth = option.decorationSize.width() + gap; // also of rows without one
    QRect left = option.rect.adjusted(iconWidth + gap / 2, 0, -gap, 0);
    painter->save();
    painter->setFont(row.font);
    if (const QString note = index.data(FinderModel::NoteRole).toString(); !note.isEmpty()) {
        const int width = std::min(row.fontMetrics.horizontalAdvance(note), left.width() / 2);
        painter->setPen(ink(Role::QuietInk));
        drawPart(
            *painter, row, QRect(left.right() - width, left.top(), width + 1, left.height()), Qt::AlignRight,
            note, Qt::ElideRight);
        left.adjust(0, 0, -width - gap, 0);
    }
    const int textWidth = std::min(row.fontMetrics.horizontalAdvance(text) + 1, left.width());
    painter->setPen(ink(Role::Ink));
    drawPart(
        *painter, row, QRect(left.left(), left.top(), textWidth, left.height()), Qt::AlignLeft, text,
        Qt::ElideRight);
    left.adjust(textWidth + gap, 0, 0, 0);
    if (left.width() > 2 * gap) {
        painter->setPen(ink(Role::QuietInk));
        drawPart(
            *painter, row, left, Qt::AlignLeft, index.data(FinderModel::PlaceRole).toString(),
            Qt::ElideMiddle);
    }
    painter->restore();
}

} // namespace tw::desktop::finder
