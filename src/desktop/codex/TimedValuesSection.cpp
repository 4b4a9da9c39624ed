#include "desktop/codex/TimedValuesSection.h"

#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "desktop/codex/SectionHeading.h"
#include "desktop/fields/ValueText.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::entity::Schema;
using core::entity::TimedValue;
using core::entity::TimedValues;
using icons::Icon;

namespace {

constexpr int mostVisibleRows = 8;
constexpr int columnGap = 20;

/** The lines of fields that reach the entity; the others are listed among what is hidden. */
std::vector<TimedEntry> shownEntries(const Entity& entity, const Schema& schema)
{
    std::vector<TimedEntry> entries = timedEntries(entity.timedValues());
    std::erase_if(entries, [&schema](const TimedEntry& entry) {
        const auto* const resolved = core::entity::findField(schema, entry.key);
        return !resolved || resolved->isFixed();
    });
    return entries;
}

bool canHoldState(const Schema& schema)
{
    return std::ranges::any_of(schema, [](const auto& resolved) { return !resolved.isFixed(); });
}

} // namespace

std::vector<TimedEntry> timedEntries(const TimedValues& values)
{
    std::vector<TimedEntry> entries;
    for (const auto& [key, list] : values) {
        for (const TimedValue& timed : list)
            entries.push_back({key, timed});
    }
    return entries;
}

TimedValues withTimedEntry(
    TimedValues values, const std::optional<TimedEntry>& old, const std::optional<TimedEntry>& next)
{
    if (old) {
        auto& list = values[old->key];
        if (const auto place = std::ranges::find(list, old->timed); place != list.end())
            list.erase(place);
    }
    if (next)
        values[next->key].push_back(next->timed);
    return core::entity::normalised(std::move(values));
}

TimedValuesSection::TimedValuesSection(
    const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_table(new QTreeWidget(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new SectionHeading(desk.icons.icon(Icon::History), tr("State over time"), this));
    layout->addWidget(m_table);
    m_table->setColumnCount(3);
    m_table->setHeaderHidden(true);
    m_table->setRootIsDecorated(false);
    m_table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_table->setUniformRowHeights(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->setAccessibleName(tr("State over time"));
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    makeButtons();
    connect(m_table, &QTreeWidget::currentItemChanged, this, &TimedValuesSection::refreshButtons);
    connect(m_table, &QTreeWidget::itemActivated, m_edit, &QPushButton::click);
}

void TimedValuesSection::makeButtons()
{
    auto* const row = new QHBoxLayout;
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    const auto addButton = [&](Icon icon, const QString& text, auto handler) {
        auto* const button = new QPushButton(desk().icons.icon(icon), text, this);
        button->setFlat(true);
        connect(button, &QPushButton::clicked, this, handler);
        row->addWidget(button);
        return button;
    };
    m_add = addButton(Icon::Add, tr("Add State…"), [this] { ask(std::nullopt); });
    m_edit = addButton(Icon::Rename, tr("Change…"), [this] { ask(currentEntry()); });
    m_remove = addButton(Icon::Remove, tr("Remove"), [this] { store(currentEntry(), std::nullopt); });
    row->addStretch();
}

void TimedValuesSection::showEntity(const Entity& entity)
{
    const auto& project = desk().session.project();
    const Schema schema = core::entity::schemaOfEntity(project, entity);
    m_entries = shownEntries(entity, schema);
    std::vector<QStringList> rows;
    for (const TimedEntry& entry : m_entries) {
        const auto& field = core::entity::findField(schema, entry.key)->field;
        rows.push_back(
            {field.displayName(), project.calendar().formatInstant(entry.timed.instant),
             fields::valueText(project, field, entry.timed.value).simplified()});
    }
    if (rows != m_rows)
        fill(rows);
    setVisible(canHoldState(schema));
    refreshButtons();
}

void TimedValuesSection::fill(const std::vector<QStringList>& rows)
{
    const int current = m_table->indexOfTopLevelItem(m_table->currentItem());
    m_rows = rows;
    m_table->clear();
    for (const QStringList& row : rows) {
        auto* const item = new QTreeWidgetItem(m_table, row);
        item->setToolTip(2, row.last());
    }
    m_table->setCurrentItem(m_table->topLevelItem(std::min(current, static_cast<int>(rows.size()) - 1)));
    for (int column = 0; column < 2; ++column) {
        m_table->resizeColumnToContents(column);
        m_table->setColumnWidth(column, m_table->columnWidth(column) + columnGap);
    }
    m_table->setHidden(rows.empty());
    const int visibleRows = std::min(static_cast<int>(rows.size()), mostVisibleRows);
    const int rowHeight = rows.empty() ? 0 : m_table->sizeHintForRow(0);
    m_table->setFixedHeight(visibleRows * rowHeight);
}

std::optional<TimedEntry> TimedValuesSection::currentEntry() const
{
    const int row = m_table->indexOfTopLevelItem(m_table->currentItem());
    return row < 0 ? std::nullopt : std::optional(m_entries[static_cast<std::size_t>(row)]);
}

void TimedValuesSection::ask(const std::optional<TimedEntry>& present)
{
    const Entity* const shown = entity();
    if (!shown)
        return;
    // A child of the window: while it is open, this page may go.
    const QPointer<TimedValuesSection> self(this);
    TimedValueDialog dialog(
        desk(), core::entity::schemaOfEntity(desk().session.project(), *shown), present, window());
    if (dialog.exec() == QDialog::Accepted && self)
        store(present, dialog.entry());
}

void TimedValuesSection::store(const std::optional<TimedEntry>& old, const std::optional<TimedEntry>& next)
{
    Entity* const edited = entityForCommands();
    if (!edited || old == next)
        return;
    desk().session.apply(std::make_unique<core::entity::SetEntityTimedValuesCommand>(
        *edited, withTimedEntry(edited->timedValues(), old, next)));
}

void TimedValuesSection::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    refreshButtons();
}

void TimedValuesSection::refreshButtons()
{
    const bool hasCurrent = m_table->currentItem() != nullptr;
    m_add->setHidden(m_isReadOnly);
    m_edit->setHidden(m_isReadOnly || m_rows.empty());
    m_remove->setHidden(m_isReadOnly || m_rows.empty());
    m_edit->setEnabled(hasCurrent && !m_isReadOnly);
    m_remove->setEnabled(hasCurrent && !m_isReadOnly);
    m_table->setHidden(m_rows.empty());
}

} // namespace tw::desktop::codex
