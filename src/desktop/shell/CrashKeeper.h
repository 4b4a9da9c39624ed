#pragma once

#include "app/persistence/journal/CrashJournal.h"
#include "core/project/ProjectChanges.h"
#include "desktop/shell/ProjectSession.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>
#include <set>

namespace tw::desktop::shell {

/**
 * Notes what the writer does in a journal within two seconds, typing that an editor still holds back
 * included, and lets go of it when it is saved. Main thread; the session must outlive it.
 */
class CrashKeeper final : public QObject
{
    Q_OBJECT

public:
    /** With the time that writing takes, well below the two seconds that a crash may cost. */
    static constexpr std::chrono::milliseconds usualDelay{1000};

    CrashKeeper(
        ProjectSession& session, const app::persistence::StorageEnvironment& environment,
        QObject* parent = nullptr, std::chrono::milliseconds noteAfter = usualDelay);
    ~CrashKeeper() override;

    /** Notes what has not been noted yet and waits until it is on the medium. */
    void flush();
    /** What was noted is of no use any more: it was saved, or the user let go of it. */
    void discard();
    /**
     * Notes edits that were brought back from another journal. Whether they are on the medium: only then may
     * that journal go.
     */
    bool noteRestored(const std::map<QString, app::persistence::FileVersion>& files);

signals:
    /** Edits could not be noted; once until it works again. */
    void failed(const QString& message);

private:
    /** Begins with the project that is open now; what was noted of the one before is let go. */
    void follow();
    void startWaiting();
    void collect(const core::project::ProjectChanges& changes);
    void note();
    void noteHeldBackTyping(QList<app::persistence::JournalEdit>& edits);
    void noteSharedFiles(QList<app::persistence::JournalEdit>& edits);
    [[nodiscard]] app::persistence::JournalEdit editOf(
        const QString& path, app::persistence::FileVersion bytes) const;
    void report(const core::Result<void>& written);

    ProjectSession& m_session;
    const app::persistence::StorageEnvironment& m_environment;
    std::unique_ptr<app::persistence::CrashJournal> m_journal;
    /** The objects that moved since the last note. */
    std::set<core::ContentId> m_moved;
    bool m_areSharedMoved = false;
    /** Categories and the project document as last noted or saved. */
    std::map<QString, app::persistence::FileVersion> m_shared;
    /** Typing as last noted, so that a rest costs nothing. */
    HeldBackTexts m_notedTyping;
    QTimer m_due;
    bool m_isFailing = false;
};

} // namespace tw::desktop::shell
