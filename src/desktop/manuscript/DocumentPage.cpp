#include "desktop/manuscript/DocumentPage.h"

#include "core/document/Document.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/FindBar.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/manuscript/NotesPane.h"
#include "desktop/manuscript/PassageFinder.h"
#include "desktop/manuscript/TypingBursts.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/screenplay/ScreenplayPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QLabel>
#include <QLocale>
#include <QScrollBar>
#include <QSettings>
#include <QVBoxLayout>

#include <chrono>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using core::document::Document;

namespace {

/** A selection that is being drawn is not counted at every step. */
constexpr auto selectionRest = 150ms;
constexpr QLatin1StringView sourceKey = "editor/sourceMode"_L1;

} // namespace

DocumentPage::DocumentPage(const shell::DeskContext& desk, const core::ContentId& id, QWidget* parent)
    : TextPage({id, {}}, parent)
    , m_desk(desk)
    , m_places(desk.settings, desk.session.workspace().displayPath())
    , m_layout(new QVBoxLayout(this))
    , m_lockNotice(new QLabel(tr("This document is locked. Unlock it in the inspector to write."), this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_lockNotice);
    m_lockNotice->setAlignment(Qt::AlignCenter);
    m_lockNotice->setContentsMargins(8, 8, 8, 8);
    m_notes = new NotesPane(desk, id, this);
    m_layout->addWidget(m_notes);
    m_findBar = new FindBar(desk, this);
    m_layout->addWidget(m_findBar);
    connect(m_notes, &NotesPane::referenceRequested, this, [this](const QString& label) {
        if (m_editor.rich && !m_editor.rich->showFootnoteReference(label))
            m_desk.navigator.say(tr("Nothing in the text refers to note %1.").arg(label));
    });
    m_selectionRest.setSingleShot(true);
    m_selectionRest.setInterval(selectionRest);
    connect(&m_selectionRest, &QTimer::timeout, this, &DocumentPage::recountSelection);
    makeEditor(
        desk.settings.value(sourceKey).toBool() ? TextView::MarkdownSource
                                                : styledViewOf(m_desk.session, objectId()));
    connect(&desk.session, &shell::ProjectSession::changed, this, &DocumentPage::followChanges);
    connect(&desk.session, &shell::ProjectSession::aboutToSave, this, &DocumentPage::rememberPlace);
    showLock();
    showNotes();
}

DocumentPage::~DocumentPage()
{
    // The editor loses the focus while it dies; nobody is left to hear of it.
    m_editor.widget->blockSignals(true);
}

void DocumentPage::makeEditor(TextView view)
{
    m_editor = makeDocumentEditor(m_desk, objectId(), view, this);
    if (m_editor.rich)
        connect(m_editor.rich, &rich::RichPage::footnoteActivated, this, &DocumentPage::showNote);
    if (m_editor.screenplay)
        connect(
            m_editor.screenplay, &screenplay::ScreenplayPage::elementChanged, this,
            &DocumentPage::statusTextChanged);
    m_layout->insertWidget(1, m_editor.widget, 1);
    setFocusProxy(m_editor.widget);
    connect(m_editor.widget, &BodyEditor::zoomStepRequested, this, &DocumentPage::stepZoom);
    connect(m_editor.bursts, &TypingBursts::settled, this, &DocumentPage::recount);
    connect(m_editor.widget, &QTextEdit::selectionChanged, &m_selectionRest, qOverload<>(&QTimer::start));
    m_findBar->setEditor(m_editor.widget, m_editor.bursts);
    recount();
    setFocusMode(m_isFocusMode);
}

void DocumentPage::showEvent(QShowEvent* event)
{
    TextPage::showEvent(event);
    // Once the page has its size, so that the line comes back to its height in the window.
    if (!m_isPlaceRestored)
        QTimer::singleShot(0ms, this, &DocumentPage::restorePlace);
}

void DocumentPage::hideEvent(QHideEvent* event)
{
    rememberPlace();
    TextPage::hideEvent(event);
}

void DocumentPage::showPassage(const shell::TextPassage& passage)
{
    // Both views hold what is shown, so the place is found by what stands there.
    const auto place = findPassage(m_editor.widget->document()->toPlainText(), passage);
    if (!place)
        return;
    m_isPlaceRestored = true;
    QTextCursor cursor = m_editor.widget->textCursor();
    cursor.setPosition(place->position);
    cursor.setPosition(place->position + place->length, QTextCursor::KeepAnchor);
    m_editor.widget->setTextCursor(cursor);
    m_editor.widget->ensureCursorVisible();
}

void DocumentPage::rememberPlace()
{
    if (!m_isPlaceRestored)
        return;
    const QTextCursor cursor = m_editor.widget->textCursor();
    m_places.remember(
        objectId(), {cursor.position(), m_editor.widget->document()->characterCount(),
                     m_editor.widget->cursorRect().top()});
}

void DocumentPage::restorePlace()
{
    // A page that was closed at once may wait for its end without a desk.
    if (!isVisible())
        return;
    m_isPlaceRestored = true;
    const auto place = m_places.find(objectId());
    // Somebody was faster: what is typed or chosen already stays.
    if (!place || m_editor.widget->textCursor().position() != 0)
        return;
    QTextCursor cursor = m_editor.widget->textCursor();
    cursor.setPosition(place->positionIn(m_editor.widget->document()->characterCount()));
    m_editor.widget->setTextCursor(cursor);
    m_editor.widget->ensureCursorVisible();
    QScrollBar& bar = *m_editor.widget->verticalScrollBar();
    bar.setValue(bar.value() + m_editor.widget->cursorRect().top() - place->top);
}

TextView DocumentPage::textView() const
{
    if (m_editor.screenplay)
        return TextView::Screenplay;
    return m_editor.rich ? TextView::Rich : TextView::MarkdownSource;
}

void DocumentPage::setSourceShown(bool isShown)
{
    m_desk.settings.setValue(sourceKey, isShown);
    replaceEditor(isShown ? TextView::MarkdownSource : styledViewOf(m_desk.session, objectId()));
}

void DocumentPage::replaceEditor(TextView view)
{
    if (view == textView())
        return;
    m_desk.session.commitPendingEdits();
    const bool hadFocus = m_editor.widget->hasFocus();
    const double place = static_cast<double>(m_editor.widget->textCursor().position()) /
                         std::max(1, m_editor.widget->document()->characterCount());
    m_editor.widget->blockSignals(true);
    delete m_editor.widget;
    makeEditor(view);
    QTextCursor cursor = m_editor.widget->textCursor();
    cursor.setPosition(static_cast<int>(place * (m_editor.widget->document()->characterCount() - 1)));
    cursor.movePosition(QTextCursor::StartOfWord);
    m_editor.widget->setTextCursor(cursor);
    m_editor.widget->show();
    m_editor.widget->ensureCursorVisible();
    if (hadFocus)
        takeFocus();
    showLock();
    emit editorChanged();
}

void DocumentPage::applyStyle()
{
    applyEditorSettings(m_editor, m_desk.settings);
    m_editor.widget->setTypewriterScrolling(m_isFocusMode || isTypewriterScrolling(m_desk.settings));
}

void DocumentPage::setFocusMode(bool isOn)
{
    m_isFocusMode = isOn;
    if (m_editor.rich)
        m_editor.rich->setFocusedOnParagraph(isOn);
    applyStyle();
    showNotes();
}

void DocumentPage::stepZoom(int step)
{
    stepPageZoom(m_desk.settings, step);
    applyStyle();
}

QString DocumentPage::title() const
{
    const auto* const object = m_desk.session.project().find(objectId());
    return object ? shell::objectTitle(*object) : QString();
}

QIcon DocumentPage::icon() const
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    return document ? m_desk.icons.icon(iconForDocument(*document, false)) : QIcon();
}

void DocumentPage::takeFocus()
{
    m_editor.widget->setFocus(Qt::OtherFocusReason);
}

QList<QWidget*> DocumentPage::parts()
{
    return {m_editor.widget, m_notes, m_findBar};
}

QString DocumentPage::statusText() const
{
    if (m_selectedWords > 0) {
        return tr("%1 of %Ln words selected", nullptr, static_cast<int>(m_words))
            .arg(QLocale().toString(m_selectedWords));
    }
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    if (document && document->wordCountTarget() > 0)
        return tr("%1 of %Ln words", nullptr, document->wordCountTarget()).arg(QLocale().toString(m_words));
    const QString words = tr("%Ln words", nullptr, static_cast<int>(m_words));
    if (!m_editor.screenplay)
        return words;
    return tr("%1 · %2 · %3")
        .arg(
            screenplay::elementName(m_editor.screenplay->elementAtCursor()),
            tr("%Ln pages", nullptr, m_pages), words);
}

void DocumentPage::followChanges(const core::project::ProjectChanges& changes)
{
    if (!changes.concerns(objectId()) || !m_desk.session.project().contains(objectId()))
        return;
    // The document may have become a screenplay, or none any more.
    if (textView() != TextView::MarkdownSource)
        replaceEditor(styledViewOf(m_desk.session, objectId()));
    showLock();
    showNotes();
    emit titleChanged();
}

void DocumentPage::showNotes()
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    if (!document)
        return;
    const auto& notes = document->footnotes();
    m_notes->showNotes(
        notes, m_editor.rich && !notes.empty() ? m_editor.rich->footnoteReferences() : QStringList());
    m_notes->setVisible(!notes.empty() && !m_isFocusMode);
}

void DocumentPage::showNote(const QString& label)
{
    if (m_notes->focusNote(label) || (m_editor.rich && m_editor.rich->showFootnoteDefinition(label)))
        return;
    m_desk.navigator.say(tr("Note %1 has no text anywhere in this document.").arg(label));
}

void DocumentPage::showLock()
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    const bool isLocked = document && document->isLocked();
    m_lockNotice->setVisible(isLocked);
    m_notes->setReadOnly(isLocked);
}

void DocumentPage::recount()
{
    m_words = m_editor.widget->words();
    m_pages = m_editor.screenplay ? m_editor.screenplay->pages() : 0;
    emit statusTextChanged();
}

void DocumentPage::recountSelection()
{
    m_selectedWords = m_editor.widget->selectedWords();
    emit statusTextChanged();
}

} // namespace tw::desktop::manuscript
