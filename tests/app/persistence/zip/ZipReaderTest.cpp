#include "app/persistence/zip/ZipReader.h"
#include "app/persistence/zip/Crc32.h"
#include "app/persistence/zip/ZipArchives.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

/** Two stored files, "one" and "two", each with its name as data: 33 + 3 bytes, then 49 bytes in the
 * directory. */
constexpr qsizetype secondLocal = 36;
constexpr qsizetype directory = 72;
constexpr qsizetype secondRecord = directory + 49;
constexpr qsizetype endRecord = secondRecord + 49;

QByteArray twoFiles()
{
    return makeArchive({{u"one"_s, "one"}, {u"two"_s, "two"}});
}

/** Opens and reads everything, which is what a caller does. */
tw::core::Result<QList<QByteArray>> readAll(QByteArrayView archive)
{
    const auto reader = ZipReader::open(archive);
    if (!reader)
        return tw::core::Failure{reader.message()};
    QList<QByteArray> contents;
    for (const ZipEntry& entry : reader.value().entries()) {
        auto data = ZipReader::read(entry);
        if (!data)
            return tw::core::Failure{data.message()};
        contents.append(data.value());
    }
    return contents;
}

QByteArray mixedArchive()
{
    return makeArchive(
        {{u"project.json"_s, QByteArray("{\"name\": \"Tide\"}\n").repeated(30), ZipMethod::Deflated},
         {u"objects/one.json"_s, "{}", ZipMethod::Stored},
         {u"assets/é.txt"_s, QByteArray("abc").repeated(100), ZipMethod::Deflated}});
}

} // namespace

TEST(ZipReader, refusesHostileArchives)
{
    struct Case
    {
        const char* what;
        ZipRefusal expected;
        std::function<void(QByteArray&)> damage;
    };
    const auto number16 = [](qsizetype offset, quint16 value) {
        return [=](QByteArray& archive) { patch(archive, offset, value); };
    };
    const auto number32 = [](qsizetype offset, quint32 value) {
        return [=](QByteArray& archive) { patch(archive, offset, value); };
    };
    // In both headers of the second file, so that they agree.
    const auto both16 = [](qsizetype inLocal, quint16 value) {
        return [=](QByteArray& archive) {
            patch(archive, secondLocal + inLocal, value);
            patch(archive, secondRecord + inLocal + 2, value);
        };
    };
    const auto both32 = [](qsizetype inLocal, quint32 value) {
        return [=](QByteArray& archive) {
            patch(archive, secondLocal + inLocal, value);
            patch(archive, secondRecord + inLocal + 2, value);
        };
    };
    const auto renamed = [](const char* name) {
        return [=](QByteArray& archive) { archive.replace("two", name); };
    };
    const Case cases[] = {
        {"empty", ZipRefusal::TooShort, [](QByteArray& archive) { archive.clear(); }},
        {"shorter than an end record", ZipRefusal::TooShort,
         [](QByteArray& archive) { archive.truncate(21); }},
        {"no end record", ZipRefusal::NoEndRecord, number32(endRecord, 0)},
        {"end record cut off", ZipRefusal::NoEndRecord, [](QByteArray& archive) { archive.chop(1); }},
        {"comment beyond the end", ZipRefusal::NoEndRecord, number16(endRecord + 20, 1)},
        {"several disks", ZipRefusal::Unsupported, number16(endRecord + 4, 1)},
        {"extended directory offset", ZipRefusal::Unsupported, number32(endRecord + 16, 0xFFFFFFFF)},
        {"more entries than the directory holds", ZipRefusal::Damaged,
         [](QByteArray& archive) {
             patch(archive, endRecord + 8, quint16(3));
             patch(archive, endRecord + 10, quint16(3));
         }},
        {"fewer entries than the directory holds", ZipRefusal::Damaged,
         [](QByteArray& archive) {
             patch(archive, endRecord + 8, quint16(1));
             patch(archive, endRecord + 10, quint16(1));
         }},
        {"directory beyond the end record", ZipRefusal::Damaged, number32(endRecord + 12, 99)},
        {"directory elsewhere", ZipRefusal::Damaged, number32(endRecord + 16, 0)},
        {"directory signature", ZipRefusal::Damaged, number32(secondRecord, 0)},
        {"name beyond the directory", ZipRefusal::Damaged, number16(secondRecord + 28, 4)},
        {"extra field beyond the directory", ZipRefusal::Damaged, number16(secondRecord + 30, 0xFFFF)},
        {"local header beyond the data", ZipRefusal::Damaged, number32(secondRecord + 42, directory)},
        {"local header far away", ZipRefusal::Damaged, number32(secondRecord + 42, 0xFFFFFFF0)},
        {"local header of another file", ZipRefusal::Damaged, number32(secondRecord + 42, 0)},
        {"local signature", ZipRefusal::Damaged, number32(secondLocal, 0)},
        {"local extra field beyond the data", ZipRefusal::Damaged, number16(secondLocal + 28, 4)},
        {"other name in the local header", ZipRefusal::Damaged, number16(secondLocal + 30, 0x6F6E)},
        {"other size in the local header", ZipRefusal::Damaged, number32(secondLocal + 22, 2)},
        {"other checksum in the local header", ZipRefusal::Damaged, number32(secondLocal + 14, 2)},
        {"stored sizes differ", ZipRefusal::Damaged, both32(22, 2)},
        {"encrypted", ZipRefusal::Unsupported, both16(6, 1)},
        {"unknown method", ZipRefusal::Unsupported, both16(8, 12)},
        {"extended size", ZipRefusal::Unsupported, both32(22, 0xFFFFFFFF)},
        {"on another disk", ZipRefusal::Unsupported, number16(secondRecord + 34, 1)},
        {"wrong checksum", ZipRefusal::WrongContent, both32(14, 1)},
        {"changed data", ZipRefusal::WrongContent, number16(secondLocal + 33, 0x6F6E)},
        {"no deflate stream", ZipRefusal::WrongContent, both16(8, 8)},
        {"more than deflate can hold", ZipRefusal::TooLarge,
         [=](QByteArray& archive) {
             both16(8, 8)(archive);
             both32(22, 5000)(archive);
         }},
        {"the same name twice", ZipRefusal::DuplicateName, renamed("one")},
        {"the same name but for case", ZipRefusal::DuplicateName, renamed("oNe")},
    };
    ASSERT_TRUE(readAll(twoFiles()).isOk());
    for (const Case& each : cases) {
        QByteArray archive = twoFiles();
        each.damage(archive);
        EXPECT_EQ(readAll(archive).message(), zipRefusalMessage(each.expected)) << each.what;
    }
}

TEST(ZipReader, readsSizesFromTheExtraFieldOfALocalHeader)
{
    // As written by tools that do not know beforehand how much will come.
    const auto withExtraField = [](quint16 kind, quint64 size) {
        QByteArray field(20, '\0');
        patch(field, 0, kind);
        patch(field, 2, quint16(16));
        patch(field, 4, size);
        patch(field, 12, size);
        QByteArray archive = twoFiles();
        patch(archive, endRecord + 16, quint32(directory + field.size()));
        patch(archive, secondLocal + 18, quint32(0xFFFFFFFF));
        patch(archive, secondLocal + 22, quint32(0xFFFFFFFF));
        patch(archive, secondLocal + 28, quint16(field.size()));
        return archive.insert(secondLocal + 33, field);
    };
    const auto contents = readAll(withExtraField(0x0001, 3));
    ASSERT_TRUE(contents.isOk()) << contents.message().toStdString();
    EXPECT_EQ(contents.value(), (QList<QByteArray>{"one", "two"}));
    EXPECT_FALSE(readAll(withExtraField(0x0001, 4)).isOk()) << "not what the directory says";
    EXPECT_FALSE(readAll(withExtraField(0x0002, 3)).isOk()) << "another field";
}

TEST(ZipReader, refusesNamesThatCannotStandTogether)
{
    struct Case
    {
        QStringList names;
        bool isRefused;
    };
    const Case cases[] = {
        {{u"a"_s, u"a"_s}, true},
        {{u"a/"_s, u"a"_s}, true},
        {{u"a"_s, u"a/b"_s}, true},
        {{u"a/b"_s, u"A"_s}, true},
        {{u"a/b"_s, u"a\\b"_s}, true},
        {{u"a/"_s, u"a/"_s}, true},
        {{u"\u00E4"_s, u"\u00C4"_s}, true},
        {{u"\u00E9"_s, u"e\u0301"_s}, true},
        {{u"a/"_s, u"a/b"_s, u"a/c"_s, u"ab"_s}, false},
        {{u"a/b/c"_s, u"a/b/"_s, u"a/"_s}, false},
    };
    for (const Case& each : cases) {
        QList<ArchiveFile> files;
        for (const QString& name : each.names)
            files.append({name, {}});
        EXPECT_EQ(ZipReader::open(makeArchive(files)).isOk(), !each.isRefused)
            << each.names.join(u' ').toStdString();
    }
    const QByteArray letters = makeArchive({{u"a"_s, {}}, {u"A"_s, {}}});
    EXPECT_TRUE(ZipReader::open(letters, ZipNames::CaseSensitive).isOk());
}

TEST(ZipReader, refusesEntriesThatShareData)
{
    // The second file's header and data lie within the data of the first one.
    const QByteArray inner = makeArchive({{u"in"_s, "data"}});
    QByteArray archive = makeArchive({{u"out"_s, inner.first(36)}, {u"in"_s, "data"}});
    patch(archive, archive.size() - 22 - 48 + 42, quint32(33));
    EXPECT_EQ(ZipReader::open(archive).message(), zipRefusalMessage(ZipRefusal::Overlapping));
}

TEST(ZipReader, boundsWhatAnArchiveUnpacksTo)
{
    const QByteArray archive =
        makeArchive({{u"zeros"_s, QByteArray(1000000, '\0'), ZipMethod::Deflated}, {u"more"_s, "more"}});
    const QString tooLarge = zipRefusalMessage(ZipRefusal::TooLarge);
    EXPECT_TRUE(ZipReader::open(archive).isOk());
    EXPECT_EQ(ZipReader::open(archive, {}, {.total = 1000003}).message(), tooLarge);
    EXPECT_TRUE(ZipReader::open(archive, {}, {.total = 1000004}).isOk());
    EXPECT_EQ(ZipReader::open(archive, {}, {.allowance = 1000, .ratio = 200}).message(), tooLarge);
    EXPECT_TRUE(ZipReader::open(archive, {}, {.allowance = 1000, .ratio = 2000}).isOk());
}

TEST(ZipReader, acceptsWhatOtherToolsAdd)
{
    const QByteArray archive = twoFiles();
    QByteArray commented = archive + "PK\x05\x06 a comment";
    patch(commented, endRecord + 20, quint16(commented.size() - archive.size()));
    EXPECT_TRUE(readAll(commented).isOk());
    EXPECT_TRUE(readAll(archive + "trailing bytes").isOk());

    // Sizes and checksum only after the data.
    QByteArray streamed = archive;
    for (const qsizetype flags : {secondLocal + 6, secondRecord + 8})
        patch(streamed, flags, quint16(8));
    streamed.replace(secondLocal + 14, 12, QByteArray(12, '\0'));
    EXPECT_TRUE(readAll(streamed).isOk());

    QByteArray oldName = archive;
    oldName.replace("two", "\x84\xE1g");
    const auto reader = ZipReader::open(oldName);
    ASSERT_TRUE(reader.isOk());
    EXPECT_EQ(reader.value().entries().at(1).name, u"äßg"_s);
}

TEST(ZipReader, refusesEveryTruncation)
{
    const QByteArray archive = mixedArchive();
    ASSERT_TRUE(readAll(archive).isOk());
    for (qsizetype size = 0; size < archive.size(); ++size)
        ASSERT_FALSE(readAll(archive.first(size)).isOk()) << size;
}

TEST(ZipReader, neverGivesOtherContentForMutatedArchives)
{
    std::mt19937 random(17);
    const QByteArray archive = mixedArchive();
    const QList<QByteArray> contents = readAll(archive).value();
    for (int round = 0; round < 30000; ++round) {
        QByteArray mutated = archive;
        for (auto change = 1 + random() % 3; change > 0 && !mutated.isEmpty(); --change) {
            const auto position = static_cast<qsizetype>(random() % unsigned(mutated.size()));
            switch (random() % 4) {
            case 0:
                mutated[position] = static_cast<char>(random());
                break;
            case 1:
                mutated[position] = static_cast<char>(mutated.at(position) ^ (1 << (random() % 8)));
                break;
            case 2:
                mutated.remove(position, static_cast<qsizetype>(random() % 20));
                break;
            default:
                mutated.insert(position, mutated.mid(static_cast<qsizetype>(random() % 500), random() % 40));
            }
        }
        const auto result = readAll(mutated);
        if (!result)
            continue;
        for (const QByteArray& content : result.value())
            ASSERT_TRUE(contents.contains(content)) << "round " << round;
    }
}

TEST(SafeEntryName, isAVisiblePathInsideTheFolder)
{
    for (const char16_t* name :
         {u"project.json", u"a/b/c.txt", u"a b", u"é/ü", u"a.b", u"a./b..c", u"10:30.txt", u"ab:c"})
        EXPECT_TRUE(isSafeEntryName(name)) << QString::fromUtf16(name).toStdString();
    for (const char16_t* name : {u"",     u"/",  u"/a",   u"\\a",     u"\\\\host\\share", u"C:\\a",
                                 u"c:a",  u"C:", u"..",   u"../a",    u"a/../b",          u"a\\..\\b",
                                 u"a/..", u".",  u"./a",  u"a/./b",   u".git/config",     u"a/.hidden",
                                 u"a//b", u"a/", u"a\nb", u"a\u0085b"})
        EXPECT_FALSE(isSafeEntryName(name)) << QString::fromUtf16(name).toStdString();
    EXPECT_FALSE(isSafeEntryName(QString(u"a"_s + QChar(0) + u'b')));
}
