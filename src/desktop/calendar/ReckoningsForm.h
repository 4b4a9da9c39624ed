#pragma once

#include "core/calendar/Reckoning.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <vector>

class QLineEdit;
class QSpinBox;

namespace tw::desktop::fields {
class ListEditor;
class NoteLabel;
} // namespace tw::desktop::fields

namespace tw::desktop::calendar {

/** Further ways of counting years beside the project's calendar: a list, and a form for the current one. */
class ReckoningsForm final : public QWidget
{
    Q_OBJECT

public:
    ReckoningsForm(
        const shell::DeskContext& desk, const core::calendar::Calendar& calendar,
        std::vector<core::calendar::Reckoning> reckonings, QWidget* parent);

    [[nodiscard]] std::vector<core::calendar::Reckoning> reckonings() const;

    /** The calendar in whose years epochs are told, and which a new reckoning copies. */
    void setCalendar(const core::calendar::Calendar& calendar);

private:
    void addItem(std::size_t reckoning);
    void addReckoning();
    void showCurrent();
    void takeEpoch();
    void takeNames();
    void explain();
    [[nodiscard]] core::calendar::Reckoning* current();

    core::calendar::Calendar m_calendar;
    /** The rows of the list know their numbers here; removed ones stay. */
    std::vector<core::calendar::Reckoning> m_reckonings;
    fields::ListEditor* m_list;
    QWidget* m_form;
    QLineEdit* m_name;
    QLineEdit* m_eraName;
    QSpinBox* m_epochYear;
    fields::NoteLabel* m_note;
};

} // namespace tw::desktop::calendar
