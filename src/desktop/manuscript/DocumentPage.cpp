#include "desktop/manuscript/DocumentPage.h"

#include "core/document/DocumentCommands.h"
#include "core/document/WordCount.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/manuscript/MarkdownPage.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QLabel>
#include <QLocale>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <chrono>

namespace tw::desktop::manuscript {

using namespace std::chrono_literals;
using core::document::Document;
using core::document::DocumentBody;

namespace {

/** A rest this long ends a burst of typing. */
constexpr auto burstRest = 1200ms;
constexpr auto recountRest = 250ms;

} // namespace

DocumentPage::DocumentPage(const shell::DeskContext& desk, const core::ContentId& id, QWidget* parent)
    : WorkPage({id, {}}, parent)
    , m_desk(desk)
    , m_lockNotice(new QLabel(tr("This document is locked. Unlock it in the inspector to write."), this))
    , m_page(new MarkdownPage(desk.themes, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_lockNotice);
    layout->addWidget(m_page);
    m_lockNotice->setAlignment(Qt::AlignCenter);
    m_lockNotice->setContentsMargins(8, 8, 8, 8);
    setFocusProxy(m_page);

    m_burst.setSingleShot(true);
    m_burst.setInterval(burstRest);
    m_recount.setSingleShot(true);
    m_recount.setInterval(recountRest);
    connect(&m_burst, &QTimer::timeout, this, &DocumentPage::commit);
    connect(&m_recount, &QTimer::timeout, this, &DocumentPage::recount);
    connect(m_page->document(), &QTextDocument::contentsChange, this, [this](int, int removed, int added) {
        // Changes of format come with equal counts and are none of the writer's.
        if (!m_showing && (removed > 0 || added > 0))
            noteTyping();
    });
    connect(m_page->document(), &QTextDocument::blockCountChanged, this, [this] {
        // A finished paragraph is a step of its own; committed once the key is through.
        if (m_hasTyping)
            m_burst.start(0ms);
    });
    connect(m_page, &MarkdownPage::focusLeft, this, &DocumentPage::commit);
    connect(m_page, &MarkdownPage::zoomStepRequested, this, &DocumentPage::stepZoom);
    connect(&desk.session, &shell::ProjectSession::commitRequested, this, &DocumentPage::commit);
    connect(
        &desk.session, &shell::ProjectSession::heldBackTextsRequested, this,
        [this](shell::HeldBackTexts& texts) {
            if (m_hasTyping)
                texts.insert(objectId(), m_page->toPlainText());
        });
    connect(&desk.session, &shell::ProjectSession::changed, this, &DocumentPage::followChanges);
    applyStyle();
    showDocument();
    recount();
}

DocumentPage::~DocumentPage()
{
    // The page loses the focus while it dies; nobody is left to hear of it.
    disconnect(m_page, nullptr, this, nullptr);
}

void DocumentPage::applyStyle()
{
    const QScopedValueRollback guard(m_showing, true);
    m_page->setPageStyle(pageStyleFrom(m_desk.settings));
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
    m_page->setFocus(Qt::OtherFocusReason);
}

QString DocumentPage::statusText() const
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    if (document && document->wordCountTarget() > 0)
        return tr("%1 of %Ln words", nullptr, document->wordCountTarget()).arg(QLocale().toString(m_words));
    return tr("%Ln words", nullptr, static_cast<int>(m_words));
}

void DocumentPage::noteTyping()
{
    m_recount.start();
    m_burst.start(burstRest);
    if (m_hasTyping)
        return;
    m_hasTyping = true;
    m_desk.session.setTypingPending(true);
}

void DocumentPage::commit()
{
    m_burst.stop();
    if (!m_hasTyping)
        return;
    m_hasTyping = false;
    m_desk.session.setTypingPending(false);
    auto& project = m_desk.session.projectForCommands();
    auto* const document = project.findAsForEdit<Document>(objectId());
    const QString text = m_page->toPlainText();
    if (document && text != document->body().text) {
        m_desk.session.apply(std::make_unique<core::document::SetDocumentBodyCommand>(
            *document, DocumentBody{text, document->body().format}));
    }
}

void DocumentPage::followChanges(const core::project::ProjectChanges& changes)
{
    if (!changes.concerns(objectId()) || !m_desk.session.project().contains(objectId()))
        return;
    if (changes.isEverything) {
        // The project was read anew: typing that was held back belonged to the one before.
        m_burst.stop();
        m_hasTyping = false;
    }
    showDocument();
    recount();
    emit titleChanged();
}

void DocumentPage::showDocument()
{
    const auto* const document = m_desk.session.project().findAs<Document>(objectId());
    if (!document)
        return;
    const QScopedValueRollback guard(m_showing, true);
    m_page->applyBody(document->body());
    m_page->setReadOnly(document->isLocked());
    m_lockNotice->setVisible(document->isLocked());
}

void DocumentPage::recount()
{
    m_words = core::document::countWords(m_page->toPlainText());
    emit statusTextChanged();
}

} // namespace tw::desktop::manuscript
