#include "desktop/fields/ValueEditor.h"

#include "desktop/fields/BooleanValueEditor.h"
#include "desktop/fields/ChoiceValueEditor.h"
#include "desktop/fields/DateValueEditor.h"
#include "desktop/fields/NumberValueEditor.h"
#include "desktop/fields/ReferenceValueEditor.h"
#include "desktop/fields/TextValueEditor.h"
#include "desktop/fields/UrlValueEditor.h"

namespace tw::desktop::fields {

using core::taxonomy::Field;
using core::taxonomy::FieldType;

namespace {

ValueEditor* makeBareEditor(const shell::DeskContext& desk, const Field& field, QWidget* parent)
{
    switch (field.type) {
    case FieldType::Number:
        return new NumberValueEditor(desk.themes, parent);
    case FieldType::Boolean:
        return new BooleanValueEditor(desk.themes, parent);
    case FieldType::Date:
        return new DateValueEditor(desk, parent);
    case FieldType::Reference:
        return new ReferenceValueEditor(desk, field.referenceCategory, parent);
    case FieldType::Choice:
        return new ChoiceValueEditor(field.options, parent);
    case FieldType::Url:
        return new UrlValueEditor(desk.icons, parent);
    case FieldType::Text:
        break;
    }
    return new TextValueEditor(parent);
}

} // namespace

ValueEditor::ValueEditor(QWidget* parent)
    : QWidget(parent)
{}

void ValueEditor::setValue(const std::optional<QString>& value)
{
    m_value = value;
    present();
}

void ValueEditor::nameControl(const QString& name, const QString& description)
{
    QWidget* control = this;
    while (control->focusProxy())
        control = control->focusProxy();
    control->setAccessibleName(name);
    control->setAccessibleDescription(description);
}

void ValueEditor::commit() {}

void ValueEditor::follow(const core::project::ProjectChanges&) {}

void ValueEditor::finish(const std::optional<QString>& value)
{
    if (value == m_value)
        return;
    m_value = value;
    emit valueEdited(value);
}

void ValueEditor::finishText(const QString& text, const QString& shownText)
{
    if (text != shownText)
        finish(text.isEmpty() ? std::nullopt : std::optional(text));
}

bool ValueEditor::takeBack(const QString& text, const QString& shownText)
{
    if (text == shownText)
        return false;
    present();
    return true;
}

ValueEditor* makeValueEditor(const shell::DeskContext& desk, const Field& field, QWidget* parent)
{
    ValueEditor* const editor = makeBareEditor(desk, field, parent);
    // Unset is something to show as well.
    editor->setValue(std::nullopt);
    return editor;
}

} // namespace tw::desktop::fields
