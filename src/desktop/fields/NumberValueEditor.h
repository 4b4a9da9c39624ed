#pragma once

#include "desktop/fields/ValueEditor.h"

class QLineEdit;

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::fields {

class NoteLabel;

/** True for what counts as a number in a project: digits with a point, whatever the writer's language. */
[[nodiscard]] bool isNumber(const QString& text);

/** A number. Text that is none stays in the field, with the reason beneath, and is not stored. */
class NumberValueEditor final : public ValueEditor
{
    Q_OBJECT

public:
    NumberValueEditor(theme::ThemeManager& themes, QWidget* parent);

    void setReadOnly(bool readOnly) override;
    void commit() override;

protected:
    void present() override;

private:
    QLineEdit* m_edit;
    NoteLabel* m_note;
};

} // namespace tw::desktop::fields
