#pragma once

#include "desktop/fields/ValueEditor.h"

class QCheckBox;

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::fields {

class NoteLabel;

/** Yes, no, or not set: "true", "false", unset. A click goes on to the next. */
class BooleanValueEditor final : public ValueEditor
{
    Q_OBJECT

public:
    BooleanValueEditor(theme::ThemeManager& themes, QWidget* parent);

    void setReadOnly(bool readOnly) override;

protected:
    void present() override;

private:
    void takeNext();

    QCheckBox* m_box;
    NoteLabel* m_note;
};

} // namespace tw::desktop::fields
