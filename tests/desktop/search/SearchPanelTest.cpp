#include "desktop/search/SearchPanel.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/manuscript/PassageFinder.h"
#include "desktop/search/SearchEdits.h"
#include "desktop/search/SearchModel.h"
#include "desktop/support/TestDesk.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <gtest/gtest.h>

namespace tw::desktop::search {

using namespace Qt::Literals::StringLiterals;
using app::search::TextMatcher;

namespace {

class SearchPanelTest : public testing::Test
{
protected:
    SearchPanelTest()
        : first(desk.addDocument(u"The tide"_s, {}, 0))
        , second(desk.addDocument(u"Harbour"_s, {}, 1))
    {
        desk.document(first).setBody({u"A **tide** comes.\n\nThe tide goes."_s, {}});
        desk.document(second).setBody({u"No water. One tide."_s, {}});
        panel.resize(320, 600);
        panel.show();
    }

    void look(const QString& text)
    {
        QSignalSpy finished(panel.findChild<ProjectSearch*>(), &ProjectSearch::finished);
        panel.lookFor(text);
        ASSERT_TRUE(finished.count() > 0 || finished.wait());
    }

    /** "The tide 3; Harbour 1". */
    QString shown()
    {
        QStringList texts;
        for (int row = 0; row < panel.model().rowCount(); ++row) {
            const QModelIndex index = panel.model().index(row, 0);
            texts.append(u"%1 %2"_s.arg(index.data().toString()).arg(panel.model().rowCount(index)));
        }
        return texts.join(u"; "_s);
    }

    const QString& body(const core::ContentId& id) { return desk.document(id).body().text; }

    test::TestDesk desk;
    core::ContentId first;
    core::ContentId second;
    SearchPanel panel{desk.context, nullptr};
};

} // namespace

TEST_F(SearchPanelTest, findsInReadingOrderAndOpensThePlace)
{
    const QAbstractItemModelTester tester(
        &panel.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    look(u"tide"_s);
    EXPECT_EQ(shown(), u"The tide 3; Harbour 1"_s);
    EXPECT_FALSE(panel.model().index(0, 0).data(Qt::CheckStateRole).isValid()) << "nothing is replaced";

    QSignalSpy passages(&desk.navigator, &shell::Navigator::passageRequested);
    const QModelIndex match = panel.model().index(2, 0, panel.model().index(0, 0));
    emit panel.findChild<QTreeView*>()->activated(match);
    ASSERT_EQ(passages.count(), 1);
    manuscript::DocumentPage page(desk.context, first, nullptr);
    page.showPassage(passages[0][1].value<shell::TextPassage>());
    EXPECT_EQ(page.editor().textCursor().selectedText(), u"tide"_s);
    EXPECT_GT(page.editor().textCursor().position(), 20) << "the second one of the text";
}

TEST_F(SearchPanelTest, replacesWhatIsCheckedInOneStep)
{
    look(u"tide"_s);
    for (QToolButton* const button : panel.findChildren<QToolButton*>()) {
        if (button->accessibleName() == "Replace"_L1)
            button->setChecked(true);
    }
    panel.findChildren<QLineEdit*>().at(1)->setText(u"*flood*"_s);
    const QModelIndex document = panel.model().index(0, 0);
    EXPECT_EQ(panel.model().index(1, 0, document).data(SearchModel::ReplacementRole), u"*flood*"_s);
    panel.model().setData(panel.model().index(0, 0, document), Qt::Unchecked, Qt::CheckStateRole);
    panel.model().setData(panel.model().index(2, 0, document), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_EQ(document.data(Qt::CheckStateRole), Qt::PartiallyChecked);
    for (QPushButton* const button : panel.findChildren<QPushButton*>()) {
        if (button->text().contains(u'2'))
            button->click();
    }
    EXPECT_EQ(body(first), u"A **\\*flood\\*** comes.\n\nThe tide goes."_s);
    EXPECT_EQ(body(second), u"No water. One \\*flood\\*."_s);
    EXPECT_EQ(desk.document(first).title(), u"The tide"_s);
    desk.session.undo();
    EXPECT_EQ(body(first), u"A **tide** comes.\n\nThe tide goes."_s);
    EXPECT_EQ(body(second), u"No water. One tide."_s);
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(SearchPanelTest, leavesAloneWhatIsLockedOrHasChanged)
{
    look(u"tide"_s);
    const TextMatcher matcher = TextMatcher::create({u"tide"_s}).value();
    panel.model().setReplacement(matcher, u"flood"_s);
    const auto checked = panel.model().checked();
    desk.document(first).setLocked(true);
    desk.document(second).setBody({u"A tide more. One tide."_s, {}});
    const ReplacementOutcome outcome = replaceMatches(desk.session, matcher, checked, u"flood"_s);
    EXPECT_EQ(outcome.locked, 1);
    EXPECT_EQ(outcome.changed, 1);
    EXPECT_EQ(outcome.matches, 0);
    EXPECT_EQ(body(second), u"A tide more. One tide."_s);
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(SearchPanelTest, tellsOfNoReplacementThatWasNotMade)
{
    look(u"tide"_s);
    const TextMatcher matcher = TextMatcher::create({u"tide"_s}).value();
    panel.model().setReplacement(matcher, u"tide"_s);
    const ReplacementOutcome outcome =
        replaceMatches(desk.session, matcher, panel.model().checked(), u"tide"_s);
    EXPECT_EQ(outcome.matches, 0);
    EXPECT_EQ(outcome.documents, 0);
    EXPECT_FALSE(desk.session.canUndo());
    QString said;
    QObject::connect(&desk.navigator, &shell::Navigator::said, [&said](const QString& text) { said = text; });
    for (QToolButton* const button : panel.findChildren<QToolButton*>()) {
        if (button->accessibleName() == "Replace"_L1)
            button->setChecked(true);
    }
    panel.findChildren<QLineEdit*>().at(1)->setText(u"tide"_s);
    for (QPushButton* const button : panel.findChildren<QPushButton*>()) {
        if (button->text().contains("Replace"_L1))
            button->click();
    }
    EXPECT_EQ(said, u"Nothing was replaced."_s);
}

TEST(PassageFinderTest, surroundingsTellWhichOneIsMeant)
{
    const QString text = u"the tide came\nand the tide went, a tide"_s;
    const struct
    {
        shell::TextPassage passage;
        int position;
    } cases[] = {
        {{u"the "_s, u"tide"_s, u" came"_s}, 4},
        {{u"came and the "_s, u"tide"_s, u" went"_s}, 22},
        {{u"went, a "_s, u"tide"_s, QString()}, 35},
        {{QString(), u"came and"_s, QString()}, 9},
    };
    for (const auto& sample : cases) {
        const auto place = manuscript::findPassage(text, sample.passage);
        ASSERT_TRUE(place);
        EXPECT_EQ(place->position, sample.position);
    }
    EXPECT_FALSE(manuscript::findPassage(text, {QString(), u"sea"_s, QString()}));
    EXPECT_FALSE(manuscript::findPassage(QString(), {QString(), QString(), QString()}));
}

} // namespace tw::desktop::search
