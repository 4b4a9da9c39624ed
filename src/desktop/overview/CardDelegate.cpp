#include "desktop/overview/CardDelegate.h"

#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/overview/CardEditor.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QListView>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

namespace tw::desktop::overview {

using theme::Role;

namespace {

constexpr int margin = 8;
constexpr int padding = 12;
constexpr int strip = 4;
constexpr qreal corner = 4;
constexpr int synopsisLines = 5;
/** How far the cards behind a group of documents stick out. */
constexpr int stackStep = 3;

QRect cardIn(const QRect& cell)
{
    return cell.adjusted(margin, margin, -margin, -margin);
}

/** As many whole lines as fit; the last one ends in an ellipsis when there is more. */
void drawLines(QPainter& painter, const QRect& place, const QString& text, const QFont& font)
{
    const QFontMetrics metrics(font);
    QTextLayout layout(text, font);
    layout.beginLayout();
    int top = place.top();
    while (true) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(place.width());
        const bool isLast = top + 2 * metrics.lineSpacing() > place.bottom() + 1;
        const int end = line.textStart() + line.textLength();
        const QRect lineRect(place.left(), top, place.width(), metrics.lineSpacing());
        const QString rest =
            isLast ? text.mid(line.textStart()) : text.mid(line.textStart(), end - line.textStart());
        painter.drawText(
            lineRect, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
            metrics.elidedText(rest.trimmed(), Qt::ElideRight, place.width()));
        top += metrics.lineSpacing();
        if (isLast)
            break;
    }
    layout.endLayout();
}

} // namespace

CardDelegate::CardDelegate(const shell::DeskContext& desk, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_desk(desk)
{}

QSize CardDelegate::cellSize(const QFontMetrics& metrics)
{
    constexpr int charactersAcross = 32;
    const int lines = 1 + synopsisLines + 1;
    return QSize(
        metrics.averageCharWidth() * charactersAcross + 2 * (padding + margin),
        metrics.lineSpacing() * lines + 4 * padding + 2 * margin);
}

QSize CardDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    // The board gives every card the size of a cell of its grid.
    const auto* const board = qobject_cast<const QListView*>(option.widget);
    return board && board->gridSize().isValid() ? board->gridSize() : cellSize(option.fontMetrics);
}

void CardDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintCard(*painter, option, index);
    painter->restore();
}

void CardDelegate::paintCard(
    QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const theme::Theme& colors = m_desk.themes.theme();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    const QRect card = cardIn(option.rect);
    painter.setPen(QPen(colors.color(Role::Line), 1));
    painter.setBrush(colors.color(Role::Page));
    if (index.model()->hasChildren(index)) {
        for (int behind = 2; behind > 0; --behind)
            painter.drawRoundedRect(
                QRectF(card).translated(behind * stackStep + 0.5, behind * stackStep + 0.5), corner, corner);
    }
    const Role outline = isSelected || hasFocus ? Role::Accent : Role::Line;
    painter.setPen(QPen(colors.color(outline), isSelected ? 2 : 1));
    QPainterPath shape;
    shape.addRoundedRect(QRectF(card).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.drawPath(shape);
    if (const QVariant status = index.data(trees::DotRole); status.isValid()) {
        painter.save();
        painter.setClipPath(shape);
        painter.fillRect(QRect(card.left(), card.top(), card.width(), strip), status.value<QColor>());
        painter.restore();
    }

    const QFontMetrics& metrics = option.fontMetrics;
    const QRect inner = card.adjusted(padding, padding, -padding, -padding);
    QFont titleFont = option.font;
    titleFont.setWeight(QFont::DemiBold);
    painter.setFont(titleFont);
    painter.setPen(colors.color(Role::Ink));
    const QRect titlePlace(inner.left(), inner.top(), inner.width(), metrics.lineSpacing());
    painter.drawText(
        titlePlace, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetrics(titleFont).elidedText(index.data().toString(), Qt::ElideRight, inner.width()));

    const QVariant wordCount = index.data(manuscript::WordCountRole);
    // Of a card that is there for those below it alone.
    if (!wordCount.isValid())
        return;
    painter.setFont(option.font);
    const int foot = inner.bottom() - metrics.lineSpacing() + 1;
    const QRect synopsisPlace(
        inner.left(), titlePlace.bottom() + padding / 2, inner.width(), foot - titlePlace.bottom() - padding);
    const QString synopsis = index.data(manuscript::SynopsisRole).toString().simplified();
    painter.setPen(colors.color(synopsis.isEmpty() ? Role::QuietInk : Role::Ink));
    drawLines(painter, synopsisPlace, synopsis.isEmpty() ? tr("No synopsis yet") : synopsis, option.font);

    painter.setPen(colors.color(Role::QuietInk));
    const QRect footPlace(inner.left(), foot, inner.width(), metrics.lineSpacing());
    const QString words = tr("%Ln words", nullptr, wordCount.toInt());
    painter.drawText(footPlace, Qt::AlignTrailing | Qt::AlignVCenter, words);
    const int statusWidth = footPlace.width() - metrics.horizontalAdvance(words) - padding;
    painter.drawText(
        footPlace, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
        metrics.elidedText(index.data(manuscript::StatusRole).toString(), Qt::ElideRight, statusWidth));
}

QWidget* CardDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
    auto* const editor = new CardEditor(parent);
    auto* const self = const_cast<CardDelegate*>(this);
    connect(editor, &CardEditor::finished, self, [self, editor] {
        emit self->commitData(editor);
        emit self->closeEditor(editor);
    });
    connect(editor, &CardEditor::cancelled, self, [self, editor] {
        emit self->closeEditor(editor, RevertModelCache);
    });
    return editor;
}

void CardDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    static_cast<CardEditor*>(editor)->setTexts(
        index.data(Qt::EditRole).toString(), index.data(manuscript::SynopsisRole).toString());
}

void CardDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto* const card = static_cast<CardEditor*>(editor);
    const QPersistentModelIndex place(index);
    const auto step = m_desk.session.macro(tr("Edit card"));
    model->setData(place, card->synopsis(), manuscript::SynopsisRole);
    model->setData(place, card->title(), Qt::EditRole);
}

void CardDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const
{
    editor->setGeometry(cardIn(option.rect));
}

} // namespace tw::desktop::overview
