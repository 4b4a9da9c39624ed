#pragma once

#include "core/calendar/Reckoning.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <vector>

class QTabWidget;

namespace tw::desktop::fields {
class NoteLabel;
}

namespace tw::desktop::calendar {

class CalendarForm;
class ReckoningsForm;

/** How a project counts time. */
struct Timekeeping
{
    core::calendar::Calendar calendar;
    std::vector<core::calendar::Reckoning> reckonings;

    bool operator==(const Timekeeping&) const = default;
};

/** The project's calendar and its further reckonings. Changes nothing by itself. */
class CalendarDialog final : public QDialog
{
    Q_OBJECT

public:
    CalendarDialog(const shell::DeskContext& desk, const Timekeeping& start, QWidget* parent);

    [[nodiscard]] Timekeeping timekeeping() const;

    /** Stays open while the calendar makes no sense, and says what is missing. */
    void accept() override;

private:
    void followCalendar();

    QTabWidget* m_tabs;
    CalendarForm* m_calendar;
    ReckoningsForm* m_reckonings;
    fields::NoteLabel* m_note;
};

/** Has the user change the open project's calendar and reckonings, as one step. */
void editCalendar(const shell::DeskContext& desk, QWidget* parent);

} // namespace tw::desktop::calendar
