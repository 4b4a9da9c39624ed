#include "desktop/goals/WritingSession.h"

#include "app/planning/WritingProgress.h"
#include "desktop/shell/ProjectSession.h"

namespace tw::desktop::goals {

WritingSession::WritingSession(shell::ProjectSession& session, Calendar today, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_today(std::move(today))
{
    connect(&session, &shell::ProjectSession::changed, this, &WritingSession::followChanges);
    connect(&session, &shell::ProjectSession::aboutToSave, this, &WritingSession::enterInLog);
    begin();
}

qint64 WritingSession::sessionWords() const
{
    return m_wordsCounted - m_wordsAtOpening;
}

void WritingSession::begin()
{
    m_wordsAtOpening = m_session.words().total();
    m_wordsCounted = m_wordsAtOpening;
    beginDay();
}

void WritingSession::beginDay()
{
    m_day = m_today();
    m_wordsToday = app::planning::wordsOn(m_session.project().writingLog(), m_day);
}

void WritingSession::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.isEverything) {
        begin();
    } else {
        if (m_today() != m_day) {
            enterInLog();
            beginDay();
        }
        const qint64 total = m_session.words().total();
        m_wordsToday += total - m_wordsCounted;
        m_wordsCounted = total;
    }
    emit changed();
}

void WritingSession::enterInLog()
{
    const app::planning::WritingLog& log = m_session.project().writingLog();
    if (app::planning::wordsOn(log, m_day) != m_wordsToday)
        m_session.projectForCommands().setWritingLog(app::planning::withWordsOn(log, m_day, m_wordsToday));
}

} // namespace tw::desktop::goals
