#include "desktop/shell/MainWindow.h"

#include "desktop/problems/ProblemsModel.h"
#include "desktop/problems/ProblemsPanel.h"
#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/proofreading/ProseProblems.h"
#include "desktop/support/TestDesk.h"

#include <QAction>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

TEST(ProofreadingWindow, listsTheProblemsOfThePageInFrontOnceThePanelIsAskedFor)
{
    test::TestDesk desk;
    const core::ContentId first = desk.addDocument(u"First"_s, {}, 0);
    const core::ContentId second = desk.addDocument(u"Second"_s, {}, 1);
    desk.document(first).setBody({u"the the"_s, {}});
    desk.document(second).setBody({u"in order to"_s, {}});
    desk.announce();
    MainWindow window(desk.context, QString());
    window.show();
    desk.navigator.open(first);
    auto* const panel = window.findChild<problems::ProblemsPanel*>();
    auto* const prose = window.findChild<proofreading::ProseProblems*>();
    const auto listed = [&] {
        prose->finishNow();
        const auto& model = panel->model();
        return model.problemAt(model.index(0, 0, model.index(0, 0))).problem;
    };
    EXPECT_FALSE(panel->isVisible());
    EXPECT_FALSE(listed()) << "nobody looks";

    window.findChild<QAction*>(u"tools.problems"_s)->trigger();
    ASSERT_TRUE(panel->isVisible());
    ASSERT_TRUE(listed());
    EXPECT_EQ(listed()->text, u"the the"_s);
    desk.navigator.open(second);
    ASSERT_TRUE(listed());
    EXPECT_EQ(listed()->text, u"in order to"_s);
}

TEST(ProofreadingWindow, switchesMarksByItsMenuAndShowsWhatWasSwitchedElsewhere)
{
    test::TestDesk desk;
    MainWindow window(desk.context, QString());
    auto* const service = window.findChild<proofreading::ProofreadingService*>();
    QAction* const spelling = window.findChild<QAction*>(u"tools.spellWhileTyping"_s);
    QAction* const style = window.findChild<QAction*>(u"tools.proofreadWhileTyping"_s);
    EXPECT_TRUE(spelling->isChecked());
    EXPECT_FALSE(style->isChecked());
    spelling->trigger();
    EXPECT_FALSE(service->settings().marksSpelling);
    EXPECT_FALSE(spelling->isChecked());
    proofreading::ProofreadingSettings settings = service->settings();
    settings.marksStyle = true;
    service->setSettings(settings);
    EXPECT_TRUE(style->isChecked());
}

} // namespace tw::desktop::shell
