#pragma once

#include "core/calendar/CalendarRules.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QLineEdit;

namespace tw::desktop::fields {
class ListEditor;
class NoteLabel;
} // namespace tw::desktop::fields

namespace tw::desktop::calendar {

class RowTable;

/** Months, weekdays and eras of a calendar, typed into tables, with a line that says what they come to. */
class CalendarForm final : public QWidget
{
    Q_OBJECT

public:
    CalendarForm(const shell::DeskContext& desk, const core::calendar::Calendar& calendar, QWidget* parent);

    [[nodiscard]] core::calendar::CalendarDraft draft() const;

signals:
    void edited();

private:
    void addWeekday(const QString& name);
    void refresh();

    RowTable* m_months;
    fields::ListEditor* m_weekdays;
    QLineEdit* m_eraName;
    RowTable* m_eras;
    fields::NoteLabel* m_note;
};

} // namespace tw::desktop::calendar
