#include "app/persistence/files/FileSystem.h"
#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/ProjectFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

void store(const QString& path, const QByteArray& bytes)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QStringList pathsOf(const FolderScan& scan)
{
    QStringList paths;
    for (const ScannedFile& file : scan.files)
        paths.append(file.linkage == Linkage::SymbolicLink ? file.relativePath + u'@' : file.relativePath);
    paths.sort();
    return paths;
}

} // namespace

TEST(DiskFileSystem, readsFilesWholeWithTheirStamp)
{
    const QTemporaryDir folder;
    DiskFileSystem files;
    for (const qsizetype size : {qsizetype{0}, qsizetype{1}, qsizetype{70'000}, qsizetype{300'000}}) {
        const QString path = folder.filePath(u"ä %1.json"_s.arg(size));
        const QByteArray bytes(size, 'x');
        store(path, bytes);
        const std::optional<FileContent> content = files.readFile(path);
        ASSERT_TRUE(content);
        EXPECT_EQ(content->bytes, bytes);
        EXPECT_EQ(content->stamp.size, size);
        EXPECT_EQ(content->stamp, files.stamp(path));
    }
    EXPECT_FALSE(files.readFile(folder.path()));
    EXPECT_FALSE(files.readFile(folder.filePath(u"none"_s)));
    EXPECT_FALSE(files.stamp(folder.filePath(u"none"_s)));
    EXPECT_TRUE(files.makeFolders(folder.filePath(u"a/b/c"_s)));
    EXPECT_FALSE(files.makeFolders(folder.filePath(u"ä 1.json/sub"_s)));
    EXPECT_TRUE(files.syncFolder(folder.path()));
    EXPECT_FALSE(files.syncFolder(folder.filePath(u"none"_s)));
}

TEST(DiskFileSystem, tellsAFileFromItsReplacement)
{
    const QTemporaryDir folder;
    DiskFileSystem files;
    const QString path = folder.filePath(u"a.json"_s);
    store(path, "same");
    const std::optional<FileStamp> before = files.stamp(path);
    const std::optional<QString> temporary = files.writeTemporary(path, "same", Durability::OnMedium);
    ASSERT_TRUE(temporary);
    EXPECT_EQ(files.stamp(path), before);
    EXPECT_TRUE(files.replace(*temporary, path));
    EXPECT_NE(files.stamp(path), before);
    EXPECT_FALSE(files.replace(*temporary, path));
}

#ifdef Q_OS_UNIX

TEST(DiskFileSystem, doesNotWaitForTheWriterOfAPipe)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"project.json"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_FALSE(DiskFileSystem().readFile(path));
}
TEST(DiskFileSystem, leavesNothingBehindWhenTheMediumTakesOnlyPartOfTheBytes)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.json"_s);
    store(path, "old");
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{1'000'000, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    const std::optional<QString> temporary =
        DiskFileSystem().writeTemporary(path, QByteArray(3'000'000, 'x'), Durability::Cached);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &usual), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(temporary);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"a.json"_s});
}
#endif

TEST(FolderScan, findsTheTextFilesOfATreeAndNothingElse)
{
    const QTemporaryDir folder;
    for (const QString& name :
         {u"project.json"_s, u"README.MD"_s, u"notes.txt"_s, u"a/b.c/deep.YaML"_s, u"a/x.yml"_s,
          u"objects/1.json"_s, u"assets/map.png"_s, u"json"_s, u"trailing."_s, u".hidden.json"_s,
          u".git/config.txt"_s, u"ä/ö.md"_s})
        store(folder.filePath(name), "text");
    const QTemporaryDir elsewhere;
    store(elsewhere.filePath(u"far.txt"_s), "far away");
    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.filePath(u"linked"_s)));
    ASSERT_TRUE(QFile::link(elsewhere.filePath(u"far.txt"_s), folder.filePath(u"link.txt"_s)));
    ASSERT_TRUE(QFile::link(elsewhere.filePath(u"gone.txt"_s), folder.filePath(u"broken.txt"_s)));
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath(u"a/loop.txt"_s)));

    const QStringList text{u"README.MD"_s, u"a/b.c/deep.YaML"_s, u"a/x.yml"_s,      u"link.txt@"_s,
                           u"notes.txt"_s, u"objects/1.json"_s,  u"project.json"_s, u"ä/ö.md"_s};
    const FolderScan scan = scanFolder(folder.path(), ScannedFiles::Text);
    EXPECT_EQ(pathsOf(scan), text);
    EXPECT_TRUE(scan.isComplete());
    DiskFileSystem files;
    for (const ScannedFile& file : scan.files)
        EXPECT_EQ(file.stamp, files.stamp(folder.filePath(file.relativePath)))
            << file.relativePath.toStdString();

    QStringList all = text + QStringList{u"assets/map.png"_s, u"json"_s, u"trailing."_s};
    all.sort();
    EXPECT_EQ(pathsOf(scanFolder(folder.path(), ScannedFiles::All)), all);
    const FolderScan missing = scanFolder(folder.filePath(u"missing"_s), ScannedFiles::All);
    EXPECT_TRUE(missing.isComplete() && missing.files.empty());
    EXPECT_FALSE(scanFolder(folder.filePath(u"notes.txt"_s), ScannedFiles::All).isComplete());
}

TEST(FolderScan, namesTheTemporaryFilesOfSavesApart)
{
    const QTemporaryDir folder;
    DiskFileSystem files;
    QStringList expected;
    for (const QString& target : {u"project.json"_s, u"objects/1.json"_s, u"a/b/deep.md"_s}) {
        store(folder.filePath(target), "text");
        const std::optional<QString> temporary =
            files.writeTemporary(folder.filePath(target), "new", Durability::Cached);
        ASSERT_TRUE(temporary);
        expected.append(QDir(folder.path()).relativeFilePath(*temporary));
    }
    store(folder.filePath(u".vellory-save"_s), "another name");
    store(folder.filePath(u".vellory-save-folder/1.json"_s), "in a folder");
    expected.sort();
    for (const ScannedFiles which : {ScannedFiles::Text, ScannedFiles::All}) {
        FolderScan scan = scanFolder(folder.path(), which);
        scan.leftovers.sort();
        EXPECT_EQ(scan.leftovers, expected);
        EXPECT_EQ(pathsOf(scan), (QStringList{u"a/b/deep.md"_s, u"objects/1.json"_s, u"project.json"_s}));
    }
}

TEST(FolderScan, takesOverTheNamesOfAnEarlierScanAndNothingElse)
{
    const QTemporaryDir folder;
    // More than are shared out to one thread.
    for (int index = 0; index < 1500; ++index)
        store(folder.filePath(u"objects/%1.json"_s.arg(index)), "old");
    store(folder.filePath(u"objects/ä.json"_s), "old");
    store(folder.filePath(u"a.md"_s), "old");
    ASSERT_TRUE(QFile::link(folder.filePath(u"a.md"_s), folder.filePath(u"link.md"_s)));
    FolderScan earlier = listFolder(folder.path(), ScannedFiles::Text);
    EXPECT_EQ(pathsOf(earlier), pathsOf(scanFolder(folder.path(), ScannedFiles::Text)));

    DiskFileSystem files;
    for (int round = 0; round < 5; ++round) {
        for (int index = round; index < 1500; index += 97) {
            const QString path = folder.filePath(u"objects/%1.json"_s.arg(index));
            const QString other = folder.filePath(u"objects/%1-%2.json"_s.arg(index).arg(round));
            if (index % 3 == 0) {
                QFile::remove(path);
            } else if (index % 3 == 1) {
                QFile::rename(path, other);
            } else {
                const auto temporary = files.writeTemporary(path, "new", Durability::Cached);
                ASSERT_TRUE(temporary && files.replace(*temporary, path));
            }
        }
        const FolderScan fresh = scanFolder(folder.path(), ScannedFiles::Text);
        FolderScan scan = scanFolder(folder.path(), ScannedFiles::Text, earlier);
        ASSERT_EQ(pathsOf(scan), pathsOf(fresh));
        qsizetype takenOver = 0;
        for (const ScannedFile& file : scan.files) {
            EXPECT_EQ(file.stamp, files.stamp(folder.filePath(file.relativePath)));
            if (file.earlierIndex < 0)
                continue;
            ++takenOver;
            EXPECT_EQ(
                earlier.files[static_cast<std::size_t>(file.earlierIndex)].relativePath, file.relativePath);
        }
        EXPECT_GT(takenOver, 1400);
        earlier = std::move(scan);
    }
}

TEST(ProjectFiles, knowsTheFilesThatHoldAProject)
{
    for (const QStringView path :
         {u"project.json", u"objects/a.json", u"objects/a.JSON", u"taxonomy/sub/a.Json"})
        EXPECT_TRUE(isProjectFile(path)) << path.toString().toStdString();
    for (const QStringView path :
         {u"", u"Project.json", u"objects", u"objects/a.jsonx", u"objects/notes.txt", u"Objects/a.json",
          u"assets/a.json", u"sub/project.json", u"objectsx/a.json"})
        EXPECT_FALSE(isProjectFile(path)) << path.toString().toStdString();
}

TEST(ProjectFiles, importsAssetsUnderFreeNames)
{
    const QTemporaryDir folder;
    const QString project = folder.filePath(u"project"_s);
    const struct
    {
        QString source;
        QStringList stored;
    } cases[] = {
        {u"map.png"_s, {u"assets/map.png"_s, u"assets/map-1.png"_s, u"assets/map-2.png"_s}},
        {u"a.b%1.tar.gz"_s, {u"assets/a.b%1.tar.gz"_s, u"assets/a.b%1.tar-1.gz"_s}},
        {u"plain"_s, {u"assets/plain"_s, u"assets/plain-1"_s}},
        // What a project in one file could not keep.
        {u"..cover.png"_s, {u"assets/cover.png"_s, u"assets/cover-1.png"_s}},
        {u"shore\\a\tb\x9f.png"_s, {u"assets/shore-a-b-.png"_s}},
        {u"...."_s, {u"assets/asset"_s, u"assets/asset-1"_s}},
    };
    for (const auto& expected : cases) {
        const QString source = folder.filePath(expected.source);
        store(source, expected.source.toUtf8());
        for (const QString& stored : expected.stored) {
            EXPECT_EQ(importAsset(project, source).value(), stored);
            EXPECT_EQ(DiskFileSystem().readFile(project + u'/' + stored)->bytes, expected.source.toUtf8());
        }
    }
    const QString source = folder.filePath(u"map.png"_s);
    EXPECT_EQ(importAsset({}, source).message(), u"No project directory to import into"_s);
    const QString missing = folder.filePath(u"none"_s);
    EXPECT_EQ(importAsset(project, missing).message(), u"Source file does not exist: "_s + missing);
    EXPECT_EQ(importAsset(project, project).message(), u"Source file does not exist: "_s + project);
    EXPECT_EQ(importAsset(source, source).message(), u"Cannot create assets folder in: "_s + source);
}
