#pragma once

#include "desktop/shell/ProjectSession.h"

#include <QObject>

#include <functional>

class QLineEdit;

namespace tw::desktop::shell {

/**
 * What one field holds of the writer's typing before it becomes a command. While it holds something the
 * session counts as changed, and a save, an undo, another command or the end of the project has it committed
 * first. A child of its parent; the session must outlive it.
 */
class PendingEdit final : public QObject
{
    Q_OBJECT

public:
    /** `commit` stores what the field holds. `least` is how good a reason must be to call it. */
    PendingEdit(
        ProjectSession& session, QObject* parent, std::function<void()> commit,
        CommitReason least = CommitReason::Asked);

    /** The writer typed what the project does not have. */
    void begin();
    /** What was typed is in the project, or was taken back. */
    void end();
    [[nodiscard]] bool isHeld() const;
    /** Commits at once when something is held, before the field shows something else say. */
    void commit();
    /** Holds what is typed into the field, until that is left. */
    void follow(const QLineEdit& field);

private:
    ProjectSession& m_session;
    std::function<void()> m_commit;
};

} // namespace tw::desktop::shell
