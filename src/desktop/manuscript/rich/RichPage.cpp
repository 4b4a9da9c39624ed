#include "desktop/manuscript/rich/RichPage.h"

#include "core/document/markup/LegacyHtml.h"
#include "desktop/manuscript/TypingBursts.h"
#include "desktop/manuscript/rich/EntityCard.h"
#include "desktop/manuscript/rich/EntityNames.h"
#include "desktop/manuscript/rich/PageObjects.h"
#include "desktop/manuscript/rich/ParagraphChange.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractTextDocumentLayout>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>

namespace tw::desktop::manuscript::rich {

using core::document::BodyFormat;
using core::document::DocumentBody;
using markup::RunKind;

RichPage::RichPage(const shell::DeskContext& desk, const core::ContentId& documentId, QWidget* parent)
    : BodyEditor(desk.themes, parent)
    , m_desk(desk)
    , m_documentId(documentId)
    , m_body(*document(), m_formats)
    , m_images(new PageImages(
          m_formats, [&session = desk.session] { return session.workspace().folderPath(); },
          [this] { return columnWidth(); }, this))
    , m_footnotes(new FootnoteMarks(m_formats, this))
    , m_names(new EntityNames(desk.session, *this))
{
    setMouseTracking(true);
    document()->documentLayout()->registerHandler(ImageObject, m_images);
    document()->documentLayout()->registerHandler(FootnoteObject, m_footnotes);
    connect(m_images, &PageImages::loaded, viewport(), qOverload<>(&QWidget::update));
    connect(document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
        if (!isApplying())
            m_body.noteChange(position, added);
    });
    connect(this, &QTextEdit::cursorPositionChanged, this, &RichPage::markPlace);
    connect(m_names, &EntityNames::changed, viewport(), qOverload<>(&QWidget::update));
    setPageStyle(pageStyleFrom(desk.settings));
    m_bursts = new TypingBursts(desk.session, documentId, *this);
}

RichPage::~RichPage()
{
    // The page loses the focus while it dies; nobody is left to hear of it.
    blockSignals(true);
}

void RichPage::applyBody(const DocumentBody& body)
{
    const Applying guard(*this);
    const int position = textCursor().position();
    const int anchor = textCursor().anchor();
    const int scrolled = verticalScrollBar()->value();
    if (m_body.apply(core::document::markup::markdownOf(body)) == RichBody::Update::InPlace)
        return;
    QTextCursor after(document());
    const int last = document()->characterCount() - 1;
    after.setPosition(std::min(anchor, last));
    after.setPosition(std::min(position, last), QTextCursor::KeepAnchor);
    setTextCursor(after);
    verticalScrollBar()->setValue(scrolled);
}

DocumentBody RichPage::currentBody()
{
    return {m_body.text(), BodyFormat::Markdown};
}

qint64 RichPage::words()
{
    return m_body.words();
}

void RichPage::refreshFormats()
{
    m_formats.setLook(themes().theme(), pageStyle(), lineHeightPercent());
    m_images->forget();
}

void RichPage::restyle()
{
    const Applying guard(*this);
    refreshFormats();
    m_body.restyle();
    setCursorWidth(std::max(1, static_cast<int>(m_formats.em() / 10)));
    markPlace();
}

void RichPage::takeUpStyle()
{
    restyle();
}

void RichPage::takeUpTheme()
{
    BodyEditor::takeUpTheme();
    restyle();
}

void RichPage::resizeEvent(QResizeEvent* event)
{
    const qreal width = columnWidth();
    BodyEditor::resizeEvent(event);
    if (width != columnWidth())
        m_images->forget();
}

void RichPage::showEvent(QShowEvent* event)
{
    BodyEditor::showEvent(event);
    m_names->wake();
}

void RichPage::focusOutEvent(QFocusEvent* event)
{
    // A card that is read with the keyboard has it from here.
    if (event->reason() != Qt::PopupFocusReason || !m_card || !m_card->hasKeyboard())
        closePopups();
    BodyEditor::focusOutEvent(event);
}

void RichPage::setFocusedOnParagraph(bool isOn)
{
    m_isFocusedOnParagraph = isOn;
    markPlace();
}

void RichPage::markPlace()
{
    if (!m_isFocusedOnParagraph) {
        if (m_hasQuietRanges)
            setQuietRanges({});
        m_hasQuietRanges = false;
        return;
    }
    const QTextBlock block = textCursor().block();
    const auto quiet = [&](int from, int to) {
        ExtraSelection selection;
        selection.cursor = QTextCursor(document());
        selection.cursor.setPosition(from);
        selection.cursor.setPosition(to, QTextCursor::KeepAnchor);
        selection.format.setForeground(themes().theme().color(theme::Role::FaintInk));
        return selection;
    };
    m_hasQuietRanges = true;
    setQuietRanges({
        quiet(0, block.position()),
        quiet(block.position() + block.length() - 1, document()->characterCount() - 1),
    });
}

void RichPage::mouseReleaseEvent(QMouseEvent* event)
{
    BodyEditor::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || textCursor().hasSelection())
        return;
    const int position = document()->documentLayout()->hitTest(
        event->position() + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value()),
        Qt::ExactHit);
    if (position < 0)
        return;
    QTextCursor at(document());
    at.setPosition(std::min(position + 1, document()->characterCount() - 1));
    const QTextCharFormat format = at.charFormat();
    if (followNote(format) || !event->modifiers().testFlag(Qt::ControlModifier))
        return;
    if (!followLink(format))
        openEntityAtCursor();
}

bool RichPage::followNote(const QTextCharFormat& format)
{
    if (runKindOf(format) != RunKind::FootnoteReference)
        return false;
    emit footnoteActivated(objectText(format));
    return true;
}

bool RichPage::followLink(const QTextCharFormat& format)
{
    const QString link = styleOf(format).link;
    if (link.isEmpty())
        return false;
    emit linkActivated(link);
    return true;
}

bool RichPage::followAtCursor()
{
    // The cursor stands between two characters and may mean either.
    QTextCursor behind(textCursor());
    behind.setPosition(behind.position());
    const QTextCharFormat before = behind.charFormat();
    if (!behind.atBlockEnd())
        behind.movePosition(QTextCursor::NextCharacter);
    const QTextCharFormat after = behind.charFormat();
    return followNote(after) || followNote(before) || followLink(after) || followLink(before) ||
           openEntityAtCursor();
}

QStringList RichPage::footnoteReferences() const
{
    QStringList labels;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator) {
            const QTextCharFormat format = iterator.fragment().charFormat();
            const QString label = objectText(format);
            if (runKindOf(format) == RunKind::FootnoteReference && !labels.contains(label))
                labels.append(label);
        }
    }
    return labels;
}

bool RichPage::showFootnoteReference(const QString& label)
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator) {
            const QTextFragment fragment = iterator.fragment();
            if (runKindOf(fragment.charFormat()) != RunKind::FootnoteReference ||
                objectText(fragment.charFormat()) != label)
                continue;
            showPlace(fragment.position() + 1);
            return true;
        }
    }
    return false;
}

bool RichPage::showFootnoteDefinition(const QString& label)
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        if (kindOf(format) == markup::BlockKind::FootnoteDefinition && shapeOf(format).label == label) {
            showPlace(block.position());
            return true;
        }
    }
    return false;
}

void RichPage::showPlace(int position)
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    setTextCursor(cursor);
    ensureCursorVisible();
    setFocus(Qt::OtherFocusReason);
}

} // namespace tw::desktop::manuscript::rich
