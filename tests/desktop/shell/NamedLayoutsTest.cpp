#include "desktop/shell/NamedLayouts.h"

#include "desktop/manuscript/BodyEditor.h"
#include "desktop/shell/MainWindow.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/support/TestDesk.h"
#include "support/TestFiles.h"

#include <DockAreaWidget.h>
#include <DockManager.h>
#include <DockWidget.h>
#include <QAction>
#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

class NamedLayoutsTest : public testing::Test
{
protected:
    NamedLayoutsTest() { start(); }

    void start()
    {
        window.reset();
        desk = std::make_unique<test::TestDesk>(folder.path());
        window = std::make_unique<MainWindow>(desk->context, QString());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QAction& action(const QString& name) const { return *window->findChild<QAction*>(name); }
    ads::CDockWidget& dock(const QString& name) const
    {
        return *window->findChild<ads::CDockManager*>()->findDockWidget(name);
    }
    bool isShown(const QString& name) const { return !dock(name).isClosed(); }
    bool isInFront(const QString& name) const
    {
        return isShown(name) && dock(name).dockAreaWidget()->currentDockWidget() == &dock(name);
    }
    QString chosen() const
    {
        QString names;
        for (const QString& name : {u"Write"_s, u"Plan"_s, u"World"_s, u"Play"_s}) {
            if (action(u"windows.layout"_s + name).isChecked())
                names += name;
        }
        return names;
    }
    void choose(const QString& name) const { action(u"windows.layout"_s + name).trigger(); }

    QTemporaryDir folder;
    std::unique_ptr<test::TestDesk> desk;
    std::unique_ptr<MainWindow> window;
};

} // namespace

TEST_F(NamedLayoutsTest, eachShowsWhatItIsFor)
{
    const struct
    {
        QString name;
        QStringList inFront;
        QStringList hidden;
    } layouts[] = {
        {u"Plan"_s, {u"manuscript"_s, u"inspector"_s, u"problems"_s}, {u"search"_s, u"snapshots"_s}},
        {u"World"_s, {u"codex"_s, u"inspector"_s}, {u"problems"_s, u"snapshots"_s}},
        {u"Play"_s, {u"codex"_s}, {u"inspector"_s, u"snapshots"_s, u"problems"_s}},
        {u"Write"_s, {u"manuscript"_s, u"inspector"_s}, {u"problems"_s}},
    };
    EXPECT_EQ(chosen(), u"Write"_s);
    for (const auto& layout : layouts) {
        choose(layout.name);
        EXPECT_EQ(chosen(), layout.name);
        for (const QString& panel : layout.inFront)
            EXPECT_TRUE(isInFront(panel)) << layout.name.toStdString() << ' ' << panel.toStdString();
        for (const QString& panel : layout.hidden)
            EXPECT_FALSE(isShown(panel)) << layout.name.toStdString() << ' ' << panel.toStdString();
    }
}

TEST_F(NamedLayoutsTest, whatTheUserMadeOfALayoutComesBackAlsoAtTheNextStart)
{
    choose(u"World"_s);
    dock(u"problems"_s).toggleView(true);
    dock(u"inspector"_s).toggleView(false);
    choose(u"Write"_s);
    EXPECT_FALSE(isShown(u"problems"_s));
    EXPECT_TRUE(isShown(u"inspector"_s));
    choose(u"World"_s);
    EXPECT_TRUE(isShown(u"problems"_s));
    EXPECT_FALSE(isShown(u"inspector"_s));

    choose(u"Play"_s);
    dock(u"snapshots"_s).toggleView(true);
    EXPECT_TRUE(window->close());
    start();
    EXPECT_EQ(chosen(), u"Play"_s);
    EXPECT_TRUE(isShown(u"snapshots"_s));
    choose(u"World"_s);
    EXPECT_TRUE(isShown(u"problems"_s)) << "the others are kept as well";
    choose(u"Play"_s);
    action(u"windows.resetLayout"_s).trigger();
    EXPECT_EQ(chosen(), u"Play"_s);
    EXPECT_FALSE(isShown(u"snapshots"_s));
    choose(u"World"_s);
    EXPECT_TRUE(isShown(u"problems"_s)) << "only the present one begins anew";
}

TEST_F(NamedLayoutsTest, unreadableSettingsGiveTheBuiltInLayout)
{
    ASSERT_TRUE(window->close());
    desk->settings.setValue("window/layout", u"Nonsense"_s);
    desk->settings.setValue("window/dockState", QByteArray("nonsense"));
    desk->settings.setValue("window/layouts/Play", QByteArray("nonsense"));
    desk->settings.sync();
    start();
    EXPECT_EQ(chosen(), u"Write"_s);
    EXPECT_TRUE(isInFront(u"manuscript"_s));
    choose(u"Play"_s);
    EXPECT_TRUE(isInFront(u"codex"_s));
    EXPECT_FALSE(isShown(u"inspector"_s));
}

TEST_F(NamedLayoutsTest, anotherLayoutLeavesTheKeyboardInTheTextAndEndsTheFocusMode)
{
    const QString project = folder.filePath(u"low-water"_s);
    auto sample =
        app::workspace::Workspace::open(desk->environment, test::repositoryPath(u"examples/low-water"));
    ASSERT_TRUE(sample && sample.value()->saveAs(project));
    ASSERT_TRUE(window->life().open(project));
    ASSERT_TRUE(window->select(u"The Spike"_s));
    const QWidget* const text = QApplication::focusWidget();
    ASSERT_TRUE(qobject_cast<const manuscript::BodyEditor*>(text));
    choose(u"Plan"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), text);
    choose(u"Write"_s);
    dock(u"problems"_s).toggleView(true);
    action(u"view.focusMode"_s).trigger();
    EXPECT_FALSE(isShown(u"manuscript"_s));
    choose(u"Play"_s);
    EXPECT_FALSE(action(u"view.focusMode"_s).isChecked());
    EXPECT_TRUE(isInFront(u"codex"_s));
    choose(u"Write"_s);
    EXPECT_TRUE(isShown(u"manuscript"_s));
    EXPECT_TRUE(isShown(u"problems"_s));
}

} // namespace tw::desktop::shell
