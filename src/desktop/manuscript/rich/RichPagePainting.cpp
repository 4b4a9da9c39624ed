// What lies beside and below the text: markers of items, lines of quotations, paper of code, breaks.
#include "desktop/manuscript/rich/RichPage.h"

#include "desktop/theme/ThemeManager.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;
using markup::BlockKind;
using theme::Role;

namespace {

// In ems
constexpr qreal markerGap = 0.5;
constexpr qreal dotRadius = 0.09;
constexpr qreal dotDistance = 1.1;
constexpr qreal quotationLine = 0.12;
constexpr qreal codeRounding = 0.25;

/** Bullets change with the depth, as a reader expects. */
QString bullet(int level)
{
    static const QStringList bullets{u"•"_s, u"–"_s, u"·"_s};
    return bullets[level % bullets.size()];
}

} // namespace

void RichPage::paintSheet(QPainter& painter, const QRect& clip)
{
    const QPointF scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const auto* const layout = document()->documentLayout();
    painter.setRenderHint(QPainter::Antialiasing);
    for (QTextBlock block = cursorForPosition(clip.topLeft()).block(); block.isValid();
         block = block.next()) {
        const QRectF rect = layout->blockBoundingRect(block).translated(-scrolled);
        if (rect.top() > clip.bottom() + m_formats.em() * 4)
            break;
        paintBlock(painter, block, rect);
        if (m_areMentionsShown && rect.intersects(clip))
            paintMentions(painter, block, rect);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void RichPage::paintBlock(QPainter& painter, const QTextBlock& block, const QRectF& rect) const
{
    const QTextBlockFormat format = block.blockFormat();
    const BlockKind kind = kindOf(format);
    const bool isPlain =
        kind == BlockKind::Paragraph || kind == BlockKind::Heading || kind == BlockKind::Table;
    const BlockShape shape = shapeOf(format);
    if (isPlain && !shape.attributes.pageBreak)
        return;
    const theme::Theme& theme = themes().theme();
    const qreal em = m_formats.em();
    const QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    const qreal left = frame.leftMargin();
    const qreal right = viewport()->width() - frame.rightMargin();
    if (shape.attributes.pageBreak) {
        const qreal y = rect.top() - em;
        painter.setPen(QPen(theme.color(Role::Border), 1, Qt::DashLine));
        painter.drawLine(QPointF(left, y), QPointF(right, y));
    }
    switch (kind) {
    case BlockKind::Rule:
        if (block.length() > 1)
            break;
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.color(Role::QuietInk));
        for (const int place : {-1, 0, 1}) {
            const QPointF center((left + right) / 2 + place * dotDistance * em, rect.center().y());
            painter.drawEllipse(center, dotRadius * em, dotRadius * em);
        }
        break;
    case BlockKind::Quotation:
        for (int depth = 0; depth < shape.level; ++depth) {
            const qreal x = left + format.leftMargin() * (depth + 0.35) / std::max(1, shape.level);
            painter.fillRect(
                QRectF(x, rect.top(), std::max(1.0, quotationLine * em), rect.height()),
                theme.color(Role::Line));
        }
        break;
    case BlockKind::Code: {
        const QRectF paper(
            left + format.leftMargin() - em / 2, rect.top() - em * 0.3,
            right - left - format.leftMargin() - format.rightMargin() + em, rect.height() + em * 0.6);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.color(Role::Hover));
        painter.drawRoundedRect(paper, codeRounding * em, codeRounding * em);
        break;
    }
    case BlockKind::BulletItem:
    case BlockKind::NumberedItem:
    case BlockKind::FootnoteDefinition:
        paintMarker(painter, block, shape, rect);
        break;
    case BlockKind::Paragraph:
    case BlockKind::Heading:
    case BlockKind::Table:
        break;
    }
}

void RichPage::paintMarker(
    QPainter& painter, const QTextBlock& block, const BlockShape& shape, const QRectF& rect) const
{
    const QTextLayout* const layout = block.layout();
    if (layout->lineCount() == 0)
        return;
    const QTextLine line = layout->lineAt(0);
    const QPointF offset = rect.topLeft();
    const bool isRightToLeft = block.textDirection() == Qt::RightToLeft;
    const QString marker = shape.kind == BlockKind::BulletItem     ? bullet(shape.level)
                           : shape.kind == BlockKind::NumberedItem ? shape.marker
                                                                   : shape.label;
    painter.setFont(document()->defaultFont());
    painter.setPen(themes().theme().color(Role::QuietInk));
    const QFontMetricsF metrics(painter.font());
    const qreal gap = markerGap * m_formats.em();
    const qreal x =
        isRightToLeft ? line.x() + line.width() + gap : line.x() - gap - metrics.horizontalAdvance(marker);
    painter.drawText(offset + QPointF(x, line.y() + line.ascent()), marker);
}

} // namespace tw::desktop::manuscript::rich
