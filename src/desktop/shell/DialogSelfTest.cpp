#include "desktop/shell/DialogSelfTest.h"

#include "app/persistence/StorageEnvironment.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <DockManager.h>
#include <DockWidget.h>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTextEdit>

#include <algorithm>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isInput(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QTextEdit*>(&widget) ||
           qobject_cast<const QPlainTextEdit*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget);
}

/** What a screen reader calls it, its label's text included. */
QString accessibleName(QWidget& widget)
{
    const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&widget);
    return seen ? seen->text(QAccessible::Name) : QString();
}

QString described(const QWidget& widget)
{
    return u"%1 \"%2\""_s.arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName());
}

QStringList faultsOf(QWidget& dialog)
{
    QStringList faults;
    if (dialog.windowTitle().isEmpty())
        faults.append(u"has no title"_s);
    // Painting it lays it out, as showing it would.
    if (dialog.grab().isNull())
        faults.append(u"has no size"_s);
    for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
        // The inner field of a spin box or of a list of choices is named by what it is part of.
        const bool isOnScreen = widget->isVisibleTo(&dialog) && widget->focusPolicy() != Qt::NoFocus;
        if (!isInput(*widget) || !isOnScreen || isInput(*widget->parentWidget()))
            continue;
        if (accessibleName(*widget).isEmpty())
            faults.append(u"has a control without a name: %1"_s.arg(described(*widget)));
        if (qobject_cast<QAbstractButton*>(widget) && widget->width() < widget->minimumSizeHint().width())
            faults.append(u"has no room for the text of %1"_s.arg(described(*widget)));
    }
    return faults;
}

void checkDialogs(const DeskContext& desk, SelfTestReport& report)
{
    const std::vector<SelfTestDialog> dialogs = selfTestDialogs();
    for (const SelfTestDialog& entry : dialogs) {
        QStringList faults = faultsOf(*entry.make(desk));
        if (entry.check)
            faults += entry.check(desk);
        for (const QString& fault : faults)
            report.lines.append(u"selftest: FAILED: the dialog \"%1\" %2"_s.arg(entry.name, fault));
        report.isPassed = report.isPassed && faults.isEmpty();
    }
    report.lines.append(u"selftest: built %1 dialog(s)"_s.arg(dialogs.size()));
}

/** The actions of a menu between two separators, in its own groups and in its submenus. */
using Group = QList<QAction*>;

void collectGroups(const QMenu& menu, QList<Group>& groups)
{
    groups.append(Group());
    for (QAction* const action : menu.actions()) {
        if (action->isSeparator())
            groups.append(Group());
        else if (!action->menu())
            groups.last().append(action);
    }
    for (const QAction* const action : menu.actions()) {
        if (action->menu())
            collectGroups(*action->menu(), groups);
    }
}

void checkDocks(const QMainWindow& window, SelfTestReport& report)
{
    const auto* const menu = window.findChild<QMenu*>(u"windowsMenu"_s);
    const auto* const manager = window.findChild<ads::CDockManager*>();
    if (!menu || !manager) {
        report.lines.append(u"selftest: FAILED: the window has no Windows menu or no docks"_s);
        report.isPassed = false;
        return;
    }
    QList<ads::CDockWidget*> docks = manager->dockWidgetsMap().values();
    docks.removeAll(manager->centralWidget());
    QList<QAction*> toggles;
    for (const ads::CDockWidget* const dock : docks)
        toggles.append(dock->toggleViewAction());
    QList<Group> groups;
    collectGroups(*menu, groups);

    int unreachable = 0;
    int duplicated = 0;
    for (const ads::CDockWidget* const dock : docks) {
        qsizetype listed = 0;
        bool isInGroup = false;
        for (const Group& group : groups) {
            listed += group.count(dock->toggleViewAction());
            // A group of docks holds nothing else.
            isInGroup = isInGroup || (group.contains(dock->toggleViewAction()) &&
                                      std::ranges::all_of(group, [&toggles](QAction* action) {
                                          return toggles.contains(action);
                                      }));
        }
        if (listed == 0 || !isInGroup) {
            ++unreachable;
            report.lines.append(u"selftest: FAILED: the dock \"%1\" is in no group of the Windows menu"_s.arg(
                dock->objectName()));
        } else if (listed > 1) {
            ++duplicated;
            report.lines.append(
                u"selftest: FAILED: the dock \"%1\" stands in the Windows menu %2 times"_s.arg(
                    dock->objectName(), QString::number(listed)));
        }
    }
    report.lines.append(u"selftest: %1 dock(s) checked, %2 unreachable, %3 duplicated"_s.arg(docks.size())
                            .arg(unreachable)
                            .arg(duplicated));
    report.isPassed = report.isPassed && unreachable == 0 && duplicated == 0 && !docks.isEmpty();
}

} // namespace

SelfTestReport runDialogSelfTest(const QMainWindow& window, const DeskContext& desk)
{
    const QTemporaryDir folder;
    app::persistence::DiskFileSystem files;
    const app::persistence::StorageEnvironment environment{files, folder.path()};
    ProjectSession session(environment);
    session.startNew(u"Selftest"_s);
    Navigator navigator;

    SelfTestReport report;
    checkDialogs({session, navigator, desk.themes, desk.icons, desk.settings}, report);
    checkDocks(window, report);
    report.lines.append(report.isPassed ? u"selftest: passed"_s : u"selftest: FAILED"_s);
    return report;
}

} // namespace tw::desktop::shell
