#pragma once

#include "desktop/fields/ValueEditor.h"

class QCompleter;

namespace tw::desktop::fields {

class ChipField;
class EntityChoiceModel;
class NoteLabel;

/**
 * References to entities: chips that open what they name, and a field that completes names and aliases. An id
 * that names no entity of the project stays, shown as missing.
 */
class ReferenceValueEditor final : public ValueEditor
{
    Q_OBJECT

public:
    ReferenceValueEditor(
        const shell::DeskContext& desk, const core::CategoryId& referenceCategory, QWidget* parent);

    void setReadOnly(bool readOnly) override;
    void commit() override;
    void follow(const core::project::ProjectChanges& changes) override;

protected:
    void present() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void loadChoices();
    void takeName();
    void addReference(const core::ContentId& id);
    void removeReference(int index);
    void openReference(int index);

    shell::DeskContext m_desk;
    core::CategoryId m_referenceCategory;
    ChipField* m_chips;
    NoteLabel* m_note;
    EntityChoiceModel* m_choices;
    QCompleter* m_completer;
    bool m_areChoicesOld = true;
};

} // namespace tw::desktop::fields
