#include "desktop/settings/Shortcuts.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

#include <algorithm>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;

namespace {

QString settingsKey(const QString& id)
{
    return u"shortcuts/"_s + id;
}

/** A text without the marks of its access key; "&&" stands for the sign itself. */
QString plainText(QString text)
{
    for (qsizetype at = text.indexOf(u'&'); at >= 0; at = text.indexOf(u'&', at + 1))
        text.remove(at, 1);
    return text;
}

bool isPanelAction(const QAction& action)
{
    return action.shortcutContext() == Qt::WidgetShortcut ||
           action.shortcutContext() == Qt::WidgetWithChildrenShortcut;
}

} // namespace

QString titleOf(const QAction& action)
{
    return plainText(action.text());
}

const Shortcut* findConflict(
    const std::vector<Shortcut>& shortcuts, const Shortcut& asking, const QKeySequence& keys)
{
    if (keys.isEmpty())
        return nullptr;
    const auto found = std::ranges::find_if(shortcuts, [&](const Shortcut& other) {
        // Two panels never have the focus at once.
        const bool canMeet = !other.panel || !asking.panel || other.panel == asking.panel;
        return other.id != asking.id && canMeet && other.current.contains(keys);
    });
    return found == shortcuts.end() ? nullptr : &*found;
}

Shortcuts::Shortcuts(QSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{}

void Shortcuts::collect(const QMenuBar& menus)
{
    for (const QAction* const entry : menus.actions()) {
        if (entry->menu())
            collectFrom(*entry->menu(), plainText(entry->text()));
    }
    emit changed();
}

void Shortcuts::collectFrom(const QMenu& menu, const QString& title)
{
    for (QAction* const action : menu.actions()) {
        if (action->menu()) {
            collectFrom(*action->menu(), tr("%1 › %2").arg(title, plainText(action->text())));
            continue;
        }
        if (action->isSeparator() || action->objectName().isEmpty())
            continue;
        Shortcut shortcut{action->objectName(), title, titleOf(*action)};
        shortcut.panel = isPanelAction(*action) ? action->parent() : nullptr;
        shortcut.standard = action->shortcuts();
        shortcut.current = shortcut.standard;
        const QVariant chosen = m_settings.value(settingsKey(shortcut.id));
        if (chosen.isValid()) {
            shortcut.current = QKeySequence::listFromString(chosen.toString());
            // No keys at all read back as one that is empty.
            shortcut.current.removeAll(QKeySequence());
            action->setShortcuts(shortcut.current);
        }
        m_shortcuts.push_back(std::move(shortcut));
        m_actions.emplace_back(action);
    }
}

QAction* Shortcuts::action(std::size_t position) const
{
    return m_actions[position];
}

void Shortcuts::set(std::size_t position, const QList<QKeySequence>& keys)
{
    Shortcut& shortcut = m_shortcuts[position];
    shortcut.current = keys;
    if (m_actions[position])
        m_actions[position]->setShortcuts(keys);
    if (shortcut.isChanged())
        m_settings.setValue(settingsKey(shortcut.id), QKeySequence::listToString(keys));
    else
        m_settings.remove(settingsKey(shortcut.id));
}

void Shortcuts::takeFromOthers(std::size_t position, const QKeySequence& keys)
{
    while (const Shortcut* const other = findConflict(m_shortcuts, m_shortcuts[position], keys)) {
        QList<QKeySequence> left = other->current;
        left.removeAll(keys);
        set(static_cast<std::size_t>(other - m_shortcuts.data()), left);
    }
}

void Shortcuts::assign(std::size_t position, const QKeySequence& keys)
{
    takeFromOthers(position, keys);
    set(position, {keys});
    emit changed();
}

void Shortcuts::clear(std::size_t position)
{
    set(position, {});
    emit changed();
}

void Shortcuts::reset(std::size_t position)
{
    const QList<QKeySequence> standard = m_shortcuts[position].standard;
    for (const QKeySequence& keys : standard)
        takeFromOthers(position, keys);
    set(position, standard);
    emit changed();
}

void Shortcuts::resetAll()
{
    for (std::size_t position = 0; position < m_shortcuts.size(); ++position)
        set(position, QList(m_shortcuts[position].standard));
    emit changed();
}

} // namespace tw::desktop::settings
