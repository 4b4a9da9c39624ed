#include "core/foundation/Id.h"

#include <algorithm>

namespace tw::core::foundation {

namespace {

constexpr std::size_t byteCount = 16;
/** Where the two digits of each byte stand between the hyphens. */
constexpr std::array<std::size_t, byteCount> digitPositions{0,  2,  4,  6,  9,  11, 14, 16,
                                                            19, 21, 24, 26, 28, 30, 32, 34};
constexpr std::array<std::size_t, 4> hyphenPositions{8, 13, 18, 23};

constexpr unsigned char noDigit = 0x80;

constexpr std::array<unsigned char, 256> digitValues = [] {
    std::array<unsigned char, 256> values{};
    values.fill(noDigit);
    for (unsigned char digit = 0; digit < 10; ++digit)
        values[std::size_t{'0'} + digit] = digit;
    for (unsigned char letter = 0; letter < 6; ++letter) {
        values[std::size_t{'a'} + letter] = static_cast<unsigned char>(10 + letter);
        values[std::size_t{'A'} + letter] = static_cast<unsigned char>(10 + letter);
    }
    return values;
}();

} // namespace

IdText idText(const QUuid& uuid)
{
    constexpr char digits[] = "0123456789abcdef";
    std::array<quint8, byteCount> bytes{};
    qToBigEndian<quint32>(uuid.data1, bytes.data());
    qToBigEndian<quint16>(uuid.data2, bytes.data() + 4);
    qToBigEndian<quint16>(uuid.data3, bytes.data() + 6);
    std::ranges::copy(uuid.data4, bytes.begin() + 8);
    IdText text;
    for (std::size_t index = 0; index < byteCount; ++index) {
        text[digitPositions[index]] = digits[bytes[index] >> 4];
        text[digitPositions[index] + 1] = digits[bytes[index] & 0xf];
    }
    for (const std::size_t position : hyphenPositions)
        text[position] = '-';
    return text;
}

QUuid uuidFromIdText(QByteArrayView text)
{
    if (text.size() != std::ssize(IdText()))
        return {};
    unsigned char allValues = 0;
    std::array<quint8, byteCount> bytes{};
    for (std::size_t index = 0; index < byteCount; ++index) {
        const char* const digits = text.data() + digitPositions[index];
        const unsigned char high = digitValues[static_cast<unsigned char>(digits[0])];
        const unsigned char low = digitValues[static_cast<unsigned char>(digits[1])];
        allValues |= high | low;
        bytes[index] = static_cast<quint8>(high << 4 | low);
    }
    for (const std::size_t position : hyphenPositions) {
        if (text.data()[position] != '-')
            return {};
    }
    if (allValues >= noDigit)
        return {};
    return QUuid(
        qFromBigEndian<quint32>(bytes.data()), qFromBigEndian<quint16>(bytes.data() + 4),
        qFromBigEndian<quint16>(bytes.data() + 6), bytes[8], bytes[9], bytes[10], bytes[11], bytes[12],
        bytes[13], bytes[14], bytes[15]);
}

} // namespace tw::core::foundation
