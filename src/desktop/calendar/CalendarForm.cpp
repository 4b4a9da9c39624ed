#include "desktop/calendar/CalendarForm.h"

#include "desktop/calendar/RowTable.h"
#include "desktop/fields/ListEditor.h"
#include "desktop/fields/NoteLabel.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

namespace tw::desktop::calendar {

using namespace Qt::Literals::StringLiterals;
using core::calendar::Calendar;
using core::calendar::CalendarDraft;
using core::calendar::CalendarEra;
using core::calendar::CalendarMonth;

namespace {

constexpr qint32 daysOfNewMonth = 30;

enum MonthColumn
{
    MonthName,
    MonthDays,
};

enum EraColumn
{
    EraName,
    EraStart,
    EraCountsDown,
};

QLabel* makeHeading(const QString& text, QWidget* field, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setBuddy(field);
    return label;
}

} // namespace

CalendarForm::CalendarForm(const shell::DeskContext& desk, const Calendar& calendar, QWidget* parent)
    : QWidget(parent)
    , m_months(new RowTable(
          desk, tr("Months"), {tr("Month"), tr("Days")}, {tr("New month"), daysOfNewMonth}, this))
    , m_weekdays(new fields::ListEditor(desk, tr("Weekdays"), tr("No weekdays yet."), this))
    , m_eraName(new QLineEdit(calendar.eraName(), this))
    , m_eras(new RowTable(
          desk, tr("Named eras"), {tr("Era"), tr("First year"), tr("Counts down")},
          {tr("New era"), u"1"_s, false}, this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    m_months->table().setObjectName(u"months"_s);
    setFocusProxy(&m_months->table());
    m_weekdays->list().setObjectName(u"weekdays"_s);
    m_eras->table().setObjectName(u"eras"_s);
    m_eraName->setObjectName(u"eraName"_s);
    for (const CalendarMonth& month : calendar.months())
        m_months->addRow({month.name, month.days});
    for (const QString& weekday : calendar.weekdays())
        addWeekday(weekday);
    for (const CalendarEra& era : calendar.eras())
        m_eras->addRow({era.name, QString::number(era.startYear), era.countsDown});
    connect(m_weekdays->addButton(tr("A&dd Weekday")), &QPushButton::clicked, this, [this] {
        addWeekday(tr("New weekday"));
        QListWidget& list = m_weekdays->list();
        list.setCurrentRow(list.count() - 1);
        list.setFocus();
        list.editItem(list.currentItem());
        refresh();
    });
    connect(m_weekdays, &fields::ListEditor::removeRequested, this, [this](int row) {
        delete m_weekdays->list().takeItem(row);
        refresh();
    });

    auto* const grid = new QGridLayout(this);
    grid->addWidget(makeHeading(tr("&Months"), &m_months->table(), this), 0, 0);
    grid->addWidget(m_months, 1, 0, 3, 1);
    grid->addWidget(
        makeHeading(tr("&Weekdays, from the first day of year 1"), &m_weekdays->list(), this), 0, 1);
    grid->addWidget(m_weekdays, 1, 1);
    grid->addWidget(makeHeading(tr("&Era after every year, while no era is named"), m_eraName, this), 2, 1);
    grid->addWidget(m_eraName, 3, 1);
    grid->addWidget(makeHeading(tr("&Named eras"), &m_eras->table(), this), 4, 0, 1, 2);
    grid->addWidget(m_eras, 5, 0, 1, 2);
    grid->addWidget(m_note, 6, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    connect(m_months, &RowTable::edited, this, &CalendarForm::refresh);
    connect(m_eras, &RowTable::edited, this, &CalendarForm::refresh);
    connect(&m_weekdays->list(), &QListWidget::itemChanged, this, &CalendarForm::refresh);
    connect(m_weekdays->list().model(), &QAbstractItemModel::rowsInserted, this, &CalendarForm::refresh);
    connect(m_eraName, &QLineEdit::textChanged, this, &CalendarForm::refresh);
    refresh();
}

void CalendarForm::addWeekday(const QString& name)
{
    auto* const item = new QListWidgetItem(name, &m_weekdays->list());
    item->setFlags(item->flags() | Qt::ItemIsEditable);
}

CalendarDraft CalendarForm::draft() const
{
    CalendarDraft draft;
    for (int row = 0; row < m_months->rowCount(); ++row) {
        draft.months.append(
            {m_months->value(row, MonthName).toString().trimmed(), m_months->value(row, MonthDays).toInt()});
    }
    for (int row = 0; row < m_weekdays->list().count(); ++row)
        draft.weekdays.append(m_weekdays->list().item(row)->text().trimmed());
    draft.eraName = m_eraName->text().trimmed();
    for (int row = 0; row < m_eras->rowCount(); ++row) {
        draft.eras.append(
            {m_eras->value(row, EraName).toString().trimmed(),
             m_eras->value(row, EraStart).toString().trimmed(), m_eras->value(row, EraCountsDown).toBool()});
    }
    return draft;
}

void CalendarForm::refresh()
{
    const CalendarDraft present = draft();
    if (core::calendar::checkCalendarDraft(present)) {
        const Calendar calendar = core::calendar::calendarFromDraft(present);
        m_note->setNote(tr("%n days a year. Year 1 begins on %1, %2.", nullptr, calendar.yearLength())
                            .arg(calendar.weekdayOf(0), calendar.formatInstant(0)));
    } else {
        // What is wrong is said when the calendar is to be applied; half a row is no error yet.
        m_note->setNote({});
    }
    emit edited();
}

} // namespace tw::desktop::calendar
