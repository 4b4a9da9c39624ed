#include "desktop/shell/UnsavedObjects.h"

#include "desktop/shell/ProjectSession.h"

namespace tw::desktop::shell {

UnsavedObjects::UnsavedObjects(const ProjectSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    // A burst of typing ends, becomes an edit and changes the save state; shown is only what comes of it.
    m_announcement.setSingleShot(true);
    m_announcement.setInterval(0);
    connect(&m_announcement, &QTimer::timeout, this, &UnsavedObjects::changed);
    connect(&session, &ProjectSession::typingBegan, &m_announcement, qOverload<>(&QTimer::start));
    connect(&session, &ProjectSession::typingEnded, &m_announcement, qOverload<>(&QTimer::start));
    connect(&session, &ProjectSession::changed, this, &UnsavedObjects::followChanges);
    connect(&session, &ProjectSession::saved, this, &UnsavedObjects::forgetAll);
    // Undone back to what is on disk, and forward again.
    connect(&session, &ProjectSession::saveStateChanged, this, &UnsavedObjects::forgetAll);
}

bool UnsavedObjects::isUnsaved(const core::ContentId& id)
{
    const auto [known, isNew] = m_known.try_emplace(id, false);
    if (isNew)
        known->second = m_session.workspace().isUnsaved(id);
    return known->second;
}

void UnsavedObjects::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.isEverything) {
        forgetAll();
        return;
    }
    std::erase_if(m_known, [&changes](const auto& known) { return changes.concerns(known.first); });
    m_announcement.start();
}

void UnsavedObjects::forgetAll()
{
    m_known.clear();
    m_announcement.start();
}

} // namespace tw::desktop::shell
