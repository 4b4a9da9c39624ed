#include "desktop/manuscript/BodyEditor.h"

#include "core/document/WordCount.h"
#include "desktop/fields/LongWords.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextFrame>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sideMargin = 56;
constexpr int narrowMargin = 16;
constexpr int topMargin = 40;

/** Of running text: an average over letters alone takes the rare wide ones for common. */
qreal characterWidth(const QFont& font)
{
    const QString text =
        u"She said that the tide would be out by four, and nobody in the room believed her."_s;
    return QFontMetricsF(font).horizontalAdvance(text) / static_cast<qreal>(text.size());
}

/**
 * Undo and redo are the project's, and letters with Ctrl mean what the menus say, also where text fields have
 * a habit of their own (as Ctrl+E, the end of the line).
 */
bool isForMenus(const QKeyEvent& key)
{
    if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo))
        return true;
    const bool isClipboard = key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Cut) ||
                             key.matches(QKeySequence::Paste) || key.matches(QKeySequence::SelectAll);
    const bool isSign = key.key() > Qt::Key_Space && key.key() <= Qt::Key_ydiaeresis;
    return isSign && !isClipboard && key.modifiers().testFlag(Qt::ControlModifier) &&
           !key.modifiers().testFlag(Qt::AltModifier);
}

} // namespace

BodyEditor::BodyEditor(theme::ThemeManager& themes, QWidget* parent)
    : QTextEdit(parent)
    , m_themes(themes)
{
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(false);
    setLineWrapMode(WidgetWidth);
    fields::breakLongWordsAnywhere(*document());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setAccessibleName(tr("Text of the document"));
    connect(document(), &QTextDocument::contentsChange, this, &BodyEditor::noteChange);
    connect(document(), &QTextDocument::blockCountChanged, this, [this] {
        if (!isApplying())
            emit paragraphEnded();
    });
    connect(&themes, &theme::ThemeManager::themeChanged, this, [this] { takeUpTheme(); });
    connect(this, &QTextEdit::cursorPositionChanged, this, &BodyEditor::holdCursorLine);
    BodyEditor::takeUpTheme();
}

BodyEditor::~BodyEditor() = default;

void BodyEditor::noteChange(int, int removed, int added)
{
    if (!isApplying() && (removed > 0 || added > 0))
        emit edited();
}

void BodyEditor::takeUpTheme()
{
    const theme::Theme& theme = m_themes.theme();
    // The desk; paintEvent() lays the sheet on it.
    QPalette colors = palette();
    colors.setColor(QPalette::Base, theme.color(theme::Role::Window));
    colors.setColor(QPalette::Text, theme.color(theme::Role::Ink));
    setPalette(colors);
}

void BodyEditor::setPageStyle(const PageStyle& style)
{
    if (style == m_style)
        return;
    m_style = style;
    const Applying guard(*this);
    const QFont font = pageFont(style);
    setFont(font);
    document()->setDefaultFont(font);
    takeUpStyle();
    layOutColumn();
}

qreal BodyEditor::lineHeightPercent() const
{
    // Fonts differ in the leading they bring along; the page counts from the font's size.
    const QFont font = document()->defaultFont();
    return 100 * m_style.lineHeight * QFontInfo(font).pixelSize() / QFontMetricsF(font).lineSpacing();
}

qreal BodyEditor::columnWidth() const
{
    const QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    return std::max(1.0, viewport()->width() - frame.leftMargin() - frame.rightMargin());
}

SheetMargins sheetMargins(const PageStyle& style, int available)
{
    const int column = style.isPageView
                           ? static_cast<int>(characterWidth(pageFont(style)) * style.columnCharacters)
                           : available;
    const int side = std::clamp((available - column) / 2, std::min(narrowMargin, available / 12), available);
    return {std::max(0, side - sideMargin), side};
}

void BodyEditor::setPartOfLongerText()
{
    m_isPart = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layOutColumn();
    const auto fit = [this] { setFixedHeight(static_cast<int>(std::ceil(document()->size().height()))); };
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this, fit);
    fit();
}

void BodyEditor::layOutColumn()
{
    const Applying guard(*this);
    const SheetMargins margins = sheetMargins(m_style, viewport()->width());
    m_sheetMargin = margins.sheet;
    QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    frame.setLeftMargin(margins.text);
    frame.setRightMargin(margins.text);
    frame.setTopMargin(m_isPart ? 0 : topMargin);
    // The last lines can be scrolled to the middle of the window.
    frame.setBottomMargin(m_isPart ? 0 : std::max(topMargin, height() / 2));
    if (frame != document()->rootFrame()->frameFormat())
        document()->rootFrame()->setFrameFormat(frame);
    viewport()->update();
}

qint64 BodyEditor::selectedWords() const
{
    const QTextCursor cursor = textCursor();
    return cursor.hasSelection() ? core::document::countWords(cursor.selectedText()) : 0;
}

void BodyEditor::setFoundPlaces(const std::vector<FoundPlace>& places)
{
    // A mark a place costs at every painting; more than fill a few windows help nobody.
    constexpr qsizetype mostMarks = 500;
    m_foundPlaces.clear();
    for (const FoundPlace& place : places) {
        if (m_foundPlaces.size() >= mostMarks)
            break;
        ExtraSelection& mark = m_foundPlaces.emplaceBack();
        mark.cursor = QTextCursor(document());
        mark.cursor.setPosition(place.position);
        mark.cursor.setPosition(place.position + place.length, QTextCursor::KeepAnchor);
        mark.format.setBackground(m_themes.theme().color(theme::Role::Insertion));
    }
    showMarks();
}

void BodyEditor::setQuietRanges(const QList<ExtraSelection>& ranges)
{
    m_quietRanges = ranges;
    showMarks();
}

void BodyEditor::showMarks()
{
    setExtraSelections(m_quietRanges + m_foundPlaces);
}

void BodyEditor::replaceText(QTextCursor& selection, const QString& text)
{
    QTextCursor first(selection);
    first.setPosition(std::min(selection.selectionStart() + 1, document()->characterCount() - 1));
    selection.insertText(text, first.charFormat());
}

void BodyEditor::setTypewriterScrolling(bool isOn)
{
    m_isTypewriter = isOn;
    holdCursorLine();
}

void BodyEditor::holdCursorLine()
{
    // A selection that is drawn with the mouse must not move under the pointer.
    if (!m_isTypewriter || isApplying() || textCursor().hasSelection())
        return;
    const int target = static_cast<int>(viewport()->height() * heldLine);
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(bar.value() + cursorRect().center().y() - target);
}

void BodyEditor::paintEvent(QPaintEvent* event)
{
    // The sheet lies on the desk, from the top of the window to the bottom.
    QPainter painter(viewport());
    painter.fillRect(
        viewport()->rect().adjusted(m_sheetMargin, 0, -m_sheetMargin, 0),
        m_themes.theme().color(theme::Role::Page));
    paintSheet(painter, event->rect());
    painter.end();
    QTextEdit::paintEvent(event);
}

void BodyEditor::paintSheet(QPainter&, const QRect&) {}

bool BodyEditor::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isForMenus(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return false;
    }
    return QTextEdit::event(event);
}

void BodyEditor::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    layOutColumn();
}

void BodyEditor::focusOutEvent(QFocusEvent* event)
{
    QTextEdit::focusOutEvent(event);
    emit focusLeft();
}

void BodyEditor::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        emit zoomStepRequested(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
        return;
    }
    QTextEdit::wheelEvent(event);
}

} // namespace tw::desktop::manuscript
