// The keys that lead round the window and on from the cursor.
#include "core/entity/Entity.h"
#include "desktop/codex/EntityPage.h"
#include "desktop/composition/CompositionPage.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/rich/EntityCard.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/support/SampleWindow.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using manuscript::BodyEditor;
using manuscript::rich::EntityCard;

namespace {

class FocusRoundTest : public testing::Test, protected test::SampleWindow
{
protected:
    void open(const QString& title)
    {
        desk.navigator.open(idOf(title));
        QCoreApplication::processEvents();
    }
    core::ContentId idOf(const QString& title) const { return findObject(desk.session.project(), title); }
    WorkArea& work() { return *window.findChild<WorkArea*>(u"workArea"_s); }
    void trigger(const QString& action) { window.findChild<QAction*>(action)->trigger(); }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    /** The panel, the title of the text or the strip that has the keyboard. */
    QString place() const
    {
        for (QWidget* widget = QApplication::focusWidget(); widget; widget = widget->parentWidget()) {
            const QString className = QString::fromLatin1(widget->metaObject()->className());
            for (const QString& part : {u"NotesPane"_s, u"FindBar"_s, u"AudienceSelector"_s}) {
                if (className.endsWith(part))
                    return part;
            }
            if (const auto* const page = qobject_cast<WorkPage*>(widget))
                return page->title();
            if (widget == window.statusBar())
                return u"status bar"_s;
            if (className == u"ads::CDockWidget"_s)
                return widget->objectName();
        }
        return u"nowhere"_s;
    }

    /** Where the key leads, until it is back where it began. */
    QStringList round(Qt::KeyboardModifiers modifiers)
    {
        QStringList places;
        QCoreApplication::processEvents();
        const QWidget* const begin = QApplication::focusWidget();
        do {
            press(Qt::Key_F6, modifiers);
            places.append(place());
        } while (QApplication::focusWidget() != begin && places.size() < 20);
        return places;
    }
};

} // namespace

TEST_F(FocusRoundTest, leadsThroughEverythingThatCanBeSeenAndBack)
{
    const struct
    {
        const char* name;
        std::function<void()> prepare;
        QStringList expected;
    } cases[] = {
        {"one text", [] {}, {u"inspector"_s, u"AudienceSelector"_s, u"manuscript"_s, u"The Spike"_s}},
        {"with a panel below",
         [this] {
             trigger(u"tools.problems"_s);
             work().currentPage()->takeFocus();
         },
         {u"inspector"_s, u"problems"_s, u"AudienceSelector"_s, u"manuscript"_s, u"The Spike"_s}},
        {"the find bar, left for the text",
         [this] {
             trigger(u"edit.find"_s);
             work().currentPage()->takeFocus();
         },
         {u"FindBar"_s, u"inspector"_s, u"problems"_s, u"AudienceSelector"_s, u"manuscript"_s,
          u"The Spike"_s}},
        {"two texts",
         [this] {
             work().openBeside({idOf(u"Her Mark"_s), {}});
             press(Qt::Key_F6, Qt::ShiftModifier);
         },
         {u"Her Mark"_s, u"inspector"_s, u"problems"_s, u"AudienceSelector"_s, u"manuscript"_s,
          u"The Spike"_s, u"FindBar"_s}},
    };
    open(u"The Spike"_s);
    for (const auto& each : cases) {
        each.prepare();
        const QStringList there = round(Qt::NoModifier);
        EXPECT_EQ(there, each.expected) << each.name << ": " << there.join(u", "_s).toStdString();
        QStringList back = round(Qt::ShiftModifier);
        std::reverse(back.begin(), back.end());
        back.append(back.takeFirst());
        EXPECT_EQ(back, each.expected) << each.name << " back: " << back.join(u", "_s).toStdString();
    }
}

TEST_F(FocusRoundTest, comesBackToTheLineThatWasWrittenAlsoInContinuousText)
{
    desk.navigator.openView(
        findObject(desk.session.project(), u"Part One: The Day Book"_s), composition::compositionView);
    QCoreApplication::processEvents();
    auto* const page = qobject_cast<composition::CompositionPage*>(work().currentPage());
    ASSERT_TRUE(page);
    page->takeFocus();
    press(Qt::Key_End);
    press(Qt::Key_Down);
    BodyEditor* const editor = page->currentEditor();
    const int cursor = editor->textCursor().position();
    press(Qt::Key_F6);
    EXPECT_EQ(place(), u"inspector"_s);
    press(Qt::Key_F6);
    press(Qt::Key_F6);
    EXPECT_EQ(place(), u"manuscript"_s);
    press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), editor);
    EXPECT_EQ(editor->textCursor().position(), cursor);
}

TEST_F(FocusRoundTest, doesNothingAmissWithoutAProject)
{
    window.showWelcome();
    QCoreApplication::processEvents();
    for (int step = 0; step < 6; ++step)
        trigger(u"windows.nextPart"_s);
    ASSERT_TRUE(QApplication::focusWidget());
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
}

TEST_F(FocusRoundTest, theNameAtTheCursorIsShownAndRead)
{
    open(u"The Spike"_s);
    auto* const page = qobject_cast<manuscript::TextPage*>(work().currentPage())->richPage();
    const QTextCursor name = page->document()->find(u"Dace Hollick"_s);
    ASSERT_FALSE(name.isNull());
    QTextCursor cursor(name);
    cursor.setPosition(name.selectionStart() + 1);
    page->setTextCursor(cursor);
    const QString before = page->toPlainText();

    press(Qt::Key_F12, Qt::ShiftModifier);
    auto* const card = page->findChild<EntityCard*>();
    ASSERT_TRUE(card && card->isVisible());
    QWidget* const read = QApplication::focusWidget();
    ASSERT_TRUE(read && card->isAncestorOf(read)) << "the card has the keyboard";
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(read);
    EXPECT_EQ(spoken->role(), QAccessible::StaticText);
    EXPECT_TRUE(spoken->text(QAccessible::Name).startsWith(u"Dace Hollick\n"_s));
    QTest::keyClick(read, Qt::Key_Escape);
    EXPECT_FALSE(card->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), page);

    press(Qt::Key_F12, Qt::ShiftModifier);
    ASSERT_TRUE(card->isVisible());
    QTest::keyClick(card, Qt::Key_X);
    EXPECT_FALSE(card->isVisible());
    EXPECT_EQ(page->toPlainText().size(), before.size() + 1) << "whoever types goes on writing";
}

TEST_F(FocusRoundTest, theNameAtTheCursorIsFollowed)
{
    open(u"The Spike"_s);
    auto* const page = qobject_cast<manuscript::TextPage*>(work().currentPage())->richPage();
    QTextCursor cursor = page->document()->find(u"Dace Hollick"_s);
    cursor.setPosition(cursor.selectionStart() + 1);
    page->setTextCursor(cursor);
    press(Qt::Key_F12);
    EXPECT_EQ(objectTitle(*desk.session.project().find(work().currentPage()->objectId())), u"Dace Hollick"_s);
}

} // namespace tw::desktop::shell
