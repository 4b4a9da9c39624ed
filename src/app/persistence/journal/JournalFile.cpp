#include "app/persistence/journal/JournalFile.h"

#include "app/persistence/zip/Crc32.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QtEndian>

namespace tw::app::persistence {

namespace {

constexpr QByteArrayView formatLine("vellory-journal 1\n");
constexpr auto streamVersion = QDataStream::Qt_6_4;
/** Size and checksum, both four bytes, the lowest first. */
constexpr qsizetype frameSize = 8;

enum RecordFlag : quint8
{
    HasBase = 1,
    BaseExists = 2,
    FileExists = 4,
};

QByteArray framed(const QByteArray& payload)
{
    QByteArray record(frameSize, Qt::Uninitialized);
    qToLittleEndian(static_cast<quint32>(payload.size()), record.data());
    qToLittleEndian(crc32(payload), record.data() + 4);
    return record + payload;
}

/** The payload of the record at the start of `rest`, which moves on; none at the end or a torn record. */
std::optional<QByteArray> takePayload(QByteArrayView& rest)
{
    if (rest.size() < frameSize)
        return std::nullopt;
    const auto size = static_cast<qsizetype>(qFromLittleEndian<quint32>(rest.data()));
    const auto checksum = qFromLittleEndian<quint32>(rest.data() + 4);
    // Nothing is empty; zeros are what a medium has where nothing was written yet.
    if (size == 0 || size > rest.size() - frameSize)
        return std::nullopt;
    const QByteArrayView payload = rest.sliced(frameSize, size);
    if (crc32(payload) != checksum)
        return std::nullopt;
    rest = rest.sliced(frameSize + size);
    return payload.toByteArray();
}

std::optional<JournalRecord> decodeRecord(const QByteArray& payload)
{
    QDataStream stream(payload);
    stream.setVersion(streamVersion);
    JournalRecord record;
    quint8 flags = 0;
    QByteArray base;
    QByteArray bytes;
    stream >> record.path >> flags >> base >> bytes;
    if (stream.status() != QDataStream::Ok || record.path.isEmpty())
        return std::nullopt;
    if (flags & HasBase)
        record.base.emplace(flags & BaseExists ? FileVersion(base) : FileVersion());
    if (flags & FileExists)
        record.bytes = bytes;
    return record;
}

} // namespace

QByteArray journalHeader(const QString& projectPath)
{
    return formatLine.toByteArray() + framed(projectPath.toUtf8());
}

QByteArray encodeRecord(const JournalRecord& record)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    int flags = record.bytes ? FileExists : 0;
    if (record.base)
        flags |= *record.base ? HasBase | BaseExists : HasBase;
    stream << record.path << static_cast<quint8>(flags)
           << (record.base ? record.base->value_or(QByteArray()) : QByteArray())
           << record.bytes.value_or(QByteArray());
    return framed(payload);
}

core::Result<Journal> parseJournal(QByteArrayView bytes)
{
    QByteArrayView rest = bytes;
    std::optional<QByteArray> project;
    if (rest.startsWith(formatLine)) {
        rest = rest.sliced(formatLine.size());
        project = takePayload(rest);
    }
    if (!project) {
        return core::Failure{QCoreApplication::translate(
            "Persistence", "The journal of unsaved changes cannot be read. It may be of another version of "
                           "the program.")};
    }
    Journal journal;
    journal.projectPath = QString::fromUtf8(*project);
    for (;;) {
        journal.readableSize = bytes.size() - rest.size();
        const std::optional<QByteArray> payload = takePayload(rest);
        std::optional<JournalRecord> record = payload ? decodeRecord(*payload) : std::nullopt;
        if (!record)
            return journal;
        JournaledFile& file = journal.files[record->path];
        if (record->base)
            file.base = std::move(*record->base);
        file.bytes = std::move(record->bytes);
    }
}

} // namespace tw::app::persistence
