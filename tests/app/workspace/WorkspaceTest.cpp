#include "app/workspace/Workspace.h"

#include "app/persistence/codec/ProjectWriter.h"
#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/project/ProjectCommands.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "support/RandomCommands.h"

#include "../persistence/files/FaultyFileSystem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace tw::app::workspace {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using core::document::DocumentKind;
using persistence::FaultyFileSystem;
using persistence::SaveExtent;

namespace {

constexpr qint64 secondNs = 1'000'000'000;

const QString changedMessage =
    u"The project changed on disk since it was opened, so saving now would overwrite those changes. "
    u"Review them first."_s;

class WorkspaceTest : public testing::Test
{
protected:
    WorkspaceTest()
        : environment{
              files,
              root.filePath(u"data"_s),
              {},
              [this](auto delay) { waited += delay; },
              [this] { return persistence::systemClock() + clockAhead; }}
    {}

    QString folder() const { return root.filePath(u"project"_s); }

    void write(const QString& relativePath, const QByteArray& bytes) const
    {
        const QString path = folder() + u'/' + relativePath;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read(const QString& relativePath) const
    {
        QFile file(folder() + u'/' + relativePath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<Workspace> open() const
    {
        auto opened = Workspace::openFolder(environment, folder());
        EXPECT_TRUE(opened) << opened.message().toStdString();
        return opened ? std::move(opened).value() : nullptr;
    }

    /** A saved project with one document and everything else there is. */
    std::unique_ptr<Workspace> makeSaved()
    {
        auto workspace = std::make_unique<Workspace>(environment);
        test::fillWithEveryKind(workspace->projectForEdit());
        EXPECT_TRUE(workspace->saveAs(folder()));
        return workspace;
    }

    static Document& firstDocument(Workspace& workspace)
    {
        return static_cast<Document&>(
            *workspace.projectForEdit().objectsOfKind(core::content::ContentKind::Document).front());
    }

    static void edit(Workspace& workspace, const QString& body)
    {
        workspace.undoStack().push(std::make_unique<core::document::SetDocumentBodyCommand>(
            firstDocument(workspace), core::document::DocumentBody{body, {}}));
    }

    static QString pathOf(const core::content::ContentObject& object)
    {
        return u"objects/%1.json"_s.arg(object.id().toString());
    }

    /** The files on disk are those that the project would be written as, all of them. */
    void expectDiskHolds(const core::project::Project& project) const
    {
        std::map<QString, QByteArray> onDisk;
        for (const QString& name : {u"objects"_s, u"taxonomy"_s}) {
            for (const QString& file : QDir(folder() + u'/' + name).entryList({u"*.json"_s}, QDir::Files))
                onDisk.emplace(name + u'/' + file, read(name + u'/' + file));
        }
        onDisk.emplace(u"project.json"_s, read(u"project.json"_s));
        EXPECT_EQ(onDisk, persistence::serializeProject(project));
    }

    QTemporaryDir root;
    FaultyFileSystem files;
    qint64 clockAhead = 0;
    std::chrono::milliseconds waited{0};
    persistence::StorageEnvironment environment;
};

} // namespace

TEST_F(WorkspaceTest, neverSavedProjectHasNowhereToGo)
{
    Workspace workspace(environment);
    EXPECT_EQ(workspace.save().message(), u"This project has no save location yet; use saveAs()."_s);
    EXPECT_EQ(workspace.reload().message(), u"This project has no save location to reload from."_s);
    EXPECT_EQ(workspace.importAsset(u"/x.png"_s).message(), u"No project directory to import into"_s);
    EXPECT_EQ(files.writes(), 0);
}

TEST_F(WorkspaceTest, savesWhatChangedAndNothingElse)
{
    auto workspace = makeSaved();
    const int afterFirst = files.writes();
    EXPECT_FALSE(workspace->isModified());
    EXPECT_TRUE(workspace->save());
    EXPECT_TRUE(workspace->save(SaveExtent::Everything));
    EXPECT_EQ(files.writes(), afterFirst);

    edit(*workspace, u"Ebb."_s);
    EXPECT_TRUE(workspace->isModified());
    EXPECT_TRUE(workspace->save());
    EXPECT_EQ(files.writes(), afterFirst + 1);
    EXPECT_FALSE(workspace->isModified());
    expectDiskHolds(open()->project());
    workspace->markModified();
    EXPECT_TRUE(workspace->isModified());
}

TEST_F(WorkspaceTest, saveRemovesWhatACrashedOneLeftBehind)
{
    auto workspace = makeSaved();
    const auto leaveBehind = [&](const QString& target) {
        QDir().mkpath(QFileInfo(folder() + u'/' + target).path());
        return persistence::DiskFileSystem()
            .writeTemporary(folder() + u'/' + target, "half", persistence::Durability::OnMedium)
            .value();
    };
    const QStringList ours{
        leaveBehind(u"project.json"_s), leaveBehind(u"objects/1.json"_s), leaveBehind(u"taxonomy/1.json"_s)};
    const QStringList others{
        leaveBehind(u"assets/project.json"_s), leaveBehind(u"objects/inner/objects/1.json"_s)};
    EXPECT_TRUE(workspace->externalChanges().isEmpty());

    write(u"notes.txt"_s, "somebody else's");
    EXPECT_EQ(workspace->save().message(), changedMessage);
    for (const QString& path : ours + others)
        EXPECT_TRUE(QFile::exists(path)) << path.toStdString();
    QFile::remove(folder() + u"/notes.txt"_s);

    const int writes = files.writes();
    ASSERT_TRUE(workspace->save());
    EXPECT_EQ(files.writes(), writes);
    for (const QString& path : ours)
        EXPECT_FALSE(QFile::exists(path)) << path.toStdString();
    for (const QString& path : others)
        EXPECT_TRUE(QFile::exists(path)) << path.toStdString();
    expectDiskHolds(workspace->project());
}

TEST_F(WorkspaceTest, removedObjectsLeaveAndOtherFilesStay)
{
    auto workspace = makeSaved();
    write(u"objects/notes.txt"_s, "mine");
    ASSERT_TRUE(workspace->reload());
    const auto id = firstDocument(*workspace).id();
    const QString path = pathOf(firstDocument(*workspace));
    workspace->undoStack().push(
        std::make_unique<core::content::RemoveObjectCommand>(workspace->projectForEdit(), id));
    const auto category = workspace->project().taxonomy().categories().begin()->first;
    workspace->undoStack().push(
        std::make_unique<core::taxonomy::RemoveCategoryCommand>(workspace->projectForEdit(), category));
    ASSERT_TRUE(workspace->save());
    EXPECT_TRUE(read(path).isEmpty());
    EXPECT_EQ(read(u"objects/notes.txt"_s), "mine");
    expectDiskHolds(open()->project());
    workspace->undoStack().undo();
    workspace->undoStack().undo();
    ASSERT_TRUE(workspace->save());
    EXPECT_FALSE(read(path).isEmpty());
}

TEST_F(WorkspaceTest, incrementalSavesEqualFullOnes)
{
    auto workspace = makeSaved();
    test::RandomCommands random(workspace->projectForEdit(), 77);
    for (int round = 0; round < 60; ++round) {
        for (int count = random.number(1, 12); count > 0; --count) {
            const int choice = random.number(0, 5);
            if (choice == 0)
                workspace->undoStack().undo();
            else if (choice == 1)
                workspace->undoStack().redo();
            else
                workspace->undoStack().push(random.next());
        }
        ASSERT_TRUE(workspace->save());
        expectDiskHolds(workspace->project());
        if (HasFailure())
            FAIL() << "round " << round;
    }
}

TEST_F(WorkspaceTest, changesOfOthersBlockASaveAndTouchedTimesDoNot)
{
    auto workspace = makeSaved();
    const QString path = pathOf(firstDocument(*workspace));
    const QByteArray bytes = read(path);
    edit(*workspace, u"Mine."_s);

    write(path, bytes);
    write(u"assets/picture.png"_s, "no text");
    EXPECT_TRUE(workspace->externalChanges().isEmpty()) << "an identical rewrite and an image are no changes";

    write(u"assets/deep/notes.md"_s, "theirs");
    EXPECT_EQ(workspace->save().message(), changedMessage);
    EXPECT_EQ(workspace->externalChanges().added, QStringList{u"assets/deep/notes.md"_s});
    EXPECT_EQ(read(path), bytes);
    EXPECT_TRUE(workspace->isModified());
    QFile::remove(folder() + u"/assets/deep/notes.md"_s);

    write(path, bytes + ' ');
    EXPECT_EQ(workspace->save().message(), changedMessage);
    EXPECT_EQ(workspace->externalChanges().changed, QStringList{path});
    QFile::remove(folder() + u'/' + path);
    EXPECT_EQ(workspace->externalChanges().removed, QStringList{path});
    EXPECT_EQ(workspace->save().message(), changedMessage);
    write(path, bytes);
    EXPECT_TRUE(workspace->save());
}

TEST_F(WorkspaceTest, settledStampsSpareReadingAndUnsettledOnesDoNot)
{
    auto workspace = makeSaved();
    const QString path = folder() + u'/' + pathOf(firstDocument(*workspace));
    const auto time = std::filesystem::last_write_time(path.toStdString());
    clockAhead = 10 * secondNs;
    EXPECT_TRUE(workspace->externalChanges().isEmpty());

    // Same size, and a tool that puts the old time back: the change of the file's record gives it away.
    QByteArray bytes = read(pathOf(firstDocument(*workspace)));
    bytes.replace("Made", "Lost");
    write(pathOf(firstDocument(*workspace)), bytes);
    std::filesystem::last_write_time(path.toStdString(), time);
    EXPECT_EQ(workspace->externalChanges().changed.size(), 1);
}

TEST_F(WorkspaceTest, failedSaveLeavesWholeFilesAndTheNextOneSucceeds)
{
    auto workspace = makeSaved();
    edit(*workspace, u"The words that must not be lost."_s);
    const QString path = folder() + u'/' + pathOf(firstDocument(*workspace));
    const QString message =
        u"Could not write '%1' (it may be locked by another program -- the desktop app, a sync "
        u"client, or antivirus)."_s;
    const QByteArray before = read(pathOf(firstDocument(*workspace)));

    files.failingReplacements.insert(path, FaultyFileSystem::always);
    EXPECT_EQ(workspace->save().message(), message.arg(path));
    EXPECT_EQ(waited, std::chrono::milliseconds(600));
    EXPECT_EQ(read(pathOf(firstDocument(*workspace))), before);
    EXPECT_TRUE(workspace->isModified());
    files.failingReplacements.clear();
    files.bytesLeft = 10;
    EXPECT_EQ(workspace->save().message(), message.arg(path));
    files.bytesLeft = std::numeric_limits<qint64>::max();
    EXPECT_TRUE(workspace->externalChanges().isEmpty()) << "nothing of ours lies about";
    EXPECT_TRUE(workspace->save());
    expectDiskHolds(workspace->project());
}

TEST_F(WorkspaceTest, saveThatFailsAtAnyFileOfManyCanBeRepeated)
{
    auto workspace = makeSaved();
    const auto all = persistence::serializeProject(workspace->project());
    for (const auto& [failing, bytes] : all) {
        for (const auto& [id, object] : workspace->project().objects()) {
            workspace->undoStack().push(std::make_unique<core::content::SetObjectTagsCommand>(
                *workspace->projectForEdit().findForEdit(id), core::content::NameSet{failing}));
        }
        for (const auto& [id, category] : workspace->project().taxonomy().categories()) {
            workspace->undoStack().push(std::make_unique<core::taxonomy::RenameCategoryCommand>(
                workspace->projectForEdit(), id, failing));
        }
        workspace->undoStack().push(std::make_unique<core::project::SetSavedSearchesCommand>(
            workspace->projectForEdit(), std::vector{core::project::SavedSearch{failing, {}}}));
        files.failingWrites.insert(folder() + u'/' + failing, FaultyFileSystem::always);
        const auto saved = workspace->save();
        ASSERT_FALSE(saved) << failing.toStdString();
        EXPECT_TRUE(saved.message().contains(failing));
        EXPECT_TRUE(workspace->isModified());
        EXPECT_TRUE(open()) << "every file is whole";
        files.failingWrites.clear();
        ASSERT_TRUE(workspace->save()) << failing.toStdString();
        expectDiskHolds(workspace->project());
    }
}

TEST_F(WorkspaceTest, filesWrittenByHandAreBroughtUpByTheNextSave)
{
    auto workspace = makeSaved();
    const QString path = pathOf(firstDocument(*workspace));
    QByteArray loose = read(path);
    loose.replace("\n", " ");
    write(path, loose);
    const auto strayId = core::ContentId::create();
    write(u"objects/by-hand.json"_s, "{\"type\": \"task\", \"id\": \"" + strayId.toString().toUtf8() + "\"}");
    workspace = open();
    ASSERT_TRUE(workspace->project().contains(strayId));
    EXPECT_FALSE(workspace->isModified());
    ASSERT_TRUE(workspace->save());
    EXPECT_TRUE(read(u"objects/by-hand.json"_s).isEmpty());
    expectDiskHolds(workspace->project());
}

TEST_F(WorkspaceTest, refusesWhatIsNoProjectInClearWords)
{
    const auto messageOf = [this](const QString& path) {
        return Workspace::openFolder(environment, path).message();
    };
    const QString missing = root.filePath(u"nowhere"_s);
    EXPECT_EQ(messageOf(missing), u"The project could not be found: %1"_s.arg(missing));
    write(u"readme.md"_s, "x");
    EXPECT_TRUE(messageOf(folder()).contains(u"holds no project"_s));
    EXPECT_TRUE(messageOf(folder() + u"/readme.md"_s).contains(u"is no project"_s));
    QDir().mkpath(folder() + u"/objects"_s);
    EXPECT_TRUE(messageOf(folder()).contains(u"project.json is missing"_s));
    write(u"project.json"_s, "{ half");
    EXPECT_EQ(messageOf(folder()), u"Invalid JSON in file: %1/project.json"_s.arg(folder()));
    write(u"project.json"_s, "{}");
    EXPECT_EQ(messageOf(folder()), QString());
}

TEST_F(WorkspaceTest, failedReloadKeepsTheOpenProject)
{
    auto workspace = makeSaved();
    edit(*workspace, u"Unsaved."_s);
    write(u"project.json"_s, "no json");
    EXPECT_FALSE(workspace->reload());
    EXPECT_EQ(firstDocument(*workspace).body().text, u"Unsaved."_s);
    EXPECT_TRUE(workspace->history().canUndo());
    write(u"project.json"_s, "{\"name\": \"Theirs\"}");
    workspace->undoStack().beginMacro(u"Open"_s);
    EXPECT_FALSE(workspace->reload());
    workspace->undoStack().endMacro();
    EXPECT_TRUE(workspace->reload());
    EXPECT_EQ(workspace->displayName(), u"Theirs"_s);
    EXPECT_FALSE(workspace->history().canUndo());
}

TEST_F(WorkspaceTest, saveAsTakesTheOtherFilesAlongAndSparesOtherProjects)
{
    auto workspace = makeSaved();
    write(u"assets/map.png"_s, "pixels");
    write(u"README.md"_s, "hello");
    const QString copy = root.filePath(u"copy"_s);
    edit(*workspace, u"In the copy only."_s);
    ASSERT_TRUE(workspace->saveAs(copy));
    EXPECT_EQ(workspace->folderPath(), copy);
    EXPECT_TRUE(QFile::exists(copy + u"/assets/map.png"_s));
    EXPECT_TRUE(QFile::exists(copy + u"/README.md"_s));
    EXPECT_TRUE(workspace->save()) << "the copied files are no changes of others";
    EXPECT_FALSE(open()->project() == workspace->project()) << "the first folder stayed as it was";

    Workspace other(environment);
    EXPECT_TRUE(other.saveAs(folder()).message().contains(u"already holds a project"_s));
    EXPECT_FALSE(other.hasPath());
}

TEST_F(WorkspaceTest, foldersThatLeadOutOfTheProjectAreRefused)
{
    auto workspace = makeSaved();
    const QString elsewhere = root.filePath(u"elsewhere"_s);
    ASSERT_TRUE(QDir().rename(folder() + u"/objects"_s, elsewhere));
    ASSERT_TRUE(QFile::link(elsewhere, folder() + u"/objects"_s));
    edit(*workspace, u"x"_s);
    EXPECT_FALSE(workspace->save());
    EXPECT_TRUE(workspace->isModified());
}

TEST_F(WorkspaceTest, twoWritersOfOneProjectMeetAtTheLock)
{
    auto mine = makeSaved();
    auto theirs = open();
    edit(*theirs, u"Theirs."_s);
    ASSERT_TRUE(theirs->save());
    edit(*mine, u"Mine."_s);
    EXPECT_EQ(mine->save().message(), changedMessage);
    EXPECT_EQ(firstDocument(*open()).body().text, u"Theirs."_s);
}

TEST_F(WorkspaceTest, librariesAreReadBesideTheProject)
{
    auto workspace = makeSaved();
    const QString library = root.filePath(u"library"_s);
    Workspace shared(environment);
    shared.projectForEdit().setName(u"Shared world"_s);
    shared.projectForEdit().add(
        std::make_unique<Document>(core::ContentId::create(), DocumentKind::Note, u"Note"_s));
    ASSERT_TRUE(shared.saveAs(library));

    workspace->undoStack().push(std::make_unique<core::project::SetLibraryMountsCommand>(
        workspace->projectForEdit(),
        std::vector<core::project::LibraryMount>{{u"../library"_s, false}, {u"../gone"_s, false}}));
    ASSERT_TRUE(workspace->save());
    auto opened = open();
    ASSERT_EQ(opened->libraries().size(), 1U);
    EXPECT_EQ(opened->libraries().front().name, u"Shared world"_s);
    EXPECT_EQ(opened->libraries().front().project->objects().size(), 1U);
    ASSERT_EQ(opened->libraryNotices().size(), 1);
    EXPECT_TRUE(opened->libraryNotices().front().contains(u"gone"_s));
}

TEST_F(WorkspaceTest, importedTextDoesNotBlockTheNextSave)
{
    auto workspace = makeSaved();
    const QString source = root.filePath(u"notes.txt"_s);
    QFile file(source);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("notes");
    file.close();
    EXPECT_EQ(workspace->importAsset(source).value(), u"assets/notes.txt"_s);
    EXPECT_EQ(workspace->importAsset(source).value(), u"assets/notes-1.txt"_s);
    EXPECT_TRUE(workspace->save());
}

} // namespace tw::app::workspace
