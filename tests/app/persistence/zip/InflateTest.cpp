#include "app/persistence/zip/Inflate.h"

#include <gtest/gtest.h>

#include <random>

using namespace tw::app::persistence;

namespace {

/** The raw stream inside of what qCompress makes: without its size, header and checksum. */
QByteArray deflate(const QByteArray& data, int level)
{
    const QByteArray packed = qCompress(data, level);
    return packed.sliced(6, packed.size() - 10);
}

/** Data of one kind: noise, few values, text of a small vocabulary, long runs. */
QByteArray sample(int kind, qsizetype size, std::mt19937& random)
{
    static constexpr const char* words[] = {"the ", "harbour ", "keeper ", "{\"id\": ", "tide\n", "a "};
    QByteArray data;
    while (data.size() < size) {
        switch (kind) {
        case 0:
            data.append(static_cast<char>(random()));
            break;
        case 1:
            data.append(static_cast<char>('a' + random() % 3));
            break;
        case 2:
            data.append(words[random() % std::size(words)]);
            break;
        default:
            data.append(QByteArray(static_cast<qsizetype>(1 + random() % 700), static_cast<char>(random())));
        }
    }
    data.truncate(size);
    return data;
}

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray result;
    for (const int value : values)
        result.append(static_cast<char>(value));
    return result;
}

} // namespace

TEST(Inflate, givesBackWhatWasCompressed)
{
    std::mt19937 random(11);
    for (const qsizetype size : {1, 2, 3, 17, 300, 5000, 70000, 400000}) {
        for (int kind = 0; kind < 4; ++kind) {
            const QByteArray data = sample(kind, size, random);
            for (const int level : {0, 1, 6, 9}) {
                const auto result = inflate(deflate(data, level), size);
                ASSERT_TRUE(result.isOk()) << size << " of kind " << kind << " at level " << level;
                ASSERT_TRUE(result.value() == data) << size << " of kind " << kind << " at level " << level;
            }
        }
    }
}

TEST(Inflate, readsStreamsWrittenByHand)
{
    struct Case
    {
        const char* what;
        QByteArray stream;
        QByteArray expected;
    };
    const Case cases[] = {
        {"empty, fixed codes", bytes({0x03, 0x00}), ""},
        {"empty, stored", bytes({0x01, 0, 0, 0xFF, 0xFF}), ""},
        {"stored", bytes({0x01, 2, 0, 0xFD, 0xFF, 'h', 'i'}), "hi"},
        {"one letter, fixed codes", bytes({0x4B, 0x04, 0x00}), "a"},
        {"stored, then fixed", bytes({0x00, 1, 0, 0xFE, 0xFF, 'b', 0x4B, 0x04, 0x00}), "ba"},
    };
    for (const Case& each : cases) {
        const auto result = inflate(each.stream, each.expected.size());
        ASSERT_TRUE(result.isOk()) << each.what;
        EXPECT_EQ(result.value(), each.expected) << each.what;
    }
}

TEST(Inflate, refusesWhatIsNoStream)
{
    struct Case
    {
        const char* what;
        QByteArray stream;
        qsizetype size;
    };
    const Case cases[] = {
        {"nothing", "", 0},
        {"reserved block type", bytes({0x07, 0, 0, 0}), 0},
        {"stored length contradicts itself", bytes({0x01, 2, 0, 0xFC, 0xFF, 'h', 'i'}), 2},
        {"stored beyond the input", bytes({0x01, 9, 0, 0xF6, 0xFF, 'h', 'i'}), 9},
        {"less output than declared", bytes({0x4B, 0x04, 0x00}), 2},
        {"more output than declared", bytes({0x4B, 0x04, 0x00}), 0},
        {"bytes after the end", bytes({0x4B, 0x04, 0x00, 0x00}), 1},
        {"repeats from before the beginning", bytes({0x03, 0x02, 0x00}), 3},
        {"lengths of all codes are zero", bytes({0x05, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}), 0},
        {"more literals than exist", bytes({0xFD, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}), 0},
    };
    for (const Case& each : cases)
        EXPECT_FALSE(inflate(each.stream, each.size).isOk()) << each.what;
}

TEST(Inflate, refusesEveryTruncationAndSurvivesEveryFlippedBit)
{
    std::mt19937 random(13);
    for (int kind = 0; kind < 4; ++kind) {
        const QByteArray data = sample(kind, 600, random);
        for (const int level : {0, 1, 9}) {
            const QByteArray stream = deflate(data, level);
            for (qsizetype size = 0; size < stream.size(); ++size)
                ASSERT_FALSE(inflate(stream.first(size), data.size()).isOk()) << kind << ' ' << size;
            for (qsizetype bit = 0; bit < stream.size() * 8; ++bit) {
                QByteArray flipped = stream;
                flipped[bit / 8] = static_cast<char>(flipped.at(bit / 8) ^ (1 << (bit % 8)));
                const auto result = inflate(flipped, data.size());
                ASSERT_TRUE(!result.isOk() || result.value().size() == data.size());
            }
        }
    }
}
