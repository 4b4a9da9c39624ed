#include "desktop/shell/DialogSelfTest.h"

#include "desktop/shell/MainWindow.h"
#include "desktop/support/TestDesk.h"

#include <DockManager.h>
#include <DockWidget.h>
#include <QMenu>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

TEST(DialogSelfTest, passesAndFindsDocksThatTheMenuMissesOrRepeats)
{
    const test::TestDesk desk;
    MainWindow window(desk.context, QString());
    const SelfTestReport good = runDialogSelfTest(window, desk.context);
    EXPECT_TRUE(good.isPassed) << good.lines.join(u'\n').toStdString();
    EXPECT_EQ(good.lines.first(), u"selftest: built %1 dialog(s)"_s.arg(selfTestDialogs().size()));

    auto* const manager = window.findChild<ads::CDockManager*>();
    auto* const menu = window.findChild<QMenu*>(u"windowsMenu"_s);
    ASSERT_TRUE(manager && menu);
    const auto docks = manager->dockWidgetsMap();
    menu->addAction(docks.value(u"codex"_s)->toggleViewAction()); // moves it among the commands
    QMenu* const again = menu->addMenu(u"Again"_s);
    again->addAction(docks.value(u"manuscript"_s)->toggleViewAction());
    const SelfTestReport bad = runDialogSelfTest(window, desk.context);
    EXPECT_FALSE(bad.isPassed);
    EXPECT_TRUE(bad.lines.contains(
        u"selftest: %1 dock(s) checked, 1 unreachable, 1 duplicated"_s.arg(docks.size() - 1)))
        << bad.lines.join(u'\n').toStdString();
}

} // namespace tw::desktop::shell
