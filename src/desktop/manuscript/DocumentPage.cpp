#include "desktop/manuscript/DocumentPage.h"

#include "core/document/Document.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/FindBar.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/manuscript/MarkdownPage.h"
#include "desktop/manuscript/NotesPane.h"
#include "desktop/manuscript/PassageFinder.h"
#include "desktop/manuscript/TypingBursts.h"
#include "desktop/manuscript/TypingSettings.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/screenplay/ScreenplayPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QDesktopServices>
#include <QImage>
#include <QLabel>
#include <QLocale>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>
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
constexpr QLatin1StringView typewriterKey = "editor/typewriterScrolling"_L1;

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
        if (m_richPage && !m_richPage->showFootnoteReference(label))
            m_desk.navigator.say(tr("Nothing in the text refers to note %1.").arg(label));
    });
    m_selectionRest.setSingleShot(true);
    m_selectionRest.setInterval(selectionRest);
    connect(&m_selectionRest, &QTimer::timeout, this, &DocumentPage::recountSelection);
    makeEditor(desk.settings.value(sourceKey).toBool() ? TextView::MarkdownSource : styledView());
    connect(&desk.session, &shell::ProjectSession::changed, this, &DocumentPage::followChanges);
    connect(&desk.session, &shell::ProjectSession::aboutToSave, this, &DocumentPage::rememberPlace);
    showLock();
    showNotes();
}

DocumentPage::~DocumentPage()
{
    // The editor loses the focus while it dies; nobody is left to hear of it.
    m_editor->blockSignals(true);
}

void DocumentPage::makeEditor(TextView view)
{
    TypingBursts* bursts = nullptr;
    if (view == TextView::Rich) {
        m_richPage = new rich::RichPage(m_desk, objectId(), this);
        m_editor = m_richPage;
        bursts = &m_richPage->bursts();
        connect(m_richPage, &rich::RichPage::footnoteActivated, this, &DocumentPage::showNote);
        connect(m_richPage, &rich::RichPage::linkActivated, this, &DocumentPage::openLink);
        connect(m_richPage, &rich::RichPage::entityActivated, &m_desk.navigator, &shell::Navigator::open);
        connect(m_richPage, &rich::RichPage::imagePasted, this, &DocumentPage::keepImage);
    } else if (view == TextView::Screenplay) {
        m_screenplay = new screenplay::ScreenplayPage(m_desk.themes, this);
        m_editor = m_screenplay;
        m_screenplay->setPageStyle(screenplay::screenplayStyle(pageStyleFrom(m_desk.settings)));
        bursts = new TypingBursts(m_desk.session, objectId(), *m_screenplay);
        connect(
            m_screenplay, &screenplay::ScreenplayPage::elementChanged, this,
            &DocumentPage::statusTextChanged);
        showRevision();
    } else {
        auto* const page = new MarkdownPage(m_desk.themes, this);
        page->setPageStyle(pageStyleFrom(m_desk.settings));
        m_editor = page;
        bursts = new TypingBursts(m_desk.session, objectId(), *page);
    }
    m_layout->insertWidget(1, m_editor, 1);
    setFocusProxy(m_editor);
    connect(m_editor, &BodyEditor::zoomStepRequested, this, &DocumentPage::stepZoom);
    connect(bursts, &TypingBursts::settled, this, &DocumentPage::recount);
    connect(m_editor, &QTextEdit::selectionChanged, &m_selectionRest, qOverload<>(&QTimer::start));
    m_findBar->setEditor(m_editor, bursts);
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
    const auto place = findPassage(m_editor->document()->toPlainText(), passage);
    if (!place)
        return;
    m_isPlaceRestored = true;
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(place->position);
    cursor.setPosition(place->position + place->length, QTextCursor::KeepAnchor);
    m_editor->setTextCursor(cursor);
    m_editor->ensureCursorVisible();
}

void DocumentPage::rememberPlace()
{
    if (!m_isPlaceRestored)
        return;
    const QTextCursor cursor = m_editor->textCursor();
    m_places.remember(
        objectId(),
        {cursor.position(), m_editor->document()->characterCount(), m_editor->cursorRect().top()});
}

void DocumentPage::restorePlace()
{
    // A page that was closed at once may wait for its end without a desk.
    if (!isVisible())
        return;
    m_isPlaceRestored = true;
    const auto place = m_places.find(objectId());
    // Somebody was faster: what is typed or chosen already stays.
    if (!place || m_editor->textCursor().position() != 0)
        return;
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(place->positionIn(m_editor->document()->characterCount()));
    m_editor->setTextCursor(cursor);
    m_editor->ensureCursorVisible();
    QScrollBar& bar = *m_editor->verticalScrollBar();
    bar.setValue(bar.value() + m_editor->cursorRect().top() - place->top);
}

TextView DocumentPage::textView() const
{
    if (m_screenplay)
        return TextView::Screenplay;
    return m_richPage ? TextView::Rich : TextView::MarkdownSource;
}

TextView DocumentPage::styledView() const
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    const bool isScreenplay =
        document && document->documentKind() == core::document::DocumentKind::Screenplay;
    return isScreenplay ? TextView::Screenplay : TextView::Rich;
}

void DocumentPage::setSourceShown(bool isShown)
{
    m_desk.settings.setValue(sourceKey, isShown);
    replaceEditor(isShown ? TextView::MarkdownSource : styledView());
}

void DocumentPage::showRevision()
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    if (m_screenplay && document)
        m_screenplay->setRevisionBaseline(document->revisionBaseline());
}

void DocumentPage::replaceEditor(TextView view)
{
    if (view == textView())
        return;
    m_desk.session.commitPendingEdits();
    const bool hadFocus = m_editor->hasFocus();
    const double place = static_cast<double>(m_editor->textCursor().position()) /
                         std::max(1, m_editor->document()->characterCount());
    m_editor->blockSignals(true);
    delete m_editor;
    m_richPage = nullptr;
    m_screenplay = nullptr;
    makeEditor(view);
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(static_cast<int>(place * (m_editor->document()->characterCount() - 1)));
    cursor.movePosition(QTextCursor::StartOfWord);
    m_editor->setTextCursor(cursor);
    m_editor->show();
    m_editor->ensureCursorVisible();
    if (hadFocus)
        takeFocus();
    showLock();
    emit editorChanged();
}

void DocumentPage::applyStyle()
{
    const PageStyle style = pageStyleFrom(m_desk.settings);
    m_editor->setPageStyle(m_screenplay ? screenplay::screenplayStyle(style) : style);
    if (m_richPage) {
        m_richPage->setTypingRules(typingRulesFrom(m_desk.settings));
        m_richPage->setMentionsShown(m_desk.settings.value(typingkeys::mentions).toBool());
    }
    m_editor->setTypewriterScrolling(m_isFocusMode || m_desk.settings.value(typewriterKey).toBool());
}

void DocumentPage::setFocusMode(bool isOn)
{
    m_isFocusMode = isOn;
    if (m_richPage)
        m_richPage->setFocusedOnParagraph(isOn);
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
    m_editor->setFocus(Qt::OtherFocusReason);
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
    if (!m_screenplay)
        return words;
    return tr("%1 · %2 · %3")
        .arg(
            screenplay::elementName(m_screenplay->elementAtCursor()), tr("%Ln pages", nullptr, m_pages),
            words);
}

void DocumentPage::followChanges(const core::project::ProjectChanges& changes)
{
    if (!changes.concerns(objectId()) || !m_desk.session.project().contains(objectId()))
        return;
    // The document may have become a screenplay, or none any more.
    if (textView() != TextView::MarkdownSource)
        replaceEditor(styledView());
    showLock();
    showNotes();
    showRevision();
    emit titleChanged();
}

void DocumentPage::showNotes()
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    if (!document)
        return;
    const auto& notes = document->footnotes();
    m_notes->showNotes(
        notes, m_richPage && !notes.empty() ? m_richPage->footnoteReferences() : QStringList());
    m_notes->setVisible(!notes.empty() && !m_isFocusMode);
}

void DocumentPage::showNote(const QString& label)
{
    if (m_notes->focusNote(label) || (m_richPage && m_richPage->showFootnoteDefinition(label)))
        return;
    m_desk.navigator.say(tr("Note %1 has no text anywhere in this document.").arg(label));
}

void DocumentPage::keepImage(const QImage& image)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(tr("pasted image") + u".png"_s);
    if (!image.save(file)) {
        m_desk.navigator.say(tr("The pasted image could not be written. Save it as a file and insert that."));
        return;
    }
    const auto imported = m_desk.session.importAsset(file);
    if (imported)
        m_richPage->insertImage(imported.value(), QString());
    else
        m_desk.navigator.say(imported.message());
}

void DocumentPage::openLink(const QString& target)
{
    // A text may come from anybody: it leads to pages and mail, never to files or programs.
    static const QStringList harmlessSchemes{u"http"_s, u"https"_s, u"mailto"_s};
    const QUrl url(target);
    if (!harmlessSchemes.contains(url.scheme()) || !QDesktopServices::openUrl(url))
        m_desk.navigator.say(tr("The link “%1” cannot be opened from here.").arg(target));
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
    m_words = m_editor->words();
    m_pages = m_screenplay ? m_screenplay->pages() : 0;
    emit statusTextChanged();
}

void DocumentPage::recountSelection()
{
    m_selectedWords = m_editor->selectedWords();
    emit statusTextChanged();
}

} // namespace tw::desktop::manuscript
