#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/journal/JournalFile.h"
#include "core/foundation/Result.h"

#include <QHash>
#include <QList>
#include <QLockFile>
#include <QMutex>
#include <QString>
#include <QThreadPool>

#include <memory>
#include <optional>
#include <vector>

namespace tw::app::persistence {

/** One edit that is not saved yet. */
struct JournalEdit
{
    QString path;      ///< From the project's root.
    FileVersion base;  ///< As last loaded or saved.
    FileVersion bytes; ///< As it is now.
    /** Typing that the editor holds back: takes the place of the document's body in `bytes`. */
    std::optional<QString> body;
};

/**
 * Keeps the edits since the last save of one open project in a file in the application data folder, so that a
 * crash or a power cut costs no more than the last moments. The file appears with the first edit and goes
 * with every save; one that is there at the next start, and whose program is gone, tells of a crash.
 *
 * Belongs to one thread; the writing happens on a thread of its own, in order.
 */
class CrashJournal
{
public:
    /** The environment must outlive the journal. */
    CrashJournal(const StorageEnvironment& environment, QString projectPath);
    /** Waits for what is being written. The file stays. */
    ~CrashJournal();
    Q_DISABLE_COPY_MOVE(CrashJournal)

    /** Returns at once. Edits that cannot be written now are tried again with the next call, also an empty
     * one. */
    void append(QList<JournalEdit> edits);
    /** Waits until all appended edits are on the medium; fails when they could not be written. */
    [[nodiscard]] core::Result<void> flush();
    /** Whether edits are on their way, so that how they fare is not known yet. */
    [[nodiscard]] bool isWriting() const { return m_writer.activeThreadCount() > 0; }
    /** How the last write that ended went; waits for nothing. */
    [[nodiscard]] core::Result<void> lastOutcome();
    /** Removes the file: everything was saved, or let go. */
    void discard();

    [[nodiscard]] const QString& projectPath() const { return m_projectPath; }

private:
    // All below runs on the writing thread.
    [[nodiscard]] core::Result<void> write(const QList<JournalEdit>& edits);
    [[nodiscard]] core::Result<void> begin();
    /** Either all of the records count, or none. */
    [[nodiscard]] core::Result<void> store(const QByteArray& records);
    [[nodiscard]] bool syncName();
    void compactWhenWorthwhile();
    void removeFile();

    const StorageEnvironment& m_environment;
    const QString m_projectPath;
    const QString m_filePath;
    std::unique_ptr<QLockFile> m_lock;
    /** Edits that are not on the medium, by path. */
    QHash<QString, JournalEdit> m_unwritten;
    /** The size of the last record of each file in the journal. */
    QHash<QString, qsizetype> m_recordSizes;
    qint64 m_size = 0;             ///< Of the header and the whole records in the file.
    bool m_isNameOnMedium = false; ///< A power cut would not lose the file itself.

    QMutex m_mutex;
    core::Result<void> m_lastWrite; ///< Guarded by the mutex.
    QThreadPool m_writer;
};

/** A journal that a program left which is no longer running. Holding it keeps others away from it. */
class AbandonedJournal
{
public:
    /**
     * The journals of this project, the oldest first; unreadable ones are left out. The environment must
     * outlive them.
     */
    [[nodiscard]] static std::vector<AbandonedJournal> find(
        const StorageEnvironment& environment, const QString& projectPath);

    [[nodiscard]] const Journal& content() const { return m_content; }
    /** For good, also should the power fail right now. */
    void remove();

private:
    AbandonedJournal(FileSystem& fileSystem, QString path, Journal content, std::unique_ptr<QLockFile> lock);

    FileSystem* m_fileSystem; // never null; a pointer, so that journals can be kept in a list
    QString m_path;
    Journal m_content;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace tw::app::persistence
