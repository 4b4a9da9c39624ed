#include "app/persistence/DiskState.h"

#include "app/persistence/files/ProjectFiles.h"

#include <QCryptographicHash>

#include <algorithm>
#include <chrono>

namespace tw::app::persistence {

namespace {

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

bool isSettled(const FileStamp& stamp, qint64 now)
{
    return now - std::max(stamp.mtimeNs, stamp.ctimeNs) > settlingNs;
}

DiskState::DiskState(FileSystem& fileSystem, Clock clock)
    : m_fileSystem(&fileSystem)
    , m_clock(std::move(clock))
{}

bool DiskState::isSettled(const FileStamp& stamp) const
{
    return persistence::isSettled(stamp, m_clock());
}

void DiskState::insert(const QString& relativePath, Record record)
{
    m_records.insert(relativePath, std::move(record));
    if (!m_isVouchedFor.empty())
        m_newRecords.insert(relativePath);
}

void DiskState::forget(const QString& relativePath)
{
    m_records.remove(relativePath);
    m_newRecords.insert(relativePath);
}

void DiskState::clear()
{
    m_records.clear();
    rememberNames({});
}

void DiskState::rememberNames(FolderScan listing)
{
    m_lastScan = std::move(listing);
    m_isVouchedFor.clear();
    m_newRecords.clear();
}

void DiskState::record(const QString& relativePath, QByteArray bytes, const FileStamp& stamp)
{
    insert(relativePath, {std::move(bytes), stamp, isSettled(stamp), false});
}

void DiskState::recordWritten(const QString& folder, const QString& relativePath, QByteArray bytes)
{
    // A stamp just taken never counts as settled: whatever another program did meanwhile, the next check
    // reads the file.
    const FileStamp stamp = m_fileSystem->stamp(joined(folder, relativePath)).value_or(FileStamp());
    insert(relativePath, {std::move(bytes), stamp, false, false});
}

void DiskState::recordFile(const QString& folder, const QString& relativePath)
{
    auto content = m_fileSystem->readFile(joined(folder, relativePath));
    if (!content)
        return;
    const bool isOurs = isProjectFile(relativePath);
    insert(
        relativePath, {isOurs ? std::move(content->bytes) : hashOf(content->bytes), content->stamp,
                       isSettled(content->stamp), !isOurs});
}

void DiskState::recordUnseen(const QString& folder)
{
    FolderScan listing = listFolder(folder, ScannedFiles::Text);
    for (const ScannedFile& file : listing.files) {
        if (!m_records.contains(file.relativePath))
            recordFile(folder, file.relativePath);
    }
    rememberNames(std::move(listing));
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

bool DiskState::isVouchedFor(const ScannedFile& file) const
{
    const auto earlier = static_cast<std::size_t>(file.earlierIndex);
    return file.earlierIndex >= 0 && earlier < m_isVouchedFor.size() && m_isVouchedFor[earlier] &&
           m_lastScan.files[earlier].stamp == file.stamp &&
           (m_newRecords.isEmpty() || !m_newRecords.contains(file.relativePath));
}

DiskChanges DiskState::changesIn(const QString& folder)
{
    qsizetype seen = 0;
    FolderScan scan = scanFolder(folder, ScannedFiles::Text, m_lastScan);
    DiskChanges changes;
    changes.leftovers = scan.leftovers;
    changes.unreadableFolders = scan.unreadableFolders;
    std::vector<bool> isVouched(scan.files.size(), false);
    for (std::size_t index = 0; index < scan.files.size(); ++index) {
        const ScannedFile& file = scan.files[index];
        if (isVouchedFor(file)) {
            isVouched[index] = true;
            ++seen;
            continue;
        }
        const auto record = m_records.find(file.relativePath);
        if (record == m_records.end()) {
            changes.added.append(file.relativePath);
            continue;
        }
        ++seen;
        const bool isUntouched = record->isSettled && record->stamp == file.stamp;
        if (!isUntouched && !isSameContent(joined(folder, file.relativePath), *record))
            changes.changed.append(file.relativePath);
        else
            isVouched[index] = record->isSettled && record->stamp == file.stamp;
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
    m_lastScan = std::move(scan);
    m_isVouchedFor = std::move(isVouched);
    m_newRecords.clear();
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
