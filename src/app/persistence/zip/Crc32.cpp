#include "app/persistence/zip/Crc32.h"

#include <QtEndian>

#include <array>

namespace tw::app::persistence {

namespace {

constexpr quint32 polynomial = 0xEDB88320;
/** Bytes taken in one step, by one lookup each that does not wait for the others. */
constexpr std::size_t sliceSize = 16;

using Table = std::array<quint32, 256>;

/** tables[n][byte] is the remainder of the byte followed by n zero bytes. */
constexpr std::array<Table, sliceSize> makeTables()
{
    std::array<Table, sliceSize> tables{};
    for (quint32 byte = 0; byte < 256; ++byte) {
        quint32 remainder = byte;
        for (int bit = 0; bit < 8; ++bit)
            remainder = (remainder >> 1) ^ ((remainder & 1) ? polynomial : 0);
        tables[0][byte] = remainder;
    }
    for (std::size_t zeros = 1; zeros < sliceSize; ++zeros) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const quint32 shorter = tables[zeros - 1][byte];
            tables[zeros][byte] = (shorter >> 8) ^ tables[0][shorter & 0xFF];
        }
    }
    return tables;
}

constexpr std::array<Table, sliceSize> tables = makeTables();

/** The four bytes of a little-endian word, of which the last has `zerosAfter` bytes of the slice behind it.
 */
quint32 lookUp(quint32 word, std::size_t zerosAfter)
{
    return tables[zerosAfter + 3][word & 0xFF] ^ tables[zerosAfter + 2][(word >> 8) & 0xFF] ^
           tables[zerosAfter + 1][(word >> 16) & 0xFF] ^ tables[zerosAfter][word >> 24];
}

} // namespace

void Crc32::add(QByteArrayView data)
{
    const char* next = data.data();
    const char* const end = next + data.size();
    quint32 remainder = m_remainder;
    for (; end - next >= static_cast<qptrdiff>(sliceSize); next += sliceSize) {
        remainder = lookUp(qFromLittleEndian<quint32>(next) ^ remainder, 12) ^
                    lookUp(qFromLittleEndian<quint32>(next + 4), 8) ^
                    lookUp(qFromLittleEndian<quint32>(next + 8), 4) ^
                    lookUp(qFromLittleEndian<quint32>(next + 12), 0);
    }
    for (; next != end; ++next)
        remainder = (remainder >> 8) ^ tables[0][(remainder ^ static_cast<quint8>(*next)) & 0xFF];
    m_remainder = remainder;
}

quint32 crc32(QByteArrayView data)
{
    Crc32 checksum;
    checksum.add(data);
    return checksum.value();
}

} // namespace tw::app::persistence
