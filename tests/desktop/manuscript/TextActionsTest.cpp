#include "desktop/manuscript/TextActions.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/support/TestDesk.h"

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QToolBar>

#include <gtest/gtest.h>

#include <set>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

class TextActionsTest : public testing::Test
{
protected:
    TextActionsTest()
        : id(desk.addDocument(u"Chapter"_s, {}, 0))
    {
        desk.document(id).setBody(
            {u"A **bold** word.\n\n```\ncode\n```\n\n| cell | b |\n| --- | --- |\n| c | d |\n\n> quoted"_s,
             {}});
        actions.fillFormatMenu(format);
        actions.fillInsertMenu(insert);
        actions.fillBar(bar);
        page = std::make_unique<DocumentPage>(desk.context, id, nullptr);
        actions.setPage(page.get());
    }

    void goTo(const QString& text)
    {
        page->editor().setTextCursor(page->editor().document()->find(text));
        actions.refreshNow();
    }

    QAction* action(const QString& name)
    {
        for (const QMenu* const menu : {&format, &insert}) {
            if (auto* const found = menu->findChild<QAction*>(name))
                return found;
        }
        for (QMenu* const menu : {&format, &insert}) {
            for (const QMenu* const inner : menu->findChildren<QMenu*>()) {
                if (auto* const found = inner->findChild<QAction*>(name))
                    return found;
            }
        }
        ADD_FAILURE() << name.toStdString();
        return nullptr;
    }

    test::TestDesk desk;
    core::ContentId id;
    QWidget window;
    TextActions actions{desk.context, &window};
    QMenu format;
    QMenu insert;
    QToolBar bar;
    std::unique_ptr<DocumentPage> page;
};

} // namespace

TEST_F(TextActionsTest, showHowTheTextIsSetAndWorkOnlyWhereTheyCan)
{
    const struct
    {
        QString at;
        QString name;
        bool isEnabled;
        bool isChecked;
    } cases[] = {
        {u"bold"_s, u"format.bold"_s, true, true},        {u"word"_s, u"format.bold"_s, true, false},
        {u"word"_s, u"format.body"_s, true, true},        {u"code"_s, u"format.bold"_s, false, false},
        {u"code"_s, u"format.codeBlock"_s, true, true},   {u"cell"_s, u"format.heading1"_s, false, false},
        {u"cell"_s, u"table.rowBelow"_s, true, false},    {u"word"_s, u"table.rowBelow"_s, false, false},
        {u"quoted"_s, u"format.quotation"_s, true, true}, {u"cell"_s, u"insert.rule"_s, false, false},
    };
    for (const auto& sample : cases) {
        goTo(sample.at);
        const QAction* const tried = action(sample.name);
        EXPECT_EQ(tried->isEnabled(), sample.isEnabled)
            << sample.name.toStdString() << sample.at.toStdString();
        EXPECT_EQ(tried->isChecked(), sample.isChecked)
            << sample.name.toStdString() << sample.at.toStdString();
    }
    page->setSourceShown(true);
    EXPECT_FALSE(action(u"format.bold"_s)->isEnabled());
    page->setSourceShown(false);
    desk.document(id).setLocked(true);
    desk.announce();
    page->setSourceShown(true);
    page->setSourceShown(false);
    actions.refreshNow();
    EXPECT_FALSE(action(u"format.italic"_s)->isEnabled()) << "locked";
}

TEST_F(TextActionsTest, everyActionHasANameAndNoTwoTheSameKeys)
{
    std::set<QKeySequence> keys;
    std::set<QString> names;
    for (QMenu* const top : {&format, &insert}) {
        QList<QMenu*> menus = top->findChildren<QMenu*>();
        menus.append(top);
        for (const QMenu* const menu : std::as_const(menus)) {
            for (const QAction* const each : menu->actions()) {
                const bool areKeysNew = each->shortcut().isEmpty() || keys.insert(each->shortcut()).second;
                EXPECT_TRUE(areKeysNew) << each->text().toStdString();
                const bool isNameNew =
                    each->objectName().isEmpty() || names.insert(each->objectName()).second;
                EXPECT_TRUE(isNameNew) << each->objectName().toStdString();
            }
        }
    }
    EXPECT_GT(names.size(), 30U);
}

TEST_F(TextActionsTest, triggeredActionsAreUndoneInOneStep)
{
    const QString before = desk.document(id).body().text;
    for (const QString& name :
         {u"format.bold"_s, u"format.heading2"_s, u"format.bulletList"_s, u"format.alignCenter"_s,
          u"insert.rule"_s, u"insert.pageBreak"_s, u"insert.footnote"_s, u"insert.endnote"_s}) {
        goTo(u"word"_s);
        action(name)->trigger();
        EXPECT_NE(desk.document(id).body().text, before) << name.toStdString();
        desk.session.undo();
        EXPECT_EQ(desk.document(id).body().text, before) << name.toStdString();
        EXPECT_FALSE(desk.session.canUndo()) << name.toStdString();
    }
}

} // namespace tw::desktop::manuscript
