#pragma once

#include "core/document/Document.h"
#include "core/project/ProjectChanges.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::manuscript {

class BodyEditor;

/**
 * Carries what is typed in an editor to the body of a document, and what happens to the body to the editor.
 * Typing goes into the project in bursts, each one undo step: when the writer rests, ends a paragraph, leaves
 * the editor, or when anything else wants the project's true state.
 */
class TypingBursts final : public QObject
{
    Q_OBJECT

public:
    /** Owned by the editor. The session must outlive both. */
    TypingBursts(shell::ProjectSession& session, const core::ContentId& documentId, BodyEditor& editor);

    /** Makes a step of what is held. Nothing happens when there is nothing. */
    void commit();
    /** Does an edit of the editor's text as a step of its own, under its own name. */
    void applyAsStep(const QString& label, const std::function<void()>& edit);
    /** Shows what the project has; typing that is held is lost. */
    void showBody();

signals:
    /** The editor shows another text than before, typed or not; after a short rest. */
    void settled();

private:
    void noteTyping();
    void endTyping();
    void followChanges(const core::project::ProjectChanges& changes);

    shell::ProjectSession& m_session;
    core::ContentId m_documentId;
    BodyEditor& m_editor;
    QTimer m_burst;
    QTimer m_settle;
    /** What the project has, as far as the editor knows. */
    core::document::DocumentBody m_shown;
    bool m_hasTyping = false;
};

} // namespace tw::desktop::manuscript
