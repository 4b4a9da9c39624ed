#include "desktop/continuity/ContinuityProblems.h"

#include "core/entity/EntityCommands.h"
#include "core/timeline/TimelineCommands.h"
#include "desktop/problems/ProblemsModel.h"
#include "desktop/problems/ProblemsPanel.h"
#include "desktop/support/MountedLibrary.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tw::desktop::continuity {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;
using core::timeline::TimelineEvent;

namespace {

/** Ann, who is born too late for the feast. */
class ContinuityProblemsTest : public testing::Test
{
protected:
    ContinuityProblemsTest()
        : source(desk.context, nullptr)
        , panel(desk.context, {&source}, nullptr)
        , tester(&panel.model(), QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        ann = core::ContentId::create();
        project().add(std::make_unique<Entity>(ann, core::CategoryId(), u"Ann"_s));
        project().findAsForEdit<Entity>(ann)->setLifespan({100, {}});
        core::timeline::EventDetails details;
        details.title = u"Feast"_s;
        details.participants = {ann};
        feast = core::ContentId::create();
        project().add(std::make_unique<TimelineEvent>(feast, details));
        desk.announce();
        panel.show();
        panel.showWholeManuscript();
    }

    [[nodiscard]] core::project::Project& project() { return desk.session.projectForCommands(); }

    QStringList listed()
    {
        source.finishNow();
        const problems::ProblemsModel& model = panel.model();
        QStringList texts;
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex parent = model.index(group, 0);
            texts.append(parent.data().toString());
            for (int row = 0; row < model.rowCount(parent); ++row)
                texts.append(u"- "_s + model.index(row, 0, parent).data().toString());
        }
        return texts;
    }

    void setRules(std::vector<core::timeline::ContinuityRule> rules)
    {
        desk.session.apply(
            std::make_unique<core::timeline::SetContinuityRulesCommand>(project(), std::move(rules)));
    }

    test::TestDesk desk;
    core::ContentId ann;
    core::ContentId feast;
    ContinuityProblems source;
    problems::ProblemsPanel panel;
    QAbstractItemModelTester tester;
};

} // namespace

TEST_F(ContinuityProblemsTest, conflictsStandUnderWhatTheyAreAbout)
{
    const QStringList early{u"Feast"_s, u"- Ann takes part in \"Feast\" before being born."_s};
    EXPECT_EQ(listed(), early);
    setRules({{u"Hair"_s, ann, u"hair"_s, u"isNonEmpty"_s, {}, {}}, {u"Lost"_s, {}, {}, {}, {}, {}}});
    EXPECT_EQ(
        listed(),
        early +
            QStringList(
                {u"Ann"_s, u"- Rule \"Hair\": Ann's hair must be non-empty, but is \"(unset)\"."_s,
                 u"Project"_s, u"- Rule \"Lost\" refers to an entity that is no longer in the project."_s}));
    desk.session.undo();
    EXPECT_EQ(listed(), early);
    desk.session.apply(std::make_unique<core::entity::SetEntityLifespanCommand>(
        *project().findAsForEdit<Entity>(ann), core::entity::Lifespan()));
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(ContinuityProblemsTest, anEntityInFrontShowsItsOwn)
{
    setRules({{u"Hair"_s, ann, u"hair"_s, u"isNonEmpty"_s, {}, {}}});
    panel.findChild<QAction*>(u"problems.wholeManuscript"_s)->setChecked(false);
    panel.setObject(ann);
    EXPECT_EQ(listed().size(), 2);
    EXPECT_EQ(listed().value(0), u"Ann");
}

TEST_F(ContinuityProblemsTest, goesToTheEvent)
{
    ASSERT_EQ(listed().size(), 2);
    QSignalSpy opened(&desk.navigator, &shell::Navigator::openRequested);
    const problems::ProblemsModel& model = panel.model();
    const auto listedProblem = model.problemAt(model.index(0, 0, model.index(0, 0)));
    listedProblem.source->show(listedProblem.object, *listedProblem.problem);
    EXPECT_EQ(desk.navigator.current(), feast);
    ASSERT_EQ(opened.count(), 1);
    EXPECT_EQ(opened.first().first().value<core::ContentId>(), ann) << "on whose page it stands";
}

TEST_F(ContinuityProblemsTest, entitiesOfLibrariesAreNamedAndStayWhereTheyAre)
{
    const core::ContentId coast = test::mountAtlas(desk, u"Coast"_s);
    setRules({{u"Blue"_s, coast, u"colour"_s, u"isNonEmpty"_s, {}, {}}});
    ASSERT_EQ(listed().value(2), u"Coast");
    QSignalSpy opened(&desk.navigator, &shell::Navigator::openRequested);
    QSignalSpy said(&desk.navigator, &shell::Navigator::said);
    const problems::ProblemsModel& model = panel.model();
    const auto problem = model.problemAt(model.index(0, 0, model.index(1, 0)));
    problem.source->show(problem.object, *problem.problem);
    EXPECT_EQ(opened.count(), 0);
    ASSERT_EQ(said.count(), 1);
    EXPECT_EQ(
        said.first().first().toString(),
        u"“Coast” stands in the library “Atlas”. Open that project to read or change it.");
}

TEST_F(ContinuityProblemsTest, anotherProjectLeavesNothingBehind)
{
    ASSERT_EQ(listed().size(), 2);
    source.checkNow();
    desk.session.startNew(u"Other"_s);
    EXPECT_EQ(listed(), QStringList());
}

} // namespace tw::desktop::continuity
