#include "app/persistence/zip/ZipReader.h"

#include "app/persistence/zip/Crc32.h"
#include "app/persistence/zip/Inflate.h"
#include "app/persistence/zip/ZipFormat.h"
#include "app/persistence/zip/ZipNameSet.h"

#include <QCoreApplication>
#include <QStringDecoder>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace tw::app::persistence {

using core::Failure;
using core::Result;

namespace {

/** No deflate stream gives more bytes than this for each of its own. */
constexpr quint64 bestRatio = 1032;

/** The flags that change nothing here: hints on the compression, sizes after the data, names in UTF-8. */
constexpr quint16 sizesFollow = 0x0008;
constexpr quint16 harmlessFlags = 0x0006 | sizesFollow | 0x0800;

constexpr quint32 sizesInExtraField = 0xFFFFFFFF;
constexpr quint16 largeSizesField = 0x0001;

Failure refused(ZipRefusal refusal)
{
    return {zipRefusalMessage(refusal)};
}

template <class Number>
Number numberAt(QByteArrayView record, qsizetype offset)
{
    return qFromLittleEndian<Number>(record.sliced(offset, sizeof(Number)).data());
}

struct EndRecord
{
    qsizetype position = 0;
    quint16 entries = 0;
    quint32 directorySize = 0;
    quint32 directoryOffset = 0;
};

/** The last end record whose comment reaches the end of the archive, or failing that fits in. */
std::optional<qsizetype> findEndRecord(QByteArrayView archive)
{
    constexpr qsizetype longestComment = 0xFFFF;
    const qsizetype last = archive.size() - zip::endSize;
    const qsizetype first = std::max<qsizetype>(0, last - longestComment);
    std::optional<qsizetype> fitting;
    for (qsizetype position = last; position >= first; --position) {
        if (archive[position] != 'P' || numberAt<quint32>(archive, position) != zip::endSignature)
            continue;
        const qsizetype end = position + zip::endSize + numberAt<quint16>(archive, position + 20);
        if (end == archive.size())
            return position;
        if (end < archive.size() && !fitting)
            fitting = position;
    }
    return fitting;
}

Result<EndRecord> readEndRecord(QByteArrayView archive)
{
    if (archive.size() < zip::endSize)
        return refused(ZipRefusal::TooShort);
    const std::optional<qsizetype> position = findEndRecord(archive);
    if (!position)
        return refused(ZipRefusal::NoEndRecord);
    const QByteArrayView record = archive.sliced(*position, zip::endSize);
    const EndRecord end{
        *position, numberAt<quint16>(record, 10), numberAt<quint32>(record, 12),
        numberAt<quint32>(record, 16)};
    if (numberAt<quint16>(record, 4) != 0 || numberAt<quint16>(record, 6) != 0 ||
        numberAt<quint16>(record, 8) != end.entries || end.directorySize > zip::largestOffset ||
        end.directoryOffset > zip::largestOffset)
        return refused(ZipRefusal::Unsupported);
    if (quint64(end.directoryOffset) + end.directorySize > quint64(*position))
        return refused(ZipRefusal::Damaged);
    return end;
}

/** Names are UTF-8 whatever the flag says; what is not comes from old tools with the old PC character set. */
QString decodedName(QByteArrayView bytes)
{
    static constexpr QStringView upperHalf =
        u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
        u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
    static_assert(upperHalf.size() == 128);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString name = decoder(bytes);
    if (!decoder.hasError())
        return name;
    QString old;
    for (const char byte : bytes) {
        const auto code = static_cast<quint8>(byte);
        old.append(code < 128 ? QChar(ushort(code)) : upperHalf.at(code - 128));
    }
    return old;
}

/** Walks the directory and compares it with the headers before the data. */
class Directory
{
public:
    Directory(QByteArrayView archive, const EndRecord& end)
        : m_archive(archive)
        , m_end(end)
        , m_rest(archive.sliced(end.directoryOffset, end.directorySize))
    {}

    Result<std::vector<ZipEntry>> read(ZipNames names, const ZipLimits& limits)
    {
        // The directory's size bounds the memory, whatever count the end record gives.
        if (quint64(m_end.entries) * zip::directorySize > quint64(m_rest.size()))
            return refused(ZipRefusal::Damaged);
        std::vector<ZipEntry> entries;
        entries.reserve(m_end.entries);
        ZipNameSet seen(names);
        quint64 total = 0;
        for (int index = 0; index < m_end.entries; ++index) {
            Result<ZipEntry> entry = readEntry();
            if (!entry)
                return Failure{entry.message()};
            total += entry.value().size;
            if (!seen.add(entry.value().name))
                return refused(ZipRefusal::DuplicateName);
            entries.push_back(std::move(entry).value());
        }
        if (!m_rest.isEmpty())
            return refused(ZipRefusal::Damaged);
        if (isOverlapping())
            return refused(ZipRefusal::Overlapping);
        if (total > limits.total ||
            (total > limits.allowance && total / limits.ratio > quint64(m_archive.size())))
            return refused(ZipRefusal::TooLarge);
        return entries;
    }

private:
    struct Extent
    {
        quint64 begin = 0;
        quint64 end = 0;
    };

    Result<ZipEntry> readEntry()
    {
        if (m_rest.size() < zip::directorySize || numberAt<quint32>(m_rest, 0) != zip::directorySignature)
            return refused(ZipRefusal::Damaged);
        const QByteArrayView record = m_rest.first(zip::directorySize);
        const qsizetype nameSize = numberAt<quint16>(record, 28);
        const qsizetype size =
            zip::directorySize + nameSize + numberAt<quint16>(record, 30) + numberAt<quint16>(record, 32);
        if (size > m_rest.size())
            return refused(ZipRefusal::Damaged);
        const QByteArrayView name = m_rest.sliced(zip::directorySize, nameSize);
        m_rest = m_rest.sliced(size);

        ZipEntry entry;
        entry.name = decodedName(name);
        entry.method = numberAt<quint16>(record, 10);
        entry.checksum = numberAt<quint32>(record, 16);
        entry.size = numberAt<quint32>(record, 24);
        const quint32 packedSize = numberAt<quint32>(record, 20);
        const quint32 offset = numberAt<quint32>(record, 42);
        if ((numberAt<quint16>(record, 8) & ~harmlessFlags) != 0 || numberAt<quint16>(record, 34) != 0 ||
            (entry.method != zip::methodStored && entry.method != zip::methodDeflated) ||
            std::max({entry.size, packedSize, offset}) > zip::largestOffset)
            return refused(ZipRefusal::Unsupported);
        if (entry.method == zip::methodStored && entry.size != packedSize)
            return refused(ZipRefusal::Damaged);
        if (entry.size / bestRatio > packedSize)
            return refused(ZipRefusal::TooLarge);

        const std::optional<qsizetype> data = findData(record, name, offset);
        if (!data || packedSize > m_end.directoryOffset - *data)
            return refused(ZipRefusal::Damaged);
        entry.packed = m_archive.sliced(*data, packedSize);
        m_extents.push_back({offset, quint64(*data) + packedSize});
        return entry;
    }

    /** Where the data of an entry begins, when its local header says the same as the directory. */
    std::optional<qsizetype> findData(QByteArrayView record, QByteArrayView name, quint32 offset) const
    {
        const qsizetype end = m_end.directoryOffset;
        if (qsizetype(offset) > end - zip::localSize)
            return std::nullopt;
        const QByteArrayView header = m_archive.sliced(offset, zip::localSize);
        const qsizetype nameBegin = offset + zip::localSize;
        const qsizetype data = nameBegin + numberAt<quint16>(header, 26) + numberAt<quint16>(header, 28);
        if (numberAt<quint32>(header, 0) != zip::localSignature || data > end ||
            numberAt<quint16>(header, 26) != name.size() ||
            m_archive.sliced(nameBegin, name.size()) != name ||
            numberAt<quint16>(header, 6) != numberAt<quint16>(record, 8) ||
            numberAt<quint16>(header, 8) != numberAt<quint16>(record, 10))
            return std::nullopt;
        // Checksum and both sizes, unless the tool learned them only after the data.
        const bool isKnown = (numberAt<quint16>(header, 6) & sizesFollow) == 0;
        const QByteArrayView extra = m_archive.sliced(nameBegin + name.size(), numberAt<quint16>(header, 28));
        if (isKnown &&
            (numberAt<quint32>(header, 14) != numberAt<quint32>(record, 16) ||
             sizesOf(header, extra) != Sizes(numberAt<quint32>(record, 20), numberAt<quint32>(record, 24))))
            return std::nullopt;
        return data;
    }

    /** Packed and unpacked, in bytes. */
    using Sizes = std::pair<quint64, quint64>;

    /** Of a local header. Tools that do not know beforehand how much will come leave room for large sizes. */
    static Sizes sizesOf(QByteArrayView header, QByteArrayView extra)
    {
        const Sizes sizes(numberAt<quint32>(header, 18), numberAt<quint32>(header, 22));
        if (sizes != Sizes(sizesInExtraField, sizesInExtraField))
            return sizes;
        constexpr qsizetype fieldHead = 4;
        while (extra.size() >= fieldHead) {
            const qsizetype length = numberAt<quint16>(extra, 2);
            const QByteArrayView field = extra.sliced(fieldHead);
            if (length > field.size())
                break;
            if (numberAt<quint16>(extra, 0) == largeSizesField && length >= 16)
                return {numberAt<quint64>(field, 8), numberAt<quint64>(field, 0)};
            extra = field.sliced(length);
        }
        return sizes;
    }

    bool isOverlapping()
    {
        std::ranges::sort(m_extents, {}, &Extent::begin);
        const auto overlap = [](const Extent& first, const Extent& second) {
            return second.begin < first.end;
        };
        return std::ranges::adjacent_find(m_extents, overlap) != m_extents.end();
    }

    QByteArrayView m_archive;
    EndRecord m_end;
    QByteArrayView m_rest; ///< Of the directory.
    std::vector<Extent> m_extents;
};

} // namespace

QString zipRefusalMessage(ZipRefusal refusal)
{
    const auto text = [refusal] {
        switch (refusal) {
        case ZipRefusal::TooShort:
            return QT_TRANSLATE_NOOP("Persistence", "The file is too short to be an archive.");
        case ZipRefusal::NoEndRecord:
            return QT_TRANSLATE_NOOP("Persistence", "The file is not an archive, or its end is missing.");
        case ZipRefusal::Damaged:
            return QT_TRANSLATE_NOOP("Persistence", "The archive is damaged.");
        case ZipRefusal::Overlapping:
            return QT_TRANSLATE_NOOP("Persistence", "The archive is damaged: its entries overlap.");
        case ZipRefusal::DuplicateName:
            return QT_TRANSLATE_NOOP("Persistence", "The archive holds two entries of the same name.");
        case ZipRefusal::Unsupported:
            return QT_TRANSLATE_NOOP(
                "Persistence", "The archive is encrypted, split, or packed in a way that cannot be read. "
                               "Pack it again as a plain "
                               "ZIP archive.");
        case ZipRefusal::TooLarge:
            return QT_TRANSLATE_NOOP("Persistence", "The archive claims to hold far more than it can.");
        case ZipRefusal::WrongContent:
            break;
        }
        return QT_TRANSLATE_NOOP("Persistence", "The archive is damaged: a checksum is wrong.");
    };
    return QCoreApplication::translate("Persistence", text());
}

Result<ZipReader> ZipReader::open(QByteArrayView archive, ZipNames names, const ZipLimits& limits)
{
    const Result<EndRecord> end = readEndRecord(archive);
    if (!end)
        return Failure{end.message()};
    Result<std::vector<ZipEntry>> entries = Directory(archive, end.value()).read(names, limits);
    if (!entries)
        return Failure{entries.message()};
    ZipReader reader;
    reader.m_entries = std::move(entries).value();
    return reader;
}

Result<QByteArray> ZipReader::read(const ZipEntry& entry)
{
    Result<QByteArray> data = entry.method == zip::methodStored
                                  ? Result<QByteArray>(entry.packed.toByteArray())
                                  : inflate(entry.packed, entry.size);
    if (!data || crc32(data.value()) != entry.checksum)
        return refused(ZipRefusal::WrongContent);
    return data;
}

} // namespace tw::app::persistence
