#include "desktop/fields/StoryDateEdit.h"

#include "app/codex/DateText.h"
#include "desktop/fields/EditorKeys.h"
#include "desktop/fields/NoteLabel.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace tw::desktop::fields {

using core::calendar::StoryInstant;

StoryDateEdit::StoryDateEdit(theme::ThemeManager& themes, QWidget* parent)
    : QWidget(parent)
    , m_text(new QLineEdit(this))
    , m_reading(new NoteLabel(themes, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_text);
    layout->addWidget(m_reading);
    m_text->setPlaceholderText(tr("No date"));
    m_text->setAccessibleName(tr("Story date"));
    setFocusProxy(m_text);
    new EditorKeys(*m_text, [this] {
        const bool isTyped = m_text->text() != shownText();
        setInstant(m_instant);
        return isTyped;
    });
    connect(m_text, &QLineEdit::textEdited, this, [this] {
        showReading();
        emit typed();
    });
    connect(m_text, &QLineEdit::editingFinished, this, &StoryDateEdit::commit);
}

void StoryDateEdit::setCalendar(const core::calendar::Calendar& calendar)
{
    if (calendar == m_calendar)
        return;
    m_calendar = calendar;
    setInstant(m_instant);
}

void StoryDateEdit::setInstant(const std::optional<StoryInstant>& instant)
{
    m_instant = instant;
    m_text->setText(shownText());
    m_text->setToolTip(shownText());
    m_text->setCursorPosition(0);
    m_reading->setNote({});
}

void StoryDateEdit::setTypedText(const QString& text)
{
    m_text->setText(text);
    showReading();
}

void StoryDateEdit::setReadOnly(bool readOnly)
{
    m_text->setReadOnly(readOnly);
}

QString StoryDateEdit::shownText() const
{
    return m_instant ? app::codex::dateText(m_calendar, *m_instant) : QString();
}

std::optional<StoryInstant> StoryDateEdit::reading() const
{
    return app::codex::readDateText(m_calendar, m_text->text());
}

bool StoryDateEdit::isReadable() const
{
    return m_text->text().trimmed().isEmpty() || m_text->text() == shownText() || reading();
}

void StoryDateEdit::showReading()
{
    if (m_text->text().trimmed().isEmpty())
        m_reading->setNote({});
    else if (const auto instant = reading())
        m_reading->setNote(tr("Reads as %1").arg(m_calendar.formatInstant(*instant)));
    else
        m_reading->setNote(
            tr("Not a date this calendar can read. Write it like “%1” or just a year.")
                .arg(app::codex::dateText(m_calendar, m_instant.value_or(0))),
            NoteLabel::Tone::Error);
}

void StoryDateEdit::commit()
{
    // Untouched text is no edit, whatever it would read as.
    if (m_text->text() == shownText()) {
        m_reading->setNote({});
        return;
    }
    const bool isEmpty = m_text->text().trimmed().isEmpty();
    const auto instant = isEmpty ? std::nullopt : reading();
    if (!isEmpty && !instant) {
        // What was typed stays, with the reason beneath, until it reads or is taken out.
        showReading();
        return;
    }
    const bool isOther = instant != m_instant;
    setInstant(instant);
    if (isOther)
        emit instantEdited(instant);
}

} // namespace tw::desktop::fields
