// What a screen reader says of the window, and whether the keyboard alone gets everywhere.
#include "core/document/Document.h"
#include "desktop/composition/CompositionPage.h"
#include "desktop/overview/OverviewPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/support/SampleWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QMenuBar>
#include <QSet>
#include <QTest>

#include <gtest/gtest.h>

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

class AccessibilityTest : public testing::Test, protected test::SampleWindow
{
protected:
    QList<QWidget*> focusable(Qt::FocusPolicy policy) const
    {
        QList<QWidget*> found;
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & policy) == policy &&
                !isInnerPart(*widget))
                found.append(widget);
        }
        return found;
    }
};

} // namespace

TEST_F(AccessibilityTest, everyControlHasANameAndTheTabKeyFindsIt)
{
    const core::ContentId scene = findObject(desk.session.project(), u"The Spike"_s);
    const core::ContentId part = findObject(desk.session.project(), u"Part One: The Day Book"_s);
    const core::ContentId clerk = findObject(desk.session.project(), u"Ibbet Lusk"_s);
    const struct
    {
        const char* name;
        core::ContentId id;
        QString view;
    } pages[] = {
        {"text", scene, {}},
        {"entity", clerk, {}},
        {"corkboard", part, overview::corkboardView},
        {"outline", part, overview::outlineView},
        {"continuous text", part, composition::compositionView},
    };
    QSet<QString> faults;
    const auto noteNameless = [&](const QString& where) {
        for (QWidget* const widget : focusable(Qt::ClickFocus)) {
            QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
            if (!accessible || accessible->text(QAccessible::Name).trimmed().isEmpty())
                faults.insert(where + u" has no name: "_s + describe(*widget));
        }
    };
    for (const auto& page : pages) {
        if (page.view.isEmpty())
            desk.navigator.open(page.id);
        else
            desk.navigator.openView(page.id, page.view);
        QCoreApplication::processEvents();
        noteNameless(QLatin1String(page.name));
        // Round once: what the Tab key does when nothing wants it for itself.
        QSet<const QWidget*> reached;
        for (QWidget* widget = window.nextInFocusChain(); widget != &window;
             widget = widget->nextInFocusChain())
            reached.insert(widget);
        for (QWidget* const widget : focusable(Qt::TabFocus)) {
            if (!reached.contains(widget))
                faults.insert(QLatin1String(page.name) + u" is out of reach: "_s + describe(*widget));
        }
    }
    for (const QString& finder : {u"view.goTo"_s, u"view.commandPalette"_s}) {
        window.findChild<QAction*>(finder)->trigger();
        noteNameless(finder);
    }
    EXPECT_TRUE(faults.isEmpty()) << QStringList(faults.values()).join(u'\n').toStdString();
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
