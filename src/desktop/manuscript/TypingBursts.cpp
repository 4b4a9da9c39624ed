#include "desktop/manuscript/TypingBursts.h"

#include "core/document/ActiveText.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/shell/ProjectSession.h"

#include <chrono>

namespace tw::desktop::manuscript {

using namespace std::chrono_literals;
using core::document::Document;
using core::document::DocumentBody;

namespace {

/** A rest this long ends a burst of typing. */
constexpr auto burstRest = 1200ms;
constexpr auto settleRest = 250ms;

} // namespace

TypingBursts::TypingBursts(
    shell::ProjectSession& session, const core::ContentId& documentId, BodyEditor& editor)
    : QObject(&editor)
    , m_session(session)
    , m_documentId(documentId)
    , m_editor(editor)
{
    m_burst.setSingleShot(true);
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleRest);
    connect(&m_burst, &QTimer::timeout, this, &TypingBursts::commit);
    connect(&m_settle, &QTimer::timeout, this, &TypingBursts::settled);
    connect(&editor, &BodyEditor::edited, this, &TypingBursts::noteTyping);
    connect(&editor, &BodyEditor::paragraphEnded, this, [this] {
        // A finished paragraph is a step of its own; committed once the key is through.
        if (m_hasTyping)
            m_burst.start(0ms);
    });
    connect(&editor, &BodyEditor::focusLeft, this, &TypingBursts::commit);
    connect(&session, &shell::ProjectSession::commitRequested, this, &TypingBursts::commit);
    connect(
        &session, &shell::ProjectSession::heldBackTextsRequested, this, [this](shell::HeldBackTexts& texts) {
            if (m_hasTyping)
                texts.insert(m_documentId, m_editor.currentBody().text);
        });
    connect(&session, &shell::ProjectSession::changed, this, &TypingBursts::followChanges);
    showBody();
}

void TypingBursts::noteTyping()
{
    m_settle.start();
    m_burst.start(burstRest);
    if (m_hasTyping)
        return;
    m_hasTyping = true;
    m_session.setTypingPending(*this, true);
}

void TypingBursts::endTyping()
{
    m_burst.stop();
    m_hasTyping = false;
}

void TypingBursts::commit()
{
    if (!m_hasTyping)
        return;
    endTyping();
    m_session.setTypingPending(*this, false);
    auto* const document = m_session.projectForCommands().findAsForEdit<Document>(m_documentId);
    if (!document)
        return;
    DocumentBody body = m_editor.currentBody();
    if (body.text == m_shown.text)
        return;
    m_shown = body;
    m_session.apply(core::document::makeSetActiveTextCommand(*document, std::move(body)));
}

void TypingBursts::applyAsStep(const QString& label, const std::function<void()>& edit)
{
    const auto step = m_session.macro(label);
    edit();
    commit();
}

void TypingBursts::followChanges(const core::project::ProjectChanges& changes)
{
    if (!changes.concerns(m_documentId))
        return;
    // When the project was read anew, typing that was held back belonged to the one before.
    if (changes.isEverything)
        endTyping();
    showBody();
}

void TypingBursts::showBody()
{
    const auto* const document = m_session.project().findAs<Document>(m_documentId);
    if (!document)
        return;
    m_shown = core::document::activeText(*document);
    m_editor.applyBody(m_shown);
    m_editor.setReadOnly(document->isLocked());
    m_settle.start();
}

} // namespace tw::desktop::manuscript
