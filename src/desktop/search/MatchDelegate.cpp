#include "desktop/search/MatchDelegate.h"

#include "desktop/search/SearchModel.h"
#include "desktop/theme/ThemeManager.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace tw::desktop::search {

using namespace Qt::Literals::StringLiterals;
using theme::Role;

namespace {

constexpr int padding = 4;

/** One line of text with formats, built from left to right. */
class FormattedLine
{
public:
    void add(const QString& text, const QTextCharFormat& format)
    {
        m_formats.append({static_cast<int>(m_text.size()), static_cast<int>(text.size()), format});
        m_text += text;
    }

    void draw(QPainter& painter, const QRect& place, const QFont& font, Qt::LayoutDirection direction) const
    {
        QTextLayout layout(m_text, font, painter.device());
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        option.setTextDirection(direction);
        layout.setTextOption(option);
        layout.setFormats(m_formats);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(place.width());
        layout.endLayout();
        layout.draw(&painter, QPointF(place.left(), place.top() + (place.height() - line.height()) / 2));
    }

private:
    QString m_text;
    QList<QTextLayout::FormatRange> m_formats;
};

QTextCharFormat inked(const QColor& color)
{
    QTextCharFormat format;
    format.setForeground(color);
    return format;
}

/** The end of the text before a match that fits in front of it: the match must be seen. */
QString endThatFits(const QString& text, const QFontMetrics& metrics, int width)
{
    QString end = metrics.elidedText(text, Qt::ElideLeft, width);
    return end.startsWith(u"……"_s) ? end.sliced(1) : end;
}

} // namespace

MatchDelegate::MatchDelegate(const theme::ThemeManager& themes, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_themes(themes)
{}

void MatchDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle* const style = row.widget ? row.widget->style() : QApplication::style();
    const QString found = index.data(SearchModel::FoundRole).toString();
    const QString count = index.data(trees::CountRole).toString();
    const QString text = std::exchange(row.text, QString());
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    row.text = text;

    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const theme::Theme& theme = m_themes.theme();
    const QColor ink = theme.color(isSelected ? Role::SelectionInk : Role::Ink);
    const QColor quiet = theme.color(isSelected ? Role::SelectionInk : Role::QuietInk);
    QRect place =
        style->subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget).adjusted(padding, 0, 0, 0);
    place.setRight(option.rect.right() - padding);
    painter->save();
    painter->setClipRect(option.rect);
    FormattedLine line;
    if (found.isEmpty()) {
        const int width = row.fontMetrics.horizontalAdvance(count) + 2 * padding;
        painter->setPen(quiet);
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignTrailing, count);
        place.adjust(0, 0, -width, 0);
        QTextCharFormat format = inked(ink);
        format.setFontWeight(QFont::DemiBold);
        line.add(row.fontMetrics.elidedText(text, Qt::ElideRight, place.width()), format);
    } else {
        if (const QString field = index.data(SearchModel::FieldRole).toString(); !field.isEmpty())
            line.add(field + u": "_s, inked(quiet));
        line.add(
            endThatFits(index.data(SearchModel::BeforeRole).toString(), row.fontMetrics, place.width() / 3),
            inked(quiet));
        QTextCharFormat marked = inked(theme.color(Role::Ink));
        const QVariant replacement = index.data(SearchModel::ReplacementRole);
        marked.setBackground(theme.color(replacement.isValid() ? Role::Deletion : Role::Insertion));
        marked.setFontStrikeOut(replacement.isValid());
        line.add(found, marked);
        if (replacement.isValid() && !replacement.toString().isEmpty()) {
            QTextCharFormat added = inked(theme.color(Role::Ink));
            added.setBackground(theme.color(Role::Insertion));
            line.add(replacement.toString(), added);
        }
        line.add(index.data(SearchModel::AfterRole).toString(), inked(quiet));
    }
    line.draw(*painter, place, row.font, option.direction);
    painter->restore();
}

} // namespace tw::desktop::search
