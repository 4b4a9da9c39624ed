#pragma once

#include "core/calendar/Calendar.h"

#include <QWidget>

#include <optional>

class QLineEdit;

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::fields {

class NoteLabel;

/**
 * A field for a story date: reads what the project's date reader reads, shows the reading beneath while the
 * writer types, and says why not when it does not read. Empty text is no date.
 */
class StoryDateEdit final : public QWidget
{
    Q_OBJECT

public:
    explicit StoryDateEdit(theme::ThemeManager& themes, QWidget* parent);

    /** Another calendar shows the instant anew, in place of uncommitted typing; the same one changes nothing.
     */
    void setCalendar(const core::calendar::Calendar& calendar);
    /** Shows the instant in the calendar; emits nothing. */
    void setInstant(const std::optional<core::calendar::StoryInstant>& instant);
    [[nodiscard]] const std::optional<core::calendar::StoryInstant>& instant() const { return m_instant; }
    /** Shows what was typed earlier, and how it reads; emits nothing. */
    void setTypedText(const QString& text);
    void setReadOnly(bool readOnly);
    [[nodiscard]] const QLineEdit& lineEdit() const { return *m_text; }

    /** Takes what was typed as if the field had been left. */
    void commit();
    /** False while the field holds text that is no date. */
    [[nodiscard]] bool isReadable() const;

signals:
    /** The writer is typing. */
    void typed();
    /** The writer finished and the text reads as another date than before, or as none. */
    void instantEdited(const std::optional<tw::core::calendar::StoryInstant>& instant);

private:
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] std::optional<core::calendar::StoryInstant> reading() const;
    void showReading();

    core::calendar::Calendar m_calendar;
    std::optional<core::calendar::StoryInstant> m_instant;
    QLineEdit* m_text;
    NoteLabel* m_reading;
};

} // namespace tw::desktop::fields
