// Names of the codex in the text: found, shown, opened, completed.
#include "desktop/manuscript/rich/RichPage.h"

#include "desktop/manuscript/NameCompletion.h"
#include "desktop/manuscript/rich/EntityCard.h"
#include "desktop/manuscript/rich/EntityNames.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractTextDocumentLayout>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;
using app::typing::NameMatch;
using markup::BlockKind;

namespace {

const QString completionMark = u"[["_s;
constexpr qsizetype longestName = 60;
constexpr qsizetype offeredNames = 50;

} // namespace

core::ContentId RichPage::entityAt(const QTextCursor& cursor, QTextCursor* name) const
{
    const QTextBlock block = cursor.block();
    const int place = cursor.positionInBlock();
    for (const NameMatch& match : m_names->matcher().find(block.text())) {
        if (place < match.start || place > match.start + match.length)
            continue;
        if (name) {
            name->setPosition(block.position() + static_cast<int>(match.start));
            name->setPosition(
                block.position() + static_cast<int>(match.start + match.length), QTextCursor::KeepAnchor);
        }
        return match.id;
    }
    return {};
}

bool RichPage::openEntityAtCursor()
{
    const core::ContentId id = entityAt(textCursor(), nullptr);
    if (id.isNull())
        return false;
    emit entityActivated(id);
    return true;
}

bool RichPage::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return BodyEditor::viewportEvent(event);
    const QPoint point = static_cast<QHelpEvent*>(event)->pos();
    const int position = document()->documentLayout()->hitTest(
        QPointF(point) + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value()), Qt::ExactHit);
    QTextCursor name(document());
    core::ContentId id;
    if (position >= 0) {
        QTextCursor at(document());
        at.setPosition(position);
        id = entityAt(at, &name);
    }
    if (id.isNull()) {
        hideCard();
        return true;
    }
    showCard(id, name, CardUse::Glance);
    return true;
}

bool RichPage::showCardAtCursor()
{
    QTextCursor name(document());
    const core::ContentId id = entityAt(textCursor(), &name);
    if (id.isNull())
        return false;
    showCard(id, name, CardUse::Keyboard);
    return true;
}

void RichPage::showCard(const core::ContentId& id, QTextCursor name, CardUse use)
{
    name.setPosition(name.selectionStart());
    const QRect line = cursorRect(name);
    if (!m_card)
        m_card = new EntityCard(m_desk, this);
    m_card->showEntity(id, QRect(viewport()->mapToGlobal(line.topLeft()), line.size()), use);
}

void RichPage::hideCard()
{
    if (m_card)
        m_card->hide();
}

void RichPage::setMentionsShown(bool areShown)
{
    m_areMentionsShown = areShown;
    viewport()->update();
}

void RichPage::paintMentions(QPainter& painter, const QTextBlock& block, const QRectF& rect) const
{
    const QTextLayout* const layout = block.layout();
    const QPointF offset = rect.topLeft();
    painter.setPen(QPen(themes().theme().color(theme::Role::Border), 1, Qt::DotLine));
    for (const NameMatch& match : m_names->matcher().find(block.text())) {
        const auto end = static_cast<int>(match.start + match.length);
        for (auto from = static_cast<int>(match.start); from < end;) {
            const QTextLine line = layout->lineForTextPosition(from);
            if (!line.isValid())
                break;
            const int to = std::min(end, line.textStart() + line.textLength());
            const qreal y = line.y() + line.ascent() + line.descent() * 0.6;
            painter.drawLine(
                offset + QPointF(line.cursorToX(from), y), offset + QPointF(line.cursorToX(to), y));
            if (to <= from)
                break;
            from = to;
        }
    }
}

void RichPage::offerNames()
{
    const QTextCursor cursor = textCursor();
    const QString before = cursor.block().text().first(cursor.positionInBlock());
    const qsizetype mark = before.lastIndexOf(completionMark);
    const QString begun = mark < 0 ? QString() : before.mid(mark + completionMark.size());
    const bool isWanted = mark >= 0 && begun.size() <= longestName && !begun.contains(u']') &&
                          !isReadOnly() && kindOf(cursor.blockFormat()) != BlockKind::Code;
    if (!isWanted) {
        if (m_completion)
            m_completion->hide();
        return;
    }
    if (!m_completion) {
        m_completion = new NameCompletion(tr("Names of the codex"), this);
        connect(m_completion, &NameCompletion::chosen, this, &RichPage::completeName);
    }
    const QRect line = cursorRect();
    m_completion->showNames(
        m_names->completions(begun, offeredNames),
        QRect(viewport()->mapToGlobal(line.topLeft()), line.size()));
}

void RichPage::completeName(const QString& name)
{
    const QString before = textCursor().block().text().first(textCursor().positionInBlock());
    const qsizetype mark = before.lastIndexOf(completionMark);
    if (mark < 0)
        return;
    asStep(tr("Insert name"), [&](QTextCursor& cursor) {
        const QTextCharFormat format = cursor.charFormat();
        cursor.movePosition(
            QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, static_cast<int>(before.size() - mark));
        cursor.insertText(name, format);
    });
}

bool RichPage::takesCompletionKey(const QKeyEvent& event)
{
    return m_completion && m_completion->takeKey(event);
}

void RichPage::closePopups()
{
    hideCard();
    if (m_completion)
        m_completion->hide();
}

} // namespace tw::desktop::manuscript::rich
