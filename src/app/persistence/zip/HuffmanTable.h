#pragma once

#include <QtGlobal>

#include <array>
#include <span>

namespace tw::app::persistence {

/**
 * A canonical Huffman code as deflate uses it: built from the lengths of the codes, decodes short codes by
 * one lookup and the rare long ones by counting.
 */
class HuffmanTable
{
public:
    static constexpr int longestCode = 15;

    struct Decoded
    {
        quint16 symbol = 0;
        quint8 length = 0; ///< Bits of the code; 0 when no code begins with these bits.
    };

    enum class Completeness
    {
        Required,
        OneCodeMayStandAlone, ///< Also none at all: such a code is never used.
    };

    /** One length a symbol, at most 288, 0 for a symbol without a code. False when that is no code. */
    [[nodiscard]] bool build(std::span<const quint8> lengths, Completeness completeness);

    /** The symbol whose code the bits begin with, the first one lowest. */
    [[nodiscard]] Decoded decode(quint64 bits) const
    {
        const Decoded fast = m_fast[bits & (fastSize - 1)];
        return fast.length != 0 ? fast : decodeLong(bits);
    }

private:
    static constexpr int fastBits = 10;
    static constexpr quint32 fastSize = 1U << fastBits;
    static constexpr std::size_t mostSymbols = 288;

    void fillFast(std::span<const quint8> lengths);
    [[nodiscard]] Decoded decodeLong(quint64 bits) const;

    std::array<Decoded, fastSize> m_fast;
    std::array<quint16, longestCode + 1> m_counts{}; ///< How many codes have each length.
    std::array<quint16, mostSymbols> m_symbols;      ///< By length, then by symbol.
};

} // namespace tw::app::persistence
