#include "app/persistence/zip/ZipWriter.h"

#include "app/persistence/zip/Crc32.h"
#include "app/persistence/zip/ZipFormat.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>

namespace tw::app::persistence {

using core::Failure;
using core::Result;

namespace {

Failure failure(const char* text)
{
    return {QCoreApplication::translate("Persistence", text)};
}

Failure tooLarge()
{
    return failure(QT_TRANSLATE_NOOP(
        "Persistence", "The archive would be larger than 4 GiB. Remove some large files, then try again."));
}

template <class Number>
void put(QByteArray& record, Number number)
{
    const Number littleEndian = qToLittleEndian(number);
    record.append(reinterpret_cast<const char*>(&littleEndian), sizeof littleEndian);
}

/** The raw deflate stream: what qCompress makes, without its size, its two-byte header and its checksum. */
QByteArray deflate(QByteArrayView data)
{
    constexpr qsizetype before = 6;
    constexpr qsizetype after = 4;
    const QByteArray packed = qCompress(QByteArray::fromRawData(data.data(), data.size()));
    return packed.size() < before + after ? QByteArray()
                                          : packed.sliced(before, packed.size() - before - after);
}

} // namespace

ZipWriter::ZipWriter(QIODevice& device)
    : m_device(device)
{}

Result<void> ZipWriter::add(const QString& name, QByteArrayView data, ZipMethod method)
{
    const quint32 checksum = crc32(data);
    if (method == ZipMethod::Deflated) {
        const QByteArray packed = deflate(data);
        if (!packed.isEmpty() && packed.size() < data.size())
            return write(name, {zip::methodDeflated, checksum, packed, data.size()});
    }
    return addStored(name, data, checksum);
}

Result<void> ZipWriter::addStored(const QString& name, QByteArrayView data, quint32 checksum)
{
    return write(name, {zip::methodStored, checksum, data, data.size()});
}

Result<void> ZipWriter::write(const QString& name, const Entry& entry)
{
    const QByteArray encodedName = name.toUtf8();
    if (encodedName.size() > zip::longestName)
        return Failure{
            QCoreApplication::translate("Persistence", "The path of a file is too long for an archive: %1")
                .arg(name.left(80) + u'\u2026')};
    if (m_entries == zip::mostEntries)
        return failure(QT_TRANSLATE_NOOP(
            "Persistence", "An archive can hold at most 65,535 files. Remove some files, then try again."));
    const quint64 end =
        m_offset + zip::localSize + quint64(encodedName.size()) + quint64(entry.packed.size());
    if (end > zip::largestOffset || quint64(entry.size) > zip::largestOffset)
        return tooLarge();

    // The part that the local header and the directory have in common.
    QByteArray common;
    put(common, zip::version);
    put(common, quint16(0)); // flags
    put(common, entry.method);
    put(common, quint16(0)); // time
    put(common, zip::fixedDate);
    put(common, entry.checksum);
    put(common, static_cast<quint32>(entry.packed.size()));
    put(common, static_cast<quint32>(entry.size));
    put(common, static_cast<quint16>(encodedName.size()));
    put(common, quint16(0)); // length of the extra field

    put(m_directory, zip::directorySignature);
    put(m_directory, zip::version);
    m_directory += common;
    put(m_directory, quint16(0)); // length of the comment
    put(m_directory, quint16(0)); // disk
    put(m_directory, quint16(0)); // internal attributes
    put(m_directory, quint32(0)); // external attributes
    put(m_directory, static_cast<quint32>(m_offset));
    m_directory += encodedName;

    QByteArray header;
    put(header, zip::localSignature);
    header += common + encodedName;
    m_offset = end;
    ++m_entries;
    if (auto written = writeBytes(header); !written)
        return written;
    return writeBytes(entry.packed);
}

Result<void> ZipWriter::finish()
{
    if (quint64(m_directory.size()) > zip::largestOffset - m_offset)
        return tooLarge();
    QByteArray end;
    put(end, zip::endSignature);
    put(end, quint16(0)); // this disk
    put(end, quint16(0)); // disk of the directory
    put(end, static_cast<quint16>(m_entries));
    put(end, static_cast<quint16>(m_entries));
    put(end, static_cast<quint32>(m_directory.size()));
    put(end, static_cast<quint32>(m_offset));
    put(end, quint16(0)); // length of the comment
    if (auto written = writeBytes(m_directory); !written)
        return written;
    return writeBytes(end);
}

Result<void> ZipWriter::writeBytes(QByteArrayView bytes)
{
    if (m_device.write(bytes.data(), bytes.size()) != bytes.size())
        return failure(QT_TRANSLATE_NOOP(
            "Persistence", "The archive could not be written. Check that there is room on the disk."));
    return {};
}

} // namespace tw::app::persistence
