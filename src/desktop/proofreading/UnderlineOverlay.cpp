#include "desktop/proofreading/UnderlineOverlay.h"

#include "desktop/proofreading/ProblemColors.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace tw::desktop::proofreading {

namespace {

/** Below the base line, in parts of the font's descent. */
constexpr qreal belowBaseline = 0.45;

QPointF scrollOffset(const QTextEdit& editor)
{
    return QPointF(editor.horizontalScrollBar()->value(), editor.verticalScrollBar()->value());
}

Underline lineFor(ProblemKind kind)
{
    return kind == ProblemKind::Spelling || kind == ProblemKind::RepeatedWord ? Underline::Wave
                                                                              : Underline::Dots;
}

/** The word under the writer's hands is no mistake yet; `cursor` is a position in the document. */
bool isBeingWritten(const QTextBlock& block, const ProseFinding& finding, int cursor)
{
    return finding.kind == ProblemKind::Spelling &&
           cursor == block.position() + static_cast<int>(finding.end());
}

} // namespace

VisibleBlocks visibleBlocks(const QTextEdit& editor)
{
    const QRect view = editor.viewport()->rect();
    const QTextBlock last = editor.cursorForPosition(view.bottomRight()).block();
    return {editor.cursorForPosition(view.topLeft()).block().blockNumber(), last.blockNumber()};
}

UnderlineOverlay::UnderlineOverlay(
    const theme::ThemeManager& themes, QTextEdit& editor, const BlockFindings& findings)
    : QWidget(editor.viewport())
    , m_themes(themes)
    , m_editor(editor)
    , m_findings(findings)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    editor.viewport()->installEventFilter(this);
    installEventFilter(this);
    connect(&themes, &theme::ThemeManager::themeChanged, this, qOverload<>(&QWidget::update));
    connect(&editor, &QTextEdit::cursorPositionChanged, this, &UnderlineOverlay::followCursor);
    coverViewport();
    show();
}

bool UnderlineOverlay::eventFilter(QObject* watched, QEvent* event)
{
    // Scrolling moves the children of the viewport along with its pixels.
    const bool isMoved = watched == this && event->type() == QEvent::Move;
    const bool isResized = watched != this && event->type() == QEvent::Resize;
    if (isMoved || isResized)
        coverViewport();
    return QWidget::eventFilter(watched, event);
}

void UnderlineOverlay::coverViewport()
{
    if (geometry() != m_editor.viewport()->rect())
        setGeometry(m_editor.viewport()->rect());
    update();
}

void UnderlineOverlay::updateBlock(int number)
{
    const QTextBlock block = m_editor.document()->findBlockByNumber(number);
    if (!block.isValid())
        return;
    const QRectF rect = m_editor.document()->documentLayout()->blockBoundingRect(block);
    // Waves reach a little out of the lines.
    update(rect.translated(-scrollOffset(m_editor)).toAlignedRect().adjusted(-2, -2, 2, 4));
}

void UnderlineOverlay::followCursor()
{
    // The mark under a word appears when the cursor leaves it. All other steps of the cursor paint nothing.
    const QTextBlock block = m_editor.textCursor().block();
    const auto& findings = m_findings.of(block.blockNumber());
    const bool isInside =
        std::ranges::any_of(findings, [&block, cursor = writtenPosition()](const ProseFinding& finding) {
            return isBeingWritten(block, finding, cursor);
        });
    const int written = isInside ? block.blockNumber() : -1;
    const int before = std::exchange(m_writtenBlock, written);
    if (before != written || isInside) {
        updateBlock(before);
        updateBlock(written);
    }
}

void UnderlineOverlay::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QPointF offset = scrollOffset(m_editor);
    const auto* const layout = m_editor.document()->documentLayout();
    const auto [first, last] = visibleBlocks(m_editor);
    QTextBlock block = m_editor.document()->findBlockByNumber(first);
    for (int number = first; number <= last && block.isValid(); ++number, block = block.next()) {
        if (m_findings.of(number).empty() || !block.isVisible())
            continue;
        const QRectF rect = layout->blockBoundingRect(block).translated(-offset);
        if (rect.intersects(event->rect()))
            paintBlock(painter, block, rect.topLeft(), event->rect());
    }
}

void UnderlineOverlay::paintBlock(
    QPainter& painter, const QTextBlock& block, const QPointF& origin, const QRectF& clip)
{
    const QTextLayout& text = *block.layout();
    const int cursor = writtenPosition();
    for (int number = 0; number < text.lineCount(); ++number) {
        const QTextLine line = text.lineAt(number);
        // Marks reach a little out of the lines.
        if (!line.rect().adjusted(0, -line.height(), 0, line.height()).translated(origin).intersects(clip))
            continue;
        const qreal y = origin.y() + line.y() + line.ascent() + line.descent() * belowBaseline;
        for (const ProseFinding& finding : m_findings.of(block.blockNumber())) {
            const int from = std::max(static_cast<int>(finding.start), line.textStart());
            const int to = std::min(static_cast<int>(finding.end()), line.textStart() + line.textLength());
            if (from >= to || isBeingWritten(block, finding, cursor))
                continue;
            const auto [left, right] = std::minmax({line.cursorToX(from), line.cursorToX(to)});
            m_patterns.draw(
                painter, lineFor(finding.kind), problemColor(m_themes.theme(), finding.kind),
                origin.x() + left, origin.x() + right, y);
        }
    }
}

int UnderlineOverlay::writtenPosition() const
{
    return m_editor.hasFocus() ? m_editor.textCursor().position() : -1;
}

} // namespace tw::desktop::proofreading
