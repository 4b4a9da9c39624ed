#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/bundle/BundleFixture.h"
#include "app/persistence/zip/ZipArchives.h"

#include <QCryptographicHash>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

class ProjectBundle : public BundleFixture
{
protected:
    QString bundle() const { return path(u"tide.vellory"_s); }

    void expectSameProject(const QString& folder)
    {
        const auto original = collectBundleFiles(m_files, project());
        const auto copy = collectBundleFiles(m_files, folder);
        ASSERT_TRUE(original.isOk()) << original.message().toStdString();
        ASSERT_TRUE(copy.isOk()) << copy.message().toStdString();
        EXPECT_TRUE(copy.value() == original.value());
    }

    /** Runs a tool in the folder and says what it said when it fails. */
    static bool run(const QString& folder, const QString& tool, const QStringList& arguments)
    {
        QProcess process;
        process.setWorkingDirectory(folder);
        process.start(tool, arguments);
        const bool succeeded = process.waitForFinished() && process.exitCode() == 0;
        if (!succeeded)
            ADD_FAILURE() << process.readAll().toStdString() << process.readAllStandardError().toStdString();
        return succeeded;
    }
};

} // namespace

TEST_F(ProjectBundle, isToldByItsExtension)
{
    for (const char16_t* path : {u"a.vellory", u"/x/A.VELLORY", u"old.Tarnwick"})
        EXPECT_TRUE(isBundlePath(path));
    for (const char16_t* path :
         {u"a.vellory.zip", u"vellory", u"a.twbackup", u"/x.vellory/project.json", u""})
        EXPECT_FALSE(isBundlePath(path));
}

TEST_F(ProjectBundle, dependsOnNothingButVisibleFiles)
{
    const auto hash = writeProjectBundle(m_environment, project(), bundle());
    ASSERT_TRUE(hash.isOk()) << hash.message().toStdString();
    const QByteArray first = content(bundle());
    EXPECT_EQ(hash.value(), QCryptographicHash::hash(first, QCryptographicHash::Sha256).toHex());

    store(u"project/.git/config"_s, "hidden");
    store(u"project/objects/.DS_Store"_s, "hidden");
    ASSERT_TRUE(QDir().mkpath(path(u"project/empty"_s)));
    store(u"project/notes.md"_s, "");
    ASSERT_TRUE(writeProjectBundle(m_environment, project(), bundle()).isOk());
    EXPECT_TRUE(content(bundle()) == first);

    const auto files = readBundle(first, bundle());
    ASSERT_TRUE(files.isOk()) << files.message().toStdString();
    QStringList paths;
    for (const BundleFile& file : files.value())
        paths.append(file.path);
    EXPECT_EQ(
        paths.join(u' '), u"assets/h\u00E4fen/map.png notes.md objects/B.json objects/b.json project.json"_s);
    qsizetype position = 0;
    for (const QString& entry : paths) {
        const qsizetype found = first.indexOf(entry.toUtf8(), position);
        EXPECT_GT(found, position) << entry.toStdString();
        position = found;
    }
}

TEST_F(ProjectBundle, givesTheProjectBack)
{
    ASSERT_TRUE(writeProjectBundle(m_environment, project(), bundle()).isOk());
    for (const QString& target : {u"new/folder"_s, u"existing"_s}) {
        if (target == u"existing"_s) {
            ASSERT_TRUE(QDir().mkpath(path(target)));
        }
        const auto extracted = extractBundle(m_environment, bundle(), path(target));
        ASSERT_TRUE(extracted.isOk()) << extracted.message().toStdString();
        expectSameProject(path(target));
    }
}

#ifdef Q_OS_UNIX
TEST_F(ProjectBundle, holdsLinkedFilesButNoLinkedFolders)
{
    store(u"elsewhere/picture.png"_s, "picture");
    ASSERT_TRUE(QFile::link(path(u"elsewhere/picture.png"_s), path(u"project/assets/linked.png"_s)));
    ASSERT_TRUE(QFile::link(path(u"elsewhere"_s), path(u"project/assets/elsewhere"_s)));
    ASSERT_TRUE(writeProjectBundle(m_environment, project(), bundle()).isOk());
    ASSERT_TRUE(extractBundle(m_environment, bundle(), path(u"copy"_s)).isOk());
    EXPECT_EQ(content(path(u"copy/assets/linked.png"_s)), "picture");
    EXPECT_FALSE(QFileInfo(path(u"copy/assets/linked.png"_s)).isSymLink());
    EXPECT_FALSE(QFileInfo::exists(path(u"copy/assets/elsewhere"_s)));
}
#endif

TEST_F(ProjectBundle, isNotBuiltFromWhatIsNoProject)
{
    const QString missing = path(u"missing"_s);
    EXPECT_EQ(buildBundle(m_files, missing).message(), u"The project folder does not exist: "_s + missing);
    store(u"other/objects/project.json"_s, "{}");
    EXPECT_EQ(
        buildBundle(m_files, path(u"other"_s)).message(),
        u"The folder is not an Vellory project (no project.json): "_s + path(u"other"_s));
}

TEST_F(ProjectBundle, isNotBuiltWhenAFileWouldBeMissing)
{
#ifdef Q_OS_UNIX
    store(u"project/assets/a\\b.png"_s, "");
    EXPECT_EQ(
        buildBundle(m_files, project()).message(),
        u"A file has a name that cannot be kept in a project file. Rename it, then try again: "_s +
            project() + u"/assets/a\\b.png"_s);
    QFile::remove(path(u"project/assets/a\\b.png"_s));
#endif

    m_files.unreadable.insert(project() + u"/objects/b.json"_s);
    EXPECT_EQ(
        buildBundle(m_files, project()).message(),
        u"Could not read a project file: "_s + project() + u"/objects/b.json"_s);
}

TEST_F(ProjectBundle, survivesAWriteThatFails)
{
    const QString message =
        u"Could not write the project file (it may be locked by another program -- the desktop app, a sync "
        u"client, or antivirus): "_s +
        bundle();
    store(u"tide.vellory"_s, "the old one");
    m_files.bytesLeft = 100;
    EXPECT_EQ(writeProjectBundle(m_environment, project(), bundle()).message(), message);
    m_files.bytesLeft = 1 << 20;
    m_files.failingReplacements[bundle()] = 5;
    EXPECT_EQ(writeProjectBundle(m_environment, project(), bundle()).message(), message);
    EXPECT_EQ(content(bundle()), "the old one");
    EXPECT_EQ(QDir(path({})).entryList(QDir::Files | QDir::Hidden).size(), 1);

    m_files.failingReplacements[bundle()] = 4;
    EXPECT_TRUE(writeProjectBundle(m_environment, project(), bundle()).isOk());
    EXPECT_TRUE(content(bundle()) == buildBundle(m_files, project()).value());
}

TEST_F(ProjectBundle, isRefusedBeforeAnythingIsWritten)
{
    const ArchiveFile projectFile{u"project.json"_s, "{}"};
    QList<QByteArray> archives{
        "", "no archive at all, but longer than an end record", makeArchive({}),
        makeArchive({{u"objects/project.json"_s, "{}"}}), makeArchive({{u"project.json/"_s, {}}})};
    for (const char16_t* name :
         {u"../outside", u"..\\outside", u"/absolute", u"\\absolute", u"C:\\drive", u".hidden",
          u"a/../../outside", u"a/.git/config", u".git/", u"a//b", u"project.json", u"project.json/a"})
        archives.append(makeArchive({projectFile, {QString::fromUtf16(name), "data"}}));
    const QByteArray sound = makeArchive({projectFile, {u"objects/a.json"_s, "data"}});
    archives.append(sound.chopped(1));
    archives.append(QByteArray(sound).replace("data", "dada"));

    for (const QByteArray& archive : archives) {
        store(u"hostile.vellory"_s, archive);
        const auto extracted =
            extractBundle(m_environment, path(u"hostile.vellory"_s), path(u"target/inner"_s));
        EXPECT_EQ(extracted.message(), u"Not a valid Vellory project file: "_s + path(u"hostile.vellory"_s))
            << archive.toPercentEncoding().toStdString();
        EXPECT_FALSE(QFileInfo::exists(path(u"target"_s)));
    }
    EXPECT_EQ(
        extractBundle(m_environment, path(u"none.vellory"_s), path(u"target"_s)).message(),
        u"Could not open the project file: "_s + path(u"none.vellory"_s));
}

TEST_F(ProjectBundle, saysWhereItCouldNotBeUnpacked)
{
    ASSERT_TRUE(writeProjectBundle(m_environment, project(), bundle()).isOk());
    store(u"full/.hidden"_s, "");
    EXPECT_EQ(
        extractBundle(m_environment, bundle(), path(u"full"_s)).message(),
        u"The extraction folder is not empty: "_s + path(u"full"_s));
    store(u"file"_s, "");
    EXPECT_EQ(
        extractBundle(m_environment, bundle(), path(u"file/inner"_s)).message(),
        u"Could not create the folder: "_s + path(u"file/inner"_s));
    const QString target = path(u"target"_s);
    m_files.failingWrites[target + u"/objects/b.json"_s] = FaultyFileSystem::always;
    EXPECT_EQ(
        extractBundle(m_environment, bundle(), target).message(),
        u"Could not write a project file: "_s + target + u"/objects/b.json"_s);
}

TEST_F(ProjectBundle, isReadByOtherTools)
{
    ASSERT_TRUE(writeProjectBundle(m_environment, project(), bundle()).isOk());
    const QString unzip = QStandardPaths::findExecutable(u"unzip"_s);
    const QString python = QStandardPaths::findExecutable(u"python3"_s);
    if (unzip.isEmpty() || python.isEmpty())
        GTEST_SKIP() << "needs unzip and python3";
    EXPECT_TRUE(run(path({}), unzip, {u"-t"_s, bundle()}));
    EXPECT_TRUE(run(
        path({}), python,
        {u"-c"_s,
         u"import sys, zipfile; archive = zipfile.ZipFile(sys.argv[1]); assert archive.testzip() is None; "
         u"assert len(archive.namelist()) == 5"_s,
         bundle()}));
}

TEST_F(ProjectBundle, isReadFromOtherTools)
{
    const QString zip = QStandardPaths::findExecutable(u"zip"_s);
    const QString python = QStandardPaths::findExecutable(u"python3"_s);
    if (zip.isEmpty() || python.isEmpty())
        GTEST_SKIP() << "needs zip and python3";
    // With entries for folders, packed and not; the last without knowing sizes before the data.
    ASSERT_TRUE(run(project(), zip, {u"-9qr"_s, path(u"1.vellory"_s), u"."_s}));
    ASSERT_TRUE(run(project(), zip, {u"-0qr"_s, path(u"2.vellory"_s), u"."_s}));
    ASSERT_TRUE(run(path({}), python, {u"-m"_s, u"zipfile"_s, u"-c"_s, u"3.vellory"_s, u"project/."_s}));
    ASSERT_TRUE(
        run(project(), python,
            {u"-c"_s,
             u"import os, sys, zipfile\n"
             u"class Pipe:\n"
             u"    def __init__(self, file): self.file = file\n"
             u"    def write(self, data): return self.file.write(data)\n"
             u"    def flush(self): self.file.flush()\n"
             u"with open(sys.argv[1], 'wb') as file:\n"
             u"    with zipfile.ZipFile(Pipe(file), 'w', zipfile.ZIP_DEFLATED) as archive:\n"
             u"        for root, folders, names in os.walk('.'):\n"
             u"            for name in names: archive.write(os.path.join(root, name))\n"_s,
             path(u"4.vellory"_s)}));
    for (int tool = 1; tool <= 4; ++tool) {
        const QString target = path(u"from %1"_s.arg(tool));
        const auto extracted = extractBundle(m_environment, path(u"%1.vellory"_s.arg(tool)), target);
        ASSERT_TRUE(extracted.isOk()) << extracted.message().toStdString();
        expectSameProject(target);
    }
}
