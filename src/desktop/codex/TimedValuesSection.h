#pragma once

#include "desktop/codex/EntitySection.h"
#include "desktop/codex/TimedValueDialog.h"

#include <QStringList>

class QPushButton;
class QTreeWidget;

namespace tw::desktop::codex {

/** The lines of an entity's state over time, by property and then by date. */
[[nodiscard]] std::vector<TimedEntry> timedEntries(const core::entity::TimedValues& values);
/** The values with a line put in the place of another one; with none on one side it is added or removed. */
[[nodiscard]] core::entity::TimedValues withTimedEntry(
    core::entity::TimedValues values, const std::optional<TimedEntry>& old,
    const std::optional<TimedEntry>& next);

/** Properties that change in the course of the story, as a small table. */
class TimedValuesSection final : public EntitySection
{
    Q_OBJECT

public:
    TimedValuesSection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;
    void setReadOnly(bool readOnly) override;

    [[nodiscard]] QTreeWidget& table() { return *m_table; }

private:
    void makeButtons();
    void fill(const std::vector<QStringList>& rows);
    [[nodiscard]] std::optional<TimedEntry> currentEntry() const;
    void ask(const std::optional<TimedEntry>& present);
    void store(const std::optional<TimedEntry>& old, const std::optional<TimedEntry>& next);
    void refreshButtons();

    QTreeWidget* m_table;
    QPushButton* m_add = nullptr;
    QPushButton* m_edit = nullptr;
    QPushButton* m_remove = nullptr;
    std::vector<TimedEntry> m_entries;
    std::vector<QStringList> m_rows;
    bool m_isReadOnly = false;
};

} // namespace tw::desktop::codex
