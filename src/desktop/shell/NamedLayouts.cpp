#include "desktop/shell/NamedLayouts.h"

#include "desktop/icons/IconSet.h"
#include "desktop/shell/DockLayout.h"

#include <QActionGroup>
#include <QMenu>
#include <QSettings>

#include <algorithm>
#include <array>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

struct BuiltInLayout
{
    QLatin1StringView name;
    const char* title;
};

constexpr std::array builtInLayouts{
    BuiltInLayout{"Write"_L1, QT_TRANSLATE_NOOP("tw::desktop::shell::NamedLayouts", "&Write")},
    BuiltInLayout{"Plan"_L1, QT_TRANSLATE_NOOP("tw::desktop::shell::NamedLayouts", "&Plan")},
    BuiltInLayout{"World"_L1, QT_TRANSLATE_NOOP("tw::desktop::shell::NamedLayouts", "W&orld")},
    BuiltInLayout{"Play"_L1, QT_TRANSLATE_NOOP("tw::desktop::shell::NamedLayouts", "P&lay")},
};

constexpr QLatin1StringView stateKey{"window/dockState"};
constexpr QLatin1StringView nameKey{"window/layout"};

QString keyOf(const QString& name)
{
    return u"window/layouts/"_s + name;
}

/** What a layout is before anybody changed it. Write is what the panels want by themselves. */
DockArrangement arrangementOf(const QString& name, const DockLayout& docks)
{
    // The order of the scenes, and what does not fit together.
    if (name == "Plan"_L1) {
        return {
            {u"manuscript"_s, u"codex"_s, u"inspector"_s, u"problems"_s},
            {u"manuscript"_s, u"inspector"_s, u"problems"_s}};
    }
    // What there is, and what it is like.
    if (name == "World"_L1) {
        return {{u"codex"_s, u"manuscript"_s, u"search"_s, u"inspector"_s}, {u"codex"_s, u"inspector"_s}};
    }
    // A fact in a moment, and all the room there is to show it.
    if (name == "Play"_L1)
        return {{u"codex"_s, u"manuscript"_s, u"search"_s}, {u"codex"_s}};
    return docks.usualArrangement();
}

QString knownName(const QString& name)
{
    const bool isKnown = std::ranges::any_of(
        builtInLayouts, [&name](const BuiltInLayout& layout) { return layout.name == name; });
    return isKnown ? name : QString(builtInLayouts.front().name);
}

} // namespace

NamedLayouts::NamedLayouts(
    DockLayout& docks, QSettings& settings, const icons::IconSet& icons, QObject* parent)
    : QObject(parent)
    , m_docks(docks)
    , m_settings(settings)
    , m_icons(icons)
    , m_actions(new QActionGroup(this))
    , m_current(builtInLayouts.front().name)
{}

void NamedLayouts::fillMenu(QMenu& menu)
{
    QMenu* const layouts = menu.addMenu(m_icons.icon(icons::Icon::Layout), tr("&Layout"));
    for (const BuiltInLayout& layout : builtInLayouts) {
        const QString name = layout.name;
        QAction* const action = layouts->addAction(tr(layout.title));
        action->setObjectName(u"windows.layout"_s + name);
        action->setCheckable(true);
        action->setChecked(name == m_current);
        action->setData(name);
        m_actions->addAction(action);
        connect(action, &QAction::triggered, this, [this, name] { choose(name); });
    }
    QAction* const resetAction = menu.addAction(m_icons.icon(icons::Icon::Layout), tr("&Reset Layout"));
    resetAction->setObjectName(u"windows.resetLayout"_s);
    connect(resetAction, &QAction::triggered, this, &NamedLayouts::reset);
}

void NamedLayouts::choose(const QString& name)
{
    const QString chosen = knownName(name);
    if (chosen == m_current)
        return;
    m_settings.setValue(keyOf(m_current), m_docks.state());
    arrange(chosen);
    if (m_docks.setState(m_settings.value(keyOf(chosen)).toByteArray()))
        m_settings.remove(keyOf(chosen));
}

void NamedLayouts::arrange(const QString& name)
{
    m_current = name;
    for (QAction* const action : m_actions->actions())
        action->setChecked(action->data() == m_current);
    m_docks.arrange(arrangementOf(m_current, m_docks));
}

void NamedLayouts::reset()
{
    arrange(m_current);
}

void NamedLayouts::restore()
{
    arrange(knownName(m_settings.value(nameKey).toString()));
    m_docks.setState(m_settings.value(stateKey).toByteArray());
}

void NamedLayouts::save() const
{
    m_settings.setValue(nameKey, m_current);
    m_settings.setValue(stateKey, m_docks.state());
}

} // namespace tw::desktop::shell
