#include "core/content/ContentCommands.h"
#include "core/document/DocumentTree.h"
#include "desktop/manuscript/DocumentActions.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/overview/CorkboardPage.h"
#include "desktop/overview/OutlinePage.h"
#include "desktop/overview/OutlineTree.h"
#include "desktop/shell/Navigator.h"
#include "desktop/support/TestDesk.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace tw::desktop::overview {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using manuscript::OutlineColumn;

namespace {

class OverviewTest : public testing::Test
{
protected:
    OverviewTest()
    {
        part = desk.addDocument(u"Part"_s, {}, 0);
        one = desk.addDocument(u"One"_s, part, 0);
        two = desk.addDocument(u"Two"_s, part, 1);
        below = desk.addDocument(u"Below"_s, two, 0);
        notes = desk.addDocument(u"Notes"_s, {}, 1);
        desk.document(one).setSynopsis(u"A lighthouse\nat night."_s);
        desk.document(two).setWordCountTarget(1200);
        desk.announce();
    }

    QString titlesBelow(const ContentId& parent) const
    {
        QStringList titles;
        for (const ContentId& id : core::document::childDocuments(desk.session.project(), parent))
            titles.append(desk.session.project().findAs<core::document::Document>(id)->title());
        return titles.join(u' ');
    }

    template <class Page>
    std::unique_ptr<Page> show(const ContentId& root)
    {
        auto page = std::make_unique<Page>(OverviewContext{desk.context, model, actions}, root, nullptr);
        page->resize(900, 600);
        page->show();
        QApplication::setActiveWindow(page.get());
        page->takeFocus();
        return page;
    }

    QAction* action(const QString& name)
    {
        for (QAction* const candidate : actions.insertActions() + actions.editActions()) {
            if (candidate->objectName() == name)
                return candidate;
        }
        return nullptr;
    }

    test::TestDesk desk;
    manuscript::ManuscriptModel model{desk.context};
    manuscript::DocumentActions actions{desk.context, nullptr};
    ContentId part, one, two, below, notes;
};

} // namespace

TEST_F(OverviewTest, anOverviewIsOfWhatLiesBelowOrAround)
{
    const auto& project = desk.session.project();
    EXPECT_EQ(overviewRoot(project, part), part);
    EXPECT_EQ(overviewRoot(project, one), part);
    EXPECT_EQ(overviewRoot(project, two), two);
    EXPECT_EQ(overviewRoot(project, notes), ContentId());
    EXPECT_EQ(overviewRoot(project, ContentId::create()), ContentId());
}

TEST_F(OverviewTest, theFilterKeepsItsRootAndWhatMatchesInAnyColumn)
{
    DocumentFilter filter(model, part, nullptr);
    const QAbstractItemModelTester tester(&filter);
    EXPECT_EQ(filter.rowCount(filter.rootIndex()), 2);
    filter.setFilterFixedString(u"lighthouse"_s);
    ASSERT_EQ(filter.rowCount(filter.rootIndex()), 1);
    EXPECT_EQ(filter.idAt(filter.index(0, 0, filter.rootIndex())), one);
    filter.setFilterFixedString(u"below"_s);
    ASSERT_EQ(filter.rowCount(filter.rootIndex()), 1) << "the way to what matches";
    filter.setFilterFixedString(u"nowhere"_s);
    EXPECT_TRUE(filter.rootIndex().isValid());
    EXPECT_EQ(filter.rowCount(filter.rootIndex()), 0);
}

TEST_F(OverviewTest, anAudienceSeesWhatIsForItAndNothingOfTheRest)
{
    desk.document(one).setVisibleTo({u"Players"_s});
    desk.document(two).setVisibleTo({u"Master"_s});
    const auto page = show<OutlinePage>(part);
    const auto& tree = *page->findChild<QTreeView*>();
    const auto rows = [&tree] {
        QStringList cells;
        for (int row = 0; row < tree.model()->rowCount(tree.rootIndex()); ++row) {
            for (const OutlineColumn column : {OutlineColumn::Title, OutlineColumn::Target})
                cells.append(
                    tree.model()->index(row, static_cast<int>(column), tree.rootIndex()).data().toString());
        }
        return cells.join(u'|');
    };
    EXPECT_EQ(rows(), u"One||Two|1,200"_s);
    desk.navigator.setAudience(u"Players"_s);
    EXPECT_EQ(rows(), u"One||…|"_s) << "what lies below it is for everyone";
    const QModelIndex masked = tree.model()->index(1, 0, tree.rootIndex());
    EXPECT_FALSE(masked.flags().testFlag(Qt::ItemIsEditable));
    desk.session.apply(std::make_unique<core::content::SetObjectVisibilityCommand>(
        desk.document(below), core::content::NameSet{u"Master"_s}));
    EXPECT_EQ(rows(), u"One|"_s);
    desk.navigator.setAudience({});
    EXPECT_EQ(rows(), u"One||Two|1,200"_s);
}

TEST_F(OverviewTest, cellsOfTheOutlineAreEditedAsOneStepEach)
{
    const auto page = show<OutlinePage>(part);
    QTreeView& tree = page->tree();
    const auto edit = [&](const ContentId& id, OutlineColumn column, const QString& text) {
        const QModelIndex row = static_cast<DocumentFilter*>(tree.model())->indexOf(id);
        const QModelIndex cell = row.siblingAtColumn(static_cast<int>(column));
        tree.setCurrentIndex(cell);
        action(u"manuscript.rename"_s)->trigger();
        auto* const editor = tree.indexWidget(cell);
        if (!editor)
            return false;
        if (auto* const box = qobject_cast<QComboBox*>(editor))
            box->setEditText(text);
        else
            QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        return true;
    };
    ASSERT_TRUE(edit(one, OutlineColumn::Title, u"First"_s));
    ASSERT_TRUE(edit(one, OutlineColumn::Status, u"Revised"_s));
    ASSERT_TRUE(edit(one, OutlineColumn::PointOfView, u"Mara"_s));
    EXPECT_EQ(desk.document(one).title(), u"First"_s);
    EXPECT_EQ(desk.document(one).status(), u"Revised"_s);
    EXPECT_EQ(desk.document(one).pointOfView(), u"Mara"_s);
    desk.session.undo();
    EXPECT_EQ(desk.document(one).pointOfView(), QString());
    EXPECT_EQ(desk.document(one).status(), u"Revised"_s);
    EXPECT_EQ(desk.document(two).wordCountTarget(), 1200);

    desk.document(one).setLocked(true);
    EXPECT_FALSE(manuscript::setOutlineValue(desk.session, one, OutlineColumn::Synopsis, u"x"_s));
    EXPECT_FALSE(manuscript::setOutlineValue(desk.session, two, OutlineColumn::Target, u"many"_s));
    EXPECT_FALSE(manuscript::setOutlineValue(desk.session, two, OutlineColumn::Target, -5));
    EXPECT_FALSE(manuscript::setOutlineValue(desk.session, two, OutlineColumn::Title, u"  "_s));
}

TEST_F(OverviewTest, theKeyboardComesToEveryCellOfTheOutline)
{
    const auto page = show<OutlinePage>(part);
    QTreeView& tree = page->tree();
    tree.header()->moveSection(3, 1);
    tree.hideColumn(static_cast<int>(OutlineColumn::Words));
    const auto place = [&] {
        return tree.currentIndex().siblingAtColumn(0).data().toString() + u' ' +
               QString::number(tree.header()->visualIndex(tree.currentIndex().column()));
    };
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    const auto placesOf = [&](Qt::Key key) {
        QStringList places;
        while (QApplication::focusWidget() == &tree && places.size() < 50) {
            places.append(place());
            press(key);
        }
        return places;
    };
    EXPECT_TRUE(tree.selectionModel()->isRowSelected(0, tree.rootIndex())) << "where the keyboard begins";
    QStringList there = placesOf(Qt::Key_Tab);
    EXPECT_EQ(there.size(), 3 * 6) << there.join(u", "_s).toStdString();
    EXPECT_EQ(there.first(), u"One 0"_s);
    EXPECT_EQ(there.last(), u"Below 6"_s);
    tree.setFocus();
    QStringList back = placesOf(Qt::Key_Backtab);
    std::reverse(back.begin(), back.end());
    EXPECT_EQ(back, there);
    tree.setFocus();
    for (int count = 0; count < 9; ++count)
        press(Qt::Key_Right);
    EXPECT_EQ(place(), u"One 6"_s) << "and no further";
    for (int count = 0; count < 9; ++count)
        press(Qt::Key_Left);
    EXPECT_EQ(place(), u"One 0"_s);
}

TEST_F(OverviewTest, theOutlineFillsItsWidthUntilItIsArranged)
{
    {
        const auto page = show<OutlinePage>(part);
        QHeaderView& header = *page->tree().header();
        for (const int width : {1600, 1000}) {
            page->resize(width, 600);
            QCoreApplication::processEvents();
            EXPECT_EQ(header.length(), page->tree().viewport()->width()) << width;
        }
    }
    EXPECT_FALSE(desk.settings.contains(u"outline/header"_s)) << "nobody arranged it";
    {
        const auto page = show<OutlinePage>(part);
        page->tree().header()->resizeSection(0, 333);
        page->resize(1500, 600);
        QCoreApplication::processEvents();
        EXPECT_EQ(page->tree().header()->sectionSize(0), 333);
    }
    EXPECT_EQ(show<OutlinePage>(part)->tree().header()->sectionSize(0), 333) << "and stays so";
}

TEST_F(OverviewTest, tabEditsTheNextCellThatCanBe)
{
    const auto page = show<OutlinePage>(part);
    QTreeView& tree = page->tree();
    action(u"manuscript.rename"_s)->trigger();
    QTest::keyClicks(QApplication::focusWidget(), u"First"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), u"Dusk."_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.document(one).title(), u"First"_s);
    EXPECT_EQ(desk.document(one).synopsis(), u"Dusk."_s);
    // Over the words, which nobody writes, to the target and on to the next title.
    const QModelIndex row = static_cast<DocumentFilter*>(tree.model())->indexOf(one);
    tree.setCurrentIndex(row.siblingAtColumn(static_cast<int>(OutlineColumn::StoryDate)));
    action(u"manuscript.rename"_s)->trigger();
    for (int count = 0; count < 2; ++count)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), u"Second"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.document(two).title(), u"Second"_s);
}

TEST_F(OverviewTest, aStoryDateIsTypedIntoItsCellAndStaysUntilItReads)
{
    const auto page = show<OutlinePage>(part);
    QTreeView& tree = page->tree();
    const QModelIndex row = static_cast<DocumentFilter*>(tree.model())->indexOf(one);
    const QModelIndex cell = row.siblingAtColumn(static_cast<int>(OutlineColumn::StoryDate));
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    tree.setCurrentIndex(cell);
    action(u"manuscript.rename"_s)->trigger();
    QTest::keyClicks(QApplication::focusWidget(), u"never ever"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
        press(key);
        auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(line && tree.isAncestorOf(line)) << key;
        EXPECT_EQ(line->text(), u"never ever"_s);
    }
    desk.session.commitPendingEdits();
    EXPECT_TRUE(tree.isPersistentEditorOpen(cell)) << "a save leaves it to be mended";
    press(Qt::Key_Escape);
    QTest::keyClicks(QApplication::focusWidget(), u"312"_s);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    const auto& calendar = desk.session.project().calendar();
    ASSERT_TRUE(desk.document(one).sceneInstant());
    EXPECT_EQ(calendar.partsFromMinutes(*desk.document(one).sceneInstant()).year, 312);
    EXPECT_EQ(QApplication::focusWidget(), &tree);

    action(u"manuscript.rename"_s)->trigger();
    static_cast<QLineEdit*>(QApplication::focusWidget())->selectAll();
    press(Qt::Key_Delete);
    press(Qt::Key_Tab);
    EXPECT_FALSE(desk.document(one).sceneInstant());
    desk.session.undo();
    EXPECT_TRUE(desk.document(one).sceneInstant());
}

TEST_F(OverviewTest, cardsAreWrittenAddedMovedAndRemovedFromTheKeyboard)
{
    const auto page = show<CorkboardPage>(part);
    QListView& cards = page->cards();
    ASSERT_EQ(desk.navigator.current(), one) << "the first card has the keyboard";
    action(u"manuscript.rename"_s)->trigger();
    QWidget* const editor = cards.indexWidget(cards.currentIndex());
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor->findChild<QLineEdit*>(), u"First"_s);
    auto* const synopsis = editor->findChild<QPlainTextEdit*>();
    synopsis->setPlainText(u"Dawn."_s);
    QTest::keyClick(synopsis, Qt::Key_Return, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(desk.document(one).title(), u"First"_s);
    EXPECT_EQ(desk.document(one).synopsis(), u"Dawn."_s);
    EXPECT_EQ(desk.session.undoText(), u"Edit card"_s);

    cards.setFocus();
    action(u"manuscript.moveDown"_s)->trigger();
    EXPECT_EQ(titlesBelow(part), u"Two First"_s);
    EXPECT_EQ(desk.navigator.current(), one);
    action(u"insert.note"_s)->trigger();
    EXPECT_EQ(titlesBelow(part), u"Two First New note"_s);
    QTest::keyClick(cards.indexWidget(cards.currentIndex())->findChild<QLineEdit*>(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    cards.setFocus();
    action(u"manuscript.remove"_s)->trigger();
    EXPECT_EQ(titlesBelow(part), u"Two First"_s);
    desk.session.undo();
    EXPECT_EQ(titlesBelow(part), u"Two First New note"_s);
}

TEST_F(OverviewTest, whatStillStandsInACellOrOnACardIsSavedAsOneStep)
{
    const auto outline = show<OutlinePage>(part);
    const auto board = show<CorkboardPage>(part);
    const auto typeAndSave = [this](QAbstractItemView& list, const QString& title, const QString& expected) {
        const QModelIndex index = static_cast<DocumentFilter*>(list.model())->indexOf(one);
        list.setCurrentIndex(index);
        list.edit(index);
        QWidget* const editor = list.indexWidget(index);
        auto* line = qobject_cast<QLineEdit*>(editor);
        line = line ? line : editor->findChild<QLineEdit*>();
        QTest::keyClicks(line, title);
        EXPECT_TRUE(desk.session.isTypingPending());
        desk.session.commitPendingEdits(shell::CommitReason::InPassing);
        EXPECT_TRUE(list.isPersistentEditorOpen(index)) << "the next key is for the editor";
        desk.session.commitPendingEdits();
        EXPECT_FALSE(list.isPersistentEditorOpen(index));
        EXPECT_EQ(desk.document(one).title(), expected);
        desk.session.undo();
        EXPECT_EQ(desk.document(one).title(), u"One"_s);
    };
    // The toolkit warns of an editor that ends more than once.
    const auto formerHandler =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
            EXPECT_FALSE(message.contains(u"does not belong to this view")) << message.toStdString();
        });
    typeAndSave(outline->tree(), u"First"_s, u"First"_s);
    typeAndSave(board->cards(), u"Dawn"_s, u"Dawn"_s);
    qInstallMessageHandler(formerHandler);
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(OverviewTest, aCardDroppedBetweenOthersTakesThatPlace)
{
    const auto page = show<CorkboardPage>(part);
    QAbstractItemModel& shown = *page->cards().model();
    const QModelIndex root = page->cards().rootIndex();
    const std::unique_ptr<QMimeData> card(shown.mimeData({shown.index(1, 0, root)}));
    shown.dropMimeData(card.get(), Qt::MoveAction, 0, 0, root);
    EXPECT_EQ(titlesBelow(part), u"Two One"_s);
    EXPECT_EQ(shown.rowCount(page->cards().rootIndex()), 2);
    desk.session.undo();
    EXPECT_EQ(titlesBelow(part), u"One Two"_s);
}

TEST_F(OverviewTest, aGroupOpensItsOwnBoardAndALeafItsText)
{
    const auto page = show<CorkboardPage>(part);
    ContentId opened;
    QString view;
    QObject::connect(
        &desk.navigator, &shell::Navigator::viewRequested, page.get(),
        [&](const ContentId& id, const QString& asked) { opened = id, view = asked; });
    QObject::connect(&desk.navigator, &shell::Navigator::openRequested, page.get(), [&](const ContentId& id) {
        opened = id;
        view.clear();
    });
    QTest::keyClick(&page->cards(), Qt::Key_Return);
    EXPECT_EQ(opened, one);
    EXPECT_TRUE(view.isEmpty());
    QTest::keyClick(&page->cards(), Qt::Key_Right);
    QTest::keyClick(&page->cards(), Qt::Key_Return);
    EXPECT_EQ(opened, two);
    EXPECT_EQ(view, corkboardView);
}

} // namespace tw::desktop::overview
