#include "app/workspace/ExternalReview.h"

#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/workspace/Workspace.h"
#include "core/document/DocumentCommands.h"

#include "../persistence/files/FaultyFileSystem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::app::workspace {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentKind;
using persistence::FaultyFileSystem;
using persistence::FileMerge;
using persistence::Resolution;

namespace {

const ContentId firstId = ContentId::fromString(u"00000000-0000-4000-8000-000000000001");
const ContentId secondId = ContentId::fromString(u"00000000-0000-4000-8000-000000000002");

std::unique_ptr<Document> chapter(const ContentId& id, const QString& title, const QString& body)
{
    auto document = std::make_unique<Document>(id, DocumentKind::Prose, title);
    document->setBody({body, {}});
    return document;
}

/** A saved project of two chapters, open here, in a folder in which others write as well. */
class ExternalReviewTest : public testing::Test
{
protected:
    ExternalReviewTest()
        : workspace(environment)
    {
        workspace.projectForEdit().setName(u"Low: Water"_s);
        workspace.projectForEdit().add(chapter(firstId, u"Ebb"_s, u"one\ntwo"_s));
        workspace.projectForEdit().add(chapter(secondId, u"Flood"_s, u"three\nfour"_s));
        EXPECT_TRUE(workspace.saveAs(folder()));
    }

    QString folder() const { return root.filePath(u"project"_s); }
    QString pathOf(const QString& relativePath) const { return folder() + u'/' + relativePath; }
    static QString fileOf(const ContentId& id) { return persistence::objectPath(id); }

    void write(const QString& relativePath, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(pathOf(relativePath)).path());
        QFile file(pathOf(relativePath));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /** As a co-author's program would. */
    void writeTheirs(const ContentId& id, const QString& title, const QString& body) const
    {
        write(fileOf(id), persistence::serializeObject(*chapter(id, title, body)));
    }

    QByteArray read(const QString& relativePath) const
    {
        QFile file(pathOf(relativePath));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void rename(const ContentId& id, const QString& title)
    {
        workspace.undoStack().push(std::make_unique<core::document::SetDocumentTitleCommand>(
            *workspace.projectForEdit().findAsForEdit<Document>(id), title));
    }

    QString titleOf(const ContentId& id) const
    {
        const auto* const document = workspace.project().findAs<Document>(id);
        return document ? document->title() : QString();
    }

    /** What lies in the backups, oldest first: one chapter's file of each. */
    QList<QByteArray> backedUp(const ContentId& id) const
    {
        QList<QByteArray> versions;
        const QDir backups(root.filePath(u"data/backups/project"_s));
        for (const QString& name : backups.entryList(QDir::Files, QDir::Name)) {
            QFile file(backups.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            const auto content = persistence::readBundle(file.readAll(), name);
            EXPECT_TRUE(content);
            for (const persistence::BundleFile& entry : content.value().files) {
                if (entry.path == fileOf(id))
                    versions.append(entry.bytes);
            }
        }
        return versions;
    }

    ExternalReview begin()
    {
        auto review = ExternalReview::begin(workspace);
        EXPECT_TRUE(review) << review.message().toStdString();
        return std::move(review).value();
    }

    QTemporaryDir root;
    FaultyFileSystem files;
    persistence::StorageEnvironment environment{files, root.filePath(u"data"_s), {}, [](auto) {}};
    Workspace workspace;
};

} // namespace

TEST_F(ExternalReviewTest, projectWithoutAFolderIsSavedFirst)
{
    Workspace fresh(environment);
    EXPECT_EQ(
        ExternalReview::begin(fresh).message(),
        u"Save the project first, then Vellory can check whether anything on disk changed outside the app."_s);
}

TEST_F(ExternalReviewTest, whatIsNoChangeNeverBlocksTheNextSave)
{
    write(u"README.md"_s, "notes of a co-author");
    rename(firstId, u"Slack"_s);
    // The very edit that was made here, written by another program.
    write(fileOf(firstId), persistence::serializeObject(*workspace.project().find(firstId)));
    ASSERT_FALSE(workspace.save());
    EXPECT_EQ(begin().verdict(), ReviewVerdict::Unchanged);
    EXPECT_TRUE(workspace.save());
    EXPECT_TRUE(backedUp(firstId).isEmpty());
}

TEST_F(ExternalReviewTest, opensTheVersionOnDiskWhenNothingIsUnsaved)
{
    writeTheirs(firstId, u"Neap"_s, u"one\ntwo"_s);
    QFile::remove(pathOf(fileOf(secondId)));
    ExternalReview review = begin();
    EXPECT_EQ(review.verdict(), ReviewVerdict::OnlyTheirs);
    EXPECT_EQ(review.changedFileCount(), 2);
    ASSERT_TRUE(review.takeTheirs());
    EXPECT_EQ(titleOf(firstId), u"Neap"_s);
    EXPECT_FALSE(workspace.project().contains(secondId));
    EXPECT_TRUE(workspace.save());
}

TEST_F(ExternalReviewTest, mergesWhatGoesTogether)
{
    rename(firstId, u"Slack"_s);
    workspace.projectForEdit().add(chapter(ContentId::create(), u"New here"_s, {}));
    writeTheirs(firstId, u"Ebb"_s, u"one\nTWO"_s);
    writeTheirs(secondId, u"Neap"_s, u"three\nfour"_s);
    const ContentId theirNew = ContentId::create();
    writeTheirs(theirNew, u"New there"_s, {});
    const QByteArray theirs = read(fileOf(firstId));

    ExternalReview review = begin();
    EXPECT_EQ(review.verdict(), ReviewVerdict::Mergeable);
    EXPECT_EQ(review.changedFileCount(), 3);
    ASSERT_TRUE(review.applyMerge());

    EXPECT_EQ(titleOf(firstId), u"Slack"_s);
    EXPECT_EQ(workspace.project().findAs<Document>(firstId)->body().text, u"one\nTWO"_s);
    EXPECT_EQ(titleOf(secondId), u"Neap"_s);
    EXPECT_EQ(titleOf(theirNew), u"New there"_s);
    EXPECT_EQ(workspace.project().objects().size(), 4U);
    EXPECT_FALSE(workspace.isModified());
    EXPECT_TRUE(workspace.save());
    // Both sides as they were before, in case the merge was not what was wanted.
    const QByteArray mine = persistence::serializeObject(*chapter(firstId, u"Slack"_s, u"one\ntwo"_s));
    EXPECT_EQ(backedUp(firstId), QList<QByteArray>({theirs, mine}));
}

TEST_F(ExternalReviewTest, conflictsEndAsChosen)
{
    const struct
    {
        const char* name;
        Resolution first;
        Resolution second;
        QString firstTitle;
        QString secondTitle; // empty: deleted
    } cases[] = {
        {"all mine", Resolution::Mine, Resolution::Mine, u"mine"_s, u"mine too"_s},
        {"all theirs", Resolution::Theirs, Resolution::Theirs, u"theirs"_s, {}},
        {"mixed", Resolution::Theirs, Resolution::Mine, u"theirs"_s, u"mine too"_s},
    };
    for (const auto& [name, first, second, firstTitle, secondTitle] : cases) {
        SCOPED_TRACE(name);
        if (!workspace.project().contains(secondId))
            workspace.projectForEdit().add(chapter(secondId, u"Flood"_s, u"three\nfour"_s));
        rename(firstId, u"Ebb"_s);
        rename(secondId, u"Flood"_s);
        ASSERT_TRUE(workspace.save());

        rename(firstId, u"mine"_s);
        rename(secondId, u"mine too"_s);
        writeTheirs(firstId, u"theirs"_s, u"one\ntwo"_s);
        QFile::remove(pathOf(fileOf(secondId)));
        ExternalReview review = begin();
        ASSERT_EQ(review.verdict(), ReviewVerdict::Conflicts);
        EXPECT_EQ(review.merge().conflicts().size(), 2U);
        EXPECT_EQ(review.applyMerge().message(), u"the reconcile has conflicts to resolve first"_s);
        review.resolve(fileOf(firstId), first);
        review.resolve(fileOf(secondId), second);
        ASSERT_TRUE(review.applyMerge());
        EXPECT_EQ(titleOf(firstId), firstTitle);
        EXPECT_EQ(titleOf(secondId), secondTitle);
        EXPECT_EQ(QFile::exists(pathOf(fileOf(secondId))), !secondTitle.isEmpty());
        EXPECT_FALSE(workspace.isModified());
    }
}

TEST_F(ExternalReviewTest, keptVersionOverwritesAllTheOthersDid)
{
    rename(firstId, u"mine"_s);
    writeTheirs(firstId, u"theirs"_s, u"one\ntwo"_s);
    writeTheirs(secondId, u"theirs, untouched here"_s, u"three\nfour"_s);
    const ContentId added = ContentId::create();
    writeTheirs(added, u"theirs, added"_s, {});
    write(u"objects/copy of a chapter.json"_s, read(fileOf(added)).replace(added.toString().toUtf8(), "x"));
    const QByteArray theirs = read(fileOf(firstId));
    EXPECT_FALSE(ExternalReview::begin(workspace)) << "the copy is no object";
    QFile::remove(pathOf(u"objects/copy of a chapter.json"_s));

    ASSERT_TRUE(begin().keepMine());
    EXPECT_EQ(read(fileOf(firstId)), theirs) << "nothing is written before the next save";
    EXPECT_TRUE(workspace.isModified());
    EXPECT_EQ(backedUp(firstId).value(0), theirs);
    ASSERT_TRUE(workspace.save());
    const auto reopened = Workspace::open(environment, folder());
    ASSERT_TRUE(reopened);
    EXPECT_EQ(
        persistence::serializeProject(reopened.value()->project()),
        persistence::serializeProject(workspace.project()));
}

TEST_F(ExternalReviewTest, failingDiskLosesNothing)
{
    const struct
    {
        const char* name;
        QString failing; // the file that cannot be replaced
        int times;       // how often it cannot
        bool isBackupFailing;
        QString message;
    } cases[] = {
        {"first file", fileOf(firstId), FaultyFileSystem::always, false,
         u"The resolved files could not be written; nothing was changed. Your project was backed up first."_s},
        {"second file", fileOf(secondId), FaultyFileSystem::always, false,
         u"The resolved files could not be written; nothing was changed. Your project was backed up first."_s},
        {"no backup", {}, 0, true, u"Could not create a backup of the project."_s},
    };
    for (const auto& [name, failing, times, isBackupFailing, message] : cases) {
        SCOPED_TRACE(name);
        rename(firstId, u"mine "_s + QString::fromLatin1(name));
        rename(secondId, u"mine too "_s + QString::fromLatin1(name));
        writeTheirs(firstId, u"Ebb"_s, u"one\nTWO"_s);
        writeTheirs(secondId, u"Flood"_s, u"THREE\nfour"_s);
        const QByteArray first = read(fileOf(firstId));
        const QByteArray second = read(fileOf(secondId));
        ExternalReview review = begin();
        ASSERT_EQ(review.verdict(), ReviewVerdict::Mergeable);

        if (!failing.isEmpty())
            files.failingReplacements[pathOf(failing)] = times;
        files.bytesLeft = isBackupFailing ? 0 : std::numeric_limits<qint64>::max();
        EXPECT_EQ(review.applyMerge().message(), message);
        EXPECT_EQ(read(fileOf(firstId)), first);
        EXPECT_EQ(read(fileOf(secondId)), second);
        EXPECT_TRUE(workspace.isModified());
        EXPECT_EQ(titleOf(firstId), u"mine "_s + QString::fromLatin1(name));

        files.failingReplacements.clear();
        files.bytesLeft = std::numeric_limits<qint64>::max();
        EXPECT_EQ(begin().verdict(), ReviewVerdict::Mergeable) << "it can be tried again";
    }
}

TEST_F(ExternalReviewTest, mixtureOnDiskIsOpenedAndToldOf)
{
    rename(firstId, u"mine"_s);
    rename(secondId, u"mine too"_s);
    writeTheirs(firstId, u"Ebb"_s, u"one\nTWO"_s);
    writeTheirs(secondId, u"Flood"_s, u"THREE\nfour"_s);
    ExternalReview review = begin();
    files.failingReplacements[pathOf(fileOf(secondId))] = FaultyFileSystem::always;
    files.replacementsLeft[pathOf(fileOf(firstId))] = 1; // the merged file, but not the old one again
    EXPECT_EQ(
        review.applyMerge().message(),
        u"Some merged changes could not be applied to the files on disk. Your project was backed up first; "
        u"reloading what is on disk now."_s);
    EXPECT_EQ(titleOf(firstId), u"mine"_s);
    EXPECT_EQ(titleOf(secondId), u"Flood"_s);
    EXPECT_FALSE(workspace.isModified());
    EXPECT_EQ(
        backedUp(secondId).value(1),
        persistence::serializeObject(*chapter(secondId, u"mine too"_s, u"three\nfour"_s)));
}

TEST_F(ExternalReviewTest, neverOverwritesWhatCameAfterTheReview)
{
    rename(firstId, u"mine"_s);
    writeTheirs(firstId, u"Ebb"_s, u"one\nTWO"_s);
    ExternalReview review = begin();
    writeTheirs(firstId, u"Ebb"_s, u"one\nTWO and more"_s);
    const QByteArray latest = read(fileOf(firstId));
    EXPECT_FALSE(review.applyMerge());
    EXPECT_EQ(read(fileOf(firstId)), latest);
    ASSERT_TRUE(begin().applyMerge());
    EXPECT_EQ(workspace.project().findAs<Document>(firstId)->body().text, u"one\nTWO and more"_s);
    EXPECT_EQ(titleOf(firstId), u"mine"_s);
}

TEST_F(ExternalReviewTest, halfSynchronisedFilesAreNamedAndLeftAlone)
{
    rename(firstId, u"mine"_s);
    writeTheirs(firstId, u"theirs"_s, u"one\ntwo"_s);
    const QByteArray whole = read(fileOf(firstId));
    write(fileOf(firstId), whole.first(whole.size() / 2));
    EXPECT_TRUE(ExternalReview::begin(workspace).message().contains(fileOf(firstId)));
    EXPECT_TRUE(workspace.isModified());
    write(fileOf(firstId), whole);
    QFile::rename(pathOf(u"project.json"_s), pathOf(u"elsewhere"_s));
    EXPECT_TRUE(ExternalReview::begin(workspace).message().contains(u"project.json"));
    QFile::rename(pathOf(u"elsewhere"_s), pathOf(u"project.json"_s));
    EXPECT_EQ(begin().verdict(), ReviewVerdict::Conflicts);
    EXPECT_FALSE(workspace.save()) << "a failed review accepts nothing";
}

TEST_F(ExternalReviewTest, offersASideWhereFilesDoNotFitTogether)
{
    rename(firstId, u"mine"_s);
    writeTheirs(firstId, u"Ebb"_s, u"one\nTWO"_s);
    write(u"objects/conflicted copy.json"_s, read(fileOf(secondId)));
    ExternalReview review = begin();
    EXPECT_EQ(review.verdict(), ReviewVerdict::NoWayTogether);
    EXPECT_EQ(review.contestedFileCount(), 1);
    EXPECT_FALSE(review.takeTheirs()) << "the folder itself cannot be opened";
    EXPECT_EQ(titleOf(firstId), u"mine"_s);
    ASSERT_TRUE(review.keepMine());
    ASSERT_TRUE(workspace.save());
    EXPECT_FALSE(QFile::exists(pathOf(u"objects/conflicted copy.json"_s)));
}

TEST_F(ExternalReviewTest, countsMediaThatOthersChanged)
{
    const QString source = root.filePath(u"picture.png"_s);
    QFile file(source);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("picture");
    file.close();
    ASSERT_TRUE(workspace.importAsset(source));
    write(u"assets/kept.png"_s, "kept");
    ASSERT_TRUE(workspace.save());
    EXPECT_EQ(begin().changedMediaCount(), 0);
    QFile::remove(pathOf(u"assets/kept.png"_s));
    write(u"assets/maps/added.png"_s, "added");
    write(u"assets/picture.png"_s, "another picture");
    const ExternalReview review = begin();
    EXPECT_EQ(review.changedMediaCount(), 3);
    EXPECT_EQ(review.verdict(), ReviewVerdict::Unchanged);
    ASSERT_TRUE(workspace.reload());
    EXPECT_EQ(begin().changedMediaCount(), 0);
}

namespace {

/** The same project as a single file, whose archive others replace. */
class ArchiveReviewTest : public ExternalReviewTest
{
protected:
    ArchiveReviewTest() { EXPECT_TRUE(workspace.saveAs(archive())); }

    QString archive() const { return root.filePath(u"low-water.vellory"_s); }

    /** As a co-author's program would, with a picture that they added. */
    void replaceArchive(const ContentId& id, const QString& title, const QString& body) const
    {
        QFile file(archive());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        auto content = persistence::readBundle(file.readAll(), archive());
        ASSERT_TRUE(content);
        QList<persistence::BundleFile> entries = content.value().files;
        for (persistence::BundleFile& entry : entries) {
            if (entry.path == fileOf(id))
                entry.bytes = persistence::serializeObject(*chapter(id, title, body));
        }
        entries.prepend({u"assets/picture.png"_s, "picture"});
        const auto packed = persistence::packBundle(entries);
        ASSERT_TRUE(packed);
        file.resize(0);
        file.seek(0);
        file.write(packed.value());
    }

    std::unique_ptr<Workspace> reopened() const
    {
        auto opened = Workspace::open(environment, archive());
        EXPECT_TRUE(opened) << opened.message().toStdString();
        return opened ? std::move(opened).value() : nullptr;
    }
};

} // namespace

TEST_F(ArchiveReviewTest, mergesIntoTheArchive)
{
    rename(firstId, u"mine"_s);
    replaceArchive(firstId, u"Ebb"_s, u"one\nTWO"_s);
    EXPECT_FALSE(workspace.save());
    ExternalReview review = begin();
    ASSERT_EQ(review.verdict(), ReviewVerdict::Mergeable);
    ASSERT_TRUE(review.applyMerge());
    EXPECT_EQ(titleOf(firstId), u"mine"_s);
    EXPECT_TRUE(workspace.save());
    const auto others = reopened();
    EXPECT_EQ(others->project().findAs<Document>(firstId)->body().text, u"one\nTWO"_s);
    EXPECT_EQ(others->project().findAs<Document>(firstId)->title(), u"mine"_s);
    EXPECT_TRUE(QFile::exists(others->folderPath() + u"/assets/picture.png"_s));
}

TEST_F(ArchiveReviewTest, loadsTheFilesOwnVersionWhenItCannotBeWritten)
{
    rename(firstId, u"mine"_s);
    replaceArchive(firstId, u"Ebb"_s, u"one\nTWO"_s);
    ExternalReview review = begin();
    files.failingReplacements[archive()] = FaultyFileSystem::always;
    EXPECT_EQ(
        review.applyMerge().message(),
        u"The merged result could not be written back to the project file, so the file's own version will be "
        u"loaded instead. Your project was backed up first."_s);
    EXPECT_EQ(titleOf(firstId), u"Ebb"_s);
    EXPECT_EQ(workspace.project().findAs<Document>(firstId)->body().text, u"one\nTWO"_s);
}

TEST_F(ArchiveReviewTest, keptVersionOverwritesTheArchive)
{
    rename(firstId, u"mine"_s);
    replaceArchive(firstId, u"theirs"_s, u"one\ntwo"_s);
    ExternalReview review = begin();
    EXPECT_EQ(review.verdict(), ReviewVerdict::Conflicts);
    ASSERT_TRUE(review.keepMine());
    ASSERT_TRUE(workspace.save());
    EXPECT_EQ(reopened()->project().findAs<Document>(firstId)->title(), u"mine"_s);
}

} // namespace tw::app::workspace
