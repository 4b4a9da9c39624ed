#include "core/document/ActiveText.h"
#include "core/document/DocumentTree.h"
#include "desktop/manuscript/ManuscriptEdits.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/support/TestDesk.h"
#include "desktop/trees/NavigatorTree.h"
#include "desktop/trees/TreeRoles.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::DocumentKind;

namespace {

class ManuscriptTest : public testing::Test
{
protected:
    ManuscriptTest()
    {
        part = desk.addDocument(u"Part"_s, {}, 0);
        one = desk.addDocument(u"One"_s, part, 0);
        two = desk.addDocument(u"Two"_s, part, 1);
        three = desk.addDocument(u"Three"_s, part, 2);
        notes = desk.addDocument(u"Notes"_s, {}, 1);
        desk.document(one).setBody({u"It was low water."_s, {}});
        desk.announce();
    }

    /** "Part(One Two Three) Notes" */
    QString shape(const ContentId& parent = {}) const
    {
        QStringList parts;
        for (const ContentId& id : core::document::childDocuments(desk.session.project(), parent)) {
            const QString below = shape(id);
            const auto* const document = desk.session.project().findAs<core::document::Document>(id);
            parts.append(document->title() + (below.isEmpty() ? QString() : u'(' + below + u')'));
        }
        return parts.join(u' ');
    }

    test::TestDesk desk;
    ContentId part, one, two, three, notes;
};

} // namespace

TEST_F(ManuscriptTest, stepsMoveUpDownInAndOut)
{
    const struct
    {
        ContentId id;
        MoveDirection direction;
        bool moves;
        const char16_t* result;
    } cases[] = {
        {two, MoveDirection::Up, true, u"Part(Two One Three) Notes"},
        {one, MoveDirection::Up, false, u"Part(One Two Three) Notes"},
        {two, MoveDirection::Down, true, u"Part(One Three Two) Notes"},
        {three, MoveDirection::Down, false, u"Part(One Two Three) Notes"},
        {two, MoveDirection::In, true, u"Part(One(Two) Three) Notes"},
        {one, MoveDirection::In, false, u"Part(One Two Three) Notes"},
        {two, MoveDirection::Out, true, u"Part(One Three) Two Notes"},
        {part, MoveDirection::Out, false, u"Part(One Two Three) Notes"},
        {notes, MoveDirection::In, true, u"Part(One Two Three Notes)"},
    };
    for (const auto& step : cases) {
        EXPECT_EQ(stepDocument(desk.session, step.id, step.direction), step.moves);
        EXPECT_EQ(shape(), QString::fromUtf16(step.result));
        if (step.moves)
            desk.session.undo();
        EXPECT_EQ(shape(), u"Part(One Two Three) Notes"_s);
    }
}

TEST_F(ManuscriptTest, severalMoveTogetherInOneStep)
{
    moveDocuments(desk.session, {one, three}, {}, notes);
    EXPECT_EQ(shape(), u"Part(Two) One Three Notes"_s);
    desk.session.undo();
    moveDocuments(desk.session, {three, two}, part, one);
    EXPECT_EQ(shape(), u"Part(Three Two One) Notes"_s);
    desk.session.undo();
    moveDocuments(desk.session, {two, three}, part, three);
    EXPECT_EQ(shape(), u"Part(One Two Three) Notes"_s);
    desk.session.undo();
    moveDocuments(desk.session, {part, one}, notes, {});
    EXPECT_EQ(shape(), u"Notes(Part(One Two Three))"_s) << "what lies beneath goes along";
    desk.session.undo();
    moveDocuments(desk.session, {part}, two, {});
    EXPECT_EQ(shape(), u"Part(One Two Three) Notes"_s) << "nothing goes under itself";
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(ManuscriptTest, addingAndRemovingAreOneStepEach)
{
    const ContentId added =
        addDocument(desk.session, DocumentKind::Prose, u"New"_s, placeAfter(desk.session, one));
    EXPECT_EQ(shape(), u"Part(One New Two Three) Notes"_s);
    EXPECT_EQ(desk.session.undoText(), u"Add document"_s);
    desk.session.undo();
    EXPECT_FALSE(desk.session.project().contains(added));
    EXPECT_EQ(removeDocuments(desk.session, {one, part}), 4U);
    EXPECT_EQ(shape(), u"Notes"_s);
    desk.session.undo();
    EXPECT_EQ(shape(), u"Part(One Two Three) Notes"_s);
}

TEST_F(ManuscriptTest, whatHangsNowhereIsAtTheTopLevelAndBreedsNothingLikeIt)
{
    const ContentId orphan = desk.addDocument(u"Orphan"_s, ContentId::create(), 5);
    const ContentId looped = desk.addDocument(u"Looped"_s, {}, 6);
    desk.document(looped).setParentId(looped);
    desk.announce();
    const auto undo = [this] {
        desk.session.undo();
        return shape();
    };
    for (const ContentId& id : {orphan, looped}) {
        const ContentId added =
            addDocument(desk.session, DocumentKind::Prose, u"New"_s, placeAfter(desk.session, id));
        EXPECT_TRUE(desk.document(added).parentId().isNull());
        EXPECT_EQ(desk.document(added).sortIndex(), 2);
        EXPECT_EQ(undo(), u"Part(One Two Three) Notes"_s);
        EXPECT_FALSE(stepDocument(desk.session, id, MoveDirection::Out));
    }
    EXPECT_FALSE(stepDocument(desk.session, notes, MoveDirection::Down)) << "it is the last one already";
    EXPECT_FALSE(desk.session.canUndo());
    EXPECT_TRUE(stepDocument(desk.session, orphan, MoveDirection::Up));
    EXPECT_EQ(shape(), u"Part(One Two Three) Orphan Notes"_s);
    EXPECT_EQ(undo(), u"Part(One Two Three) Notes"_s);
    EXPECT_TRUE(stepDocument(desk.session, orphan, MoveDirection::In));
    EXPECT_EQ(shape(), u"Part(One Two Three) Notes(Orphan)"_s);
    EXPECT_EQ(undo(), u"Part(One Two Three) Notes"_s);
    EXPECT_TRUE(stepDocument(desk.session, looped, MoveDirection::In));
    EXPECT_EQ(desk.document(looped).parentId(), orphan) << "that stands above it";
    EXPECT_EQ(undo(), u"Part(One Two Three) Notes"_s);
    const ContentId below = desk.addDocument(u"Below"_s, orphan, 0);
    EXPECT_TRUE(stepDocument(desk.session, below, MoveDirection::Out));
    EXPECT_EQ(shape(), u"Part(One Two Three) Notes Below"_s);
    EXPECT_EQ(undo(), u"Part(One Two Three) Notes"_s);
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(ManuscriptTest, modelStaysTrueThroughRandomEdits)
{
    ManuscriptModel model(desk.context);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        const auto documents = desk.session.project().objectsOfKind(core::content::ContentKind::Document);
        const ContentId id = documents.empty() ? ContentId() : documents[random() % documents.size()]->id();
        switch (random() % 6) {
        case 0:
            addDocument(desk.session, DocumentKind::Note, u"Added"_s, placeAfter(desk.session, id));
            break;
        case 1:
            removeDocuments(desk.session, {id});
            break;
        case 2:
            desk.session.undo();
            break;
        case 3:
            desk.session.redo();
            break;
        default:
            stepDocument(desk.session, id, static_cast<MoveDirection>(random() % 4));
        }
        const core::document::DocumentTree tree = core::document::documentTree(desk.session.project());
        for (const auto& [parent, children] : tree) {
            const QModelIndex parentIndex = model.indexOf(parent);
            ASSERT_EQ(model.rowCount(parentIndex), static_cast<int>(children.size()));
            for (std::size_t row = 0; row < children.size(); ++row)
                ASSERT_EQ(model.idAt(model.index(static_cast<int>(row), 0, parentIndex)), children[row]);
        }
    }
}

TEST_F(ManuscriptTest, rowsTellWordsOfWhatIsBeneath)
{
    ManuscriptModel model(desk.context);
    EXPECT_EQ(model.indexOf(part).data(trees::CountRole).toString(), u"4"_s);
    EXPECT_TRUE(model.setData(model.indexOf(one), u"  Renamed "_s));
    EXPECT_EQ(desk.document(one).title(), u"Renamed"_s);
    EXPECT_FALSE(model.setData(model.indexOf(one), u"   "_s));
    EXPECT_EQ(desk.session.undoText(), u"Rename document"_s);
}

TEST_F(ManuscriptTest, countsFollowWhatIsTypedBeneath)
{
    ManuscriptModel model(desk.context);
    const auto words = [&](const ContentId& id) {
        return model.indexOf(id).data(trees::CountRole).toString();
    };
    EXPECT_EQ(words(part), u"4"_s);
    desk.session.apply(core::document::makeSetActiveTextCommand(desk.document(two), {u"Two more."_s, {}}));
    EXPECT_EQ(words(part), u"6"_s);
    desk.session.undo();
    EXPECT_EQ(words(part), u"4"_s);
}

TEST_F(ManuscriptTest, aChainAsLongAsADamagedProjectIsShown)
{
    constexpr int length = 20'000;
    ContentId above = notes;
    for (int index = 0; index < length; ++index)
        above = desk.addDocument(QString(), above, 0);
    desk.document(above).setBody({u"At the end."_s, {}});
    desk.announce();
    ManuscriptModel model(desk.context);
    EXPECT_EQ(model.indexOf(notes).data(trees::CountRole).toString(), u"3"_s);
    desk.session.apply(core::document::makeSetActiveTextCommand(desk.document(above), {u"The end."_s, {}}));
    EXPECT_EQ(model.indexOf(notes).data(trees::CountRole).toString(), u"2"_s);
    desk.document(notes).setLocked(true);
    EXPECT_EQ(firstLocked(desk.session, {notes}), notes);
    trees::NavigatorTree tree(desk.context, nullptr);
    tree.setSource(model);
    tree.resize(300, 400);
    tree.show();
    EXPECT_TRUE(tree.isExpanded(tree.model()->index(1, 0)));
}

TEST_F(ManuscriptTest, whatIsLockedStaysWhereItIs)
{
    desk.document(two).setLocked(true);
    EXPECT_FALSE(stepDocument(desk.session, two, MoveDirection::Up));
    moveDocuments(desk.session, {two}, {}, notes);
    EXPECT_FALSE(desk.session.canUndo());
    moveDocuments(desk.session, {one, two}, {}, notes);
    EXPECT_EQ(shape(), u"Part(Two Three) One Notes"_s);
    const ManuscriptModel model(desk.context);
    EXPECT_FALSE(model.flags(model.indexOf(two)).testFlag(Qt::ItemIsDragEnabled));
    EXPECT_TRUE(model.flags(model.indexOf(three)).testFlag(Qt::ItemIsDragEnabled));
}

TEST_F(ManuscriptTest, droppingRowsReordersThem)
{
    ManuscriptModel model(desk.context);
    const std::unique_ptr<QMimeData> dragged(model.mimeData({model.indexOf(three)}));
    const QModelIndex target = model.indexOf(part);
    EXPECT_TRUE(model.canDropMimeData(dragged.get(), Qt::MoveAction, 0, 0, target));
    model.dropMimeData(dragged.get(), Qt::MoveAction, 0, 0, target);
    EXPECT_EQ(shape(), u"Part(Three One Two) Notes"_s);
    const std::unique_ptr<QMimeData> parent(model.mimeData({model.indexOf(part)}));
    EXPECT_FALSE(model.canDropMimeData(parent.get(), Qt::MoveAction, -1, -1, model.indexOf(two)));
}

TEST_F(ManuscriptTest, panelWorksByKeyboard)
{
    ManuscriptPanel panel(desk.context, nullptr);
    panel.resize(300, 400);
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    trees::NavigatorTree& tree = panel.tree();
    tree.setFocus();
    desk.navigator.setCurrent(two);
    ASSERT_EQ(tree.currentSource().data().toString(), u"Two"_s);
    QTest::keyClick(&tree, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(shape(), u"Part(Two One Three) Notes"_s);
    EXPECT_EQ(tree.currentSource().data().toString(), u"Two"_s) << "the row stays selected where it went";
    QTest::keyClick(&tree, Qt::Key_Delete);
    EXPECT_EQ(shape(), u"Part(One Three) Notes"_s);
    desk.session.undo();
    desk.session.undo();
    EXPECT_EQ(shape(), u"Part(One Two Three) Notes"_s);

    tree.setFilter(u"thr"_s);
    EXPECT_EQ(tree.model()->rowCount(), 1);
    EXPECT_EQ(tree.model()->rowCount(tree.model()->index(0, 0)), 1);
    const auto& hint = *tree.viewport()->findChild<QLabel*>();
    tree.setFilter(u"zebra"_s);
    EXPECT_TRUE(hint.isVisible());
    EXPECT_TRUE(hint.text().contains(u"“zebra”"_s)) << hint.text().toStdString();
    tree.setFilter({});
    EXPECT_EQ(tree.model()->rowCount(), 2);
    removeDocuments(desk.session, {part, notes});
    EXPECT_TRUE(hint.text().contains(u"Press +"_s)) << hint.text().toStdString();
}

TEST_F(ManuscriptTest, whatIsLockedSaysSoWhateverIsAsked)
{
    desk.document(two).setStatus(u"Draft"_s);
    desk.document(two).setLocked(true);
    desk.announce();
    ManuscriptPanel panel(desk.context, nullptr);
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    trees::NavigatorTree& tree = panel.tree();
    tree.setFocus();
    desk.navigator.setCurrent(two);
    QString said;
    QObject::connect(
        &desk.navigator, &shell::Navigator::said, &panel, [&said](const QString& text) { said = text; });
    const auto press = [&tree](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return [&tree, key, modifiers] { QTest::keyClick(&tree, key, modifiers); };
    };
    const auto chooseNoStatus = [&tree] {
        QTimer::singleShot(0, &tree, [] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            menu->actions().constLast()->menu()->actions().constLast()->trigger();
            menu->close();
        });
        emit tree.customContextMenuRequested({});
    };
    const struct
    {
        std::function<void()> ask;
        QString toDo;
    } cases[] = {
        {press(Qt::Key_F2), u"rename it"_s},
        {press(Qt::Key_Up, Qt::ControlModifier), u"move it"_s},
        {press(Qt::Key_Delete), u"remove it"_s},
        {chooseNoStatus, u"set its status"_s},
    };
    for (const auto& sample : cases) {
        said.clear();
        sample.ask();
        EXPECT_EQ(said, u"“Two” is locked. Unlock it in the inspector to %1."_s.arg(sample.toDo));
    }
    EXPECT_EQ(shape(), u"Part(One Two Three) Notes"_s);
    EXPECT_EQ(desk.document(two).status(), u"Draft"_s);
    desk.document(two).setLocked(false);
    chooseNoStatus();
    EXPECT_EQ(desk.document(two).status(), QString());
}

} // namespace tw::desktop::manuscript
