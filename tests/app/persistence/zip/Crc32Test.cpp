#include "app/persistence/zip/Crc32.h"

#include <gtest/gtest.h>

#include <random>

using namespace tw::app::persistence;

namespace {

quint32 bitByBit(QByteArrayView data)
{
    quint32 remainder = 0xFFFFFFFF;
    for (const char byte : data) {
        for (int bit = 0; bit < 8; ++bit) {
            const bool isOdd = ((remainder ^ (static_cast<quint8>(byte) >> bit)) & 1) != 0;
            remainder = (remainder >> 1) ^ (isOdd ? 0xEDB88320 : 0);
        }
    }
    return ~remainder;
}

} // namespace

TEST(Crc32, agreesWithKnownValues)
{
    EXPECT_EQ(crc32(""), 0U);
    EXPECT_EQ(crc32("123456789"), 0xCBF43926U);
    EXPECT_EQ(crc32("The quick brown fox jumps over the lazy dog"), 0x414FA339U);
}

TEST(Crc32, agreesWithTheBitwiseDefinitionAtEveryLengthAndSplit)
{
    std::mt19937 random(7);
    QByteArray data;
    for (int size = 0; size < 150; ++size) {
        ASSERT_EQ(crc32(data), bitByBit(data)) << size;
        const qsizetype split = size == 0 ? 0 : static_cast<qsizetype>(random() % unsigned(size));
        Crc32 pieces;
        pieces.add(QByteArrayView(data).first(split));
        pieces.add(QByteArrayView(data).sliced(split));
        ASSERT_EQ(pieces.value(), crc32(data)) << size << " split at " << split;
        data.append(static_cast<char>(random()));
    }
}
