#pragma once

#include "desktop/fields/ValueEditor.h"

class QToolButton;

namespace tw::desktop::fields {

class NoteLabel;
class StoryDateEdit;

/** A story date, stored as the decimal text of its instant. Other text is shown beneath and can be taken out.
 */
class DateValueEditor final : public ValueEditor
{
    Q_OBJECT

public:
    DateValueEditor(const shell::DeskContext& desk, QWidget* parent);

    void setReadOnly(bool readOnly) override;
    void commit() override;
    void follow(const core::project::ProjectChanges& changes) override;

protected:
    void present() override;

private:
    shell::DeskContext m_desk;
    StoryDateEdit* m_edit;
    NoteLabel* m_otherNote;
    QToolButton* m_takeOut;
};

} // namespace tw::desktop::fields
