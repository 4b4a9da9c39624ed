#include "app/persistence/codec/ProjectLoader.h"

#include "app/persistence/codec/FullProject.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/ProjectFiles.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;
using tw::core::ContentId;
using tw::core::project::Project;

namespace {

QByteArray idNumber(int number)
{
    return "00000000-0000-4000-8000-" + QByteArray::number(number).rightJustified(12, '0');
}

QByteArray mapFile(int number)
{
    return R"({"id": ")" + idNumber(number) + R"(", "type": "map"})";
}

void store(const QString& root, const ProjectFileMap& files)
{
    for (const auto& [path, bytes] : files) {
        const QString target = root + u'/' + path;
        ASSERT_TRUE(QDir().mkpath(QFileInfo(target).path()));
        QFile file(target);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
}

} // namespace

TEST(ProjectLoader, namesTheFirstBadFileInTheOrderOfLoading)
{
    const QByteArray category = R"({"id": ")" + idNumber(9) + R"("})";
    const QByteArray badField =
        R"({"id": ")" + idNumber(9) + R"(", "fields": [{"key": "a", "type": "colour"}]})";
    const QByteArray keylessField =
        R"({"id": ")" + idNumber(9) + R"(", "fields": [{"key": "a"}, {"key": ""}]})";
    const QByteArray noField = R"({"id": ")" + idNumber(9) + R"(", "fields": ["text"]})";
    const QByteArray settings = "{}";
    const struct
    {
        ProjectFileMap files;
        QString message;
    } cases[] = {
        {{{u"project.json"_s, settings}}, {}},
        {{}, u"Cannot read file: %1project.json"_s},
        {{{u"project.json"_s, "[]"}}, u"Invalid JSON in file: %1project.json"_s},
        {{{u"objects/1.json"_s, mapFile(1)}, {u"project.json"_s, settings}}, {}},
        {{{u"objects/1.json"_s, "{"}, {u"project.json"_s, "{"}}, u"Invalid JSON in file: %1objects/1.json"_s},
        {{{u"objects/1.json"_s, R"({"id": "1", "type": "map"})"}},
         u"Malformed object file: %1objects/1.json"_s},
        {{{u"objects/1.json"_s, R"({"type": "map"})"}}, u"Malformed object file: %1objects/1.json"_s},
        {{{u"objects/1.json"_s, mapFile(1).replace("map", "Map")}},
         u"Malformed object file: %1objects/1.json"_s},
        {{{u"objects/1.json"_s, mapFile(1).replace("map", "folder")}},
         u"Malformed object file: %1objects/1.json"_s},
        {{{u"objects/1.json"_s, mapFile(1)}, {u"objects/%1.json"_s, mapFile(1)}, {u"objects/9.json"_s, "{"}},
         u"Duplicate object id 00000000-0000-4000-8000-000000000001 in %1objects/1.json"_s},
        {{{u"objects/1.json"_s, mapFile(1)}, {u"taxonomy/2.json"_s, "{}"}, {u"taxonomy/1.json"_s, category}},
         u"Malformed category file: %1taxonomy/2.json"_s},
        {{{u"taxonomy/1.json"_s, category}, {u"taxonomy/2.json"_s, category}},
         u"Malformed category file: %1taxonomy/2.json"_s},
        {{{u"taxonomy/1.json"_s, badField}}, u"Malformed field in category: %1taxonomy/1.json"_s},
        {{{u"taxonomy/1.json"_s, keylessField}}, u"Malformed field in category: %1taxonomy/1.json"_s},
        {{{u"taxonomy/1.json"_s, noField}}, u"Malformed field in category: %1taxonomy/1.json"_s},
        {{{u"taxonomy/1.json"_s, "x"}, {u"objects/9.json"_s, "x"}},
         u"Invalid JSON in file: %1objects/9.json"_s},
    };
    DiskFileSystem disk;
    for (const auto& expected : cases) {
        const auto inMemory = parseProject(expected.files);
        EXPECT_EQ(
            inMemory.message(), QString(expected.message)
                                    .replace(u"%1objects"_s, u"objects"_s)
                                    .replace(u"%1taxonomy"_s, u"taxonomy"_s)
                                    .replace(u"%1project"_s, u"project"_s));
        const QTemporaryDir folder;
        store(folder.path(), expected.files);
        const auto fromDisk = loadProject(disk, folder.path());
        const QString prefix = folder.path() + u'/';
        EXPECT_EQ(
            fromDisk.message(), QString(expected.message)
                                    .replace(u"%1objects"_s, prefix + u"objects"_s)
                                    .replace(u"%1taxonomy"_s, prefix + u"taxonomy"_s)
                                    .replace(u"%1project"_s, prefix + u"project"_s));
    }
}

TEST(ProjectLoader, readsTheProjectsFilesAndNoOthers)
{
    const QTemporaryDir folder;
    ProjectFileMap files = serializeProject(*tw::test::fullProject());
    const std::size_t count = files.size();
    const QString elsewhere = u"objects/"_s + QString::fromLatin1(idNumber(99)) + u".JSON"_s;
    files[u"objects/notes.txt"_s] = "x";
    files[u"objects/sub/1.json"_s] = "x";
    files[u"objects/.hidden.json"_s] = "x";
    files[u"taxonomy/old/1.json"_s] = "x";
    files[u"assets/1.json"_s] = "x";
    files[u"other.json"_s] = "x";
    files[elsewhere] = mapFile(99);
    store(folder.path(), files);
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"objects/folder.json"_s));

    DiskFileSystem disk;
    const auto fromDisk = loadProject(disk, folder.path());
    const auto inMemory = parseProject(files);
    ASSERT_EQ(fromDisk.message(), QString());
    ASSERT_EQ(inMemory.message(), QString());
    EXPECT_TRUE(*fromDisk.value().project == *inMemory.value().project);
    EXPECT_TRUE(fromDisk.value().project->contains(ContentId::fromString(QString::fromLatin1(idNumber(99)))));
    EXPECT_TRUE(fromDisk.value().project->takeChanges().isEmpty());

    ASSERT_EQ(fromDisk.value().files.size(), count + 1);
    for (const LoadedFile& file : fromDisk.value().files) {
        EXPECT_EQ(file.bytes, files.at(file.relativePath)) << file.relativePath.toStdString();
        EXPECT_EQ(file.stamp, disk.stamp(folder.filePath(file.relativePath)))
            << file.relativePath.toStdString();
        EXPECT_EQ(file.isCanonical && file.hasOwnName, file.relativePath != elsewhere)
            << file.relativePath.toStdString();
    }
}

TEST(ProjectLoader, tellsFilesThatStandUnderAnotherName)
{
    ProjectFileMap files = serializeProject(*tw::test::fullProject());
    const auto first = files.begin();
    files[u"objects/0.json"_s] = first->second;
    const QString firstPath = first->first;
    files.erase(first);
    const auto loaded = parseProject(files);
    ASSERT_EQ(loaded.message(), QString());
    const LoadedFile& moved = loaded.value().files.front();
    EXPECT_TRUE(moved.isCanonical);
    EXPECT_FALSE(moved.hasOwnName);
    EXPECT_EQ(objectPath(moved.objectId), firstPath);
    EXPECT_TRUE(loaded.value().files.back().hasOwnName);
    EXPECT_TRUE(loaded.value().files.back().objectId.isNull());
}

TEST(ProjectLoader, sharesTheTextsThatManyObjectsHave)
{
    ProjectFileMap files{{u"project.json"_s, "{}"}};
    for (int number = 1; number <= 20; ++number) {
        files[u"objects/%1.json"_s.arg(number)] =
            R"({"id": ")" + idNumber(number) +
            R"(", "type": "entity", "values": {"birthplace": "Sallow"}, "tags": ["drowned"]})";
    }
    const auto loaded = parseProject(files);
    ASSERT_EQ(loaded.message(), QString());
    std::set<const void*> memory;
    for (const auto* entity :
         tw::core::project::objectsOf<tw::core::entity::Entity>(*loaded.value().project)) {
        memory.insert(entity->values().begin()->first.constData());
        memory.insert(entity->values().begin()->second.constData());
        memory.insert(entity->tags().begin()->constData());
    }
    EXPECT_EQ(memory.size(), 3u);
}

TEST(ProjectLoader, readsTheSampleProjectAndWritesItTheSameWayEveryTime)
{
    DiskFileSystem disk;
    const auto sample = loadProject(disk, tw::test::repositoryPath(u"examples/low-water"));
    ASSERT_EQ(sample.message(), QString());
    EXPECT_GT(sample.value().project->objects().size(), 100u);
    const ProjectFileMap written = serializeProject(*sample.value().project);
    const auto again = parseProject(written);
    ASSERT_EQ(again.message(), QString());
    EXPECT_TRUE(*again.value().project == *sample.value().project);
    EXPECT_EQ(serializeProject(*again.value().project), written);
}
