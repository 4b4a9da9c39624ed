#include "app/persistence/journal/CrashJournal.h"

#include "app/persistence/bundle/WorkingCopy.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/SafeWriter.h"
#include "core/document/ActiveText.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

namespace tw::app::persistence {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;

namespace {

constexpr QLatin1StringView journalSuffix(".journal");
/** A journal below this size is never worth rewriting. */
constexpr qint64 smallJournal = 4 * 1024 * 1024;
/** One that is so many times as large as what it says is rewritten. */
constexpr qint64 wastefulFactor = 4;

QString journalsFolder(const StorageEnvironment& environment)
{
    return environment.dataFolder + u"/journals"_s;
}

/** Begins the names of all journals of a project. */
QString namePrefix(const QString& projectPath)
{
    constexpr qsizetype hashDigits = 12;
    const QByteArray digits =
        QCryptographicHash::hash(projectPath.toUtf8(), QCryptographicHash::Sha256).toHex();
    return safeFileName(QFileInfo(projectPath).completeBaseName()) + u'-' +
           QString::fromLatin1(digits.first(hashDigits)) + u'-';
}

/** Belongs to a program as long as that runs; a crashed one is known by its process id. */
std::unique_ptr<QLockFile> lockOf(const QString& journalPath)
{
    auto lock = std::make_unique<QLockFile>(journalPath + u".lock"_s);
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

Failure journalFailure(const QString& path)
{
    return {QCoreApplication::translate(
                "Persistence",
                "Save your work, and free some space: unsaved changes could not be noted for recovery in "
                "%1.")
                .arg(QDir::toNativeSeparators(path))};
}

/** The file of a document with another body; the bytes themselves when they are no document's. */
QByteArray withBody(const QByteArray& bytes, const QString& path, const QString& body)
{
    ParseScratch scratch;
    const auto object = parseObject(bytes, path, scratch);
    auto* const document =
        object ? core::content::objectCast<core::document::Document>(object.value().get()) : nullptr;
    if (!document)
        return bytes;
    // What is typed goes into the text in use, which may be a variant.
    const auto format = core::document::activeText(*document).format;
    core::document::makeSetActiveTextCommand(*document, {body, format})->redo();
    return serializeObject(*document);
}

/** A journal that came back after a power cut would put its old text over what was saved since. */
void removeForGood(FileSystem& fileSystem, const QString& path)
{
    // An empty file is no journal, and tells of no crash.
    if (!fileSystem.remove(path))
        QFile::resize(path, 0);
    static_cast<void>(fileSystem.syncFolder(QFileInfo(path).path()));
}

} // namespace

CrashJournal::CrashJournal(const StorageEnvironment& environment, QString projectPath)
    : m_environment(environment)
    , m_projectPath(std::move(projectPath))
    , m_filePath(
          journalsFolder(environment) + u'/' + namePrefix(m_projectPath) +
          QUuid::createUuid().toString(QUuid::Id128).first(8) + journalSuffix)
{
    m_writer.setMaxThreadCount(1);
}

CrashJournal::~CrashJournal()
{
    m_writer.waitForDone();
}

void CrashJournal::append(QList<JournalEdit> edits)
{
    m_writer.start([this, edits = std::move(edits)] {
        Result<void> written = write(edits);
        const QMutexLocker lock(&m_mutex);
        m_lastWrite = std::move(written);
    });
}

Result<void> CrashJournal::flush()
{
    append({});
    m_writer.waitForDone();
    return lastOutcome();
}

Result<void> CrashJournal::lastOutcome()
{
    const QMutexLocker lock(&m_mutex);
    return m_lastWrite;
}

void CrashJournal::discard()
{
    m_writer.start([this] { removeFile(); });
}

Result<void> CrashJournal::write(const QList<JournalEdit>& edits)
{
    for (const JournalEdit& edit : edits)
        m_unwritten.insert(edit.path, edit);
    if (m_unwritten.isEmpty())
        return {};
    if (auto begun = begin(); !begun)
        return begun;
    QByteArray records = m_size == 0 ? journalHeader(m_projectPath) : QByteArray();
    QHash<QString, qsizetype> sizes;
    for (const JournalEdit& edit : std::as_const(m_unwritten)) {
        JournalRecord record{edit.path, std::nullopt, edit.bytes};
        if (edit.body && edit.bytes)
            record.bytes = withBody(*edit.bytes, edit.path, *edit.body);
        if (!m_recordSizes.contains(edit.path))
            record.base = edit.base;
        const QByteArray encoded = encodeRecord(record);
        sizes.insert(edit.path, encoded.size());
        records += encoded;
    }
    if (auto stored = store(records); !stored)
        return stored;
    m_unwritten.clear();
    m_recordSizes.insert(sizes);
    compactWhenWorthwhile();
    return {};
}

Result<void> CrashJournal::begin()
{
    if (m_lock)
        return {};
    if (m_environment.fileSystem.makeFolders(journalsFolder(m_environment)))
        m_lock = lockOf(m_filePath);
    return m_lock ? Result<void>() : journalFailure(m_filePath);
}

Result<void> CrashJournal::store(const QByteArray& records)
{
    QFile file(m_filePath);
    if (!file.open(QIODevice::ReadWrite))
        return journalFailure(m_filePath);
    if (file.size() < m_size) {
        // Somebody took it away: a new one begins, with what is noted from here on.
        m_size = 0;
        m_recordSizes.clear();
        m_isNameOnMedium = false;
        return journalFailure(m_filePath);
    }
    // What a write that failed left behind goes first: half a record would hide all that follow it.
    const bool isStored =
        file.resize(m_size) && file.seek(m_size) && file.write(records) == records.size() && file.flush();
    if (!isStored) {
        file.resize(m_size);
        return journalFailure(m_filePath);
    }
    file.close();
    if (!m_environment.fileSystem.syncFile(m_filePath) || !syncName())
        return journalFailure(m_filePath);
    m_size += records.size();
    return {};
}

bool CrashJournal::syncName()
{
    if (!m_isNameOnMedium)
        m_isNameOnMedium = m_environment.fileSystem.syncFolder(journalsFolder(m_environment));
    return m_isNameOnMedium;
}

void CrashJournal::compactWhenWorthwhile()
{
    qint64 used = 0;
    for (const qsizetype size : std::as_const(m_recordSizes))
        used += size;
    if (m_size < smallJournal || m_size < used * wastefulFactor)
        return;
    const auto content = m_environment.fileSystem.readFile(m_filePath);
    const auto journal = content ? parseJournal(content->bytes) : Result<Journal>(journalFailure(m_filePath));
    if (!journal)
        return;
    QByteArray compact = journalHeader(m_projectPath);
    QHash<QString, qsizetype> sizes;
    for (const auto& [path, file] : journal.value().files) {
        const QByteArray record = encodeRecord({path, file.base, file.bytes});
        sizes.insert(path, record.size());
        compact += record;
    }
    SafeWriter writer(m_environment.fileSystem, m_environment.retryPolicy, m_environment.sleeper);
    // The long journal says the same, so one that cannot be replaced is no failure.
    if (!writer.write({m_filePath, compact}))
        return;
    m_size = compact.size();
    m_recordSizes = std::move(sizes);
    // Until the next write has seen to it, a power cut brings the long one back.
    m_isNameOnMedium = false;
}

void CrashJournal::removeFile()
{
    m_unwritten.clear();
    m_recordSizes.clear();
    m_size = 0;
    m_isNameOnMedium = false;
    if (m_lock)
        removeForGood(m_environment.fileSystem, m_filePath);
    m_lock.reset();
    const QMutexLocker lock(&m_mutex);
    m_lastWrite = {};
}

AbandonedJournal::AbandonedJournal(
    FileSystem& fileSystem, QString path, Journal content, std::unique_ptr<QLockFile> lock)
    : m_fileSystem(&fileSystem)
    , m_path(std::move(path))
    , m_content(std::move(content))
    , m_lock(std::move(lock))
{}

std::vector<AbandonedJournal> AbandonedJournal::find(
    const StorageEnvironment& environment, const QString& projectPath)
{
    std::vector<AbandonedJournal> found;
    const QDir folder(journalsFolder(environment));
    QStringList names = folder.entryList(QDir::Files, QDir::Time | QDir::Reversed);
    const QString prefix = namePrefix(projectPath);
    names.removeIf(
        [&](const QString& name) { return !name.startsWith(prefix) || !name.endsWith(journalSuffix); });
    for (const QString& name : names) {
        const QString path = folder.filePath(name);
        auto lock = lockOf(path);
        const auto content = lock ? environment.fileSystem.readFile(path) : std::nullopt;
        if (!content)
            continue;
        auto journal = parseJournal(content->bytes);
        if (journal && journal.value().projectPath == projectPath)
            found.push_back(
                AbandonedJournal(environment.fileSystem, path, std::move(journal).value(), std::move(lock)));
    }
    return found;
}

void AbandonedJournal::remove()
{
    removeForGood(*m_fileSystem, m_path);
    m_lock.reset();
}

} // namespace tw::app::persistence
