#include "app/persistence/journal/JournalFile.h"

#include "app/persistence/zip/Crc32.h"

#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

namespace {

const QString project = u"/books/Flut \u6D77.vellory"_s;

/** The bytes behind the header, framed as a record. */
QByteArray framed(const QByteArray& payload, quint32 announcedSize, quint32 checksum)
{
    QByteArray frame(8, Qt::Uninitialized);
    qToLittleEndian(announcedSize, frame.data());
    qToLittleEndian(checksum, frame.data() + 4);
    return frame + payload;
}

QByteArray framed(const QByteArray& payload)
{
    return framed(payload, static_cast<quint32>(payload.size()), crc32(payload));
}

} // namespace

TEST(JournalFile, tellsTheLatestOfEveryFileAndItsFirstBase)
{
    const QByteArray bytes = journalHeader(project) +
                             encodeRecord({u"objects/a.json"_s, FileVersion("a0"), "a1"}) +
                             encodeRecord({u"objects/new.json"_s, FileVersion(), "n1"}) +
                             encodeRecord({u"objects/gone.json"_s, FileVersion("g0"), {}}) +
                             encodeRecord({u"objects/a.json"_s, std::nullopt, "a2"}) +
                             encodeRecord({u"objects/empty.json"_s, FileVersion(""), ""});
    const auto journal = parseJournal(bytes);
    ASSERT_TRUE(journal);
    EXPECT_EQ(journal.value().projectPath, project);
    EXPECT_EQ(journal.value().readableSize, bytes.size());
    const std::map<QString, JournaledFile> expected{
        {u"objects/a.json"_s, {"a0", "a2"}},
        {u"objects/empty.json"_s, {"", ""}},
        {u"objects/gone.json"_s, {"g0", {}}},
        {u"objects/new.json"_s, {{}, "n1"}}};
    EXPECT_TRUE(journal.value().files == expected);
}

TEST(JournalFile, isReadUpToTheTornEndWhereverThatIs)
{
    QByteArray bytes = journalHeader(project);
    QList<qsizetype> ends{bytes.size()};
    for (int record = 0; record < 3; ++record) {
        bytes += encodeRecord({u"%1"_s.arg(record), FileVersion("old"), QByteArray(record * 7 + 1, 'x')});
        ends.append(bytes.size());
    }
    for (qsizetype size = 0; size <= bytes.size(); ++size) {
        SCOPED_TRACE(size);
        // Torn, or followed by what the medium had there before.
        for (const QByteArray& end : {QByteArray(), QByteArray(40, '\0'), QByteArray(40, '\xFF')}) {
            const auto journal = parseJournal(bytes.first(size) + end);
            ASSERT_EQ(journal.isOk(), size >= ends.first());
            if (!journal)
                continue;
            const auto whole =
                std::ranges::count_if(ends, [size](qsizetype recordEnd) { return recordEnd <= size; });
            EXPECT_EQ(std::ssize(journal.value().files), whole - 1);
            EXPECT_EQ(journal.value().readableSize, ends.at(whole - 1));
        }
    }
}

TEST(JournalFile, believesNothingThatDoesNotAddUp)
{
    const QByteArray header = journalHeader(project);
    const QByteArray record = encodeRecord({u"objects/a.json"_s, FileVersion("0"), "1"});
    const QByteArray payload = record.sliced(8);
    QByteArray flipped = record;
    flipped[record.size() - 1] = static_cast<char>(flipped.back() ^ 1);
    const struct
    {
        const char* name;
        QByteArray end;
    } ends[] = {
        {"another checksum", framed(payload, static_cast<quint32>(payload.size()), 0)},
        {"another byte", flipped},
        {"four gigabytes", framed(payload, 0xFFFFFFFF, crc32(payload))},
        {"two gigabytes", framed(payload, 0x7FFFFFFF, crc32(payload))},
        {"one byte too many", framed(payload, static_cast<quint32>(payload.size()) + 1, crc32(payload))},
        {"an empty record", framed({})},
        {"no path", encodeRecord({{}, std::nullopt, "1"})},
        {"a path of four gigabytes", framed(QByteArray("\xFF\xFF\xFF\xF0 and no more"))},
        {"half a record in a whole frame", framed(payload.first(payload.size() - 3))},
    };
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        // The sound record behind it is not reached: nobody knows what it was meant to follow.
        const auto journal = parseJournal(header + record + end + record);
        ASSERT_TRUE(journal);
        EXPECT_EQ(journal.value().files.size(), 1U);
        EXPECT_EQ(journal.value().readableSize, header.size() + record.size());
    }

    const QByteArray firstLine = header.first(header.indexOf('\n') + 1);
    for (const QByteArray& foreign :
         {QByteArray(), QByteArray("{}"), firstLine, QByteArray("PK\3\4").leftJustified(200),
          QByteArray(header).replace(" 1\n", " 2\n"), header.first(header.size() - 1)})
        EXPECT_TRUE(
            parseJournal(foreign).message().startsWith(u"The journal of unsaved changes cannot be read."));
}

} // namespace tw::app::persistence
