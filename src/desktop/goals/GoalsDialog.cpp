#include "desktop/goals/GoalsDialog.h"

#include "core/writing/WritingCommands.h"
#include "desktop/fields/WordsSuffix.h"
#include "desktop/goals/ProgressChart.h"
#include "desktop/goals/WritingSession.h"
#include "desktop/shell/ProjectSession.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tw::desktop::goals {

using namespace Qt::Literals::StringLiterals;
using core::writing::WritingGoal;

namespace {

constexpr int largestTarget = 10'000'000;
constexpr int manuscriptStep = 1000;
constexpr int dailyStep = 50;
constexpr int daysShown = 30;
constexpr int firstDeadlineMonths = 6;

QSpinBox* makeTarget(int step, qint64 words, QWidget* parent)
{
    auto* const box = new QSpinBox(parent);
    box->setRange(0, largestTarget);
    box->setSingleStep(step);
    box->setGroupSeparatorShown(true);
    box->setSpecialValueText(GoalsDialog::tr("None"));
    box->setValue(static_cast<int>(std::clamp<qint64>(words, 0, largestTarget)));
    fields::fitWordsSuffix(*box);
    QObject::connect(box, &QSpinBox::valueChanged, box, [box] { fields::fitWordsSuffix(*box); });
    return box;
}

} // namespace

QString paceText(const GoalsState& state)
{
    const auto number = [](qint64 value) { return QLocale().toString(value); };
    const app::planning::Pace pace =
        app::planning::paceTowards(state.goal, state.totalWords, state.wordsToday, state.today);
    const auto wordsLeft = static_cast<int>(pace.wordsLeft);
    QStringList sentences{
        GoalsDialog::tr("%Ln words written, %1 of them today.", nullptr, static_cast<int>(state.totalWords))
            .arg(number(state.wordsToday))};
    const bool hasTarget = state.goal.manuscriptWordTarget > 0;
    if (hasTarget && pace.wordsLeft == 0)
        sentences.append(GoalsDialog::tr("The target is reached."));
    else if (pace.isOverdue)
        sentences.append(
            GoalsDialog::tr("The deadline has passed with %Ln words to go.", nullptr, wordsLeft));
    else if (pace.wordsPerDay)
        sentences.append(
            GoalsDialog::tr("%1: %2 a day for %Ln days.", nullptr, static_cast<int>(*pace.daysLeft))
                .arg(GoalsDialog::tr("%Ln words to go", nullptr, wordsLeft), number(*pace.wordsPerDay)));
    else if (hasTarget)
        sentences.append(GoalsDialog::tr("%Ln words to go.", nullptr, wordsLeft));
    const int days = app::planning::streak(
        app::planning::withWordsOn(state.log, state.today, state.wordsToday), state.today);
    if (days > 1)
        sentences.append(GoalsDialog::tr("Words on %Ln days in a row.", nullptr, days));
    return sentences.join(u' ');
}

GoalsDialog::GoalsDialog(const shell::DeskContext& desk, GoalsState state, QWidget* parent)
    : QDialog(parent)
    , m_state(std::move(state))
    , m_manuscriptTarget(makeTarget(manuscriptStep, m_state.goal.manuscriptWordTarget, this))
    , m_dailyTarget(makeTarget(dailyStep, m_state.goal.dailyWordTarget, this))
    , m_hasDeadline(new QCheckBox(tr("De&adline"), this))
    , m_deadline(new QDateEdit(this))
    , m_pace(new QLabel(this))
    , m_chart(new ProgressChart(desk.themes, this))
{
    setWindowTitle(tr("Writing Goals"));
    setSizeGripEnabled(true);
    m_deadline->setCalendarPopup(true);
    const QDate deadline = QDate::fromString(m_state.goal.deadline, Qt::ISODate);
    m_hasDeadline->setChecked(deadline.isValid());
    m_deadline->setDate(deadline.isValid() ? deadline : m_state.today.addMonths(firstDeadlineMonths));
    m_deadline->setAccessibleName(tr("Deadline"));
    m_pace->setWordWrap(true);
    m_pace->setTextFormat(Qt::PlainText);

    auto* const form = new QFormLayout;
    form->addRow(tr("&Manuscript"), m_manuscriptTarget);
    form->addRow(m_hasDeadline, m_deadline);
    form->addRow(tr("&Day"), m_dailyTarget);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("Set Goals"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &GoalsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &GoalsDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addLayout(form);
    layout->addWidget(m_pace);
    layout->addWidget(m_chart, 1);
    layout->addWidget(buttons);

    connect(m_manuscriptTarget, &QSpinBox::valueChanged, this, &GoalsDialog::refresh);
    connect(m_dailyTarget, &QSpinBox::valueChanged, this, &GoalsDialog::refresh);
    connect(m_hasDeadline, &QCheckBox::toggled, this, &GoalsDialog::refresh);
    connect(m_deadline, &QDateEdit::dateChanged, this, &GoalsDialog::refresh);
    const app::planning::WritingLog log =
        app::planning::withWordsOn(m_state.log, m_state.today, m_state.wordsToday);
    m_chart->setDays(app::planning::lastDays(log, m_state.today, daysShown));
    refresh();
}

WritingGoal GoalsDialog::goal() const
{
    WritingGoal goal{m_dailyTarget->value(), m_manuscriptTarget->value(), {}};
    if (m_hasDeadline->isChecked())
        goal.deadline = m_deadline->date().toString(Qt::ISODate);
    return goal;
}

void GoalsDialog::refresh()
{
    m_deadline->setEnabled(m_hasDeadline->isChecked());
    m_state.goal = goal();
    m_pace->setText(paceText(m_state));
    m_chart->setDailyTarget(m_state.goal.dailyWordTarget);
}

void editGoals(const shell::DeskContext& desk, const WritingSession& session, QWidget* parent)
{
    desk.session.commitPendingEdits();
    const core::project::Project& project = desk.session.project();
    GoalsDialog dialog(
        desk,
        {project.writingGoal(), project.writingLog(), desk.session.words().total(), session.wordsToday(),
         session.today()},
        parent);
    if (dialog.exec() != QDialog::Accepted || dialog.goal() == project.writingGoal())
        return;
    desk.session.apply(std::make_unique<core::writing::SetWritingGoalCommand>(
        desk.session.projectForCommands(), dialog.goal()));
}

} // namespace tw::desktop::goals
