#pragma once

#include "core/project/ProjectChanges.h"

#include <QObject>
#include <QTimer>

#include <map>

namespace tw::desktop::shell {

class ProjectSession;

/**
 * Tells which objects have changes that are not on disk yet, for those who show it. Keeps what it found until
 * the object moves or something is saved, so that asking costs nothing. The session must outlive it.
 */
class UnsavedObjects final : public QObject
{
    Q_OBJECT

public:
    UnsavedObjects(const ProjectSession& session, QObject* parent);

    [[nodiscard]] bool isUnsaved(const core::ContentId& id);

signals:
    /** The answers, or where typing is held back, may be others now. Once for all that happens in one go. */
    void changed();

private:
    void followChanges(const core::project::ProjectChanges& changes);
    void forgetAll();

    const ProjectSession& m_session;
    std::map<core::ContentId, bool> m_known;
    QTimer m_announcement;
};

} // namespace tw::desktop::shell
