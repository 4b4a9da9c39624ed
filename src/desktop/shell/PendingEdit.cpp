#include "desktop/shell/PendingEdit.h"

#include <QLineEdit>

namespace tw::desktop::shell {

PendingEdit::PendingEdit(
    ProjectSession& session, QObject* parent, std::function<void()> commit, CommitReason least)
    : QObject(parent)
    , m_session(session)
    , m_commit(std::move(commit))
{
    connect(&session, &ProjectSession::commitRequested, this, [this, least](CommitReason reason) {
        if (reason >= least)
            this->commit();
    });
}

void PendingEdit::begin()
{
    m_session.setTypingPending(*this, true);
}

void PendingEdit::end()
{
    m_session.setTypingPending(*this, false);
}

bool PendingEdit::isHeld() const
{
    return m_session.isTypingPending(*this);
}

void PendingEdit::commit()
{
    if (!isHeld())
        return;
    // Ended first: the command asks everybody for what they hold.
    end();
    m_commit();
}

void PendingEdit::follow(const QLineEdit& field)
{
    connect(&field, &QLineEdit::textEdited, this, &PendingEdit::begin);
    // The field commits by itself when it is left.
    connect(&field, &QLineEdit::editingFinished, this, &PendingEdit::end);
}

} // namespace tw::desktop::shell
