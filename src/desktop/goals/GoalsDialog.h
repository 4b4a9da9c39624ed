#pragma once

#include "app/planning/WritingProgress.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

class QCheckBox;
class QDateEdit;
class QLabel;
class QSpinBox;

namespace tw::desktop::goals {

class ProgressChart;
class WritingSession;

/** What the dialog counts from. */
struct GoalsState
{
    core::writing::WritingGoal goal;
    app::planning::WritingLog log;
    qint64 totalWords = 0;
    qint64 wordsToday = 0;
    QDate today;
};

/** What the goal asks for from now on, in a sentence or two. */
[[nodiscard]] QString paceText(const GoalsState& state);

/** Asks for the targets of the manuscript and the day; shows how things stand. Changes nothing by itself. */
class GoalsDialog final : public QDialog
{
    Q_OBJECT

public:
    GoalsDialog(const shell::DeskContext& desk, GoalsState state, QWidget* parent);

    [[nodiscard]] core::writing::WritingGoal goal() const;

private:
    void refresh();

    GoalsState m_state;
    QSpinBox* m_manuscriptTarget;
    QSpinBox* m_dailyTarget;
    QCheckBox* m_hasDeadline;
    QDateEdit* m_deadline;
    QLabel* m_pace;
    ProgressChart* m_chart;
};

/** Has the user set the goal of the open project, as one step. */
void editGoals(const shell::DeskContext& desk, const WritingSession& session, QWidget* parent);

} // namespace tw::desktop::goals
