#include "desktop/shell/MainWindow.h"

#include "core/calendar/CalendarCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/EntityCommands.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/project/ProjectSettingsDialog.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/shell/RecentProjects.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/support/NextDialog.h"
#include "desktop/support/NextMessage.h"
#include "desktop/support/TestDesk.h"
#include "desktop/trees/NavigatorTree.h"
#include "support/TestFiles.h"

#include <QAction>
#include <QDockWidget>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QProgressBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <map>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using test::NextMessage;

namespace {

bool isPartOfPage(const QWidget& widget)
{
    const QWidget* ancestor = &widget;
    while (ancestor && !qobject_cast<const manuscript::BodyEditor*>(ancestor))
        ancestor = ancestor->parentWidget();
    return ancestor != nullptr;
}

class MainWindowTest : public testing::Test
{
protected:
    MainWindowTest()
        : project(folder.filePath(u"low-water"_s))
    {
        start();
        auto sample =
            app::workspace::Workspace::open(desk->environment, test::repositoryPath(u"examples/low-water"));
        EXPECT_TRUE(sample && sample.value()->saveAs(project));
        EXPECT_TRUE(window->life().open(project));
    }

    /** As the program starts, with what the last run left behind. */
    void start()
    {
        window.reset();
        desk = std::make_unique<test::TestDesk>(folder.path());
        window = std::make_unique<MainWindow>(desk->context, QString());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    core::ContentId idOf(const QString& title) const { return findObject(desk->session.project(), title); }

    manuscript::BodyEditor& openText(const QString& title)
    {
        EXPECT_TRUE(window->select(title));
        auto* const page = qobject_cast<manuscript::DocumentPage*>(
            window->findChild<WorkArea*>(u"workArea"_s)->currentPage());
        EXPECT_TRUE(page);
        return page->editor();
    }

    QAction* action(const QString& text) const
    {
        for (QAction* const candidate : window->findChildren<QAction*>()) {
            if (candidate->text().remove(u'&') == text)
                return candidate;
        }
        ADD_FAILURE() << "no action " << text.toStdString();
        return nullptr;
    }

    QTemporaryDir folder;
    QString project;
    std::unique_ptr<test::TestDesk> desk;
    std::unique_ptr<MainWindow> window;
};

} // namespace

TEST_F(MainWindowTest, writesUndoesSavesClosesAndFindsEverythingAgain)
{
    manuscript::BodyEditor& text = openText(u"The Spike"_s);
    const QString before = text.toPlainText();
    QTest::keyClicks(&text, u"First words. "_s);
    auto* const ibbet =
        desk->session.projectForCommands().findAsForEdit<core::entity::Entity>(idOf(u"Ibbet Lusk"_s));
    desk->session.apply(
        std::make_unique<core::entity::SetFieldValueCommand>(*ibbet, u"clerkNumber"_s, u"59"_s));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_TRUE(action(u"Undo Set field value"_s)->isEnabled());
    action(u"Undo Set field value"_s)->trigger();
    action(u"Undo Edit document body"_s)->trigger();
    EXPECT_EQ(text.toPlainText(), before);
    EXPECT_FALSE(window->isWindowModified());
    action(u"Redo Edit document body"_s)->trigger();
    action(u"Redo Set field value"_s)->trigger();
    action(u"Save"_s)->trigger();
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(window->close());

    start();
    EXPECT_TRUE(window->life().reopenLast());
    auto* const page =
        qobject_cast<manuscript::DocumentPage*>(window->findChild<WorkArea*>(u"workArea"_s)->currentPage());
    ASSERT_TRUE(page) << "what was open is open again";
    EXPECT_EQ(page->objectId(), idOf(u"The Spike"_s));
    EXPECT_TRUE(page->editor().toPlainText().startsWith(u"First words. "_s));
    const auto* const again = desk->session.project().findAs<core::entity::Entity>(idOf(u"Ibbet Lusk"_s));
    EXPECT_EQ(again->value(u"clerkNumber"_s), u"59"_s);
}

TEST_F(MainWindowTest, typingIsUndoneBeforeItIsAStep)
{
    manuscript::BodyEditor& text = openText(u"The Spike"_s);
    const QString before = text.toPlainText();
    QAction* const undo = action(u"Undo"_s);
    EXPECT_FALSE(undo->isEnabled());
    QTest::keyClicks(&text, u"x"_s);
    ASSERT_TRUE(undo->isEnabled());
    undo->trigger();
    EXPECT_EQ(text.toPlainText(), before);
    EXPECT_FALSE(undo->isEnabled());
    QAction* const redo = action(u"Redo Edit document body"_s);
    EXPECT_TRUE(redo->isEnabled());
    QTest::keyClicks(&text, u"y"_s);
    EXPECT_FALSE(redo->isEnabled()) << "another line was begun";
}

TEST_F(MainWindowTest, focusModeLeavesTheTextAloneAndComesBack)
{
    manuscript::BodyEditor& text = openText(u"The Spike"_s);
    const QWidget* const menus = window->menuBar();
    QList<QWidget*> trees;
    for (auto* const tree : window->findChildren<trees::NavigatorTree*>()) {
        if (tree->isVisible())
            trees.append(tree);
    }
    ASSERT_FALSE(trees.isEmpty());
    action(u"Focus Mode"_s)->trigger();
    EXPECT_FALSE(trees.front()->isVisible());
    EXPECT_EQ(menus->maximumHeight(), 0);
    EXPECT_TRUE(menus->isVisible()) << "its shortcuts still work";
    EXPECT_TRUE(text.isVisible());
    action(u"Focus Mode"_s)->trigger();
    EXPECT_TRUE(trees.front()->isVisible());
    EXPECT_GT(menus->maximumHeight(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), &text);
}

TEST_F(MainWindowTest, theTextIsShownAsMarkdownAndBack)
{
    QTest::keyClicks(&openText(u"The Spike"_s), u"Held. "_s);
    action(u"Markdown Source"_s)->trigger();
    auto* const page =
        qobject_cast<manuscript::DocumentPage*>(window->findChild<WorkArea*>(u"workArea"_s)->currentPage());
    EXPECT_EQ(page->textView(), manuscript::TextView::MarkdownSource);
    EXPECT_TRUE(page->editor().toPlainText().startsWith(u"Held. "_s));
    EXPECT_FALSE(action(u"Bold"_s)->isEnabled());
    action(u"Markdown Source"_s)->trigger();
    EXPECT_EQ(page->textView(), manuscript::TextView::Rich);
    EXPECT_TRUE(action(u"Bold"_s)->isEnabled());
}

TEST_F(MainWindowTest, closingAsksOnlyWhenSomethingIsUnsaved)
{
    manuscript::BodyEditor& text = openText(u"The Spike"_s);
    QTest::keyClicks(&text, u"x"_s);
    {
        const NextMessage cancel(u"Cancel"_s);
        EXPECT_FALSE(window->close());
        EXPECT_EQ(cancel.text, u"“Low Water” has changes that are not saved."_s);
    }
    {
        const NextMessage discard(u"Discard Changes"_s);
        EXPECT_TRUE(window->close());
    }
    auto reread = app::workspace::Workspace::open(desk->environment, project);
    EXPECT_FALSE(reread.value()->project() == desk->session.project());
}

TEST_F(MainWindowTest, badFoldersAreToldAndTheProjectStays)
{
    const NextMessage close(u"Close"_s);
    EXPECT_FALSE(window->life().open(folder.filePath(u"nowhere"_s)));
    EXPECT_TRUE(close.text.startsWith(u"The project could not be found:"_s));
    EXPECT_FALSE(idOf(u"The Spike"_s).isNull());
    EXPECT_FALSE(window->select(u"No such thing"_s));
}

TEST_F(MainWindowTest, damagedLinksAreToldWhenTheProjectIsRead)
{
    const auto hangUnder = [this](const QString& title, const core::ContentId& parent) {
        QFile file(project + u"/objects/%1.json"_s.arg(idOf(title).toString()));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
        object.insert(u"parentId"_s, parent.toString());
        ASSERT_TRUE(file.resize(0) && file.seek(0));
        file.write(QJsonDocument(object).toJson());
    };
    hangUnder(u"The Spike"_s, idOf(u"The Spike"_s));
    const QString notice = u"%1 item(s) stand under themselves or under something that is missing; they are "
                           u"shown at the top level."_s;
    ASSERT_TRUE(window->life().open(project));
    EXPECT_EQ(window->statusBar()->currentMessage(), notice.arg(1));
    EXPECT_TRUE(window->select(u"The Spike"_s));

    hangUnder(u"Stillday"_s, core::ContentId::create());
    window->life().reload();
    QCoreApplication::processEvents();
    EXPECT_EQ(window->statusBar()->currentMessage(), notice.arg(2));
}

TEST_F(MainWindowTest, refusedSaveSaysWhyAndKeepsTheChanges)
{
    manuscript::BodyEditor& text = openText(u"The Spike"_s);
    QTest::keyClicks(&text, u"x"_s);
    // As a sync client leaves a file half-way through.
    QFile other(project + u"/objects/%1.json"_s.arg(idOf(u"Ibbet Lusk"_s).toString()));
    ASSERT_TRUE(other.open(QIODevice::ReadWrite));
    ASSERT_TRUE(other.resize(40));
    other.close();
    const NextMessage close(u"Close"_s);
    action(u"Save"_s)->trigger();
    EXPECT_TRUE(close.text.startsWith(u"The files on disk cannot be read as a project right now"_s));
    EXPECT_EQ(desk->session.saveState(), SaveState::Failed);
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(MainWindowTest, audiencesAreManagedFromTheProjectMenu)
{
    const test::NextDialog<project::ProjectSettingsDialog> dialog([](project::ProjectSettingsDialog& shown) {
        const auto* const list = qobject_cast<QListWidget*>(shown.focusWidget());
        EXPECT_TRUE(list && list->objectName() == u"audiences"_s && list->currentRow() == 0);
        shown.reject();
    });
    action(u"Manage Audiences…"_s)->trigger();
    EXPECT_TRUE(dialog.wasSeen());
}

TEST_F(MainWindowTest, theStoryDateIsToldInEveryReckoningAlsoInOneWithoutAName)
{
    openText(u"The Spike"_s);
    auto& edited = desk->session.projectForCommands();
    desk->session.apply(std::make_unique<core::document::SetDocumentSceneInstantCommand>(
        *edited.findAsForEdit<core::document::Document>(idOf(u"The Spike"_s)), 0));
    desk->session.apply(std::make_unique<core::calendar::SetReckoningsCommand>(
        edited, std::vector<core::calendar::Reckoning>(1)));
    const auto labels = window->statusBar()->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(
        labels, [](const QLabel* label) { return label->toolTip().contains(u"\n(unnamed reckoning): "_s); }));
}

TEST_F(MainWindowTest, aMessageThatWouldBeCutHasTheRoomOfTheCounts)
{
    QStatusBar& bar = *window->statusBar();
    const auto* const target = bar.findChild<QProgressBar*>();
    bar.showMessage(u"Saved."_s);
    EXPECT_TRUE(target->isVisible());
    bar.showMessage(QString(window->width(), u'w'));
    EXPECT_FALSE(target->isVisible());
    bar.clearMessage();
    EXPECT_TRUE(target->isVisible());
}

TEST_F(MainWindowTest, everyPanelStandsInTheWindowsMenuOnce)
{
    QMenu* windows = nullptr;
    for (QAction* const menu : window->menuBar()->actions()) {
        if (menu->text() == u"&Windows"_s)
            windows = menu->menu();
    }
    ASSERT_TRUE(windows);
    for (const QString& title : {u"Manuscript"_s, u"Codex"_s, u"Inspector"_s}) {
        const auto count = std::ranges::count_if(
            windows->actions(), [&title](const QAction* entry) { return entry->text() == title; });
        EXPECT_EQ(count, 1) << title.toStdString();
    }
    for (const QString& name : {u"manuscript"_s, u"codex"_s, u"inspector"_s})
        EXPECT_TRUE(window->select(name)) << name.toStdString();
}

TEST_F(MainWindowTest, splittingShowsOnePageTwice)
{
    openText(u"The Spike"_s);
    auto* const area = window->findChild<WorkArea*>(u"workArea"_s);
    area->splitCurrent();
    EXPECT_EQ(area->count(), 2);
    const QStringList addresses = area->openAddresses();
    area->closeAll();
    EXPECT_FALSE(area->hasPages());
    EXPECT_EQ(area->count(), 1);
    area->restoreAddresses(addresses);
    EXPECT_EQ(area->openAddresses(), addresses);
}

TEST_F(MainWindowTest, anotherTextSizeReachesTheOpenWindowAtOnce)
{
    desk->themes.apply(*qApp);
    ASSERT_TRUE(window->select(u"Ibbet Lusk"_s));
    const auto sizes = [this] {
        std::map<const QWidget*, qreal> result;
        for (const QWidget* const widget : window->findChildren<QWidget*>()) {
            // The size of the page is the writer's own.
            if (!isPartOfPage(*widget))
                result[widget] = widget->font().pointSizeF();
        }
        return result;
    };
    const auto before = sizes();
    desk->themes.setFontScale(1.5);
    for (const auto& [widget, size] : sizes()) {
        const auto earlier = before.find(widget);
        if (earlier != before.end()) {
            EXPECT_NEAR(size / earlier->second, 1.5, 0.01)
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
        }
    }
    desk->themes.setFontScale(1.0);
}

TEST(RecentProjectsTest, newestFirstEachOnce)
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(u"s.ini"_s), QSettings::IniFormat);
    RecentProjects recent(settings);
    for (const QString& path : {u"/a"_s, u"/b"_s, u"/a"_s})
        recent.add(path);
    EXPECT_EQ(recent.paths(), (QStringList{u"/a"_s, u"/b"_s}));
    recent.remove(u"/a"_s);
    EXPECT_EQ(recent.paths(), QStringList{u"/b"_s});
}

} // namespace tw::desktop::shell
