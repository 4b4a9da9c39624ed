#include "app/persistence/zip/HuffmanTable.h"

namespace tw::app::persistence {

bool HuffmanTable::build(std::span<const quint8> lengths, Completeness completeness)
{
    m_counts.fill(0);
    for (const quint8 length : lengths) {
        if (length != 0)
            ++m_counts[length];
    }

    // Codes still free at each length: every longer bit doubles them, every code takes one.
    int free = 1;
    int codes = 0;
    for (std::size_t length = 1; length <= longestCode; ++length) {
        free = free * 2 - m_counts[length];
        codes += m_counts[length];
        if (free < 0)
            return false;
    }
    const bool standsAlone = codes == 0 || (codes == 1 && m_counts[1] == 1);
    if (free > 0 && (completeness == Completeness::Required || !standsAlone))
        return false;

    std::array<quint16, longestCode + 1> offsets{};
    for (std::size_t length = 1; length < longestCode; ++length)
        offsets[length + 1] = static_cast<quint16>(offsets[length] + m_counts[length]);
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        if (lengths[symbol] != 0)
            m_symbols[offsets[lengths[symbol]]++] = static_cast<quint16>(symbol);
    }
    fillFast(lengths);
    return true;
}

void HuffmanTable::fillFast(std::span<const quint8> lengths)
{
    m_fast.fill({});
    std::array<quint32, longestCode + 1> nextCode{};
    quint32 code = 0;
    for (std::size_t length = 1; length <= longestCode; ++length) {
        code = (code + m_counts[length - 1]) << 1;
        nextCode[length] = code;
    }
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        const quint8 length = lengths[symbol];
        if (length == 0 || length > fastBits)
            continue;
        // A code arrives with its highest bit first, the lookup has the first bit lowest.
        quint32 reversed = 0;
        for (quint32 rest = nextCode[length]++, bit = 0; bit < length; ++bit, rest >>= 1)
            reversed = (reversed << 1) | (rest & 1);
        for (quint32 index = reversed; index < fastSize; index += 1U << length)
            m_fast[index] = {static_cast<quint16>(symbol), length};
    }
}

HuffmanTable::Decoded HuffmanTable::decodeLong(quint64 bits) const
{
    // The codes of one length are consecutive numbers, so a code is found by its distance from the first one.
    int code = 0;
    int first = 0;
    int index = 0;
    for (std::size_t length = 1; length <= longestCode; ++length, bits >>= 1) {
        code |= static_cast<int>(bits & 1);
        const int count = m_counts[length];
        if (code - first < count) {
            const auto symbol = m_symbols[static_cast<std::size_t>(index + code - first)];
            return {symbol, static_cast<quint8>(length)};
        }
        index += count;
        first = (first + count) << 1;
        code <<= 1;
    }
    return {};
}

} // namespace tw::app::persistence
