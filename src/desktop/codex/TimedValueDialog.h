#pragma once

#include "core/entity/Schema.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

class QComboBox;
class QVBoxLayout;

namespace tw::desktop::fields {
class NoteLabel;
class StoryDateEdit;
class ValueEditor;
} // namespace tw::desktop::fields

namespace tw::desktop::codex {

/** One line of an entity's state over time. */
struct TimedEntry
{
    QString key;
    core::entity::TimedValue timed;

    friend bool operator==(const TimedEntry&, const TimedEntry&) = default;
};

/** Asks which property has which value from when on. Changes nothing by itself. */
class TimedValueDialog final : public QDialog
{
    Q_OBJECT

public:
    /** `schema` holds at least one field that is not fixed. `present` is the line to change, if any. */
    TimedValueDialog(
        const shell::DeskContext& desk, core::entity::Schema schema, const std::optional<TimedEntry>& present,
        QWidget* parent);

    [[nodiscard]] TimedEntry entry() const;
    void accept() override;

private:
    void makeEditor(const std::optional<QString>& value);
    [[nodiscard]] const core::taxonomy::Field& field() const;

    shell::DeskContext m_desk;
    core::entity::Schema m_schema;
    QComboBox* m_field;
    fields::StoryDateEdit* m_date;
    QVBoxLayout* m_valuePlace;
    fields::ValueEditor* m_value = nullptr;
    fields::NoteLabel* m_note;
};

} // namespace tw::desktop::codex
