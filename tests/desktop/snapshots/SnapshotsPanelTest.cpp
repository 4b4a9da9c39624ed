#include "desktop/snapshots/SnapshotsPanel.h"
#include "core/document/ActiveText.h"
#include "desktop/snapshots/DifferenceView.h"
#include "desktop/snapshots/SnapshotEdits.h"
#include "desktop/snapshots/SnapshotModel.h"
#include "desktop/support/TestDesk.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QListView>

#include <gtest/gtest.h>

namespace tw::desktop::snapshots {

using namespace Qt::Literals::StringLiterals;
using core::document::activeText;

namespace {

class SnapshotsTest : public testing::Test
{
protected:
    SnapshotsTest()
        : id(desk.addDocument(u"Chapter"_s, {}, 0))
    {
        write(u"One.\n\nTwo.\n\nThree."_s);
    }

    void write(const QString& text) { desk.document(id).setBody({text, {}}); }
    QString text() { return activeText(desk.document(id)).text; }
    QString labels()
    {
        QStringList labels;
        for (const auto& version : desk.document(id).versions())
            labels.append(version.label);
        return labels.join(u", "_s);
    }

    const QDateTime now{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    test::TestDesk desk;
    core::ContentId id;
};

} // namespace

TEST_F(SnapshotsTest, restoringKeepsThePresentTextAndIsOneStep)
{
    takeSnapshot(desk.session, id, u"First"_s, now);
    takeSnapshot(desk.session, id, {}, now);
    EXPECT_EQ(labels(), u"First"_s) << "the same text is not kept twice";
    EXPECT_EQ(desk.document(id).versions()[0].createdAt, u"2026-03-01T12:00:00Z"_s);

    write(u"Other."_s);
    restoreSnapshot(desk.session, id, 0, now);
    EXPECT_EQ(text(), u"One.\n\nTwo.\n\nThree."_s);
    EXPECT_EQ(labels(), u"First, Before restoring"_s);
    EXPECT_EQ(desk.document(id).versions()[1].body, u"Other."_s);
    desk.session.undo();
    EXPECT_EQ(text(), u"Other."_s);
    EXPECT_EQ(labels(), u"First"_s);
    renameSnapshot(desk.session, id, 0, u"Draft"_s);
    EXPECT_EQ(labels(), u"Draft"_s);
    removeSnapshot(desk.session, id, 0);
    EXPECT_EQ(labels(), QString());
    removeSnapshot(desk.session, id, 7);
}

TEST_F(SnapshotsTest, onePassageCanComeBackAlone)
{
    takeSnapshot(desk.session, id, u"First"_s, now);
    const QString before = text();
    write(u"One!\n\nTwo.\n\nThree?"_s);
    const auto passages = app::text::compareTexts(before, text());
    ASSERT_EQ(passages.size(), 2U);
    EXPECT_TRUE(restorePassage(desk.session, id, 0, passages[1], now));
    EXPECT_EQ(text(), u"One!\n\nTwo.\n\nThree."_s);
    EXPECT_FALSE(restorePassage(desk.session, id, 0, passages[1], now)) << "it is not there any more";
}

TEST_F(SnapshotsTest, variantsHaveTextsOfTheirOwn)
{
    addVariant(desk.session, id, u" Dark "_s);
    EXPECT_EQ(desk.document(id).variants().active, u"Dark"_s);
    desk.session.apply(core::document::makeSetActiveTextCommand(desk.document(id), {u"dark"_s, {}}));
    useVariant(desk.session, id, {});
    EXPECT_EQ(text(), u"One.\n\nTwo.\n\nThree."_s);
    useVariant(desk.session, id, u"Dark"_s);
    EXPECT_EQ(text(), u"dark"_s);
    EXPECT_FALSE(variantNameProblem(desk.document(id), u"Dark"_s).isEmpty());
    EXPECT_FALSE(variantNameProblem(desk.document(id), u"  "_s).isEmpty());
    EXPECT_TRUE(variantNameProblem(desk.document(id), u"Dark"_s, u"Dark"_s).isEmpty());
    renameVariant(desk.session, id, u"Dark"_s, u"Night"_s);
    EXPECT_EQ(text(), u"dark"_s);
    useVariant(desk.session, id, u"Nobody"_s);
    EXPECT_EQ(desk.document(id).variants().active, u"Night"_s);
    removeVariant(desk.session, id, u"Night"_s);
    EXPECT_EQ(text(), u"One.\n\nTwo.\n\nThree."_s);
}

TEST_F(SnapshotsTest, aLockedDocumentIsKeptAndNotRewritten)
{
    takeSnapshot(desk.session, id, u"First"_s, now);
    addVariant(desk.session, id, u"Dark"_s);
    useVariant(desk.session, id, {});
    const QString before = text();
    write(u"Locked."_s);
    desk.document(id).setLocked(true);
    desk.announce();
    const auto passages = app::text::compareTexts(before, text());
    ASSERT_FALSE(passages.empty());
    const QString lastStep = desk.session.undoText();
    restoreSnapshot(desk.session, id, 0, now);
    EXPECT_FALSE(restorePassage(desk.session, id, 0, passages[0], now));
    renameSnapshot(desk.session, id, 0, u"Other"_s);
    removeSnapshot(desk.session, id, 0);
    addVariant(desk.session, id, u"Light"_s);
    useVariant(desk.session, id, u"Dark"_s);
    renameVariant(desk.session, id, u"Dark"_s, u"Night"_s);
    removeVariant(desk.session, id, u"Dark"_s);
    EXPECT_EQ(text(), u"Locked."_s);
    EXPECT_EQ(labels(), u"First"_s);
    EXPECT_EQ(desk.document(id).variants().list.size(), 1U);
    EXPECT_EQ(desk.session.undoText(), lastStep);

    SnapshotsPanel panel(desk.context, nullptr);
    panel.show();
    desk.navigator.setCurrent(id);
    auto* const list = panel.findChild<QListView*>(u"snapshotList"_s);
    list->setCurrentIndex(list->model()->index(1, 0));
    for (const QAction* const action : list->actions())
        EXPECT_FALSE(action->isEnabled()) << action->text().toStdString();
    EXPECT_FALSE(panel.findChild<DifferenceView*>()->toPlainText().contains("Restore this"_L1));
    for (const QComboBox* const box : panel.findChildren<QComboBox*>()) {
        if (box->accessibleName() == u"Variant in use"_s) {
            EXPECT_FALSE(box->isEnabled());
        }
    }
    panel.takeAction()->trigger();
    EXPECT_EQ(labels(), u"First, "_s) << "a snapshot changes no text";
    desk.navigator.setCurrent({});
}

TEST_F(SnapshotsTest, thePanelComparesAndRestores)
{
    SnapshotsPanel panel(desk.context, nullptr);
    panel.resize(320, 700);
    panel.show();
    desk.navigator.setCurrent(id);
    auto* const list = panel.findChild<QListView*>(u"snapshotList"_s);
    const QAbstractItemModelTester tester(
        list->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(list->model()->rowCount(), 1);
    panel.takeAction()->trigger();
    EXPECT_EQ(list->model()->rowCount(), 2);

    desk.session.apply(core::document::makeSetActiveTextCommand(
        desk.document(id), {u"One.\n\nTwo changed.\n\nThree."_s, {}}));
    list->setCurrentIndex(list->model()->index(1, 0));
    auto* const difference = panel.findChild<DifferenceView*>();
    EXPECT_TRUE(difference->toPlainText().contains("Restore this passage"_L1))
        << difference->toPlainText().toStdString();
    EXPECT_TRUE(difference->toPlainText().contains("changed"_L1));
    emit difference->anchorClicked(QUrl(u"0"_s));
    EXPECT_EQ(text(), u"One.\n\nTwo.\n\nThree."_s);
    EXPECT_EQ(labels(), u", Before restoring"_s);

    list->model()->setData(list->model()->index(1, 0), u"Kept"_s, Qt::EditRole);
    EXPECT_EQ(labels(), u", Kept"_s);
    desk.navigator.setCurrent({});
}

TEST(DifferenceViewTest, longStretchesAreShortenedAtWords)
{
    const QString words = u"word "_s.repeated(200);
    const QString text = shortened(words);
    EXPECT_LT(text.size(), 300);
    EXPECT_TRUE(text.startsWith("word word"_L1) && text.contains(u"word …"_s)) << text.toStdString();
    EXPECT_LE(shortened(QString(1000, u'x')).size(), 300);
    EXPECT_EQ(shortened(u"short"_s), u"short"_s);
}

} // namespace tw::desktop::snapshots
