#include "desktop/proofreading/ProofreadingFixture.h"

#include "desktop/problems/ProblemsModel.h"
#include "desktop/problems/ProblemsPanel.h"
#include "desktop/proofreading/ProseProblems.h"
#include "desktop/trees/TreeRoles.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QTest>
#include <QTreeView>

namespace tw::desktop::problems {

using namespace Qt::Literals::StringLiterals;

namespace {

class ProblemsPanelTest : public test::ProofreadingFixture
{
protected:
    ProblemsPanelTest()
        : prose(desk.context, *service, nullptr)
        , panel(desk.context, {&prose}, nullptr)
        , tester(&panel.model(), QAbstractItemModelTester::FailureReportingMode::Fatal)
    {}

    QStringList listed()
    {
        prose.finishNow();
        const ProblemsModel& model = panel.model();
        QStringList texts;
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex parent = model.index(group, 0);
            texts.append(parent.data().toString());
            for (int row = 0; row < model.rowCount(parent); ++row) {
                const ListedProblem listedProblem = model.problemAt(model.index(row, 0, parent));
                texts.append(u"- "_s + listedProblem.problem->text);
            }
        }
        return texts;
    }

    void wholeManuscript() { panel.findChild<QAction*>(u"problems.wholeManuscript"_s)->setChecked(true); }

    proofreading::ProseProblems prose;
    ProblemsPanel panel;
    QAbstractItemModelTester tester;
};

} // namespace

TEST_F(ProblemsPanelTest, listsTheOpenDocumentOrTheWholeManuscriptInReadingOrder)
{
    open(u"the shipp sailed\n\nquickly"_s);
    const core::ContentId second = desk.addDocument(u"Second"_s, {}, 1);
    desk.document(second).setBody({u"dawnn"_s, {}});
    const core::ContentId inside = desk.addDocument(u"Inside"_s, id, 0);
    desk.document(inside).setBody({u"the the"_s, {}});
    desk.addDocument(u"Empty"_s, {}, 2);
    desk.announce();
    panel.show();
    EXPECT_EQ(listed(), QStringList());
    panel.setObject(id);
    EXPECT_EQ(listed(), (QStringList{u"Chapter"_s, u"- shipp"_s, u"- quickly"_s}));
    wholeManuscript();
    EXPECT_EQ(
        listed(), (QStringList{
                      u"Chapter"_s, u"- shipp"_s, u"- quickly"_s, u"Inside"_s, u"- the the"_s, u"Second"_s,
                      u"- dawnn"_s}));
    EXPECT_EQ(panel.model().counts().value(u"spelling"_s), 2);
    panel.model().setCategoryHidden(u"spelling"_s, true);
    EXPECT_EQ(listed(), (QStringList{u"Chapter"_s, u"- quickly"_s, u"Inside"_s, u"- the the"_s}));
    EXPECT_EQ(panel.model().counts().value(u"spelling"_s), 2);
    EXPECT_EQ(panel.model().shownCount(), 2);
}

TEST_F(ProblemsPanelTest, followsEditsIgnoringAndWords)
{
    open(u"the shipp and the dawnn"_s);
    panel.show();
    panel.setObject(id);
    EXPECT_EQ(listed().size(), 3);
    prose.ignore(id, *panel.model().problemAt(panel.model().index(0, 0, panel.model().index(0, 0))).problem);
    EXPECT_EQ(listed(), (QStringList{u"Chapter"_s, u"- dawnn"_s}));
    prose.restoreIgnored(id);
    EXPECT_EQ(listed().size(), 3);
    service->ignore(id, proofreading::ProblemKind::Spelling, u"shipp"_s);
    service->addToDictionary(u"dawnn"_s);
    EXPECT_EQ(listed(), QStringList());
    page->editor().moveCursor(QTextCursor::End);
    QTest::keyClicks(&page->editor(), u" taaken"_s);
    desk.session.commitPendingEdits();
    EXPECT_EQ(listed(), (QStringList{u"Chapter"_s, u"- taaken"_s}));
}

TEST_F(ProblemsPanelTest, ofVeryManyTheLastRowSaysHowManyMoreThereAre)
{
    open(u"dawnn"_s + u"\n\nshipp"_s.repeated(599));
    panel.show();
    panel.setObject(id);
    prose.finishNow();
    const ProblemsModel& model = panel.model();
    const auto group = [&model] { return model.index(0, 0); };
    EXPECT_EQ(group().data(trees::CountRole).toString(), u"600"_s);
    ASSERT_EQ(model.rowCount(group()), 501);
    const auto last = [&] { return model.index(model.rowCount(group()) - 1, 0, group()); };
    EXPECT_EQ(last().data().toString(), u"100 more. Settle these first, or hide kinds."_s);
    EXPECT_TRUE(model.problemAt(model.index(499, 0, group())).problem);
    EXPECT_FALSE(model.problemAt(last()).problem);
    auto* const tree = panel.findChild<QTreeView*>();
    const int before = page->editor().textCursor().position();
    tree->setCurrentIndex(tree->model()->index(500, 0, tree->model()->index(0, 0)));
    QTest::keyClick(tree, Qt::Key_Return);
    emit tree->customContextMenuRequested({});
    EXPECT_EQ(page->editor().textCursor().position(), before);

    prose.ignore(id, *model.problemAt(model.index(0, 0, group())).problem);
    prose.finishNow();
    EXPECT_EQ(last().data().toString(), u"99 more. Settle these first, or hide kinds."_s);
    EXPECT_EQ(model.shownCount(), 599);
}

TEST_F(ProblemsPanelTest, goesToTheRightOneOfEqualWordsAndReplacesIt)
{
    open(u"shipp\n\n*the* shipp and the **shipp**"_s);
    panel.show();
    panel.setObject(id);
    ASSERT_EQ(listed().size(), 4);
    const ProblemsModel& model = panel.model();
    const Problem third = *model.problemAt(model.index(2, 0, model.index(0, 0))).problem;
    prose.show(id, third);
    EXPECT_EQ(page->editor().textCursor().selectedText(), u"shipp"_s);
    EXPECT_EQ(page->editor().textCursor().selectionStart(), 24);
    EXPECT_EQ(prose.suggestions(id, third).value(0), u"ship"_s);
    prose.replace(id, third, u"ship"_s);
    EXPECT_EQ(body(), u"shipp\n\n*the* shipp and the **ship**"_s);

    QString said;
    QObject::connect(
        &desk.navigator, &shell::Navigator::said, &panel, [&said](const QString& text) { said = text; });
    prose.replace(id, third, u"ship"_s);
    EXPECT_TRUE(said.contains(u"shipp"_s)) << "there are but two left";
}

TEST_F(ProblemsPanelTest, opensThePlaceOfTheRowByTheKeyboard)
{
    open(u"the ship\n\nthe dawnn"_s);
    panel.show();
    panel.setObject(id);
    ASSERT_EQ(listed().size(), 2);
    auto* const tree = panel.findChild<QTreeView*>();
    tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0)));
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(page->editor().textCursor().selectedText(), u"dawnn"_s);
}

} // namespace tw::desktop::problems
