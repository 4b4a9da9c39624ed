#pragma once

#include "app/planning/WritingProgress.h"

#include <QWidget>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::goals {

/** Words by day as bars, with a line where the daily target is. Each bar says its day and words. */
class ProgressChart final : public QWidget
{
    Q_OBJECT

public:
    ProgressChart(const theme::ThemeManager& themes, QWidget* parent);

    void setDays(std::vector<app::planning::DayWords> days);
    /** 0 for no line. */
    void setDailyTarget(qint64 words);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QRect plot() const;
    [[nodiscard]] qint64 highest() const;
    [[nodiscard]] QRectF barAt(std::size_t index) const;
    void describe();

    const theme::ThemeManager& m_themes;
    std::vector<app::planning::DayWords> m_days;
    qint64 m_dailyTarget = 0;
};

} // namespace tw::desktop::goals
