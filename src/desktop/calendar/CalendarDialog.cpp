#include "desktop/calendar/CalendarDialog.h"

#include "core/calendar/CalendarCommands.h"
#include "desktop/calendar/CalendarForm.h"
#include "desktop/calendar/ReckoningsForm.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/shell/ProjectSession.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tw::desktop::calendar {

using namespace Qt::Literals::StringLiterals;
using core::calendar::calendarFromDraft;
using core::calendar::checkCalendarDraft;

namespace {

constexpr int charactersWide = 108;
constexpr int linesHigh = 36;

} // namespace

CalendarDialog::CalendarDialog(const shell::DeskContext& desk, const Timekeeping& start, QWidget* parent)
    : QDialog(parent)
    , m_tabs(new QTabWidget(this))
    , m_calendar(new CalendarForm(desk, start.calendar, this))
    , m_reckonings(new ReckoningsForm(desk, start.calendar, start.reckonings, this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    setWindowTitle(tr("Edit Calendar"));
    setSizeGripEnabled(true);
    m_tabs->addTab(m_calendar, tr("&Calendar"));
    m_tabs->addTab(m_reckonings, tr("&Reckonings"));
    m_note->setNote(tr("No event moves: every date keeps its day and is read in the new calendar."));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("Apply Calendar"), QDialogButtonBox::AcceptRole)->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &CalendarDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CalendarDialog::reject);
    connect(m_calendar, &CalendarForm::edited, this, &CalendarDialog::followCalendar);
    m_calendar->setFocus();
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

void CalendarDialog::followCalendar()
{
    if (const auto draft = m_calendar->draft(); checkCalendarDraft(draft))
        m_reckonings->setCalendar(calendarFromDraft(draft));
}

Timekeeping CalendarDialog::timekeeping() const
{
    return {calendarFromDraft(m_calendar->draft()), m_reckonings->reckonings()};
}

void CalendarDialog::accept()
{
    // What is still being typed counts.
    setFocus();
    if (const auto possible = checkCalendarDraft(m_calendar->draft()); !possible) {
        m_tabs->setCurrentWidget(m_calendar);
        m_note->setNote(possible.message(), fields::NoteLabel::Tone::Error);
        return;
    }
    QDialog::accept();
}

void editCalendar(const shell::DeskContext& desk, QWidget* parent)
{
    const core::project::Project& project = desk.session.project();
    const Timekeeping before{project.calendar(), project.reckonings()};
    CalendarDialog dialog(desk, before, parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    Timekeeping chosen = dialog.timekeeping();
    core::project::Project& changed = desk.session.projectForCommands();
    const bool isBoth = chosen.calendar != before.calendar && chosen.reckonings != before.reckonings;
    const auto macro =
        isBoth ? std::optional(desk.session.macro(CalendarDialog::tr("Edit calendar"))) : std::nullopt;
    if (chosen.calendar != before.calendar) {
        desk.session.apply(
            std::make_unique<core::calendar::SetCalendarCommand>(changed, std::move(chosen.calendar)));
    }
    if (chosen.reckonings != before.reckonings) {
        desk.session.apply(
            std::make_unique<core::calendar::SetReckoningsCommand>(changed, std::move(chosen.reckonings)));
    }
}

} // namespace tw::desktop::calendar
