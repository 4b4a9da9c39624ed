#include "mcp/server/ProjectRefresher.h"

#include "core/document/DocumentCommands.h"
#include "mcp/ServerFixture.h"

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using core::document::Document;
using core::document::SetDocumentTitleCommand;

class ProjectRefresherTest : public ServerFixture
{
protected:
    ProjectRefresherTest()
    {
        workspace->projectForEdit().add(
            std::make_unique<Document>(id, core::document::DocumentKind::Prose, u"Old"_s));
        EXPECT_TRUE(workspace->save());
        refresher = std::make_unique<ProjectRefresher>(
            *workspace, [this] { return now += pace; }, [this](const QString& line) { logged.append(line); });
    }

    QString title() const { return workspace->project().findAs<Document>(id)->title(); }

    /** What the next call sees. */
    QString titleAfterRefresh()
    {
        refresher->refresh();
        return title();
    }

    static void rename(app::workspace::Workspace& of, const core::ContentId& id, const QString& title)
    {
        of.undoStack().push(std::make_unique<SetDocumentTitleCommand>(
            *of.projectForEdit().findAsForEdit<Document>(id), title));
    }

    void renameHere(const QString& newTitle) { rename(*workspace, id, newTitle); }

    /** What was saved here is no reason to look. */
    void saveRenamed(const QString& newTitle)
    {
        renameHere(newTitle);
        ASSERT_TRUE(workspace->save());
        EXPECT_EQ(refresher->settleChange(), QString());
    }

    /** A call that wants to save what others went past. */
    QString adviceAfterRefusal()
    {
        EXPECT_FALSE(workspace->save());
        return refresher->settleChange();
    }

    /** As the program does it: another workspace on the same folder. */
    void renameElsewhere(const QString& newTitle)
    {
        auto other = app::workspace::Workspace::open(environment, workspace->folderPath());
        ASSERT_TRUE(other);
        rename(*other.value(), id, newTitle);
        ASSERT_TRUE(other.value()->save());
    }

    core::ContentId id = core::ContentId::create();
    std::chrono::nanoseconds now = 0s;
    /** How long everything takes, as the clock has it. */
    std::chrono::nanoseconds pace = 0s;
    QStringList logged;
    std::unique_ptr<ProjectRefresher> refresher;
};

TEST_F(ProjectRefresherTest, readsTheProjectAnewWhenOthersSavedIt)
{
    refresher->refresh();
    EXPECT_TRUE(logged.isEmpty());
    renameElsewhere(u"New"_s);
    now += 1min;
    EXPECT_EQ(titleAfterRefresh(), u"New"_s);
    EXPECT_EQ(logged, QStringList{u"The project changed on disk and was read again."_s});
    refresher->refresh();
    EXPECT_EQ(logged.size(), 1);
}

TEST_F(ProjectRefresherTest, looksAtOnceAfterASaveAndLaterForAnEditInPlace)
{
    renameElsewhere(u"Saved"_s);
    EXPECT_EQ(titleAfterRefresh(), u"Saved"_s);

    const QString path = workspace->folderPath() + u"/objects/"_s + id.toString() + u".json"_s;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray edited = file.readAll().replace("Saved", "Typed");
    file.seek(0);
    file.write(edited);
    file.close();
    now += 1s;
    EXPECT_EQ(titleAfterRefresh(), u"Saved"_s);
    now += 2s;
    EXPECT_EQ(titleAfterRefresh(), u"Typed"_s);

    saveRenamed(u"Own"_s);
    refresher->refresh();
    EXPECT_EQ(logged.size(), 2);
    EXPECT_TRUE(workspace->history().canUndo());
}

TEST_F(ProjectRefresherTest, glancesTheMoreSeldomTheLongerItTakes)
{
    const struct
    {
        std::chrono::nanoseconds glance;
        std::chrono::nanoseconds rest;
    } cases[] = {{10us, 500us}, {1ms, 50ms}, {200ms, 100ms}};
    for (const auto& sample : cases) {
        // After a look at everything, so that a glance is all that is done.
        now += 1min;
        refresher->refresh();
        pace = sample.glance;
        refresher->refresh();
        renameElsewhere(QString::number(sample.glance.count()));
        const QString before = title();
        pace = 0s;
        now += sample.rest - 1ns;
        EXPECT_EQ(titleAfterRefresh(), before);
        now += 1ns;
        EXPECT_EQ(titleAfterRefresh(), QString::number(sample.glance.count()));
    }
}

/** After a save was refused: whatever is undone, the next use has the others' version. */
TEST_F(ProjectRefresherTest, leadsOutOfARefusedSave)
{
    saveRenamed(u"Earlier"_s);
    renameHere(u"Mine"_s);
    renameElsewhere(u"Theirs"_s);
    EXPECT_TRUE(adviceAfterRefusal().startsWith(u"Call undo_last until nothing of this session is unsaved;"));
    EXPECT_EQ(titleAfterRefresh(), u"Mine"_s);
    workspace->undoStack().undo();
    EXPECT_TRUE(refresher->settleChange().startsWith(u"Nothing of this session is unsaved any more:"));
    EXPECT_EQ(titleAfterRefresh(), u"Theirs"_s);

    saveRenamed(u"Again"_s);
    renameElsewhere(u"Latest"_s);
    workspace->undoStack().undo();
    EXPECT_TRUE(adviceAfterRefusal().startsWith(u"The project is read again before the next call,"));
    EXPECT_EQ(titleAfterRefresh(), u"Latest"_s);
}

TEST_F(ProjectRefresherTest, leavesUnsavedChangesAlone)
{
    renameHere(u"Mine"_s);
    renameElsewhere(u"Theirs"_s);
    now += 1min;
    EXPECT_EQ(titleAfterRefresh(), u"Mine"_s);
    EXPECT_FALSE(workspace->save()) << "saving is refused instead";
}

TEST_F(ProjectRefresherTest, keepsTheProjectWhileTheFilesCannotBeRead)
{
    QFile file(workspace->folderPath() + u"/objects/"_s + id.toString() + u".json"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("{ half");
    file.close();
    now += 1min;
    EXPECT_EQ(titleAfterRefresh(), u"Old"_s);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.first().startsWith(u"The project changed on disk but could not be read again: "));
}

} // namespace tw::mcp::server
