#include "desktop/calendar/ReckoningsForm.h"

#include "desktop/fields/ListEditor.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/shell/ObjectTitles.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::calendar {

using namespace Qt::Literals::StringLiterals;
using core::calendar::Calendar;
using core::calendar::Reckoning;

namespace {

constexpr int furthestYear = 1'000'000'000;
constexpr int numberRole = Qt::UserRole;

} // namespace

ReckoningsForm::ReckoningsForm(
    const shell::DeskContext& desk, const Calendar& calendar, std::vector<Reckoning> reckonings,
    QWidget* parent)
    : QWidget(parent)
    , m_calendar(calendar)
    , m_reckonings(std::move(reckonings))
    , m_list(new fields::ListEditor(
          desk, tr("Reckonings"),
          tr("No reckonings: add one to tell the same days in another count of years."), this))
    , m_form(new QWidget(this))
    , m_name(new QLineEdit(m_form))
    , m_eraName(new QLineEdit(m_form))
    , m_epochYear(new QSpinBox(m_form))
    , m_note(new fields::NoteLabel(desk.themes, m_form))
{
    m_list->list().setObjectName(u"reckonings"_s);
    m_name->setObjectName(u"reckoningName"_s);
    m_epochYear->setObjectName(u"epochYear"_s);
    m_epochYear->setRange(-furthestYear, furthestYear);
    auto* const form = new QFormLayout(m_form);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Era"), m_eraName);
    form->addRow(tr("Year &1 is the calendar’s year"), m_epochYear);
    form->addRow(m_note);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_form);
    connect(
        m_list->addButton(tr("&Add Reckoning")), &QPushButton::clicked, this, &ReckoningsForm::addReckoning);
    connect(m_list, &fields::ListEditor::removeRequested, this, [this](int row) {
        delete m_list->list().takeItem(row);
        showCurrent();
    });
    connect(&m_list->list(), &QListWidget::currentRowChanged, this, &ReckoningsForm::showCurrent);
    connect(m_name, &QLineEdit::textEdited, this, &ReckoningsForm::takeNames);
    connect(m_eraName, &QLineEdit::textEdited, this, &ReckoningsForm::takeNames);
    connect(m_epochYear, &QSpinBox::valueChanged, this, &ReckoningsForm::takeEpoch);
    for (std::size_t each = 0; each < m_reckonings.size(); ++each)
        addItem(each);
    m_list->list().setCurrentRow(0);
    showCurrent();
}

std::vector<Reckoning> ReckoningsForm::reckonings() const
{
    std::vector<Reckoning> result;
    for (int row = 0; row < m_list->list().count(); ++row)
        result.push_back(m_reckonings[m_list->list().item(row)->data(numberRole).toULongLong()]);
    return result;
}

void ReckoningsForm::setCalendar(const Calendar& calendar)
{
    m_calendar = calendar;
    showCurrent();
}

void ReckoningsForm::addItem(std::size_t reckoning)
{
    auto* const item = new QListWidgetItem(shell::reckoningTitle(m_reckonings[reckoning]), &m_list->list());
    item->setData(numberRole, static_cast<qulonglong>(reckoning));
}

void ReckoningsForm::addReckoning()
{
    m_reckonings.push_back({tr("New reckoning"), m_calendar, 0});
    addItem(m_reckonings.size() - 1);
    m_list->list().setCurrentRow(m_list->list().count() - 1);
    m_name->setFocus();
    m_name->selectAll();
}

Reckoning* ReckoningsForm::current()
{
    const QListWidgetItem* const item = m_list->list().currentItem();
    return item ? &m_reckonings[item->data(numberRole).toULongLong()] : nullptr;
}

void ReckoningsForm::showCurrent()
{
    const Reckoning* const reckoning = current();
    m_form->setEnabled(reckoning);
    m_name->setText(reckoning ? reckoning->name : QString());
    m_eraName->setText(reckoning ? reckoning->calendar.eraName() : QString());
    const qint64 year = reckoning ? m_calendar.partsFromMinutes(reckoning->epochOffsetMinutes).year : 1;
    const QSignalBlocker blocker(m_epochYear);
    m_epochYear->setValue(static_cast<int>(std::clamp<qint64>(year, -furthestYear, furthestYear)));
    explain();
}

void ReckoningsForm::takeNames()
{
    Reckoning& reckoning = *current();
    reckoning.name = m_name->text().trimmed();
    reckoning.calendar.setEraName(m_eraName->text().trimmed());
    m_list->list().currentItem()->setText(shell::reckoningTitle(reckoning));
    explain();
}

void ReckoningsForm::takeEpoch()
{
    current()->epochOffsetMinutes = m_calendar.minutesFromParts({m_epochYear->value(), 1, 1, 0, 0});
    explain();
}

void ReckoningsForm::explain()
{
    const Reckoning* const reckoning = current();
    if (!reckoning)
        return m_note->setNote({});
    QString text = tr("%1 is %2 here.")
                       .arg(
                           m_calendar.formatInstant(reckoning->epochOffsetMinutes),
                           core::calendar::formatInstantIn(*reckoning, reckoning->epochOffsetMinutes));
    if (!reckoning->calendar.eras().isEmpty())
        text += u' ' + tr("Its named eras stand in place of the era.");
    m_note->setNote(text);
}

} // namespace tw::desktop::calendar
