// What a screen reader says of the window, and whether the keyboard alone gets everywhere.
#include "core/document/Document.h"
#include "desktop/composition/CompositionPage.h"
#include "desktop/overview/OverviewPage.h"
#include "desktop/shell/DialogSelfTest.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/support/SampleWindow.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

#include <algorithm>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

QString describe(const QWidget& widget)
{
    QStringList path;
    for (const QWidget* each = &widget; each; each = each->parentWidget()) {
        const QString name = each->objectName();
        path.prepend(
            QString::fromLatin1(each->metaObject()->className()) + (name.isEmpty() ? name : u'#' + name));
    }
    return path.mid(std::max<qsizetype>(0, path.size() - 4)).join(u" > "_s);
}

/** Parts of a compound control that the control speaks for. */
bool isInnerPart(const QWidget& widget)
{
    const QString name = widget.objectName();
    return name.startsWith(u"qt_"_s) || (widget.focusProxy() != nullptr);
}

/** Whether a screen reader can tell from the role what to do with the control. */
bool hasFittingRole(const QWidget& widget, QAccessible::Role role)
{
    const auto isOneOf = [role](std::initializer_list<QAccessible::Role> roles) {
        return std::ranges::find(roles, role) != roles.end();
    };
    if (qobject_cast<const QAbstractButton*>(&widget))
        return isOneOf(
            {QAccessible::PushButton, QAccessible::CheckBox, QAccessible::RadioButton,
             QAccessible::ButtonMenu, QAccessible::ButtonDropDown, QAccessible::Link});
    if (qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QTextEdit*>(&widget) ||
        qobject_cast<const QPlainTextEdit*>(&widget))
        return isOneOf({QAccessible::EditableText, QAccessible::Document, QAccessible::StaticText});
    if (qobject_cast<const QComboBox*>(&widget))
        return role == QAccessible::ComboBox;
    if (qobject_cast<const QAbstractSpinBox*>(&widget))
        return role == QAccessible::SpinBox;
    if (qobject_cast<const QAbstractItemView*>(&widget))
        return isOneOf({QAccessible::Tree, QAccessible::List, QAccessible::Table});
    if (qobject_cast<const QTabBar*>(&widget))
        return role == QAccessible::PageTabList;
    // What scrolls a form is a pane; anything else has to say what it is.
    if (qobject_cast<const QScrollArea*>(&widget))
        return isOneOf({QAccessible::Client, QAccessible::Pane});
    return !isOneOf(
        {QAccessible::NoRole, QAccessible::Client, QAccessible::Window, QAccessible::Border,
         QAccessible::Pane});
}

/** Of choices that exclude each other, Tab reaches the one that is made. */
bool isLeftToTheArrowKeys(const QWidget& widget)
{
    const auto* const radio = qobject_cast<const QRadioButton*>(&widget);
    return radio && !radio->isChecked();
}

QList<QWidget*> controlsOf(const QWidget& area, Qt::FocusPolicy policy)
{
    QList<QWidget*> found;
    for (QWidget* const widget : area.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->width() > 0 &&
            (widget->focusPolicy() & policy) == policy && !isInnerPart(*widget) &&
            !isLeftToTheArrowKeys(*widget))
            found.append(widget);
    }
    return found;
}

QStringList namelessControls(const QWidget& area)
{
    QStringList faults;
    for (const QWidget* const widget : controlsOf(area, Qt::ClickFocus)) {
        auto* const accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        if (!accessible || accessible->text(QAccessible::Name).trimmed().isEmpty())
            faults.append(u"has no name: "_s + describe(*widget));
        else if (!hasFittingRole(*widget, accessible->role()))
            faults.append(u"has role %1: "_s.arg(accessible->role()) + describe(*widget));
    }
    return faults;
}

/** The control that has the keyboard: not a part of it. */
QWidget* focusedControl()
{
    QWidget* widget = QApplication::focusWidget();
    while (widget && isInnerPart(*widget) && widget->parentWidget())
        widget = widget->parentWidget();
    return widget;
}

/** Presses Tab, or Shift+Tab, from where the keyboard is, until it leaves the area or goes in circles. */
QList<QWidget*> walk(const QWidget& area, Qt::Key key)
{
    // A date has parts and a line of links several; whatever keeps the key for longer keeps it for good.
    constexpr int mostParts = 300;
    QList<QWidget*> reached;
    int presses = 0;
    for (QWidget* at = focusedControl(); at && (at == &area || area.isAncestorOf(at));
         at = focusedControl()) {
        const bool isSame = !reached.isEmpty() && reached.constLast() == at;
        if (!isSame && reached.contains(at))
            break;
        presses = isSame ? presses + 1 : 0;
        if (presses > mostParts)
            break;
        if (!isSame)
            reached.append(at);
        QTest::keyClick(QApplication::focusWidget(), key);
        QCoreApplication::processEvents();
    }
    return reached;
}

/** What the Tab key misses in the area on its way there, and Shift+Tab on its way back. */
QStringList controlsOutOfReach(QWidget& area)
{
    const QList<QWidget*> controls = controlsOf(area, Qt::TabFocus);
    QWidget* first = area.nextInFocusChain();
    while (first != &area && !controls.contains(first))
        first = first->nextInFocusChain();
    if (controls.isEmpty())
        return {};
    QStringList faults;
    const QList<QPointer<QWidget>> known(controls.begin(), controls.end());
    const auto note = [&](const QList<QWidget*>& reached, const QString& key) {
        for (const QPointer<QWidget>& widget : known) {
            // Leaving a field may have put others in the place of those that were there.
            if (widget && widget->isVisible() && widget->isEnabled() && !reached.contains(widget))
                faults.append(u"%1 does not reach %2 but ends at %3"_s.arg(
                    key, describe(*widget), reached.isEmpty() ? QString() : describe(*reached.last())));
        }
    };
    first->setFocus(Qt::TabFocusReason);
    const QList<QWidget*> there = walk(area, Qt::Key_Tab);
    note(there, u"Tab"_s);
    if (there.isEmpty())
        return faults;
    there.constLast()->setFocus(Qt::BacktabFocusReason);
    note(walk(area, Qt::Key_Backtab), u"Shift+Tab"_s);
    return faults;
}

class AccessibilityTest : public testing::Test, protected test::SampleWindow
{
protected:
    core::ContentId idOf(const QString& title) const { return findObject(desk.session.project(), title); }

    void show(const QString& title, const QString& view)
    {
        if (view.isEmpty())
            desk.navigator.open(idOf(title));
        else
            desk.navigator.openView(idOf(title), view);
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(AccessibilityTest, everyControlHasANameAndAFittingRole)
{
    const struct
    {
        QString title;
        QString view;
    } pages[] = {
        {u"The Spike"_s, {}},
        {u"Itemised"_s, {}},
        {u"The Gun"_s, {}},
        {u"Ibbet Lusk"_s, {}},
        {u"Part One: The Day Book"_s, overview::corkboardView},
        {u"Part One: The Day Book"_s, overview::outlineView},
        {u"Part One: The Day Book"_s, composition::compositionView},
    };
    QSet<QString> faults;
    const auto look = [&](const QString& where) {
        for (const QString& fault : namelessControls(window))
            faults.insert(where + u' ' + fault);
    };
    for (const auto& page : pages) {
        show(page.title, page.view);
        look(page.title + u' ' + page.view);
    }
    for (const QString& panel : window.findChild<DockLayout*>()->panelNames()) {
        window.findChild<DockLayout*>()->showPanel(panel);
        QCoreApplication::processEvents();
        look(panel);
    }
    for (const QString& action : {u"view.goTo"_s, u"view.commandPalette"_s, u"edit.replace"_s}) {
        window.findChild<QAction*>(action)->trigger();
        look(action);
    }
    EXPECT_TRUE(faults.isEmpty()) << QStringList(faults.values()).join(u'\n').toStdString();
}

TEST_F(AccessibilityTest, theTabKeyGoesThroughEveryPanelAndBack)
{
    QStringList faults;
    const auto look = [&](const QString& where, QWidget& area) {
        for (const QString& fault : controlsOutOfReach(area))
            faults.append(where + u": "_s + fault);
    };
    show(u"Ibbet Lusk"_s, {});
    auto* const work = window.findChild<WorkArea*>(u"workArea"_s);
    look(u"entity"_s, *work->currentPage());
    show(u"Part One: The Day Book"_s, overview::corkboardView);
    look(u"corkboard"_s, *work->currentPage());
    show(u"Part One: The Day Book"_s, overview::outlineView);
    look(u"outline"_s, *work->currentPage());
    // Texts keep the Tab key for themselves: F6 leads on from there.
    show(u"Itemised"_s, {});
    for (QWidget* const part : work->currentPage()->parts().sliced(1)) {
        part->show();
        look(u"beside the text"_s, *part);
    }
    auto* const docks = window.findChild<DockLayout*>();
    for (const core::ContentId& id : {idOf(u"The Spike"_s), idOf(u"Ibbet Lusk"_s)}) {
        desk.navigator.setCurrent(id);
        for (const QString& panel : docks->panelNames()) {
            docks->showPanel(panel);
            QCoreApplication::processEvents();
            for (QWidget* const area : docks->shownAreas()) {
                if (!area->isAncestorOf(work) && area->isAncestorOf(QApplication::focusWidget()))
                    look(panel, *area);
            }
        }
    }
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
}

TEST_F(AccessibilityTest, theTabKeyGoesRoundEveryDialog)
{
    QStringList faults;
    for (const SelfTestDialog& entry : selfTestDialogs()) {
        const std::unique_ptr<QWidget> dialog = entry.make(desk.context);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get())) << entry.name.toStdString();
        const auto look = [&](const QString& where) {
            QCoreApplication::processEvents();
            for (const QString& fault : namelessControls(*dialog) + controlsOutOfReach(*dialog))
                faults.append(where + u": "_s + fault);
        };
        auto* const pages = dialog->findChild<QStackedWidget*>();
        for (int page = 0; page < (pages ? pages->count() : 1); ++page) {
            if (pages)
                pages->setCurrentIndex(page);
            look(u"%1 %2"_s.arg(entry.name).arg(page));
        }
        // Behind the last control comes the first one.
        const QList<QWidget*> reached = walk(*dialog, Qt::Key_Tab);
        if (!reached.isEmpty() && focusedControl() != reached.first())
            faults.append(entry.name + u": the Tab key does not come back to where it began"_s);
    }
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
}

TEST_F(AccessibilityTest, everyActionOfTheMenusHasATextAndNoKeyStandsForTwo)
{
    QHash<QKeySequence, QString> known;
    QStringList faults;
    const auto walk = [&](auto&& self, const QList<QAction*>& actions) -> void {
        for (QAction* const action : actions) {
            if (action->menu()) {
                self(self, action->menu()->actions());
                continue;
            }
            if (action->isSeparator())
                continue;
            if (action->text().isEmpty())
                faults.append(u"no text: "_s + action->objectName());
            // Keys that hold in one list alone may stand for something else elsewhere.
            if (action->shortcutContext() == Qt::WidgetWithChildrenShortcut)
                continue;
            for (const QKeySequence& keys : action->shortcuts()) {
                const QString other = std::exchange(known[keys], action->objectName());
                if (!other.isEmpty() && other != action->objectName())
                    faults.append(keys.toString() + u": "_s + other + u" and "_s + action->objectName());
            }
        }
    };
    walk(walk, window.menuBar()->actions());
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
}

} // namespace tw::desktop::shell
