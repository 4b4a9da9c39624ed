#pragma once

#include "core/project/ProjectChanges.h"

#include <QDate>
#include <QObject>

#include <functional>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::goals {

/**
 * Counts the words of this session and of the day, and enters the day's in the project's writing log with
 * each save. Words that were taken out count against those that were written. Main thread.
 */
class WritingSession final : public QObject
{
    Q_OBJECT

public:
    using Calendar = std::function<QDate()>;

    /** The session must outlive this; `today` tells the day. */
    WritingSession(shell::ProjectSession& session, Calendar today, QObject* parent = nullptr);

    /** Since the project was opened. */
    [[nodiscard]] qint64 sessionWords() const;
    /** Also those of earlier sessions of the day. */
    [[nodiscard]] qint64 wordsToday() const { return m_wordsToday; }
    [[nodiscard]] QDate today() const { return m_today(); }

signals:
    void changed();

private:
    void followChanges(const core::project::ProjectChanges& changes);
    void begin();
    void beginDay();
    void enterInLog();

    shell::ProjectSession& m_session;
    Calendar m_today;
    QDate m_day;
    qint64 m_wordsAtOpening = 0;
    qint64 m_wordsCounted = 0;
    qint64 m_wordsToday = 0;
};

} // namespace tw::desktop::goals
