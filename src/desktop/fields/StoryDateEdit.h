#pragma once

#include "core/calendar/Calendar.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::fields {

/**
 * A field for a story date: reads what the project's date reader reads, shows the reading beneath while the
 * writer types, and says why not when it does not read. Empty text is no date.
 */
class StoryDateEdit final : public QWidget
{
    Q_OBJECT

public:
    explicit StoryDateEdit(theme::ThemeManager& themes, QWidget* parent);

    void setCalendar(const core::calendar::Calendar& calendar);
    /** Shows the instant in the calendar; emits nothing. */
    void setInstant(const std::optional<core::calendar::StoryInstant>& instant);
    [[nodiscard]] const std::optional<core::calendar::StoryInstant>& instant() const { return m_instant; }
    void setReadOnly(bool readOnly);

signals:
    /** The writer finished and the text reads as another date than before, or as none. */
    void instantEdited(const std::optional<tw::core::calendar::StoryInstant>& instant);

private:
    [[nodiscard]] std::optional<core::calendar::StoryInstant> reading() const;
    void showReading();
    void finish();

    theme::ThemeManager& m_themes;
    core::calendar::Calendar m_calendar;
    std::optional<core::calendar::StoryInstant> m_instant;
    QLineEdit* m_text;
    QLabel* m_reading;
};

} // namespace tw::desktop::fields
