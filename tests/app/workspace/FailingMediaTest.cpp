// Whatever writes a project, on a medium that gives out after any number of steps.
#include "app/workspace/ExternalReview.h"
#include "app/workspace/Workspace.h"

#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/ProjectFiles.h"
#include "core/document/DocumentCommands.h"

#include "../persistence/files/FaultyFileSystem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::workspace {

namespace {

using core::ContentId;
using core::Result;
using core::document::Document;
using core::document::DocumentKind;
using persistence::FaultyFileSystem;

const ContentId mineId = ContentId::fromString(u"00000000-0000-4000-8000-000000000001");
const ContentId theirsId = ContentId::fromString(u"00000000-0000-4000-8000-000000000002");

enum class Medium
{
    Full,     ///< Takes no more files.
    ReadOnly, ///< Takes no more changes of any kind.
};

/** A project of two chapters with an unsaved edit, in a place of its own. */
class Desk
{
public:
    explicit Desk(const QString& name)
        : place(root.filePath(name))
    {
        Workspace made(environment);
        for (const ContentId& id : {mineId, theirsId})
            made.projectForEdit().add(std::make_unique<Document>(id, DocumentKind::Prose, u"Ebb"_s));
        EXPECT_TRUE(made.saveAs(place));
        workspace = std::move(Workspace::open(environment, place)).value();
        workspace->undoStack().push(std::make_unique<core::document::SetDocumentTitleCommand>(
            *workspace->projectForEdit().findAsForEdit<Document>(mineId), u"Mine"_s));
    }

    /** As a co-author's program would. */
    void writeTheirs()
    {
        const Document theirs(theirsId, DocumentKind::Prose, u"Theirs"_s);
        const QString path = persistence::objectPath(theirsId);
        const QByteArray bytes = persistence::serializeObject(theirs);
        if (!workspace->hasSingleFile()) {
            write(place + u'/' + path, bytes);
            return;
        }
        auto contents = persistence::readBundle(files.readFile(place)->bytes, place).value();
        for (persistence::BundleFile& file : contents.files)
            file.bytes = file.path == path ? bytes : file.bytes;
        write(place, persistence::packBundle(contents.files).value());
    }

    void limit(Medium medium, int steps)
    {
        (medium == Medium::Full ? files.writesLeft : files.changesLeft) = steps;
    }
    void lift()
    {
        files.writesLeft = FaultyFileSystem::always;
        files.changesLeft = FaultyFileSystem::always;
    }

    /** The titles of both chapters as a project on disk has them; empty when there is none. */
    QStringList titlesAt(const QString& path)
    {
        persistence::ProjectFileMap found;
        if (!persistence::isBundlePath(path)) {
            if (!QFile::exists(path + u"/project.json"_s))
                return {};
            auto loaded = persistence::loadProject(files, path);
            EXPECT_TRUE(loaded) << loaded.message().toStdString();
            return loaded ? titlesOf(*loaded.value().project) : QStringList();
        }
        const auto archive = files.readFile(path);
        if (!archive)
            return {};
        const auto contents = persistence::readBundle(archive->bytes, path);
        EXPECT_TRUE(contents) << contents.message().toStdString();
        for (const persistence::BundleFile& file : contents.value().files)
            found.emplace(file.path, file.bytes);
        return titlesOf(*persistence::parseProject(found).value().project);
    }

    static QStringList titlesOf(const core::project::Project& project)
    {
        QStringList titles;
        for (const ContentId& id : {mineId, theirsId}) {
            const auto* const document = project.findAs<Document>(id);
            titles.append(document ? document->title() : u"(none)"_s);
        }
        return titles;
    }

    qsizetype backups() const
    {
        const QString name = QFileInfo(place).completeBaseName();
        return QDir(environment.dataFolder + u"/backups/"_s + name).entryList(QDir::Files).size();
    }

    QTemporaryDir root;
    QString place;
    FaultyFileSystem files;
    persistence::StorageEnvironment environment{files, root.filePath(u"data"_s), {}, [](auto) {}};
    std::unique_ptr<Workspace> workspace;

private:
    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

} // namespace

TEST(FailingMedia, saveAndSaveAsLeaveWholeProjectsAndTheEdit)
{
    for (const QString& from : {u"from"_s, u"from.vellory"_s}) {
        for (const QString& to : {from, u"to"_s, u"to.vellory"_s}) {
            for (const Medium medium : {Medium::Full, Medium::ReadOnly}) {
                int steps = 0;
                for (bool isSaved = false; !isSaved; ++steps) {
                    SCOPED_TRACE((from + u" -> "_s + to).toStdString() + " after " + std::to_string(steps));
                    ASSERT_LT(steps, 100);
                    Desk desk(from);
                    const QString target = desk.root.filePath(to);
                    const auto act = [&] {
                        return to == from ? desk.workspace->save() : desk.workspace->saveAs(target);
                    };
                    desk.limit(medium, steps);
                    const Result<void> saved = act();
                    desk.lift();
                    isSaved = saved.isOk();
                    if (!isSaved) {
                        EXPECT_TRUE(saved.message().contains(QDir::toNativeSeparators(desk.root.path())))
                            << saved.message().toStdString();
                        EXPECT_TRUE(desk.workspace->isModified());
                        EXPECT_EQ(desk.workspace->displayPath(), desk.place);
                        const QStringList before{u"Ebb"_s, u"Ebb"_s};
                        const QStringList after{u"Mine"_s, u"Ebb"_s};
                        EXPECT_TRUE(
                            desk.titlesAt(desk.place) == before ||
                            (to == from && desk.titlesAt(desk.place) == after));
                        const auto again = act();
                        EXPECT_TRUE(again) << again.message().toStdString();
                    }
                    EXPECT_FALSE(desk.workspace->isModified());
                    EXPECT_EQ(desk.titlesAt(target), (QStringList{u"Mine"_s, u"Ebb"_s}));
                    const auto reopened = Workspace::open(desk.environment, target);
                    ASSERT_TRUE(reopened) << reopened.message().toStdString();
                    EXPECT_TRUE(reopened.value()->openingNotice().isEmpty());
                }
                EXPECT_GT(steps, 1);
            }
        }
    }
}

TEST(FailingMedia, mergeKeepsTheEditOrItsBackup)
{
    for (const QString& form : {u"tide"_s, u"tide.vellory"_s}) {
        for (const Medium medium : {Medium::Full, Medium::ReadOnly}) {
            int steps = 0;
            for (bool isMerged = false; !isMerged; ++steps) {
                SCOPED_TRACE(form.toStdString() + " after " + std::to_string(steps));
                ASSERT_LT(steps, 100);
                Desk desk(form);
                desk.writeTheirs();
                auto review = ExternalReview::begin(*desk.workspace);
                ASSERT_TRUE(review) << review.message().toStdString();
                ASSERT_EQ(review.value().verdict(), ReviewVerdict::Mergeable);
                desk.limit(medium, steps);
                const Result<void> merged = review.value().applyMerge();
                desk.lift();
                isMerged = merged.isOk();
                EXPECT_NE(isMerged, !merged.message().isEmpty());
                EXPECT_EQ(desk.titlesAt(desk.place).value(1), u"Theirs"_s);
                const bool isHere = Desk::titlesOf(desk.workspace->project()).first() == u"Mine";
                EXPECT_TRUE(isHere || desk.backups() > 0) << merged.message().toStdString();
                EXPECT_TRUE(isHere || merged.message().contains(u"backed up"));
                if (isMerged) {
                    EXPECT_EQ(desk.titlesAt(desk.place), (QStringList{u"Mine"_s, u"Theirs"_s}));
                }
                // Whatever came of it, the project is one that can be worked on.
                auto next = ExternalReview::begin(*desk.workspace);
                ASSERT_TRUE(next) << next.message().toStdString();
                if (next.value().verdict() == ReviewVerdict::Mergeable) {
                    EXPECT_TRUE(next.value().applyMerge());
                }
                EXPECT_TRUE(desk.workspace->save());
            }
            EXPECT_GT(steps, 3);
        }
    }
}

TEST(FailingMedia, backupIsThereWholeOrNotAtAll)
{
    for (const Medium medium : {Medium::Full, Medium::ReadOnly}) {
        bool isDone = false;
        for (int steps = 0; !isDone; ++steps) {
            SCOPED_TRACE(steps);
            ASSERT_LT(steps, 10);
            Desk desk(u"tide"_s);
            desk.limit(medium, steps);
            const auto backup = desk.workspace->backup(QDateTime(QDate(2026, 3, 9), QTime(7, 8)));
            desk.lift();
            isDone = backup.isOk();
            EXPECT_EQ(desk.backups(), isDone ? 1 : 0);
            EXPECT_TRUE(desk.workspace->isModified());
            if (!isDone) {
                EXPECT_EQ(backup.message(), u"Could not create a backup of the project."_s);
            }
        }
    }
}

} // namespace tw::app::workspace
