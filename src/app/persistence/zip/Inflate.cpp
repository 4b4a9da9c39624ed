#include "app/persistence/zip/Inflate.h"

#include "app/persistence/zip/HuffmanTable.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <optional>

namespace tw::app::persistence {

namespace {

constexpr std::size_t literalSymbols = 288;
constexpr std::size_t distanceSymbols = 32;
constexpr quint16 endOfBlock = 256;

struct Range
{
    quint16 base;
    quint8 extraBits;
};

constexpr std::array<Range, 29> lengthRanges{
    {{3, 0},  {4, 0},  {5, 0},  {6, 0},   {7, 0},   {8, 0},   {9, 0},   {10, 0},  {11, 1}, {13, 1},
     {15, 1}, {17, 1}, {19, 2}, {23, 2},  {27, 2},  {31, 2},  {35, 3},  {43, 3},  {51, 3}, {59, 3},
     {67, 4}, {83, 4}, {99, 4}, {115, 4}, {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0}}};

constexpr std::array<Range, 30> distanceRanges{
    {{1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},     {9, 2},     {13, 2},
     {17, 3},    {25, 3},    {33, 4},    {49, 4},     {65, 5},     {97, 5},    {129, 6},   {193, 6},
     {257, 7},   {385, 7},   {513, 8},   {769, 8},    {1025, 9},   {1537, 9},  {2049, 10}, {3073, 10},
     {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13}}};

constexpr std::array<quint8, 19> codeLengthOrder{16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                 11, 4,  12, 3, 13, 2, 14, 1, 15};

/** Hands out the bits of the input, the lowest of each byte first. */
class BitReader
{
public:
    explicit BitReader(QByteArrayView input)
        : m_next(input.data())
        , m_end(input.data() + input.size())
    {}

    /** What a length and a distance take with their extra bits, the most that is read in one go. */
    static constexpr int mostBits = 48;

    /** Has at least that many bits at hand, or all that are left. */
    void refill()
    {
        if (m_count >= mostBits)
            return;
        if (m_end - m_next >= 8) {
            m_bits |= qFromLittleEndian<quint64>(m_next) << m_count;
            m_next += (63 - m_count) / 8;
            m_count |= 56;
            return;
        }
        while (m_count <= 56 && m_next != m_end) {
            m_bits |= quint64(static_cast<quint8>(*m_next++)) << m_count;
            m_count += 8;
        }
    }

    /** Bits past the end of the input read as zero: it is skip() that refuses them. */
    [[nodiscard]] quint64 bits() const { return m_bits; }

    [[nodiscard]] bool skip(int count)
    {
        if (count > m_count)
            return false;
        m_bits >>= count;
        m_count -= count;
        return true;
    }

    [[nodiscard]] std::optional<quint32> take(int count)
    {
        const auto value = static_cast<quint32>(m_bits & ((quint64(1) << count) - 1));
        return skip(count) ? std::optional(value) : std::nullopt;
    }

    /** Drops the rest of the current byte and takes whole bytes from there. */
    [[nodiscard]] std::optional<QByteArrayView> takeBytes(qsizetype count)
    {
        m_next -= m_count / 8;
        m_bits = 0;
        m_count = 0;
        if (count > m_end - m_next)
            return std::nullopt;
        const QByteArrayView bytes(m_next, count);
        m_next += count;
        return bytes;
    }

    [[nodiscard]] bool isAtEnd() const { return m_next == m_end && m_count < 8; }

private:
    const char* m_next;
    const char* m_end;
    quint64 m_bits = 0;
    int m_count = 0;
};

/** One run over one stream. Every step gives false as soon as the data cannot be right. */
class Inflater
{
public:
    Inflater(QByteArrayView input, char* output, qsizetype size)
        : m_input(input)
        , m_begin(output)
        , m_next(output)
        , m_end(output + size)
    {}

    [[nodiscard]] bool run()
    {
        for (bool isLast = false; !isLast;) {
            m_input.refill();
            const std::optional<quint32> header = m_input.take(3);
            if (!header || !readBlock(*header >> 1))
                return false;
            isLast = *header & 1;
        }
        return m_next == m_end && m_input.isAtEnd();
    }

private:
    enum BlockType : quint32
    {
        Stored = 0,
        FixedCodes = 1,
        DynamicCodes = 2,
    };

    [[nodiscard]] bool readBlock(quint32 type)
    {
        switch (type) {
        case Stored:
            return copyStored();
        case FixedCodes:
            return useFixedCodes() && unpack();
        case DynamicCodes:
            return readCodes() && unpack();
        default:
            return false;
        }
    }

    [[nodiscard]] bool copyStored()
    {
        const std::optional<QByteArrayView> header = m_input.takeBytes(4);
        if (!header)
            return false;
        const quint16 size = qFromLittleEndian<quint16>(header->data());
        if (size != static_cast<quint16>(~qFromLittleEndian<quint16>(header->data() + 2)))
            return false;
        const std::optional<QByteArrayView> bytes = m_input.takeBytes(size);
        if (!bytes || bytes->size() > m_end - m_next)
            return false;
        m_next = std::copy(bytes->begin(), bytes->end(), m_next);
        return true;
    }

    [[nodiscard]] bool useFixedCodes()
    {
        std::array<quint8, literalSymbols> literals;
        std::fill(literals.begin(), literals.begin() + 144, quint8(8));
        std::fill(literals.begin() + 144, literals.begin() + 256, quint8(9));
        std::fill(literals.begin() + 256, literals.begin() + 280, quint8(7));
        std::fill(literals.begin() + 280, literals.end(), quint8(8));
        std::array<quint8, distanceSymbols> distances;
        distances.fill(5);
        return m_literals.build(literals, HuffmanTable::Completeness::Required) &&
               m_distances.build(distances, HuffmanTable::Completeness::Required);
    }

    [[nodiscard]] bool readCodes()
    {
        m_input.refill();
        const std::optional<quint32> counts = m_input.take(14);
        if (!counts)
            return false;
        const std::size_t literalCount = (*counts & 31) + 257;
        const std::size_t distanceCount = ((*counts >> 5) & 31) + 1;
        const std::size_t codeLengthCount = (*counts >> 10) + 4;
        if (literalCount > endOfBlock + 1 + lengthRanges.size() || distanceCount > distanceRanges.size())
            return false;

        std::array<quint8, codeLengthOrder.size()> codeLengths{};
        for (std::size_t index = 0; index < codeLengthCount; ++index) {
            m_input.refill();
            const std::optional<quint32> length = m_input.take(3);
            if (!length)
                return false;
            codeLengths[codeLengthOrder[index]] = static_cast<quint8>(*length);
        }
        // The table of the literals is free until its own lengths are known.
        std::array<quint8, literalSymbols + distanceSymbols> lengths{};
        const std::span all(lengths.data(), literalCount + distanceCount);
        if (!m_literals.build(codeLengths, HuffmanTable::Completeness::Required) || !readLengths(all))
            return false;
        return lengths[endOfBlock] != 0 &&
               m_literals.build(all.first(literalCount), HuffmanTable::Completeness::OneCodeMayStandAlone) &&
               m_distances.build(all.subspan(literalCount), HuffmanTable::Completeness::OneCodeMayStandAlone);
    }

    [[nodiscard]] bool readLengths(std::span<quint8> lengths)
    {
        constexpr quint16 repeatPrevious = 16;
        constexpr quint16 fewZeros = 17;
        for (std::size_t index = 0; index < lengths.size();) {
            m_input.refill();
            const HuffmanTable::Decoded code = m_literals.decode(m_input.bits());
            if (code.length == 0 || !m_input.skip(code.length))
                return false;
            if (code.symbol < repeatPrevious) {
                lengths[index++] = static_cast<quint8>(code.symbol);
                continue;
            }
            const Range run = code.symbol == repeatPrevious ? Range{3, 2}
                              : code.symbol == fewZeros     ? Range{3, 3}
                                                            : Range{11, 7};
            const std::optional<quint32> extra = m_input.take(run.extraBits);
            if (!extra || (code.symbol == repeatPrevious && index == 0))
                return false;
            const std::size_t count = run.base + *extra;
            if (count > lengths.size() - index)
                return false;
            const quint8 length = code.symbol == repeatPrevious ? lengths[index - 1] : quint8(0);
            std::ranges::fill(lengths.subspan(index, count), length);
            index += count;
        }
        return true;
    }

    [[nodiscard]] bool unpack()
    {
        while (true) {
            m_input.refill();
            const HuffmanTable::Decoded code = m_literals.decode(m_input.bits());
            if (code.length == 0 || !m_input.skip(code.length))
                return false;
            if (code.symbol < endOfBlock) {
                if (m_next == m_end)
                    return false;
                *m_next++ = static_cast<char>(code.symbol);
            } else if (code.symbol == endOfBlock) {
                return true;
            } else if (!repeatEarlier(code.symbol - endOfBlock - 1U)) {
                return false;
            }
        }
    }

    [[nodiscard]] bool repeatEarlier(std::size_t lengthSymbol)
    {
        if (lengthSymbol >= lengthRanges.size())
            return false;
        const std::optional<quint32> extraLength = m_input.take(lengthRanges[lengthSymbol].extraBits);
        const HuffmanTable::Decoded code = m_distances.decode(m_input.bits());
        if (!extraLength || code.length == 0 || code.symbol >= distanceRanges.size() ||
            !m_input.skip(code.length))
            return false;
        const std::optional<quint32> extraDistance = m_input.take(distanceRanges[code.symbol].extraBits);
        if (!extraDistance)
            return false;
        const qptrdiff length = lengthRanges[lengthSymbol].base + qptrdiff(*extraLength);
        const qptrdiff distance = distanceRanges[code.symbol].base + qptrdiff(*extraDistance);
        if (distance > m_next - m_begin || length > m_end - m_next)
            return false;

        const char* source = m_next - distance;
        if (distance >= length) {
            std::memcpy(m_next, source, static_cast<std::size_t>(length));
            m_next += length;
        } else {
            // The copy runs into what it has just written: that is how short patterns repeat.
            for (char* const end = m_next + length; m_next != end;)
                *m_next++ = *source++;
        }
        return true;
    }

    BitReader m_input;
    char* m_begin;
    char* m_next;
    char* m_end;
    HuffmanTable m_literals;
    HuffmanTable m_distances;
};

} // namespace

core::Result<QByteArray> inflate(QByteArrayView compressed, qsizetype size)
{
    QByteArray output(size, Qt::Uninitialized);
    if (!Inflater(compressed, output.data(), size).run())
        return core::Failure{
            QCoreApplication::translate("Persistence", "The compressed data is damaged or incomplete.")};
    return output;
}

} // namespace tw::app::persistence
