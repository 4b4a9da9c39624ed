#include "desktop/screenplay/ScreenplayPage.h"

#include "desktop/manuscript/NameCompletion.h"
#include "desktop/screenplay/RevisedLines.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextLayout>

#include <chrono>

namespace tw::desktop::screenplay {

namespace fountain = core::document::screenplay;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto revisionRest = 400ms;
constexpr int markDistance = 24;

// The state of a line: what it is, and what the writer chose for it where the text does not say so yet.
constexpr int elementMask = 0xF;
constexpr int chosenShift = 4;

bool isBlank(const QTextBlock& block)
{
    return block.text().trimmed().isEmpty();
}

int stateOf(Element element, Element chosen)
{
    return static_cast<int>(element) | static_cast<int>(chosen) << chosenShift;
}

Element elementIn(const QTextBlock& block)
{
    return block.isValid() && block.userState() >= 0 ? static_cast<Element>(block.userState() & elementMask)
                                                     : Element::Blank;
}

/** Blank for no choice. */
Element chosenIn(const QTextBlock& block)
{
    return block.userState() >= 0 ? static_cast<Element>(block.userState() >> chosenShift & elementMask)
                                  : Element::Blank;
}

Element shownIn(const QTextBlock& block)
{
    const Element element = elementIn(block);
    return element == Element::Blank ? chosenIn(block) : element;
}

bool belongsToSpeech(Element element)
{
    return element == Element::Character || element == Element::Dialogue || element == Element::Parenthetical;
}

} // namespace

manuscript::PageStyle screenplayStyle(manuscript::PageStyle style)
{
    constexpr qreal pointSize = 12;
    constexpr qreal lineHeight = 1.2;
    style.fontFamily = typewriterFamily();
    style.fontPointSize = pointSize;
    style.columnCharacters = lineCharacters;
    style.lineHeight = lineHeight;
    style.hasFirstLineIndents = false;
    return style;
}

ScreenplayPage::ScreenplayPage(theme::ThemeManager& themes, QWidget* parent)
    : PlainBodyEditor(themes, parent)
{
    setAccessibleName(tr("Text of the screenplay"));
    m_revisionRest.setSingleShot(true);
    m_revisionRest.setInterval(revisionRest);
    connect(&m_revisionRest, &QTimer::timeout, this, &ScreenplayPage::markRevisedLines);
    connect(document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
        noteLines(position, added);
    });
    // The document must not be changed before it is through with its own change.
    connect(document(), &QTextDocument::contentsChanged, this, &ScreenplayPage::refreshNotedLines);
    connect(this, &QTextEdit::cursorPositionChanged, this, &ScreenplayPage::followCursor);
}

void ScreenplayPage::takeUpStyle()
{
    m_characterWidth = QFontMetricsF(document()->defaultFont()).averageCharWidth();
    noteLines(0, document()->characterCount() - 1);
    refreshNotedLines();
}

void ScreenplayPage::takeUpTheme()
{
    PlainBodyEditor::takeUpTheme();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        showLine(block, shownIn(block));
}

void ScreenplayPage::noteLines(int position, int added)
{
    if (m_isRefreshing)
        return;
    const int first = document()->findBlock(position).blockNumber();
    const QTextBlock end = document()->findBlock(position + added);
    const int last = end.isValid() ? end.blockNumber() : document()->blockCount() - 1;
    m_firstNoted = m_firstNoted < 0 ? first : std::min(m_firstNoted, first);
    m_lastNoted = std::max(m_lastNoted, last);
    if (!m_baseline.isEmpty())
        m_revisionRest.start();
}

void ScreenplayPage::refreshNotedLines()
{
    if (m_firstNoted < 0 || m_isRefreshing)
        return;
    const QScopedValueRollback refreshing(m_isRefreshing, true);
    const Applying guard(*this);
    const int last = std::exchange(m_lastNoted, -1);
    // What a line is depends on whether something stands below it.
    QTextBlock block = document()->findBlockByNumber(std::max(0, std::exchange(m_firstNoted, -1) - 1));
    QTextCursor edit(document());
    edit.beginEditBlock();
    for (; block.isValid(); block = block.next()) {
        const int before = block.userState();
        refreshLine(block, block.blockNumber() <= last);
        if (block.blockNumber() > last && block.userState() == before)
            break;
    }
    edit.endEditBlock();
    announceElement();
}

Element ScreenplayPage::naturalElement(const QTextBlock& block) const
{
    const QTextBlock below = block.next();
    return fountain::elementOf(block.text(), elementIn(block.previous()), !below.isValid() || isBlank(below));
}

void ScreenplayPage::refreshLine(QTextBlock block, bool isForced)
{
    const int before = block.userState();
    Element element = naturalElement(block);
    Element chosen = chosenIn(block);
    const bool isChosen = chosen != Element::Blank && element != Element::Blank && element != chosen;
    // What the writer chose holds while they are at it, and a name also before anything is said below.
    if (isChosen && (block == textCursor().block() || isNameWithoutSpeech(block, chosen)))
        element = chosen;
    else if (element != Element::Blank)
        chosen = Element::Blank;
    const int state = stateOf(element, chosen);
    if (state == before && !isForced)
        return;
    block.setUserState(state);
    showLine(block, shownIn(block));
}

bool ScreenplayPage::isNameWithoutSpeech(const QTextBlock& block, Element chosen) const
{
    return chosen == Element::Character &&
           fountain::elementOf(block.text(), elementIn(block.previous()), false) == Element::Character;
}

void ScreenplayPage::showLine(const QTextBlock& block, Element element)
{
    const Applying guard(*this);
    QTextBlockFormat format = formatOf(element, m_characterWidth);
    format.setLineHeight(lineHeightPercent(), QTextBlockFormat::ProportionalHeight);
    if (QTextBlockFormat merged = block.blockFormat(); merged.merge(format), merged != block.blockFormat())
        QTextCursor(block).setBlockFormat(merged);
    QList<QTextLayout::FormatRange> ranges;
    QTextCharFormat look;
    if (element == Element::SceneHeading) {
        look.setFontWeight(QFont::Bold);
        ranges.append({0, static_cast<int>(block.text().size()), look});
    }
    if (const auto mark = static_cast<int>(fountain::markLength(block.text(), element)); mark > 0) {
        QTextCharFormat quiet;
        quiet.setForeground(themes().theme().color(theme::Role::FaintInk));
        ranges.append({0, mark, quiet});
    }
    if (ranges != block.layout()->formats()) {
        block.layout()->setFormats(ranges);
        document()->markContentsDirty(block.position(), block.length());
    }
}

Element ScreenplayPage::elementAtCursor() const
{
    const Element shown = shownIn(textCursor().block());
    return shown == Element::Blank ? Element::Action : shown;
}

void ScreenplayPage::choose(const QTextBlock& block, Element element)
{
    QTextBlock line = block;
    line.setUserState(stateOf(elementIn(line), element));
    showLine(line, shownIn(line));
    announceElement();
}

bool ScreenplayPage::setElement(Element element)
{
    const QTextBlock block = textCursor().block();
    const Element above = elementIn(block.previous());
    const bool needsSpeaker = element == Element::Dialogue || element == Element::Parenthetical;
    if (isReadOnly() || (needsSpeaker && !belongsToSpeech(above)))
        return false;
    if (isBlank(block)) {
        choose(block, element);
        return true;
    }
    rewrite(block, element);
    return true;
}

void ScreenplayPage::rewrite(QTextBlock block, Element element)
{
    const Element above = elementIn(block.previous());
    const QString before = block.text();
    const QString after = fountain::rewrittenAs(before, naturalElement(block), element);
    const QTextCursor writer = textCursor();
    const bool isWritersLine = writer.block() == block;
    const int fromEnd = static_cast<int>(before.size()) - writer.positionInBlock();
    const bool isCrowdedAbove = above != Element::Blank && fountain::isPartedFrom(above, element);
    const bool isCrowdedBelow =
        element == Element::Transition && block.next().isValid() && !isBlank(block.next());
    QTextCursor cursor(block);
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    if (isCrowdedAbove || isCrowdedBelow || after != before)
        cursor.insertText(
            (isCrowdedAbove ? u"\n"_s : QString()) + after + (isCrowdedBelow ? u"\n"_s : QString()));
    if (isCrowdedBelow)
        cursor.movePosition(QTextCursor::PreviousBlock);
    block = cursor.block();
    cursor.endEditBlock();
    if (isWritersLine) {
        cursor.setPosition(block.position() + std::max(0, static_cast<int>(after.size()) - fromEnd));
        setTextCursor(cursor);
    }
    if (isNameWithoutSpeech(block, element)) {
        choose(block, element);
        noteLines(block.position(), 0);
        refreshNotedLines();
    }
}

void ScreenplayPage::followCursor()
{
    const int line = textCursor().blockNumber();
    const int left = std::exchange(m_cursorLine, line);
    if (left != line) {
        m_speakersLine = -1;
        if (m_completion)
            m_completion->hide();
    }
    if (left != line && !isApplying() && !isReadOnly())
        settleChoice(document()->findBlockByNumber(left));
    announceElement();
}

void ScreenplayPage::settleChoice(const QTextBlock& block)
{
    const Element chosen = chosenIn(block);
    if (!block.isValid() || isBlank(block) || chosen == Element::Blank || chosen == naturalElement(block) ||
        isNameWithoutSpeech(block, chosen))
        return;
    rewrite(block, chosen);
    noteLines(block.position(), 0);
    refreshNotedLines();
}

void ScreenplayPage::stepElement(int step)
{
    const std::vector<Element>& elements = fountain::chosenElements();
    const auto count = static_cast<int>(elements.size());
    auto index = static_cast<int>(std::ranges::find(elements, elementAtCursor()) - elements.begin());
    for (int tried = 1; tried < count; ++tried) {
        index = (index + step + count) % count;
        if (setElement(elements[static_cast<std::size_t>(index)]))
            return;
    }
}

bool ScreenplayPage::beginNextLine()
{
    QTextCursor cursor = textCursor();
    const QTextBlock block = cursor.block();
    const Element element = elementAtCursor();
    if (isBlank(block)) {
        if (element == Element::Action)
            return false;
        // Return in an empty line: not this, then.
        choose(block, Element::Action);
        return true;
    }
    if (cursor.hasSelection() || !cursor.atBlockEnd())
        return false;
    const Element next = fountain::elementAfter(element);
    cursor.insertText(fountain::isPartedFrom(element, next) ? u"\n\n"_s : u"\n"_s);
    setTextCursor(cursor);
    choose(cursor.block(), next);
    ensureCursorVisible();
    return true;
}

void ScreenplayPage::keyPressEvent(QKeyEvent* event)
{
    if (m_completion && m_completion->takeKey(*event))
        return;
    const bool isPlain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReadOnly() || !isPlain) {
        PlainBodyEditor::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
        stepElement(event->key() == Qt::Key_Tab ? 1 : -1);
        return;
    }
    if (isReturn && !event->modifiers().testFlag(Qt::ShiftModifier) && beginNextLine())
        return;
    const QString text = event->text();
    if (!isReturn && !text.isEmpty() && text.front().isPrint() &&
        fountain::isCapitalised(elementAtCursor())) {
        QKeyEvent capital(
            event->type(), event->key(), event->modifiers(), text.toUpper(), event->isAutoRepeat());
        PlainBodyEditor::keyPressEvent(&capital);
        offerSpeakers();
        return;
    }
    const Element before = elementAtCursor();
    PlainBodyEditor::keyPressEvent(event);
    if (event->key() == Qt::Key_Backspace)
        offerSpeakers();
    // "int. " has just become a scene: what was typed of it is brought to capitals as well.
    if (before != Element::SceneHeading && elementAtCursor() == Element::SceneHeading && !text.isEmpty())
        rewrite(textCursor().block(), Element::SceneHeading);
}

void ScreenplayPage::offerSpeakers()
{
    const QTextCursor cursor = textCursor();
    const QTextBlock line = cursor.block();
    const QString begun = line.text();
    QStringList names;
    if (elementAtCursor() == Element::Character && cursor.atBlockEnd() && !begun.trimmed().isEmpty()) {
        if (std::exchange(m_speakersLine, line.blockNumber()) != line.blockNumber())
            m_speakers = speakersFor(line);
        names = m_speakers.filter(QRegularExpression(
            u'^' + QRegularExpression::escape(begun), QRegularExpression::CaseInsensitiveOption));
        // Nothing is left to complete; Return shall go on to what is said.
        if (names.contains(begun, Qt::CaseInsensitive))
            names.clear();
    }
    if (!m_completion) {
        if (names.isEmpty())
            return;
        m_completion = new manuscript::NameCompletion(tr("Characters who speak"), this);
        connect(m_completion, &manuscript::NameCompletion::chosen, this, &ScreenplayPage::completeSpeaker);
    }
    const QRect place = cursorRect();
    m_completion->showNames(names, QRect(viewport()->mapToGlobal(place.topLeft()), place.size()));
}

QStringList ScreenplayPage::speakersFor(const QTextBlock& line) const
{
    // Backwards from the line: in a talk of two, the one who spoke before the last answers.
    QStringList names;
    const auto take = [&](const QTextBlock& block) {
        if (block == line || elementIn(block) != Element::Character)
            return;
        const QString text = block.text().trimmed();
        const QString name = text.left(text.indexOf(u'(')).trimmed();
        if (!name.isEmpty() && !names.contains(name))
            names.append(name);
    };
    for (QTextBlock block = line.previous(); block.isValid(); block = block.previous())
        take(block);
    if (names.size() > 1)
        names.swapItemsAt(0, 1);
    for (QTextBlock block = line.next(); block.isValid(); block = block.next())
        take(block);
    return names;
}

void ScreenplayPage::completeSpeaker(const QString& name)
{
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(name);
    setTextCursor(cursor);
}

void ScreenplayPage::focusOutEvent(QFocusEvent* event)
{
    if (m_completion)
        m_completion->hide();
    PlainBodyEditor::focusOutEvent(event);
}

int ScreenplayPage::pages() const
{
    const QString text = document()->toRawText();
    std::vector<QStringView> lines;
    for (const QStringView line : QStringView(text).split(QChar::ParagraphSeparator))
        lines.push_back(line);
    return fountain::pagesOf(lines);
}

void ScreenplayPage::announceElement()
{
    const Element element = elementAtCursor();
    if (std::exchange(m_announced, element) != element)
        emit elementChanged(element);
}

void ScreenplayPage::setRevisionBaseline(const QString& text)
{
    if (text == m_baseline)
        return;
    m_baseline = text;
    markRevisedLines();
}

void ScreenplayPage::markRevisedLines()
{
    m_revisionRest.stop();
    m_revisedLines = m_baseline.isEmpty() ? std::set<int>() : revisedLinesOf(m_baseline, plainText());
    viewport()->update();
}

void ScreenplayPage::paintEvent(QPaintEvent* event)
{
    PlainBodyEditor::paintEvent(event);
    if (m_revisedLines.empty())
        return;
    QPainter painter(viewport());
    painter.setFont(document()->defaultFont());
    painter.setPen(themes().theme().color(theme::Role::Accent));
    const int scrolled = verticalScrollBar()->value();
    const auto right = static_cast<int>(document()->rootFrame()->frameFormat().leftMargin() + columnWidth());
    const QAbstractTextDocumentLayout& layout = *document()->documentLayout();
    QTextBlock block = cursorForPosition(event->rect().topLeft()).block();
    for (; block.isValid(); block = block.next()) {
        const QRectF place = layout.blockBoundingRect(block).translated(0, -scrolled);
        if (place.top() > event->rect().bottom())
            break;
        if (m_revisedLines.contains(block.blockNumber())) {
            const QRectF mark(right + markDistance, place.top(), markDistance, place.height());
            painter.drawText(mark, Qt::AlignHCenter | Qt::AlignTop, u"*"_s);
        }
    }
}

} // namespace tw::desktop::screenplay
