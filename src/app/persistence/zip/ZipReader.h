#pragma once

#include "core/foundation/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <vector>

namespace tw::app::persistence {

/** Why an archive is refused. */
enum class ZipRefusal
{
    TooShort,
    NoEndRecord,
    Damaged, ///< Records are missing, cut off, or contradict each other.
    Overlapping,
    DuplicateName,
    Unsupported, ///< Encrypted, of several parts, extended, or another method.
    TooLarge,    ///< Unpacks to more than an honest archive of its size would.
    WrongContent ///< An entry's data is not what its size and checksum say.
};

/** The sentence for a refusal; what a Result of the reader fails with. */
[[nodiscard]] QString zipRefusalMessage(ZipRefusal refusal);

/** Which names count as the same. */
enum class ZipNames
{
    CaseInsensitive, ///< Safe to unpack anywhere.
    CaseSensitive,
};

/** How much an archive may unpack to, all entries together: at most the total, and for archives that unpack
 * to more than the allowance at most `ratio` times their own size. */
struct ZipLimits
{
    quint64 total = quint64(4) << 30;
    quint64 allowance = quint64(64) << 20;
    quint64 ratio = 200;
};

struct ZipEntry
{
    QString name; ///< As the archive has it; not judged, see isSafeEntryName().
    quint16 method = 0;
    quint32 checksum = 0;
    quint32 size = 0;
    QByteArrayView packed;

    [[nodiscard]] bool isFolder() const { return name.endsWith(u'/') || name.endsWith(u'\\'); }
};

/**
 * Reads ZIP archives from anywhere, stored or deflated, and trusts nothing in them: all records are checked
 * when the archive is opened, the data of an entry when it is read. The archive's bytes must outlive the
 * reader and its entries. A value; any thread.
 */
class ZipReader
{
public:
    [[nodiscard]] static core::Result<ZipReader> open(
        QByteArrayView archive, ZipNames names = ZipNames::CaseInsensitive, const ZipLimits& limits = {});

    /** In the order of the directory, folders included. */
    [[nodiscard]] const std::vector<ZipEntry>& entries() const { return m_entries; }

    /** Unpacks an entry of this archive and checks it. */
    [[nodiscard]] static core::Result<QByteArray> read(const ZipEntry& entry);

private:
    std::vector<ZipEntry> m_entries;
};

/**
 * Whether a file of this name, unpacked into a folder, is a visible file inside of it on every system: "\"
 * reads as "/", and the name must not be absolute, begin with a drive letter, have a component that is empty
 * or begins with a dot, or hold control characters.
 */
[[nodiscard]] bool isSafeEntryName(QStringView name);

} // namespace tw::app::persistence
