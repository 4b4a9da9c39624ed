#include "app/workspace/Workspace.h"

#include "app/persistence/ProjectLock.h"
#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/ProjectFiles.h"
#include "core/document/DocumentCommands.h"
#include "core/project/ProjectCommands.h"
#include "support/RandomCommands.h"

#include "../persistence/files/FaultyFileSystem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::app::workspace {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using persistence::FaultyFileSystem;

namespace {

const QString changedMessage =
    u"The project changed on disk since it was opened, so saving now would overwrite those changes. "
    u"Review them first."_s;

class SingleFileWorkspace : public testing::Test
{
protected:
    SingleFileWorkspace()
        : environment{files, root.filePath(u"data"_s), {}, [](auto) {}}
    {}

    QString bundle() const { return root.filePath(u"tide.vellory"_s); }

    static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    std::unique_ptr<Workspace> open(const QString& path) const
    {
        auto opened = Workspace::open(environment, path);
        EXPECT_TRUE(opened) << opened.message().toStdString();
        return opened ? std::move(opened).value() : nullptr;
    }

    std::unique_ptr<Workspace> makeSaved(const QString& path) const
    {
        auto workspace = std::make_unique<Workspace>(environment);
        test::fillWithEveryKind(workspace->projectForEdit());
        const auto saved = workspace->saveAs(path);
        EXPECT_TRUE(saved) << saved.message().toStdString();
        return workspace;
    }

    static const Document& document(const Workspace& workspace)
    {
        return static_cast<const Document&>(
            *workspace.project().objectsOfKind(core::content::ContentKind::Document).front());
    }

    static void edit(Workspace& workspace, const QString& body)
    {
        auto* edited = workspace.projectForEdit().findAsForEdit<Document>(document(workspace).id());
        workspace.undoStack().push(std::make_unique<core::document::SetDocumentBodyCommand>(
            *edited, core::document::DocumentBody{body, {}}));
    }

    /** What the archive holds is the project, and what a build from the working copy gives. */
    void expectArchiveHolds(const Workspace& workspace)
    {
        const QByteArray archive = read(workspace.singleFilePath());
        EXPECT_TRUE(archive == persistence::buildBundle(files, workspace.folderPath()).value());
        const auto contents = persistence::readBundle(archive, bundle());
        ASSERT_TRUE(contents);
        persistence::ProjectFileMap project;
        for (const persistence::BundleFile& file : contents.value().files) {
            if (persistence::isProjectFile(file.path))
                project.emplace(file.path, file.bytes);
        }
        EXPECT_EQ(project, persistence::serializeProject(workspace.project()));
    }

    QTemporaryDir root;
    FaultyFileSystem files;
    persistence::StorageEnvironment environment;
};

} // namespace

TEST_F(SingleFileWorkspace, isSavedAndOpenedLikeAFolder)
{
    auto workspace = makeSaved(bundle());
    EXPECT_EQ(workspace->displayPath(), bundle());
    EXPECT_FALSE(workspace->isModified());
    expectArchiveHolds(*workspace);
    write(root.filePath(u"map.png"_s), "pixels");
    EXPECT_EQ(workspace->importAsset(root.filePath(u"map.png"_s)).value(), u"assets/map.png"_s);
    edit(*workspace, u"First."_s);
    ASSERT_TRUE(workspace->save());
    edit(*workspace, u"Second."_s);
    ASSERT_TRUE(workspace->save());
    expectArchiveHolds(*workspace);

    const QByteArray archive = read(bundle());
    const auto stamp = files.stamp(bundle());
    ASSERT_TRUE(workspace->save(persistence::SaveExtent::Everything));
    EXPECT_TRUE(files.stamp(bundle()) == stamp) << "an unchanged project is not written";
    QFile::remove(bundle());
    write(root.filePath(u"elsewhere/tide.TARNWICK"_s), archive);
    const auto moved = open(root.filePath(u"elsewhere/tide.TARNWICK"_s));
    ASSERT_TRUE(moved);
    EXPECT_TRUE(moved->project() == workspace->project());
    EXPECT_TRUE(moved->openingNotice().isEmpty());
    EXPECT_EQ(read(moved->folderPath() + u"/assets/map.png"_s), "pixels");
}

TEST_F(SingleFileWorkspace, savesAsFromAndToEveryForm)
{
    for (const QString& from : {u"from"_s, u"from.vellory"_s}) {
        for (const QString& to : {u"to"_s, u"to.vellory"_s}) {
            SCOPED_TRACE((from + u" -> "_s + to).toStdString());
            const QString place = root.filePath(from + to);
            const QString source = place + u'/' + from;
            const QString target = place + u'/' + to;
            ASSERT_TRUE(QDir().mkpath(place));
            auto workspace = makeSaved(source);
            write(workspace->folderPath() + u"/assets/map.png"_s, "pixels");
            edit(*workspace, u"There and here."_s);
            ASSERT_TRUE(workspace->save());
            const QByteArray before = read(source);

            edit(*workspace, u"Only here."_s);
            const auto saved = workspace->saveAs(target);
            ASSERT_TRUE(saved) << saved.message().toStdString();
            EXPECT_EQ(workspace->displayPath(), target);
            EXPECT_EQ(workspace->hasSingleFile(), to.endsWith(u".vellory"));
            EXPECT_FALSE(workspace->isModified());
            EXPECT_EQ(document(*open(target)).body().text, u"Only here."_s);
            EXPECT_EQ(read(open(target)->folderPath() + u"/assets/map.png"_s), "pixels");
            EXPECT_TRUE(workspace->save()) << "nothing there counts as changed by others";

            EXPECT_EQ(document(*open(source)).body().text, u"There and here."_s);
            EXPECT_TRUE(read(source) == before);
        }
    }
}

TEST_F(SingleFileWorkspace, replacesAFileButNotWhileAnotherProgramIsAtWorkOnIt)
{
    makeSaved(bundle());
    const QByteArray before = read(bundle());
    Workspace other(environment);
    other.projectForEdit().setName(u"Other"_s);
    {
        const auto lock = persistence::ProjectLock::acquire(bundle(), environment.dataFolder);
        EXPECT_TRUE(other.saveAs(bundle()).message().contains(u"Another program"));
        EXPECT_TRUE(read(bundle()) == before);
    }
    files.failingReplacements[bundle()] = FaultyFileSystem::always;
    EXPECT_TRUE(other.saveAs(bundle()).message().startsWith(u"Could not write the project file"));
    EXPECT_FALSE(other.hasPath());
    EXPECT_TRUE(read(bundle()) == before);
    EXPECT_TRUE(open(bundle())->openingNotice().isEmpty()) << "the working copy is that of the old file";
    files.failingReplacements.clear();
    ASSERT_TRUE(other.saveAs(bundle()));
    EXPECT_EQ(open(bundle())->displayName(), u"Other"_s);
}

TEST_F(SingleFileWorkspace, refusesToOverwriteWhatOthersWrote)
{
    auto workspace = makeSaved(bundle());
    const QByteArray ours = read(bundle());
    edit(*workspace, u"Mine."_s);
    write(bundle(), ours);
    EXPECT_FALSE(workspace->isBundleChangedOnDisk()) << "a touched time is no change";
    write(bundle(), ours + ' ');
    EXPECT_TRUE(workspace->isBundleChangedOnDisk());
    EXPECT_EQ(workspace->save().message(), changedMessage);
    EXPECT_TRUE(workspace->isModified());
    EXPECT_TRUE(read(bundle()) == ours + ' ');
    write(bundle(), ours);
    ASSERT_TRUE(workspace->save());
    expectArchiveHolds(*workspace);

    // Two programs with one file: the later one is refused, and reads what the first one wrote.
    auto theirs = open(bundle());
    edit(*theirs, u"Theirs."_s);
    ASSERT_TRUE(theirs->save());
    edit(*workspace, u"Mine again."_s);
    EXPECT_EQ(workspace->save().message(), changedMessage);
    ASSERT_TRUE(workspace->reload());
    EXPECT_EQ(document(*workspace).body().text, u"Theirs."_s);
    EXPECT_TRUE(workspace->save());
}

TEST_F(SingleFileWorkspace, saveThatFailsAtAnyWriteCanBeRepeatedOrRecovered)
{
    auto workspace = makeSaved(bundle());
    int writes = 0;
    for (bool isSaved = false; !isSaved; ++writes) {
        SCOPED_TRACE(writes);
        ASSERT_LT(writes, 10);
        edit(*workspace, u"Version %1."_s.arg(writes));
        files.writesLeft = writes;
        const auto saved = workspace->save();
        files.writesLeft = FaultyFileSystem::always;
        isSaved = saved.isOk();
        EXPECT_EQ(workspace->isModified(), !isSaved);
        EXPECT_TRUE(persistence::readBundle(read(bundle()), bundle())) << "whole at any time";
        ASSERT_TRUE(workspace->save());
        EXPECT_FALSE(workspace->isModified());
        expectArchiveHolds(*workspace);
    }
    EXPECT_EQ(writes, 4) << "the chapter, the archive and the record are written one by one";

    edit(*workspace, u"What must not be lost."_s);
    files.failingReplacements[bundle()] = FaultyFileSystem::always;
    EXPECT_TRUE(workspace->save().message().startsWith(u"Could not write the project file"));
    files.failingReplacements.clear();
    workspace.reset();
    workspace = open(bundle());
    EXPECT_EQ(document(*workspace).body().text, u"What must not be lost."_s);
    EXPECT_EQ(
        workspace->openingNotice().text,
        u"Restored unsaved changes from your last session into %1."_s.arg(bundle()));
    expectArchiveHolds(*workspace);
}

TEST_F(SingleFileWorkspace, whatWasDiscardedAfterAFailedSaveComesBackOnlyAsABackup)
{
    const QDir backups(environment.dataFolder + u"/backups/tide"_s);
    auto workspace = makeSaved(bundle());
    edit(*workspace, u"Kept."_s);
    ASSERT_TRUE(workspace->save());
    const auto failToSave = [&](const QString& body) {
        edit(*workspace, body);
        files.failingReplacements[bundle()] = FaultyFileSystem::always;
        EXPECT_FALSE(workspace->save());
        EXPECT_TRUE(workspace->isFullSaveDue());
        files.failingReplacements.clear();
    };
    const auto backedUpBody = [&] {
        const auto names = backups.entryList(QDir::Files, QDir::Time);
        const auto copy = root.filePath(u"backup %1.vellory"_s.arg(names.size()));
        EXPECT_TRUE(!names.isEmpty() && QFile::copy(backups.filePath(names.first()), copy));
        return document(*open(copy)).body().text;
    };

    failToSave(u"Given up by a reload."_s);
    files.bytesLeft = 0;
    ASSERT_TRUE(workspace->discardUnsaved()) << "possible on a full disk";
    files.bytesLeft = std::numeric_limits<qint64>::max();
    ASSERT_TRUE(workspace->reload());
    EXPECT_EQ(document(*workspace).body().text, u"Kept."_s);
    EXPECT_TRUE(workspace->openingNotice().text.contains(backups.path()));
    EXPECT_EQ(backedUpBody(), u"Given up by a reload."_s);
    EXPECT_TRUE(workspace->save());

    failToSave(u"Given up at the end."_s);
    ASSERT_TRUE(workspace->discardUnsaved());
    workspace = open(bundle());
    EXPECT_EQ(document(*workspace).body().text, u"Kept."_s);
    EXPECT_EQ(backups.entryList(QDir::Files).size(), 2);
    expectArchiveHolds(*workspace);

    failToSave(u"Kept after all."_s);
    ASSERT_TRUE(workspace->discardUnsaved());
    ASSERT_TRUE(workspace->save()) << "a later save takes it back";
    workspace = open(bundle());
    EXPECT_EQ(document(*workspace).body().text, u"Kept after all."_s);
    EXPECT_TRUE(workspace->openingNotice().isEmpty());
}

TEST_F(SingleFileWorkspace, tellsWhichVersionWon)
{
    auto workspace = makeSaved(bundle());
    const QByteArray theirs = read(bundle());
    edit(*workspace, u"Mine."_s);
    ASSERT_TRUE(workspace->save());
    write(bundle(), theirs);
    const OpeningNotice notice = open(bundle())->openingNotice();
    EXPECT_EQ(notice.title, u"Project File Changed"_s);
    const QDir backups(environment.dataFolder + u"/backups/tide"_s);
    ASSERT_EQ(backups.entryList(QDir::Files).size(), 1);
    EXPECT_EQ(
        notice.text, u"%1 was changed outside Vellory, so the file's version was loaded. Your previous local "
                     u"working state was backed up to:\n%2"_s.arg(
                         bundle(), backups.filePath(backups.entryList(QDir::Files).first())));
}

TEST_F(SingleFileWorkspace, reloadKeepsTheProjectWhenTheFileCannotBeRead)
{
    auto workspace = makeSaved(bundle());
    const QByteArray good = read(bundle());
    edit(*workspace, u"Unsaved."_s);
    write(bundle(), "half of an arch");
    EXPECT_EQ(workspace->reload().message(), u"The project file is not readable right now; try again."_s);
    EXPECT_EQ(document(*workspace).body().text, u"Unsaved."_s);
    EXPECT_TRUE(workspace->history().canUndo());

    // A whole archive with an object that cannot be read: nothing of it gets into the working copy.
    ASSERT_TRUE(QDir().mkpath(root.filePath(u"broken/objects"_s)));
    write(root.filePath(u"broken/project.json"_s), "{}");
    write(root.filePath(u"broken/objects/x.json"_s), "{}");
    write(bundle(), persistence::buildBundle(files, root.filePath(u"broken"_s)).value());
    EXPECT_TRUE(workspace->reload().message().startsWith(u"Malformed object file"_s));
    EXPECT_EQ(document(*workspace).body().text, u"Unsaved."_s);
    write(bundle(), good);
    const auto saved = workspace->save();
    EXPECT_TRUE(saved) << saved.message().toStdString();
    EXPECT_EQ(document(*open(bundle())).body().text, u"Unsaved."_s);

    write(root.filePath(u"readme.txt"_s), "x");
    EXPECT_TRUE(
        Workspace::open(environment, root.filePath(u"readme.txt"_s)).message().contains(u"is no project"));
}

TEST_F(SingleFileWorkspace, isBackedUpUnderItsName)
{
    const QDateTime now(QDate(2026, 3, 9), QTime(7, 8, 5, 42));
    Workspace homeless(environment);
    EXPECT_EQ(homeless.backup(now).message(), u"Save the project to a folder before backing it up."_s);
    for (const QString& path : {bundle(), root.filePath(u"tide folder"_s)}) {
        auto workspace = makeSaved(path);
        edit(*workspace, u"Not saved."_s);
        const auto backup = workspace->backup(now);
        ASSERT_TRUE(backup) << backup.message().toStdString();
        const QString name = QFileInfo(path).completeBaseName();
        EXPECT_EQ(
            backup.value().path,
            environment.dataFolder + u"/backups/%1/%1-20260309-070805042.twbackup"_s.arg(name));
        EXPECT_TRUE(
            read(backup.value().path) == persistence::buildBundle(files, workspace->folderPath()).value());
    }
}

TEST_F(SingleFileWorkspace, librariesAreFoundFromTheNextPlaceAsWell)
{
    Workspace shared(environment);
    ASSERT_TRUE(QDir().mkpath(root.filePath(u"shared"_s)));
    ASSERT_TRUE(shared.saveAs(root.filePath(u"shared/library.vellory"_s)));
    const QString absolute = root.filePath(u"shared/library.vellory"_s);
    auto workspace = makeSaved(root.filePath(u"books/tide"_s));
    using Mounts = std::vector<core::project::LibraryMount>;
    workspace->undoStack().push(std::make_unique<core::project::SetLibraryMountsCommand>(
        workspace->projectForEdit(), Mounts{{u"../../shared/library.vellory"_s, false}, {absolute, true}}));
    ASSERT_TRUE(workspace->followLibraryMounts());

    ASSERT_FALSE(workspace->saveAs(root.filePath(u"shared"_s) + u"/library.vellory/below"_s));
    EXPECT_EQ(workspace->project().libraryMounts().front().path, u"../../shared/library.vellory"_s);
    for (const auto& [place, path] :
         {std::pair(u"books/deeper/still/tide.vellory"_s, u"../../../shared/library.vellory"_s),
          std::pair(u"shared/tide"_s, u"../library.vellory"_s),
          std::pair(u"shared/tide.vellory"_s, u"library.vellory"_s)}) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(root.filePath(place)).path()));
        const auto saved = workspace->saveAs(root.filePath(place));
        ASSERT_TRUE(saved) << qPrintable(saved.message());
        EXPECT_FALSE(workspace->isModified());
        const auto opened = open(root.filePath(place));
        EXPECT_EQ(opened->project().libraryMounts(), (Mounts{{path, false}, {absolute, true}}));
        EXPECT_EQ(opened->libraries().size(), 2U) << qPrintable(place);
    }
}

TEST_F(SingleFileWorkspace, librariesMayBeSingleFilesBesideIt)
{
    Workspace shared(environment);
    shared.projectForEdit().setName(u"Shared world"_s);
    ASSERT_TRUE(shared.saveAs(root.filePath(u"library.vellory"_s)));
    QDir(environment.dataFolder).removeRecursively();
    auto workspace = makeSaved(bundle());
    workspace->undoStack().push(std::make_unique<core::project::SetLibraryMountsCommand>(
        workspace->projectForEdit(),
        std::vector<core::project::LibraryMount>{{u"library.vellory"_s, false}, {u"gone.vellory"_s, false}}));
    ASSERT_TRUE(workspace->save());
    const auto opened = open(bundle());
    ASSERT_EQ(opened->libraries().size(), 1U);
    EXPECT_EQ(opened->libraries().front().name, u"Shared world"_s);
    EXPECT_EQ(opened->libraryNotices().size(), 1);
    EXPECT_EQ(
        QDir(environment.dataFolder + u"/working-copies"_s)
            .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
            .size(),
        1);
}

} // namespace tw::app::workspace
