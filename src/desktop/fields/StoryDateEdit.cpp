#include "desktop/fields/StoryDateEdit.h"

#include "core/calendar/DateReader.h"
#include "desktop/theme/ThemeManager.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tw::desktop::fields {

using core::calendar::StoryInstant;

StoryDateEdit::StoryDateEdit(theme::ThemeManager& themes, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_text(new QLineEdit(this))
    , m_reading(new QLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_text);
    layout->addWidget(m_reading);
    m_text->setPlaceholderText(tr("No date"));
    m_reading->setWordWrap(true);
    m_reading->hide();
    setFocusProxy(m_text);
    connect(m_text, &QLineEdit::textEdited, this, &StoryDateEdit::showReading);
    connect(m_text, &QLineEdit::editingFinished, this, &StoryDateEdit::finish);
}

void StoryDateEdit::setCalendar(const core::calendar::Calendar& calendar)
{
    m_calendar = calendar;
    setInstant(m_instant);
}

void StoryDateEdit::setInstant(const std::optional<StoryInstant>& instant)
{
    m_instant = instant;
    m_text->setText(instant ? m_calendar.formatInstant(*instant) : QString());
    m_text->setCursorPosition(0);
    m_reading->hide();
}

void StoryDateEdit::setReadOnly(bool readOnly)
{
    m_text->setReadOnly(readOnly);
}

std::optional<StoryInstant> StoryDateEdit::reading() const
{
    const auto parts = core::calendar::parseDate(m_calendar, m_text->text());
    return parts ? std::optional(m_calendar.minutesFromParts(*parts)) : std::nullopt;
}

void StoryDateEdit::showReading()
{
    const bool isEmpty = m_text->text().trimmed().isEmpty();
    m_reading->setVisible(!isEmpty);
    if (isEmpty)
        return;
    const auto instant = reading();
    const auto role = instant ? theme::Role::QuietInk : theme::Role::Error;
    QPalette colors = m_reading->palette();
    colors.setColor(QPalette::WindowText, m_themes.theme().color(role));
    m_reading->setPalette(colors);
    m_reading->setText(
        instant ? tr("Reads as %1").arg(m_calendar.formatInstant(*instant))
                : tr("Not a date this calendar can read. Write it like “%1” or just a year.")
                      .arg(m_calendar.formatInstant(0)));
}

void StoryDateEdit::finish()
{
    const bool isEmpty = m_text->text().trimmed().isEmpty();
    const auto instant = isEmpty ? std::nullopt : reading();
    if (!isEmpty && !instant) {
        // What was typed stays, with the reason beneath, until it reads or is taken out.
        showReading();
        return;
    }
    const bool isOther = instant != m_instant;
    // The formatter's own text may be a date the reader cannot take back; untouched text is no edit.
    if (!isOther || m_text->text() == (m_instant ? m_calendar.formatInstant(*m_instant) : QString())) {
        setInstant(m_instant);
        return;
    }
    setInstant(instant);
    emit instantEdited(instant);
}

} // namespace tw::desktop::fields
