#include "app/persistence/DiskState.h"

#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/ProjectFiles.h"

#include <QCryptographicHash>
#include <QSet>

#include <algorithm>
#include <chrono>

namespace tw::app::persistence {

namespace {

/** A stamp younger than this may still belong to two contents: some file systems count whole seconds. */
constexpr qint64 settlingNs = 2'000'000'000;

QString joined(const QString& folder, const QString& relativePath)
{
    return folder + u'/' + relativePath;
}

QByteArray hashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

qint64 systemClock()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

DiskState::DiskState(FileSystem& fileSystem, Clock clock)
    : m_fileSystem(&fileSystem)
    , m_clock(std::move(clock))
{}

bool DiskState::isSettled(const FileStamp& stamp) const
{
    return m_clock() - std::max(stamp.mtimeNs, stamp.ctimeNs) > settlingNs;
}

void DiskState::record(const QString& relativePath, QByteArray bytes, const FileStamp& stamp)
{
    m_records.insert(relativePath, {std::move(bytes), stamp, isSettled(stamp), false});
}

void DiskState::recordWritten(const QString& folder, const QString& relativePath, QByteArray bytes)
{
    // A stamp just taken never counts as settled: whatever another program did meanwhile, the next check
    // reads the file.
    const FileStamp stamp = m_fileSystem->stamp(joined(folder, relativePath)).value_or(FileStamp());
    m_records.insert(relativePath, {std::move(bytes), stamp, false, false});
}

void DiskState::recordUnseen(const QString& folder)
{
    for (const ScannedFile& file : scanFolder(folder, ScannedFiles::Text).files) {
        if (m_records.contains(file.relativePath))
            continue;
        auto content = m_fileSystem->readFile(joined(folder, file.relativePath));
        if (!content)
            continue;
        const bool isOurs = isProjectFile(file.relativePath);
        m_records.insert(
            file.relativePath, {isOurs ? std::move(content->bytes) : hashOf(content->bytes), content->stamp,
                                isSettled(content->stamp), !isOurs});
    }
}

QByteArray DiskState::bytes(const QString& relativePath) const
{
    const Record record = m_records.value(relativePath);
    return record.isHash ? QByteArray() : record.bytes;
}

bool DiskState::isSameContent(const QString& path, Record& record)
{
    const auto content = m_fileSystem->readFile(path);
    if (!content || (record.isHash ? hashOf(content->bytes) : content->bytes) != record.bytes)
        return false;
    record.stamp = content->stamp;
    record.isSettled = isSettled(content->stamp);
    return true;
}

DiskChanges DiskState::changesIn(const QString& folder)
{
    qsizetype seen = 0;
    const FolderScan scan = scanFolder(folder, ScannedFiles::Text);
    DiskChanges changes;
    changes.leftovers = scan.leftovers;
    for (const ScannedFile& file : scan.files) {
        const auto record = m_records.find(file.relativePath);
        if (record == m_records.end()) {
            changes.added.append(file.relativePath);
            continue;
        }
        ++seen;
        if (record->isSettled && record->stamp == file.stamp)
            continue;
        if (!isSameContent(joined(folder, file.relativePath), *record))
            changes.changed.append(file.relativePath);
    }
    if (seen != m_records.size()) {
        QSet<QString> present;
        for (const ScannedFile& file : scan.files)
            present.insert(file.relativePath);
        for (auto record = m_records.cbegin(); record != m_records.cend(); ++record) {
            if (!present.contains(record.key()))
                changes.removed.append(record.key());
        }
    }
    changes.added.sort();
    changes.removed.sort();
    changes.changed.sort();
    return changes;
}

bool DiskState::isUnchanged(const QString& folder, const QString& relativePath)
{
    const QString path = joined(folder, relativePath);
    const auto stamp = m_fileSystem->stamp(path);
    const auto record = m_records.find(relativePath);
    if (record == m_records.end())
        return !stamp;
    if (!stamp)
        return false;
    return (record->isSettled && record->stamp == *stamp) || isSameContent(path, *record);
}

} // namespace tw::app::persistence
