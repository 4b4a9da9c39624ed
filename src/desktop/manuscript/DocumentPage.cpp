#include "desktop/manuscript/DocumentPage.h"

#include "core/document/Document.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/manuscript/MarkdownPage.h"
#include "desktop/manuscript/TypingBursts.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QLabel>
#include <QLocale>
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
constexpr QLatin1StringView sourceKey = "editor/markdownSource"_L1;

} // namespace

DocumentPage::DocumentPage(const shell::DeskContext& desk, const core::ContentId& id, QWidget* parent)
    : WorkPage(id, parent)
    , m_desk(desk)
    , m_layout(new QVBoxLayout(this))
    , m_lockNotice(new QLabel(tr("This document is locked. Unlock it in the inspector to write."), this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_lockNotice);
    m_lockNotice->setAlignment(Qt::AlignCenter);
    m_lockNotice->setContentsMargins(8, 8, 8, 8);
    m_selectionRest.setSingleShot(true);
    m_selectionRest.setInterval(selectionRest);
    connect(&m_selectionRest, &QTimer::timeout, this, &DocumentPage::recountSelection);
    makeEditor(desk.settings.value(sourceKey).toBool() ? TextView::MarkdownSource : TextView::Rich);
    connect(&desk.session, &shell::ProjectSession::changed, this, &DocumentPage::followChanges);
    showLock();
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
    m_words = m_editor->words();
}

TextView DocumentPage::textView() const
{
    return m_richPage ? TextView::Rich : TextView::MarkdownSource;
}

void DocumentPage::setTextView(TextView view)
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
    makeEditor(view);
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(static_cast<int>(place * (m_editor->document()->characterCount() - 1)));
    cursor.movePosition(QTextCursor::StartOfWord);
    m_editor->setTextCursor(cursor);
    m_editor->show();
    m_editor->ensureCursorVisible();
    if (hadFocus)
        takeFocus();
    m_desk.settings.setValue(sourceKey, view == TextView::MarkdownSource);
    showLock();
    emit editorChanged();
}

void DocumentPage::applyStyle()
{
    m_editor->setPageStyle(pageStyleFrom(m_desk.settings));
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
    return tr("%Ln words", nullptr, static_cast<int>(m_words));
}

void DocumentPage::followChanges(const core::project::ProjectChanges& changes)
{
    if (!changes.concerns(objectId()) || !m_desk.session.project().contains(objectId()))
        return;
    showLock();
    emit titleChanged();
}

void DocumentPage::showLock()
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    m_lockNotice->setVisible(document && document->isLocked());
}

void DocumentPage::recount()
{
    m_words = m_editor->words();
    emit statusTextChanged();
}

void DocumentPage::recountSelection()
{
    m_selectedWords = m_editor->selectedWords();
    emit statusTextChanged();
}

} // namespace tw::desktop::manuscript
