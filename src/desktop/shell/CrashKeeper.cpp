#include "desktop/shell/CrashKeeper.h"

#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"

namespace tw::desktop::shell {

using app::persistence::CrashJournal;
using app::persistence::FileVersion;
using app::persistence::JournalEdit;
using core::project::ProjectChanges;

namespace {

/** The files in which many things stand together, as the project has them now. */
std::map<QString, FileVersion> sharedFiles(const core::project::Project& project)
{
    std::map<QString, FileVersion> files;
    for (const auto& [id, category] : project.taxonomy().categories())
        files.emplace(app::persistence::categoryPath(id), app::persistence::serializeCategory(category));
    files.emplace(
        app::persistence::projectFileName.toString(), app::persistence::serializeProjectDocument(project));
    return files;
}

} // namespace

CrashKeeper::CrashKeeper(
    ProjectSession& session, const app::persistence::StorageEnvironment& environment, QObject* parent,
    std::chrono::milliseconds noteAfter)
    : QObject(parent)
    , m_session(session)
    , m_environment(environment)
{
    m_due.setSingleShot(true);
    m_due.setInterval(noteAfter);
    connect(&m_due, &QTimer::timeout, this, &CrashKeeper::note);
    connect(&session, &ProjectSession::changed, this, &CrashKeeper::collect);
    connect(&session, &ProjectSession::typingBegan, this, [this] { startWaiting(); });
    connect(&session, &ProjectSession::aboutToSave, this, &CrashKeeper::flush);
    connect(&session, &ProjectSession::saved, this, [this] {
        // Saved in another place, the project has another journal.
        if (m_journal && m_journal->projectPath() == m_session.workspace().displayPath())
            discard();
        else
            follow();
    });
    follow();
}

CrashKeeper::~CrashKeeper() = default;

void CrashKeeper::follow()
{
    discard();
    m_journal.reset();
    if (!m_session.workspace().hasPath())
        return;
    m_journal = std::make_unique<CrashJournal>(m_environment, m_session.workspace().displayPath());
    m_shared = sharedFiles(m_session.project());
}

void CrashKeeper::discard()
{
    m_due.stop();
    m_moved.clear();
    m_areSharedMoved = false;
    m_notedTyping.clear();
    if (m_journal)
        m_journal->discard();
}

void CrashKeeper::collect(const ProjectChanges& changes)
{
    if (changes.isEverything) {
        follow();
        return;
    }
    m_moved.insert(changes.added.begin(), changes.added.end());
    m_moved.insert(changes.removed.begin(), changes.removed.end());
    m_moved.insert(changes.changed.begin(), changes.changed.end());
    m_areSharedMoved = m_areSharedMoved || changes.isTaxonomyChanged || changes.areSettingsChanged;
    startWaiting();
}

void CrashKeeper::startWaiting()
{
    // Not anew with every key: then it would never come to an end while the writer goes on.
    if (m_journal && !m_due.isActive())
        m_due.start();
}

void CrashKeeper::note()
{
    if (!m_journal)
        return;
    QList<JournalEdit> edits;
    noteHeldBackTyping(edits);
    for (const core::ContentId& id : std::exchange(m_moved, {})) {
        const auto* const object = m_session.project().find(id);
        edits.append(editOf(
            app::persistence::objectPath(id),
            object ? FileVersion(app::persistence::serializeObject(*object)) : FileVersion()));
    }
    if (std::exchange(m_areSharedMoved, false))
        noteSharedFiles(edits);
    if (!edits.isEmpty() || m_isFailing)
        m_journal->append(std::move(edits));
    // How it went is known only later, and what failed is tried again.
    const bool isWriting = m_journal->isWriting();
    report(m_journal->lastOutcome());
    if (isWriting || m_isFailing || m_session.isTypingPending())
        m_due.start();
}

void CrashKeeper::noteHeldBackTyping(QList<JournalEdit>& edits)
{
    const bool isPending = m_session.isTypingPending();
    const HeldBackTexts texts = isPending ? m_session.heldBackTexts() : HeldBackTexts();
    // A field of an entity: short enough to become a step of its own.
    if (isPending && texts.isEmpty())
        m_session.commitPendingEdits(CommitReason::InPassing);
    // Typing that was taken back leaves the object as it was.
    for (const auto& [id, text] : m_notedTyping.asKeyValueRange()) {
        if (!texts.contains(id))
            m_moved.insert(id);
    }
    for (const auto& [id, text] : texts.asKeyValueRange()) {
        const auto* const object = m_session.project().find(id);
        const bool isNoted = m_notedTyping.contains(id) && m_notedTyping.value(id) == text;
        if (!object || (isNoted && !m_moved.contains(id)))
            continue;
        JournalEdit edit =
            editOf(app::persistence::objectPath(id), app::persistence::serializeObject(*object));
        edit.body = text;
        edits.append(std::move(edit));
        m_moved.erase(id);
    }
    m_notedTyping = texts;
}

void CrashKeeper::noteSharedFiles(QList<JournalEdit>& edits)
{
    std::map<QString, FileVersion> files = sharedFiles(m_session.project());
    // What is gone is noted as gone.
    for (const auto& [path, bytes] : m_shared)
        files.emplace(path, FileVersion());
    for (const auto& [path, bytes] : files) {
        const auto noted = m_shared.find(path);
        if (noted == m_shared.end() || noted->second != bytes)
            edits.append(editOf(path, bytes));
    }
    m_shared = std::move(files);
}

JournalEdit CrashKeeper::editOf(const QString& path, FileVersion bytes) const
{
    const auto& disk = m_session.workspace().diskState();
    return {path, disk.contains(path) ? FileVersion(disk.bytes(path)) : FileVersion(), std::move(bytes), {}};
}

void CrashKeeper::flush()
{
    if (!m_journal)
        return;
    m_due.stop();
    note();
    report(m_journal->flush());
}

bool CrashKeeper::noteRestored(const std::map<QString, FileVersion>& files)
{
    if (!m_journal)
        return false;
    QList<JournalEdit> edits;
    for (const auto& [path, bytes] : files)
        edits.append(editOf(path, bytes));
    m_journal->append(std::move(edits));
    const core::Result<void> written = m_journal->flush();
    report(written);
    return written.isOk();
}

void CrashKeeper::report(const core::Result<void>& written)
{
    if (!written && !m_isFailing)
        emit failed(written.message());
    m_isFailing = !written;
}

} // namespace tw::desktop::shell
