// The command palette and the quick switcher, through the real window.
#include "core/content/ContentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/project/ProjectCommands.h"
#include "desktop/finder/FinderModel.h"
#include "desktop/finder/FinderPopup.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/support/SampleWindow.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLineEdit>
#include <QListView>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::finder {

using namespace Qt::Literals::StringLiterals;

namespace {

class FinderTest : public testing::Test, protected test::SampleWindow
{
protected:
    FinderTest()
    {
        // The sample may open on any page.
        work.closeAll();
        EXPECT_TRUE(window.select(u"The Spike"_s));
    }

    core::ContentId idOf(const QString& title) const
    {
        return shell::findObject(desk.session.project(), title);
    }
    QAction& action(const QString& name) const { return *window.findChild<QAction*>(name); }

    void goTo(const QString& typed)
    {
        action(u"view.goTo"_s).trigger();
        QTest::keyClicks(&line, typed);
    }
    void openPalette(const QString& typed)
    {
        action(u"view.commandPalette"_s).trigger();
        QTest::keyClicks(&line, typed);
    }

    QStringList column(int role) const
    {
        QStringList texts;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            texts.append(list.model()->index(row, 0).data(role).toString());
        return texts;
    }
    QStringList texts() const { return column(Qt::DisplayRole); }
    QString current() const { return list.currentIndex().data().toString(); }

    FinderPopup& popup = *window.findChild<FinderPopup*>();
    QLineEdit& line = *popup.findChild<QLineEdit*>();
    QListView& list = *popup.findChild<QListView*>();
    shell::WorkArea& work = *window.findChild<shell::WorkArea*>(u"workArea"_s);
    QAbstractItemModelTester tester{list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(FinderTest, commandsAreFoundByWordsOfTheirTextsAndMenusAndRun)
{
    openPalette(u"pag vi"_s);
    ASSERT_EQ(texts(), QStringList{u"Page View"_s});
    EXPECT_EQ(column(FinderModel::PlaceRole).front(), u"View"_s);
    QAction& pageView = action(u"view.page"_s);
    const bool wasChecked = pageView.isChecked();
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_FALSE(popup.isVisible());
    EXPECT_NE(pageView.isChecked(), wasChecked);

    openPalette(QString());
    EXPECT_EQ(texts().front(), u"Page View"_s) << "what was run last comes first";
    EXPECT_EQ(texts().count(u"Page View"_s), 1);
    QTest::keyClicks(&line, u"THEME dark"_s);
    EXPECT_EQ(texts(), QStringList{u"Dark"_s}) << "its menu is View › Theme";
    line.clear();
    QTest::keyClicks(&line, u"full screen"_s);
    EXPECT_EQ(column(FinderModel::NoteRole).front(), u"F11"_s);
    line.clear();
    QTest::keyClicks(&line, u"no such command"_s);
    EXPECT_TRUE(texts().isEmpty());
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_TRUE(popup.isVisible()) << "there is nothing to run";
}

TEST_F(FinderTest, whatCannotBeRunNowIsShownAndNotRun)
{
    openPalette(u"redo"_s);
    ASSERT_EQ(texts(), QStringList{u"Redo"_s});
    EXPECT_FALSE(list.currentIndex().data(FinderModel::AvailableRole).toBool());
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_TRUE(popup.isVisible());
}

TEST_F(FinderTest, commandsWorkOnTheTextThatHadTheKeyboard)
{
    auto& text = qobject_cast<manuscript::DocumentPage*>(work.currentPage())->editor();
    text.setFocus();
    openPalette(u"select all"_s);
    EXPECT_TRUE(line.hasFocus());
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_TRUE(text.hasFocus());
    EXPECT_TRUE(text.textCursor().hasSelection());
}

TEST_F(FinderTest, theKeysMoveInTheListAndLeaveIt)
{
    auto& text = qobject_cast<manuscript::DocumentPage*>(work.currentPage())->editor();
    text.setFocus();
    openPalette(QString());
    const QStringList all = texts();
    ASSERT_GT(all.size(), 40);
    const struct
    {
        Qt::Key key;
        QString current;
    } steps[] = {
        {Qt::Key_Down, all[1]},      {Qt::Key_Tab, all[2]},    {Qt::Key_Up, all[1]},
        {Qt::Key_PageDown, all[12]}, {Qt::Key_PageUp, all[1]}, {Qt::Key_PageUp, all[0]},
        {Qt::Key_Up, all.back()},    {Qt::Key_Down, all[0]},
    };
    for (const auto& step : steps) {
        QTest::keyClick(&line, step.key);
        EXPECT_EQ(current(), step.current);
        EXPECT_TRUE(line.hasFocus());
        EXPECT_TRUE(line.accessibleDescription().startsWith(step.current));
    }
    QTest::keyClick(&line, Qt::Key_Escape);
    EXPECT_FALSE(popup.isVisible());
    EXPECT_TRUE(text.hasFocus());
    openPalette(QString());
    QTest::mouseClick(window.statusBar(), Qt::LeftButton);
    EXPECT_FALSE(popup.isVisible());
    EXPECT_TRUE(text.hasFocus()) << "nobody else wanted the keyboard";
}

TEST_F(FinderTest, escapeLeavesThePopupBeforeTheFocusMode)
{
    action(u"view.focusMode"_s).trigger();
    openPalette(QString());
    QTest::keyClick(&line, Qt::Key_Escape);
    EXPECT_FALSE(popup.isVisible());
    EXPECT_TRUE(action(u"view.focusMode"_s).isChecked());
    action(u"view.focusMode"_s).trigger();
}

TEST_F(FinderTest, documentsAndEntitiesOpenHereOrBeside)
{
    goTo(u"ibbet"_s);
    EXPECT_EQ(texts().front(), u"Ibbet Lusk"_s);
    EXPECT_FALSE(column(FinderModel::PlaceRole).front().isEmpty());
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(work.currentPage()->objectId(), idOf(u"Ibbet Lusk"_s));
    EXPECT_EQ(work.count(), 1);

    goTo(QString());
    EXPECT_EQ(texts().front(), u"The Spike"_s) << "where one was before";
    EXPECT_FALSE(texts().contains(u"Ibbet Lusk"_s)) << "where one is";
    QTest::keyClick(&line, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(work.count(), 2);
    EXPECT_EQ(work.currentPage()->objectId(), idOf(u"The Spike"_s));

    auto* const ibbet =
        desk.session.projectForCommands().findAsForEdit<core::entity::Entity>(idOf(u"Ibbet Lusk"_s));
    desk.session.apply(std::make_unique<core::entity::SetEntityAliasesCommand>(
        *ibbet, QStringList{u"Keeper of the Zwölfuhr"_s}));
    goTo(u"zwolf"_s);
    EXPECT_EQ(texts(), QStringList{u"Keeper of the Zwölfuhr — Ibbet Lusk"_s});
    desk.session.undo();
    goTo(u"zwolf"_s);
    EXPECT_TRUE(texts().isEmpty()) << "the titles follow the project";
}

TEST_F(FinderTest, anAudienceSeesOnlyWhatIsForIt)
{
    const core::ContentId part = idOf(u"Part One: The Day Book"_s);
    auto* const object = desk.session.projectForCommands().findForEdit(part);
    desk.session.apply(std::make_unique<core::content::SetObjectVisibilityCommand>(
        *object, core::content::NameSet{u"Author"_s}));
    goTo(u"part one"_s);
    EXPECT_EQ(texts().front(), u"Part One: The Day Book"_s);
    QTest::keyClick(&line, Qt::Key_Escape);
    desk.navigator.setAudience(u"Readers"_s);
    goTo(u"part one"_s);
    EXPECT_FALSE(texts().contains(u"Part One: The Day Book"_s));
    line.clear();
    QTest::keyClicks(&line, u"the spike"_s);
    EXPECT_EQ(texts().value(0), u"The Spike"_s);
    EXPECT_FALSE(column(FinderModel::PlaceRole).join(u' ').contains(u"The Day Book"_s)) << "nor in a path";
    line.clear();
    work.closeAll();
    EXPECT_FALSE(texts().contains(u"Part One: The Day Book"_s)) << "nor among what was visited";
}

TEST_F(FinderTest, librariesAreFoundTooAndSayWhereTheyStand)
{
    const QString path = folder.filePath(u"atlas"_s);
    {
        app::workspace::Workspace library(desk.environment);
        library.projectForEdit().setName(u"Atlas"_s);
        library.projectForEdit().add(std::make_unique<core::entity::Entity>(
            core::ContentId::create(), core::CategoryId(), u"Quernmoor"_s));
        ASSERT_TRUE(library.saveAs(path));
    }
    goTo(u"quern"_s);
    EXPECT_TRUE(texts().isEmpty());
    desk.session.apply(std::make_unique<core::project::SetLibraryMountsCommand>(
        desk.session.projectForCommands(), std::vector<core::project::LibraryMount>{{path}}));
    goTo(u"quern"_s);
    ASSERT_EQ(texts(), QStringList{u"Quernmoor"_s});
    EXPECT_EQ(column(FinderModel::NoteRole).front(), u"library Atlas"_s);
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_TRUE(window.statusBar()->currentMessage().contains(u"library “Atlas”"_s));
}

} // namespace tw::desktop::finder
