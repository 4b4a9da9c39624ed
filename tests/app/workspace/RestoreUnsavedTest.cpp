#include "app/workspace/Workspace.h"

#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/ProjectFiles.h"
#include "core/undo/UndoStack.h"
#include "support/RandomCommands.h"

#include "../persistence/files/FaultyFileSystem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::workspace {

namespace {

using Versions = std::map<QString, persistence::FileVersion>;
using persistence::ProjectFileMap;

class RestoreUnsaved : public testing::Test
{
protected:
    std::unique_ptr<Workspace> open(const QString& path) const
    {
        auto opened = Workspace::open(environment, path);
        EXPECT_TRUE(opened) << opened.message().toStdString();
        return opened ? std::move(opened).value() : nullptr;
    }

    std::unique_ptr<Workspace> makeSaved(const QString& path) const
    {
        Workspace workspace(environment);
        test::fillWithEveryKind(workspace.projectForEdit());
        EXPECT_TRUE(workspace.saveAs(path));
        return open(path);
    }

    static ProjectFileMap filesOf(const Workspace& workspace)
    {
        return persistence::serializeProject(workspace.project());
    }

    /** Some edits have more than one form, as a list with an empty place in it; reading knows one. */
    static ProjectFileMap asRead(const ProjectFileMap& files)
    {
        return persistence::serializeProject(*persistence::parseProject(files).value().project);
    }

    static ProjectFileMap onDisk(const QString& folder)
    {
        ProjectFileMap files;
        QDir root(folder);
        for (const QString& name : {u"objects"_s, u"taxonomy"_s, u"."_s}) {
            for (const QString& file : QDir(folder + u'/' + name).entryList({u"*.json"_s}, QDir::Files)) {
                const QString path = name == u"." ? file : name + u'/' + file;
                QFile source(root.filePath(path));
                EXPECT_TRUE(source.open(QIODevice::ReadOnly));
                files.emplace(path, source.readAll());
            }
        }
        return files;
    }

    /** What turns one into the other. */
    static Versions difference(const ProjectFileMap& from, const ProjectFileMap& to)
    {
        Versions changed;
        for (const auto& [path, bytes] : from) {
            if (!to.contains(path))
                changed.emplace(path, std::nullopt);
        }
        for (const auto& [path, bytes] : to) {
            const auto earlier = from.find(path);
            if (earlier == from.end() || earlier->second != bytes)
                changed.emplace(path, bytes);
        }
        return changed;
    }

    QTemporaryDir root;
    persistence::FaultyFileSystem files;
    persistence::StorageEnvironment environment{files, root.filePath(u"data"_s), {}, [](auto) {}};
};

} // namespace

TEST_F(RestoreUnsaved, anyEditsComeBackAndAreSavedLikeAnyOthers)
{
    qsizetype removed = 0;
    for (const QString& name : {u"tide"_s, u"tide.vellory"_s}) {
        for (quint32 seed = 1; seed <= 6; ++seed) {
            SCOPED_TRACE(name.toStdString() + " " + std::to_string(seed));
            const QString place = root.filePath(QString::number(seed) + name);
            auto workspace = makeSaved(place);
            const ProjectFileMap saved = filesOf(*workspace);
            {
                // Enough that objects and categories come, change and go.
                test::RandomCommands commands(workspace->projectForEdit(), seed);
                for (int count = 0; count < 150; ++count)
                    workspace->undoStack().push(commands.next());
            }
            const ProjectFileMap edited = asRead(filesOf(*workspace));
            const Versions changed = difference(saved, edited);
            ASSERT_TRUE(changed.contains(u"project.json"_s));
            removed += std::ranges::count_if(changed, [](const auto& file) { return !file.second; });

            workspace = open(place);
            const int writes = files.writes();
            ASSERT_TRUE(workspace->restoreUnsaved(changed));
            EXPECT_EQ(files.writes(), writes);
            EXPECT_TRUE(workspace->isModified());
            EXPECT_FALSE(workspace->history().canUndo());
            EXPECT_TRUE(filesOf(*workspace) == edited);
            ASSERT_TRUE(workspace->save());
            EXPECT_TRUE(onDisk(workspace->folderPath()) == edited);
            EXPECT_TRUE(filesOf(*open(place)) == edited);
        }
    }
    EXPECT_GT(removed, 0);
}

TEST_F(RestoreUnsaved, takesTheProjectAsItIsBackToo)
{
    auto workspace = makeSaved(root.filePath(u"tide"_s));
    const ProjectFileMap saved = filesOf(*workspace);
    Versions without;
    for (const auto& [path, bytes] : saved) {
        if (path != u"project.json")
            without.emplace(path, std::nullopt);
    }
    ASSERT_TRUE(workspace->restoreUnsaved(without));
    ASSERT_TRUE(workspace->save());
    EXPECT_EQ(onDisk(workspace->folderPath()).size(), 1U);
    ASSERT_TRUE(workspace->restoreUnsaved({saved.begin(), saved.end()}));
    ASSERT_TRUE(workspace->save());
    EXPECT_TRUE(onDisk(workspace->folderPath()) == saved);
}

TEST_F(RestoreUnsaved, refusesWhatIsNoProjectAndChangesNothing)
{
    auto workspace = makeSaved(root.filePath(u"tide"_s));
    const ProjectFileMap saved = filesOf(*workspace);
    const QString object = saved.begin()->first;
    ASSERT_TRUE(object.startsWith(u"objects/"));
    const auto refused = workspace->restoreUnsaved({{object, "{ half of it"}});
    EXPECT_TRUE(refused.message().contains(object)) << refused.message().toStdString();
    EXPECT_TRUE(filesOf(*workspace) == saved);
    EXPECT_FALSE(workspace->isModified());

    // Nothing of the journal leads out of the project.
    ASSERT_TRUE(workspace->restoreUnsaved({{u"../outside.json"_s, "{}"}, {u"objects/../../x.json"_s, "{}"}}));
    ASSERT_TRUE(workspace->save());
    EXPECT_TRUE(onDisk(workspace->folderPath()) == saved);
    EXPECT_FALSE(QFile::exists(root.filePath(u"outside.json"_s)));
    EXPECT_FALSE(QFile::exists(root.filePath(u"x.json"_s)));
}

} // namespace tw::app::workspace
