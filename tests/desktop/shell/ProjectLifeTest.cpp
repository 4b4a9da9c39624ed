#include "desktop/shell/ProjectLife.h"

#include "app/persistence/bundle/BackupList.h"
#include "app/persistence/files/FaultyFileSystem.h"
#include "core/document/DocumentCommands.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/project/NewProjectDialog.h"
#include "desktop/project/ProjectBackups.h"
#include "desktop/project/RestoreDialog.h"
#include "desktop/settings/Shortcuts.h"
#include "desktop/shell/MainWindow.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/RecentProjects.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/support/NextDialog.h"
#include "desktop/support/NextMessage.h"
#include "desktop/support/TestDesk.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using test::NextDialog;
using test::NextMessage;

namespace {

class ProjectLifeTest : public testing::Test
{
protected:
    ProjectLifeTest()
        : desk(folder.path(), files)
        , window(desk.context, QString())
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    /** Fills in the dialog for a new project as a user does. */
    void makeProject(const QString& name)
    {
        const NextDialog<project::NewProjectDialog> dialog([&](project::NewProjectDialog& shown) {
            shown.findChild<QLineEdit*>(u"projectName"_s)->setText(name);
            shown.findChild<QLineEdit*>(u"projectFolder"_s)->setText(QDir::toNativeSeparators(folder.path()));
            shown.findChild<QPushButton*>(u"createProject"_s)->click();
        });
        window.life().startNew();
        EXPECT_TRUE(dialog.wasSeen());
    }

    /** At the beginning of the first text of a new project. */
    void type(const QString& text)
    {
        ASSERT_TRUE(window.select(u"Premise"_s));
        auto* const page = qobject_cast<manuscript::DocumentPage*>(
            window.findChild<WorkArea*>(u"workArea"_s)->currentPage());
        ASSERT_TRUE(page);
        QTest::keyClicks(&page->editor(), text);
    }

    QString textOf(const QString& title) const
    {
        const auto* const document =
            desk.session.project().findAs<Document>(findObject(desk.session.project(), title));
        return document ? document->body().text : u"(none)"_s;
    }

    QTemporaryDir folder;
    app::persistence::FaultyFileSystem files;
    test::TestDesk desk;
    MainWindow window;
};

} // namespace

TEST_F(ProjectLifeTest, fromNewToRestored)
{
    makeProject(u"Low: Water"_s);
    EXPECT_EQ(desk.session.workspace().displayPath(), path(u"Low- Water.vellory"_s));
    EXPECT_EQ(desk.session.project().name(), u"Low: Water"_s);
    EXPECT_FALSE(desk.session.isModified()) << "on disk at once";

    type(u"A clerk in a tidal town."_s);
    window.life().save();
    EXPECT_FALSE(desk.session.isModified());

    // To the other form and back.
    ASSERT_TRUE(window.life().saveAt(path(u"as folder"_s)));
    EXPECT_TRUE(QFileInfo::exists(path(u"as folder/project.json"_s)));
    ASSERT_TRUE(window.life().saveAt(path(u"as file.vellory"_s)));
    ASSERT_TRUE(window.life().open(path(u"as folder"_s)));
    EXPECT_EQ(textOf(u"Premise"_s), u"A clerk in a tidal town."_s);
    ASSERT_TRUE(window.life().open(path(u"as file.vellory"_s)));
    EXPECT_EQ(textOf(u"Premise"_s), u"A clerk in a tidal town."_s);

    // What is not saved goes into the backup as well.
    auto* const notes = desk.session.projectForCommands().findAsForEdit<Document>(
        findObject(desk.session.project(), u"Loose ends"_s));
    desk.session.apply(std::make_unique<core::document::SetDocumentBodyCommand>(
        *notes, core::document::DocumentBody{u"The bell."_s}));
    window.life().backups().backUp();
    const auto backups = app::persistence::listBackups(desk.environment);
    ASSERT_EQ(backups.size(), 1U);

    const NextDialog<project::RestoreDialog> restore([&](project::RestoreDialog& shown) {
        shown.findChild<QLineEdit*>(u"projectName"_s)->setText(u"Restored"_s);
        shown.findChild<QLineEdit*>(u"projectFolder"_s)->setText(QDir::toNativeSeparators(folder.path()));
        shown.findChild<QPushButton*>(u"restoreBackup"_s)->click();
    });
    EXPECT_TRUE(window.life().open(backups.front().path)) << "opening a backup restores from it";
    EXPECT_EQ(desk.session.workspace().displayPath(), path(u"Restored.vellory"_s));
    EXPECT_EQ(textOf(u"Premise"_s), u"A clerk in a tidal town."_s);
    EXPECT_EQ(textOf(u"Loose ends"_s), u"The bell."_s);
    EXPECT_EQ(
        RecentProjects(desk.settings).paths().first(2),
        (QStringList{path(u"Restored.vellory"_s), path(u"as file.vellory"_s)}));
}

TEST_F(ProjectLifeTest, whatIsDiscardedAfterAFailedSaveIsNotThereAgain)
{
    makeProject(u"Tide"_s);
    const QString file = path(u"Tide.vellory"_s);
    const auto failToSave = [&](const QString& text) {
        type(text);
        files.failingReplacements[file] = app::persistence::FaultyFileSystem::always;
        const NextMessage close(u"Close"_s);
        window.life().save();
        EXPECT_TRUE(close.text.contains(QDir::toNativeSeparators(file)));
        files.failingReplacements.clear();
    };
    type(u"Kept."_s);
    window.life().save();

    failToSave(u"Reloaded."_s);
    {
        const NextMessage discard(u"Discard Changes"_s);
        window.life().reload();
    }
    EXPECT_EQ(textOf(u"Premise"_s), u"Kept."_s);
    EXPECT_EQ(app::persistence::listBackups(desk.environment).size(), 1U);

    failToSave(u"Closed."_s);
    {
        const NextMessage discard(u"Discard Changes"_s);
        EXPECT_TRUE(window.close());
    }
    ASSERT_TRUE(desk.session.open(file));
    EXPECT_EQ(textOf(u"Premise"_s), u"Kept."_s);
    EXPECT_EQ(app::persistence::listBackups(desk.environment).size(), 2U);
}

TEST_F(ProjectLifeTest, whatHindersASaveIsToldUntilItWorks)
{
    using app::persistence::FaultyFileSystem;
    makeProject(u"Tide"_s);
    const struct
    {
        int& left;
        QString advice;
    } cases[] = {
        {files.writesLeft, u"The disk of %1 is full. Free some space there, then try again."_s},
        {files.changesLeft,
         u"Nothing may be written in %1. Allow it there, or choose another place, then try again."_s},
    };
    for (const auto& sample : cases) {
        type(u"More. "_s);
        sample.left = 0;
        const QString advice = sample.advice.arg(QDir::toNativeSeparators(folder.path()));
        {
            const NextMessage close(u"Close"_s);
            window.life().save();
            EXPECT_TRUE(close.text.startsWith(advice)) << close.text.toStdString();
        }
        EXPECT_TRUE(desk.session.saveFailure().startsWith(advice));
        EXPECT_EQ(desk.session.saveState(), SaveState::Failed);
        sample.left = FaultyFileSystem::always;
        window.life().save();
        EXPECT_EQ(desk.session.saveState(), SaveState::Saved);
    }
    ASSERT_TRUE(window.life().open(path(u"Tide.vellory"_s)));
    EXPECT_EQ(textOf(u"Premise"_s), u"More. More. "_s);
}

TEST_F(ProjectLifeTest, aPlaceThatFailsIsAskedForAgain)
{
    QFile file(path(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto fillIn = [](project::NewProjectDialog& shown, const QString& place) {
        shown.findChild<QLineEdit*>(u"projectFolder"_s)->setText(QDir::toNativeSeparators(place));
        shown.findChild<QPushButton*>(u"createProject"_s)->click();
    };
    QString nameAgain;
    std::unique_ptr<NextDialog<project::NewProjectDialog>> second;
    std::unique_ptr<NextMessage> message;
    const NextDialog<project::NewProjectDialog> first([&](project::NewProjectDialog& shown) {
        shown.findChild<QLineEdit*>(u"projectName"_s)->setText(u"Ebb"_s);
        fillIn(shown, path(u"file/below"_s));
        message = std::make_unique<NextMessage>(u"Close"_s);
        second =
            std::make_unique<NextDialog<project::NewProjectDialog>>([&](project::NewProjectDialog& again) {
                nameAgain = again.findChild<QLineEdit*>(u"projectName"_s)->text();
                fillIn(again, path(u"not/there/yet"_s));
            });
    });
    window.life().startNew();
    EXPECT_EQ(
        message->text, u"Cannot create project folder: "_s + QDir::toNativeSeparators(path(u"file/below"_s)));
    EXPECT_EQ(nameAgain, u"Ebb"_s);
    EXPECT_TRUE(QFileInfo::exists(path(u"not/there/yet/Ebb.vellory"_s)));
}

TEST_F(ProjectLifeTest, aNewProjectNeverTakesThePlaceOfAnything)
{
    QFile taken(path(u"Taken.vellory"_s));
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    taken.write("theirs");
    taken.close();
    const NextDialog<project::NewProjectDialog> dialog([&](project::NewProjectDialog& shown) {
        shown.findChild<QLineEdit*>(u"projectFolder"_s)->setText(QDir::toNativeSeparators(folder.path()));
        auto* const name = shown.findChild<QLineEdit*>(u"projectName"_s);
        EXPECT_EQ(shown.focusWidget(), name) << "the name is what one types first";
        name->setText(u"Taken"_s);
        EXPECT_FALSE(shown.findChild<QPushButton*>(u"createProject"_s)->isEnabled());
        EXPECT_TRUE(
            shown.findChild<QLabel*>(u"placeNote"_s)->text().startsWith(u"There is already something at"_s));
        shown.reject();
    });
    window.life().startNew();
    EXPECT_FALSE(desk.session.isProjectOpen());
    ASSERT_TRUE(taken.open(QIODevice::ReadOnly));
    EXPECT_EQ(taken.readAll(), "theirs");
}

TEST_F(ProjectLifeTest, aBackupNeedsAPlace)
{
    desk.session.startNew(u"Nowhere"_s);
    const NextMessage close(u"Close"_s);
    window.life().backups().backUp();
    EXPECT_EQ(close.text, u"Save the project to a folder before backing it up."_s);
}

TEST_F(ProjectLifeTest, whatAnotherMachineChangedIsTold)
{
    makeProject(u"Tide"_s);
    makeProject(u"Ebb"_s);
    // The file of the first one becomes another, as a sync client does it.
    ASSERT_TRUE(window.life().saveAt(path(u"Other.vellory"_s)));
    ASSERT_TRUE(QFile::remove(path(u"Tide.vellory"_s)));
    ASSERT_TRUE(QFile::copy(path(u"Other.vellory"_s), path(u"Tide.vellory"_s)));
    const NextMessage close(u"Close"_s);
    EXPECT_TRUE(window.life().open(path(u"Tide.vellory"_s)));
    EXPECT_EQ(close.title, u"Project File Changed"_s);
    EXPECT_TRUE(close.text.contains(u".twbackup"_s));
}

TEST_F(ProjectLifeTest, aDroppedProjectOpens)
{
    makeProject(u"Tide"_s);
    makeProject(u"Ebb"_s);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path(u"Tide.vellory"_s))});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.session.project().name(), u"Tide"_s);
}

TEST_F(ProjectLifeTest, everyCommandHasANameAndKeysOfItsOwn)
{
    const auto& shortcuts = window.findChild<settings::Shortcuts*>()->all();
    EXPECT_GT(shortcuts.size(), 40U);
    std::set<QString> ids;
    for (const settings::Shortcut& shortcut : shortcuts) {
        EXPECT_TRUE(ids.insert(shortcut.id).second) << shortcut.id.toStdString();
        for (const QKeySequence& keys : shortcut.current) {
            const auto* const other = settings::findConflict(shortcuts, shortcut, keys);
            EXPECT_FALSE(other) << shortcut.id.toStdString() << " and "
                                << (other ? other->id : u""_s).toStdString();
        }
    }
}

TEST(RecentProjectsTest, eachIsDescribedAsItStandsOnDisk)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"Low Water 1.5.vellory"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const RecentProject single = describeRecent(file.fileName());
    EXPECT_EQ(single.name, u"Low Water 1.5"_s);
    EXPECT_EQ(single.state, RecentProject::State::SingleFile);
    EXPECT_EQ(describeRecent(folder.path()).state, RecentProject::State::Folder);
    const RecentProject missing = describeRecent(folder.filePath(u"gone.vellory"_s));
    EXPECT_EQ(missing.name, u"gone"_s);
    EXPECT_EQ(missing.state, RecentProject::State::Missing);
}

} // namespace tw::desktop::shell
