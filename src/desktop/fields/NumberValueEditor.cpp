#include "desktop/fields/NumberValueEditor.h"

#include "desktop/fields/EditorKeys.h"
#include "desktop/fields/NoteLabel.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include <cmath>

namespace tw::desktop::fields {

bool isNumber(const QString& text)
{
    bool isRead = false;
    const double number = text.trimmed().toDouble(&isRead);
    return isRead && std::isfinite(number);
}

NumberValueEditor::NumberValueEditor(theme::ThemeManager& themes, QWidget* parent)
    : ValueEditor(parent)
    , m_edit(new QLineEdit(this))
    , m_note(new NoteLabel(themes, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_edit);
    layout->addWidget(m_note);
    setFocusProxy(m_edit);
    new EditorKeys(*m_edit, [this] { return takeBack(m_edit->text(), value().value_or(QString())); });
    connect(m_edit, &QLineEdit::textEdited, this, [this] {
        m_note->setNote({});
        emit typed();
    });
    connect(m_edit, &QLineEdit::editingFinished, this, &NumberValueEditor::commit);
}

void NumberValueEditor::setReadOnly(bool readOnly)
{
    m_edit->setReadOnly(readOnly);
}

void NumberValueEditor::commit()
{
    const QString text = m_edit->text().trimmed();
    if (text == value().value_or(QString()).trimmed())
        return;
    if (!text.isEmpty() && !isNumber(text)) {
        m_note->setNote(
            tr("“%1” is not a number, so it is not stored. Write digits and a point, like 1250 or 3.5.")
                .arg(text),
            NoteLabel::Tone::Error);
        return;
    }
    m_note->setNote({});
    finish(text.isEmpty() ? std::nullopt : std::optional(text));
}

void NumberValueEditor::present()
{
    const QString text = value().value_or(QString());
    m_edit->setText(text);
    m_edit->setCursorPosition(0);
    const bool isOther = !text.trimmed().isEmpty() && !isNumber(text);
    m_note->setNote(
        isOther ? tr("Not a number. It is kept until you write one.") : QString(), NoteLabel::Tone::Warning);
}

} // namespace tw::desktop::fields
