#include "desktop/finder/CommandPalette.h"

#include "app/search/NameQuery.h"
#include "desktop/icons/IconSet.h"
#include "desktop/settings/Shortcuts.h"

#include <QAction>
#include <QSettings>

#include <algorithm>
#include <numeric>

namespace tw::desktop::finder {

using namespace Qt::Literals::StringLiterals;
using app::search::FoldedName;
using app::search::NameQuery;
using app::search::NameRank;
using settings::Shortcut;

namespace {

constexpr qsizetype rememberedCommands = 12;
constexpr QLatin1StringView recentKey{"palette/recent"};

/** What fits better is the smaller one; none where a word typed stands neither in the text nor in the menus.
 */
std::optional<int> fitOf(const NameQuery& query, const QString& title, const QString& menu)
{
    constexpr int outsideTitle = static_cast<int>(NameRank::LettersInOrder) + 1;
    const auto hasEveryWord = [](const std::optional<NameRank>& rank) {
        return rank && *rank != NameRank::LettersInOrder;
    };
    if (const auto rank = query.rankOf(FoldedName(title)); hasEveryWord(rank))
        return static_cast<int>(*rank);
    if (const auto rank = query.rankOf(FoldedName(title + u' ' + menu)); hasEveryWord(rank))
        return outsideTitle + static_cast<int>(*rank);
    return std::nullopt;
}

} // namespace

CommandPalette::CommandPalette(
    const settings::Shortcuts& shortcuts, const icons::IconSet& icons, QSettings& settings)
    : m_shortcuts(shortcuts)
    , m_icons(icons)
    , m_settings(settings)
{}

QString CommandPalette::title() const
{
    return tr("Commands");
}

QString CommandPalette::hint() const
{
    return tr("Type a few words of a command");
}

QString CommandPalette::emptyText(const QString& /*typed*/) const
{
    return tr("No command has all these words in its name or its menu. Type fewer letters.");
}

std::vector<std::size_t> CommandPalette::recentFirst() const
{
    const std::vector<Shortcut>& all = m_shortcuts.all();
    std::vector<std::size_t> order(all.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    const QStringList recent = m_settings.value(recentKey).toStringList();
    const auto placeOf = [&](std::size_t position) {
        const qsizetype place = recent.indexOf(all[position].id);
        return place < 0 ? recent.size() : place;
    };
    std::ranges::stable_sort(order, {}, placeOf);
    return order;
}

std::vector<std::size_t> CommandPalette::fitting(const QString& typed) const
{
    const NameQuery query(typed);
    std::vector<std::pair<int, std::size_t>> found;
    for (const std::size_t position : recentFirst()) {
        const QAction* const action = m_shortcuts.action(position);
        if (!action)
            continue;
        const QString title = settings::titleOf(*action);
        if (const auto fit = fitOf(query, title, m_shortcuts.all()[position].menu))
            found.emplace_back(*fit, position);
    }
    std::ranges::stable_sort(found, {}, &std::pair<int, std::size_t>::first);
    std::vector<std::size_t> positions;
    for (const auto& [fit, position] : found)
        positions.push_back(position);
    return positions;
}

FinderRow CommandPalette::rowOf(std::size_t position) const
{
    const QAction& action = *m_shortcuts.action(position);
    FinderRow row;
    row.icon = action.isChecked() ? m_icons.icon(icons::Icon::Check) : action.icon();
    row.text = settings::titleOf(action);
    row.place = m_shortcuts.all()[position].menu;
    row.note = action.shortcut().toString(QKeySequence::NativeText);
    row.isAvailable = action.isEnabled();
    return row;
}

std::vector<FinderRow> CommandPalette::rowsFor(const QString& typed)
{
    m_shown = fitting(typed);
    std::vector<FinderRow> rows;
    for (const std::size_t position : m_shown)
        rows.push_back(rowOf(position));
    return rows;
}

void CommandPalette::choose(std::size_t row, FinderTarget /*target*/)
{
    const std::size_t position = m_shown[row];
    QAction* const action = m_shortcuts.action(position);
    // The keyboard is elsewhere again, which may have taken the command away.
    if (!action || !action->isEnabled())
        return;
    const QString& id = m_shortcuts.all()[position].id;
    QStringList recent = m_settings.value(recentKey).toStringList();
    recent.removeAll(id);
    recent.prepend(id);
    m_settings.setValue(recentKey, QStringList(recent.first(std::min(recent.size(), rememberedCommands))));
    action->trigger();
}

} // namespace tw::desktop::finder
