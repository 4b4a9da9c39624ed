#include "desktop/overview/DateDelegate.h"

#include "desktop/fields/StoryDateEdit.h"
#include "desktop/shell/ProjectSession.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <optional>

namespace tw::desktop::overview {

using core::calendar::StoryInstant;
using fields::StoryDateEdit;

namespace {

/** A date needs that many to be read while it is typed. */
constexpr int leastCharacters = 44;

/** The line over the cell, and what it reads as over the rows beneath, as far as there is room. */
void fitOver(QWidget& editor, const QRect& cell)
{
    const int room = editor.parentWidget()->width();
    const int characters = editor.fontMetrics().averageCharWidth() * leastCharacters;
    const int width = std::min(room, std::max(cell.width(), characters));
    const int height = editor.hasHeightForWidth() ? editor.heightForWidth(width) : editor.sizeHint().height();
    editor.setGeometry(
        std::clamp(cell.left(), 0, room - width), cell.top(), width, std::max(cell.height(), height));
}

} // namespace

DateDelegate::DateDelegate(const shell::DeskContext& desk, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_desk(desk)
{}

QWidget* DateDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
    auto* const edit = new StoryDateEdit(m_desk.themes, parent);
    edit->setAutoFillBackground(true);
    edit->setCalendar(m_desk.session.project().calendar());
    // The line has the keyboard, and the delegate hears of what comes to it.
    edit->focusProxy()->installEventFilter(const_cast<DateDelegate*>(this));
    connect(edit, &StoryDateEdit::typed, edit, [edit] {
        fitOver(*edit, {edit->pos(), QSize(edit->width(), 0)});
    });
    return edit;
}

void DateDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QVariant value = index.data(Qt::EditRole);
    static_cast<StoryDateEdit*>(editor)->setInstant(
        value.isValid() ? std::optional<StoryInstant>(value.toLongLong()) : std::nullopt);
}

void DateDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    auto& edit = *static_cast<StoryDateEdit*>(editor);
    edit.commit();
    if (edit.isReadable())
        model->setData(index, edit.instant() ? QVariant(*edit.instant()) : QVariant(), Qt::EditRole);
}

void DateDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const
{
    fitOver(*editor, option.rect);
}

bool DateDelegate::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const line = qobject_cast<const QLineEdit*>(watched);
    auto* const edit = qobject_cast<StoryDateEdit*>(line ? watched->parent() : watched);
    if (!edit)
        return QStyledItemDelegate::eventFilter(watched, event);
    const int key = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent*>(event)->key() : 0;
    const bool leavesLine = event->type() == QEvent::FocusOut || key == Qt::Key_Tab || key == Qt::Key_Backtab;
    // What the line has no use for comes by once more, to the field.
    if (line && !leavesLine)
        return false;
    if (!edit->isReadable() && (leavesLine || key == Qt::Key_Return || key == Qt::Key_Enter))
        return key != 0;
    return QStyledItemDelegate::eventFilter(edit, event);
}

} // namespace tw::desktop::overview
