// Single files that other tools pack, and other tools that look into ours.
#include "app/persistence/codec/ProjectWriter.h"
#include "app/workspace/Workspace.h"
#include "support/RandomCommands.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::workspace {

namespace {

const QString packWithFolders =
    u"import shutil, sys\n"
    u"shutil.move(shutil.make_archive(sys.argv[1], 'zip', sys.argv[2]), sys.argv[1])"_s;
const QString packBackwards =
    u"import os, sys, zipfile\n"
    u"with zipfile.ZipFile(sys.argv[1], 'w', zipfile.ZIP_DEFLATED, compresslevel=9) as archive:\n"
    u"    archive.comment = b'made elsewhere'\n"
    u"    for root, folders, names in reversed(list(os.walk(sys.argv[2]))):\n"
    u"        for name in names:\n"
    u"            path = os.path.join(root, name)\n"
    u"            archive.write(path, os.path.relpath(path, sys.argv[2]))\n"_s;
const QString check =
    u"import sys, zipfile\n"
    u"archive = zipfile.ZipFile(sys.argv[1])\n"
    u"sys.exit(archive.testzip() is not None or 'project.json' not in archive.namelist())"_s;

/** Says what the tool said when it fails. */
void run(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0)
        << process.readAll().toStdString() << process.readAllStandardError().toStdString();
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(ForeignArchive, opensIsSavedAndIsReadAgainElsewhere)
{
    const QString python = QStandardPaths::findExecutable(u"python3"_s);
    if (python.isEmpty())
        GTEST_SKIP() << "needs python3";
    const QTemporaryDir root;
    persistence::DiskFileSystem files;
    const persistence::StorageEnvironment environment{files, root.filePath(u"data"_s), {}, [](auto) {}};
    Workspace made(environment);
    test::fillWithEveryKind(made.projectForEdit());
    ASSERT_TRUE(made.saveAs(root.filePath(u"folder"_s)));
    for (const auto& [name, script] :
         {std::pair(u"folders.vellory"_s, packWithFolders),
          std::pair(u"backwards.vellory"_s, packBackwards)}) {
        SCOPED_TRACE(name.toStdString());
        const QString path = root.filePath(name);
        run(python, {u"-c"_s, script, path, root.filePath(u"folder"_s)});
        const auto opened = Workspace::open(environment, path);
        ASSERT_TRUE(opened) << opened.message().toStdString();
        Workspace& workspace = *opened.value();
        EXPECT_TRUE(workspace.openingNotice().isEmpty());
        EXPECT_TRUE(
            persistence::serializeProject(workspace.project()) ==
            persistence::serializeProject(made.project()));

        test::RandomCommands commands(workspace.projectForEdit(), 1);
        for (int count = 0; count < 20; ++count)
            workspace.undoStack().push(commands.next());
        ASSERT_TRUE(workspace.save());
        const QByteArray saved = read(path);
        workspace.markModified();
        ASSERT_TRUE(workspace.save(persistence::SaveExtent::Everything));
        EXPECT_TRUE(read(path) == saved);
        ASSERT_TRUE(workspace.saveAs(root.filePath(u"again "_s + name)));
        EXPECT_TRUE(read(root.filePath(u"again "_s + name)) == saved);
        run(python, {u"-c"_s, check, path});
        if (const QString unzip = QStandardPaths::findExecutable(u"unzip"_s); !unzip.isEmpty())
            run(unzip, {u"-tqq"_s, path});
        if (const QString zip = QStandardPaths::findExecutable(u"zip"_s); !zip.isEmpty())
            run(zip, {u"-qT"_s, path});
    }
}

} // namespace tw::app::workspace
