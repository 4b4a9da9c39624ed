#pragma once

#include "core/foundation/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

class QIODevice;

namespace tw::app::persistence {

enum class ZipMethod
{
    Stored,
    Deflated, ///< Stored nevertheless when that is no larger.
};

/**
 * Writes a ZIP archive entry by entry, in the order of the calls: the same calls give the same bytes. Nothing
 * is sought or read back, so any device open for writing will do; it must outlive the writer. Names and
 * duplicates are the caller's to judge.
 *
 * After a failure the archive is useless and the writer with it: throw away what the device has.
 */
class ZipWriter
{
public:
    explicit ZipWriter(QIODevice& device);
    Q_DISABLE_COPY_MOVE(ZipWriter)

    [[nodiscard]] core::Result<void> add(const QString& name, QByteArrayView data, ZipMethod method);

    /** For data whose CRC-32 is known already. */
    [[nodiscard]] core::Result<void> addStored(const QString& name, QByteArrayView data, quint32 checksum);

    /** Writes the directory. The last call of all. */
    [[nodiscard]] core::Result<void> finish();

private:
    struct Entry
    {
        quint16 method = 0;
        quint32 checksum = 0;
        QByteArrayView packed;
        qsizetype size = 0;
    };

    [[nodiscard]] core::Result<void> write(const QString& name, const Entry& entry);
    [[nodiscard]] core::Result<void> writeBytes(QByteArrayView bytes);

    QIODevice& m_device;
    QByteArray m_directory;
    quint64 m_offset = 0;
    quint64 m_entries = 0;
};

} // namespace tw::app::persistence
