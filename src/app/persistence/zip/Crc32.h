#pragma once

#include <QByteArrayView>

namespace tw::app::persistence {

/**
 * The checksum of ZIP archives (reflected polynomial 0xEDB88320), over data that arrives in any number of
 * pieces. A value; any thread.
 */
class Crc32
{
public:
    void add(QByteArrayView data);
    /** Of all data so far; more may follow. */
    [[nodiscard]] quint32 value() const { return ~m_remainder; }

private:
    quint32 m_remainder = 0xFFFFFFFF;
};

[[nodiscard]] quint32 crc32(QByteArrayView data);

} // namespace tw::app::persistence
