#include "desktop/manuscript/MarkdownPage.h"

#include "desktop/manuscript/MarkdownHighlighter.h"
#include "desktop/theme/Fonts.h"
#include "desktop/theme/ThemeManager.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QSettings>
#include <QTextBlock>
#include <QUrl>
#include <QWheelEvent>

#include <algorithm>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView familyKey = "editor/fontFamily"_L1;
constexpr QLatin1StringView sizeKey = "editor/fontSize"_L1;
constexpr QLatin1StringView widthKey = "editor/pageWidth"_L1;
constexpr QLatin1StringView lineHeightKey = "editor/lineHeight"_L1;
constexpr int sideMargin = 56;
constexpr int narrowMargin = 16;
constexpr int topMargin = 40;
constexpr qreal smallestZoom = 0.5;
constexpr qreal largestZoom = 3.0;
constexpr qreal zoomStep = 0.1;

/** Of running text: an average over letters alone takes the rare wide ones for common. */
qreal characterWidth(const QFont& font)
{
    const QString text =
        u"She said that the tide would be out by four, and nobody in the room believed her."_s;
    return QFontMetricsF(font).horizontalAdvance(text) / static_cast<qreal>(text.size());
}

} // namespace

PageStyle pageStyleFrom(const QSettings& settings)
{
    PageStyle style;
    style.fontFamily = settings.value(familyKey, theme::defaultPageFont().family()).toString();
    style.fontPointSize = std::clamp(
        settings.value(sizeKey, style.fontPointSize).toReal(), PageLimits::smallestFont,
        PageLimits::largestFont);
    style.columnCharacters = std::clamp(
        settings.value(widthKey, style.columnCharacters).toInt(), PageLimits::narrowest, PageLimits::widest);
    style.lineHeight = std::clamp(
        settings.value(lineHeightKey, style.lineHeight).toReal(), PageLimits::tightest, PageLimits::loosest);
    style.zoom = std::clamp(settings.value("editor/zoom", style.zoom).toReal(), smallestZoom, largestZoom);
    return style;
}

void storePageStyle(QSettings& settings, const PageStyle& style)
{
    settings.setValue(familyKey, style.fontFamily);
    settings.setValue(sizeKey, style.fontPointSize);
    settings.setValue(widthKey, style.columnCharacters);
    settings.setValue(lineHeightKey, style.lineHeight);
}

void forgetPageStyle(QSettings& settings)
{
    for (const QLatin1StringView key : {familyKey, sizeKey, widthKey, lineHeightKey})
        settings.remove(key);
}

void stepPageZoom(QSettings& settings, int steps)
{
    if (steps == 0)
        return;
    const qreal zoom = pageStyleFrom(settings).zoom + steps * zoomStep;
    settings.setValue("editor/zoom", std::clamp(zoom, smallestZoom, largestZoom));
}

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
    // The desk; paintEvent() lays the sheet on it.
    QPalette colors = palette();
    colors.setColor(QPalette::Base, theme.color(theme::Role::Window));
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
    // Fonts differ in the leading they bring along; the page counts from the font's size.
    const QFontMetricsF metrics(document()->defaultFont());
    const qreal size = QFontInfo(document()->defaultFont()).pixelSize();
    QTextBlockFormat format;
    format.setLineHeight(
        100 * m_style.lineHeight * size / metrics.lineSpacing(), QTextBlockFormat::ProportionalHeight);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
}

void MarkdownPage::layOutColumn()
{
    const int column = static_cast<int>(characterWidth(document()->defaultFont()) * m_style.columnCharacters);
    const int available = viewport()->width();
    const int side = std::clamp((available - column) / 2, std::min(narrowMargin, available / 12), available);
    m_sheetMargin = std::max(0, side - sideMargin);
    QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    frame.setLeftMargin(side);
    frame.setRightMargin(side);
    frame.setTopMargin(topMargin);
    // The last lines can be scrolled to the middle of the window.
    frame.setBottomMargin(std::max(topMargin, height() / 2));
    if (frame != document()->rootFrame()->frameFormat())
        document()->rootFrame()->setFrameFormat(frame);
    viewport()->update();
}

void MarkdownPage::paintEvent(QPaintEvent* event)
{
    // The sheet lies on the desk, from the top of the window to the bottom.
    QPainter painter(viewport());
    painter.fillRect(
        viewport()->rect().adjusted(m_sheetMargin, 0, -m_sheetMargin, 0),
        m_themes.theme().color(theme::Role::Page));
    painter.end();
    QTextEdit::paintEvent(event);
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
    // Files belong to the window, which opens projects.
    const QList<QUrl> urls = source->urls();
    return source->hasText() && (urls.isEmpty() || !urls.constFirst().isLocalFile());
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
