#include "desktop/manuscript/MarkdownPage.h"

#include "desktop/manuscript/MarkdownHighlighter.h"
#include "desktop/theme/ThemeManager.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>

namespace tw::desktop::manuscript {

namespace {

constexpr int columnCharacters = 66;
constexpr qreal lineHeightPercent = 150;
constexpr int sideMargin = 56;
constexpr int topMargin = 40;

} // namespace

MarkdownPage::MarkdownPage(theme::ThemeManager& themes, QWidget* parent)
    : QTextEdit(parent)
    , m_themes(themes)
{
    setAcceptRichText(false);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(false);
    setLineWrapMode(WidgetWidth);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setAccessibleName(tr("Text of the document"));
    new MarkdownHighlighter(themes, document());
    connect(&themes, &theme::ThemeManager::themeChanged, this, &MarkdownPage::applyTheme);
    applyTheme();
}

void MarkdownPage::applyTheme()
{
    const theme::Theme& theme = m_themes.theme();
    // The sheet is the viewport; what lies beside it is the desk.
    QPalette colors = palette();
    colors.setColor(QPalette::Base, theme.color(theme::Role::Page));
    colors.setColor(QPalette::Window, theme.color(theme::Role::Window));
    colors.setColor(QPalette::Text, theme.color(theme::Role::Ink));
    setPalette(colors);
}

void MarkdownPage::setPageStyle(const PageStyle& style)
{
    if (style == m_style)
        return;
    m_style = style;
    QFont pageFont(style.fontFamily);
    pageFont.setPointSizeF(style.fontPointSize * style.zoom);
    pageFont.setStyleStrategy(QFont::PreferQuality);
    setFont(pageFont);
    document()->setDefaultFont(pageFont);
    formatLines();
    layOutColumn();
}

void MarkdownPage::formatLines()
{
    QTextBlockFormat format;
    format.setLineHeight(lineHeightPercent, QTextBlockFormat::ProportionalHeight);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
}

void MarkdownPage::layOutColumn()
{
    const int column = QFontMetrics(document()->defaultFont()).averageCharWidth() * columnCharacters;
    const int sheet = column + 2 * sideMargin;
    const int scrollBar = verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0;
    const int beside = std::max(0, (width() - scrollBar - sheet) / 2);
    setViewportMargins(beside, 0, beside, 0);
    QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    const int side = std::min(sideMargin, std::max(8, width() / 12));
    frame.setLeftMargin(side);
    frame.setRightMargin(side);
    frame.setTopMargin(topMargin);
    // The last lines can be scrolled to the middle of the window.
    frame.setBottomMargin(std::max(topMargin, height() / 2));
    document()->rootFrame()->setFrameFormat(frame);
}

void MarkdownPage::applyText(const QString& text)
{
    const QString present = toPlainText();
    if (present == text)
        return;
    if (present.isEmpty() || text.isEmpty()) {
        setPlainText(text);
        formatLines();
        layOutColumn();
        return;
    }
    const auto [presentDiffers, textDiffers] =
        std::mismatch(present.cbegin(), present.cend(), text.cbegin(), text.cend());
    const qsizetype start = presentDiffers - present.cbegin();
    qsizetype tail = 0;
    while (tail < std::min(present.size(), text.size()) - start &&
           present[present.size() - 1 - tail] == text[text.size() - 1 - tail])
        ++tail;
    QTextCursor edit(document());
    edit.beginEditBlock();
    edit.setPosition(static_cast<int>(start));
    edit.setPosition(static_cast<int>(present.size() - tail), QTextCursor::KeepAnchor);
    edit.insertText(text.mid(start, text.size() - tail - start));
    edit.endEditBlock();
}

bool MarkdownPage::event(QEvent* event)
{
    // Undo and redo are the project's: the menu's shortcuts must reach it.
    if (event->type() == QEvent::ShortcutOverride) {
        auto* const key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return false;
        }
    }
    return QTextEdit::event(event);
}

void MarkdownPage::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    layOutColumn();
}

void MarkdownPage::focusOutEvent(QFocusEvent* event)
{
    QTextEdit::focusOutEvent(event);
    emit focusLeft();
}

void MarkdownPage::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        emit zoomStepRequested(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
        return;
    }
    QTextEdit::wheelEvent(event);
}

bool MarkdownPage::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText();
}

void MarkdownPage::insertFromMimeData(const QMimeData* source)
{
    if (!source->hasText())
        return;
    QString text = source->text();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    textCursor().insertText(text);
    ensureCursorVisible();
}

} // namespace tw::desktop::manuscript
