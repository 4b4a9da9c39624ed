#include "app/persistence/zip/ZipWriter.h"
#include "app/persistence/zip/ZipArchives.h"
#include "app/persistence/zip/ZipReader.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

/** Takes so many bytes and forgets them. */
class Sink final : public QIODevice
{
public:
    explicit Sink(qint64 room)
        : m_room(room)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char* /*data*/, qint64 size) override
    {
        if (size > m_room)
            return -1;
        m_room -= size;
        return size;
    }

private:
    qint64 m_room;
};

constexpr qint64 plenty = qint64(1) << 40;

} // namespace

TEST(ZipWriter, writesExactlyTheseRecords)
{
    const QByteArray expected = QByteArray::fromHex(
        // Local header and data of "a", then of "b/é".
        "504b0304 1400 0000 0000 0000 2100 43beb7e8 01000000 01000000 0100 0000 61 61"
        "504b0304 1400 0000 0000 0000 2100 00000000 00000000 00000000 0400 0000 622fc3a9"
        // The directory.
        "504b0102 1400 1400 0000 0000 0000 2100 43beb7e8 01000000 01000000 0100 0000 0000 0000 0000 00000000"
        "00000000 61"
        "504b0102 1400 1400 0000 0000 0000 2100 00000000 00000000 00000000 0400 0000 0000 0000 0000 00000000"
        "20000000 622fc3a9"
        // The end.
        "504b0506 0000 0000 0200 0200 61000000 42000000 0000");
    EXPECT_EQ(makeArchive({{u"a"_s, "a"}, {u"b/é"_s, ""}}).toHex(), expected.toHex());
}

TEST(ZipWriter, deflatesOnlyWhatGetsSmaller)
{
    const QByteArray text = QByteArray("the tide turns at dusk; ").repeated(400);
    const QByteArray archive = makeArchive(
        {{u"text"_s, text, ZipMethod::Deflated},
         {u"letter"_s, "a", ZipMethod::Deflated},
         {u"nothing"_s, "", ZipMethod::Deflated}});
    EXPECT_LT(archive.size(), text.size() / 4);
    const auto reader = ZipReader::open(archive);
    ASSERT_TRUE(reader.isOk()) << reader.message().toStdString();
    const QByteArray expected[] = {text, "a", ""};
    for (std::size_t index = 0; index < std::size(expected); ++index) {
        const ZipEntry& entry = reader.value().entries().at(index);
        EXPECT_EQ(entry.method, index == 0 ? 8 : 0);
        const auto data = ZipReader::read(entry);
        ASSERT_TRUE(data.isOk());
        EXPECT_TRUE(data.value() == expected[index]);
    }
}

TEST(ZipWriter, refusesWhatTheRecordsCannotHold)
{
    Sink sink(plenty);
    ZipWriter names(sink);
    EXPECT_TRUE(names.add(QString(65535, u'n'), "", ZipMethod::Stored).isOk());
    EXPECT_EQ(
        names.add(QString(32768, u'é'), "", ZipMethod::Stored).message(),
        u"The path of a file is too long for an archive: "_s + QString(80, u'é') + u'…');

    ZipWriter entries(sink);
    for (int index = 0; index < 65535; ++index)
        ASSERT_TRUE(entries.addStored(QString::number(index), "", 0).isOk());
    EXPECT_EQ(
        entries.addStored(u"one more"_s, "", 0).message(),
        u"An archive can hold at most 65,535 files. Remove some files, then try again."_s);
    EXPECT_TRUE(entries.finish().isOk());

    // Never touched, so that it takes no memory.
    const QByteArray large(qsizetype(1) << 30, Qt::Uninitialized);
    const QString tooLarge =
        u"The archive would be larger than 4 GiB. Remove some large files, then try again."_s;
    ZipWriter sizes(sink);
    for (int index = 0; index < 3; ++index)
        ASSERT_TRUE(sizes.addStored(QString::number(index), large, 0).isOk());
    EXPECT_EQ(sizes.addStored(u"3"_s, large, 0).message(), tooLarge);
}

TEST(ZipWriter, saysWhenTheDeviceIsFull)
{
    const QString full = u"The archive could not be written. Check that there is room on the disk."_s;
    for (const qint64 room : {0, 40, 60, 90}) {
        Sink sink(room);
        ZipWriter writer(sink);
        auto result = writer.add(u"name"_s, "twenty bytes of data", ZipMethod::Stored);
        if (result)
            result = writer.finish();
        EXPECT_EQ(result.message(), full) << room;
    }
}
