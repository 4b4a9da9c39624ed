#include "desktop/codex/CodexEdits.h"

#include "desktop/codex/CodexFixture.h"
#include "desktop/codex/CodexPanel.h"
#include "desktop/support/NextMessage.h"
#include "desktop/trees/NavigatorTree.h"

#include <QSignalSpy>
#include <QTest>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;

namespace {

class CodexEditsTest : public CodexFixture
{
protected:
    QString shown() { return shape(CodexModel(desk.context)); }
};

const QString startShape = u"[People [Clerks Annis] Bream] [Places [Staithe [Wards Counter]]]"_s;

} // namespace

TEST_F(CodexEditsTest, everyEditIsOneStepThatUndoTakesBackToTheByte)
{
    category(wards).inheritedKeys = {u"tide"_s};
    entity(annis).setValue(u"hand"_s, u"left"_s);
    const auto start = snapshot();
    auto& session = desk.session;
    const struct
    {
        const char16_t* label;
        std::function<void()> edit;
        const char16_t* result;
    } cases[] = {
        {u"Add entity", [&] { codex::addEntity(session, people, u"Cole"_s); },
         u"[People [Clerks Annis] Bream Cole] [Places [Staithe [Wards Counter]]]"},
        {u"Add category", [&] { codex::addCategory(session, placeBehind(session, people), u"Ships"_s); },
         u"[People [Clerks Annis] Bream] [Ships] [Places [Staithe [Wards Counter]]]"},
        {u"Add category",
         [&] {
             codex::addCategory(session, {{people, {}}, {}}, u"Ships"_s);
         },
         u"[People [Clerks Annis] [Ships] Bream] [Places [Staithe [Wards Counter]]]"},
        {u"Add category",
         [&] {
             codex::addCategory(session, {{{}, bream}, {}}, u"Debts"_s);
         },
         u"[People [Clerks Annis] [Bream [Debts]]] [Places [Staithe [Wards Counter]]]"},
        {u"Add category", [&] { codex::addCategory(session, placeBehind(session, wards), u"Quays"_s); },
         u"[People [Clerks Annis] Bream] [Places [Staithe [Wards Counter] [Quays]]]"},
        {u"Duplicate entity", [&] { duplicateEntity(session, annis); },
         u"[People [Clerks Annis Copy of Annis] Bream] [Places [Staithe [Wards Counter]]]"},
        {u"Remove entity",
         [&] {
             removeFromCodex(session, {{staithe}, {}});
         },
         u"[People [Clerks Annis] Bream] [Places [Wards Counter]]"},
        {u"Remove category",
         [&] {
             removeFromCodex(session, {{}, {people}});
         },
         u"[Clerks Annis] [Places [Staithe [Wards Counter]]] [Uncategorised Bream]"},
        {u"Remove category",
         [&] {
             removeFromCodex(session, {{}, {clerks, people}});
         },
         u"[Places [Staithe [Wards Counter]]] [Uncategorised Annis Bream]"},
        {u"Remove from the codex",
         [&] {
             removeFromCodex(session, {{staithe, counter}, {places}});
         },
         u"[People [Clerks Annis] Bream] [Wards]"},
        {u"Move entity to category",
         [&] {
             EXPECT_TRUE(moveInCodex(session, {{annis, bream}, {}}, {{places, {}}, {}}));
         },
         u"[People [Clerks]] [Places Annis Bream [Staithe [Wards Counter]]]"},
        {u"Move entity to category",
         [&] {
             EXPECT_TRUE(moveInCodex(session, {{counter}, {}}, {}));
         },
         u"[People [Clerks Annis] Bream] [Places [Staithe [Wards]]] [Uncategorised Counter]"},
    };
    for (const auto& step : cases) {
        step.edit();
        EXPECT_EQ(shown(), QString::fromUtf16(step.result));
        EXPECT_EQ(session.undoText(), QString::fromUtf16(step.label));
        session.undo();
        EXPECT_FALSE(session.canUndo());
        EXPECT_EQ(snapshot(), start) << qPrintable(QString::fromUtf16(step.result));
    }
}

TEST_F(CodexEditsTest, nothingToDoIsNoStep)
{
    auto& session = desk.session;
    EXPECT_TRUE(moveInCodex(session, {{annis}, {}}, {{clerks, {}}, {}}));
    EXPECT_TRUE(moveInCodex(session, {{}, {wards}}, {{{}, staithe}, {}})) << "it hangs there already";
    EXPECT_TRUE(moveInCodex(session, {{}, {clerks}}, {{people, {}}, clerks}));
    EXPECT_FALSE(renameCategory(session, people, u"People "_s));
    removeFromCodex(session, {{ContentId::create()}, {CategoryId::create()}});
    EXPECT_TRUE(duplicateEntity(session, ContentId::create()).isNull());
    EXPECT_FALSE(moveInCodex(session, {{annis}, {people}}, {{clerks, {}}, {}})) << "one refusal stops all";
    EXPECT_EQ(shown(), startShape);
    EXPECT_FALSE(session.canUndo());
}

TEST_F(CodexEditsTest, panelWorksByKeyboardAndSaysWhatMoved)
{
    CodexPanel panel(desk.context, nullptr);
    panel.resize(300, 400);
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    trees::NavigatorTree& tree = panel.tree();
    tree.setFocus();
    QSignalSpy said(&desk.navigator, &shell::Navigator::said);

    tree.selectSource(panel.model().indexOf(CodexItem::category(clerks)));
    {
        const test::NextMessage kept(u"Cancel"_s);
        QTest::keyClick(&tree, Qt::Key_Delete);
        EXPECT_EQ(
            kept.text,
            u"Delete “Clerks”? Its entities move up to the parent. Edit › Undo will restore it."_s);
    }
    EXPECT_EQ(shown(), startShape);
    EXPECT_EQ(said.count(), 0);
    // A question takes the keyboard along.
    const auto comeBack = [&panel] {
        panel.activateWindow();
        return QTest::qWaitForWindowActive(&panel);
    };
    ASSERT_TRUE(comeBack());
    const test::NextMessage removed(u"Delete"_s);
    QTest::keyClick(&tree, Qt::Key_Delete);
    ASSERT_TRUE(comeBack());
    EXPECT_EQ(shown(), u"[People Annis Bream] [Places [Staithe [Wards Counter]]]"_s);
    ASSERT_EQ(said.count(), 1);
    EXPECT_EQ(
        said[0][0].toString(),
        u"Removed the category “Clerks”. Its entities moved up to “People”. Undo brings it back."_s);
    desk.session.undo();

    desk.navigator.setCurrent(annis);
    EXPECT_EQ(tree.currentSource(), panel.model().indexOf(CodexItem::entity(annis)));
    QTest::keyClick(&tree, Qt::Key_F2);
    QWidget* const editor = tree.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, u"Zoe"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(entity(annis).name(), u"Zoe"_s);

    entity(annis).setLocked(true);
    QTest::keyClick(&tree, Qt::Key_Delete);
    EXPECT_TRUE(desk.session.project().contains(annis)) << "a locked entity stays";
    EXPECT_EQ(said.count(), 2);

    const CategoryId empty = codex::addCategory(desk.session, {}, u"Empty"_s);
    tree.selectSource(panel.model().indexOf(CodexItem::category(empty)));
    QTest::keyClick(&tree, Qt::Key_Delete);
    EXPECT_FALSE(desk.session.project().taxonomy().category(empty)) << "without a question";
}

} // namespace tw::desktop::codex
