#pragma once

#include "core/taxonomy/Field.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <functional>
#include <optional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPlainTextEdit;
class QVBoxLayout;

namespace tw::desktop::fields {
class NoteLabel;
class ValueEditor;
} // namespace tw::desktop::fields

namespace tw::desktop::codex {

/** The name of a field type as the writer reads it. */
[[nodiscard]] QString fieldTypeTitle(core::taxonomy::FieldType type);
[[nodiscard]] QIcon fieldTypeIcon(const icons::IconSet& icons, core::taxonomy::FieldType type);

/** What there is to say about a field as it stands in the dialog. */
struct FieldVerdict
{
    /** Why it cannot be; empty when it can. */
    QString refusal;
    /** What it would mean; may be empty. */
    QString notice;
};

struct FieldDialogSetup
{
    enum class Owner
    {
        Category,
        /** Has no fixed fields: a single entity just holds the value. */
        Entity,
    };

    QString title;
    /** The verb of the button. */
    QString verb;
    Owner owner = Owner::Category;
    /** Where it starts. One without a key is new and gets one from its label. */
    core::taxonomy::Field field;
    std::function<QString(const QString& label)> keyForLabel;
    std::function<FieldVerdict(const core::taxonomy::Field& field)> check;
};

/** Asks for the definition of one field. Changes nothing by itself. */
class FieldDialog final : public QDialog
{
    Q_OBJECT

public:
    FieldDialog(const shell::DeskContext& desk, FieldDialogSetup setup, QWidget* parent);

    /** The field as it stands in the controls. */
    [[nodiscard]] core::taxonomy::Field field() const;

    void accept() override;

private:
    void makeControls(QFormLayout& form);
    void showField(const core::taxonomy::Field& field);
    void refresh();
    void makeValueEditor();

    shell::DeskContext m_desk;
    FieldDialogSetup m_setup;
    QLineEdit* m_label;
    QComboBox* m_type;
    QCheckBox* m_required;
    QCheckBox* m_fixed;
    QWidget* m_valuePlace;
    QVBoxLayout* m_valueLayout;
    fields::ValueEditor* m_value = nullptr;
    /** What the value editor was made for. */
    core::taxonomy::Field m_valueField;
    QLineEdit* m_description;
    QPlainTextEdit* m_options;
    QComboBox* m_referenceCategory;
    fields::NoteLabel* m_note;
    QFormLayout* m_form;
};

/** The field that the writer settled on; none when the dialog was left. */
[[nodiscard]] std::optional<core::taxonomy::Field> askForField(
    const shell::DeskContext& desk, FieldDialogSetup setup, QWidget* parent);

} // namespace tw::desktop::codex
