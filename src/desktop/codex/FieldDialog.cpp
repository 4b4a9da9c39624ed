#include "desktop/codex/FieldDialog.h"

#include "desktop/codex/CategoryPaths.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/ValueEditor.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <array>

namespace tw::desktop::codex {

using core::taxonomy::Field;
using core::taxonomy::FieldType;
using icons::Icon;

namespace {

constexpr int dialogWidth = 480;
constexpr int visibleChoices = 5;

constexpr std::array allTypes{
    FieldType::Text,      FieldType::Number, FieldType::Boolean, FieldType::Date,
    FieldType::Reference, FieldType::Choice, FieldType::Url,
};

Icon iconOf(FieldType type)
{
    switch (type) {
    case FieldType::Number:
        return Icon::Number;
    case FieldType::Boolean:
        return Icon::Boolean;
    case FieldType::Date:
        return Icon::Date;
    case FieldType::Reference:
        return Icon::Reference;
    case FieldType::Choice:
        return Icon::Choice;
    case FieldType::Url:
        return Icon::Url;
    case FieldType::Text:
        break;
    }
    return Icon::Text;
}

} // namespace

QString fieldTypeTitle(FieldType type)
{
    switch (type) {
    case FieldType::Number:
        return FieldDialog::tr("Number");
    case FieldType::Boolean:
        return FieldDialog::tr("Yes or no");
    case FieldType::Date:
        return FieldDialog::tr("Date");
    case FieldType::Reference:
        return FieldDialog::tr("Reference");
    case FieldType::Choice:
        return FieldDialog::tr("Choice");
    case FieldType::Url:
        return FieldDialog::tr("Web address");
    case FieldType::Text:
        break;
    }
    return FieldDialog::tr("Text");
}

QIcon fieldTypeIcon(const icons::IconSet& icons, FieldType type)
{
    return icons.icon(iconOf(type));
}

FieldDialog::FieldDialog(const shell::DeskContext& desk, FieldDialogSetup setup, QWidget* parent)
    : QDialog(parent)
    , m_desk(desk)
    , m_setup(std::move(setup))
    , m_label(new QLineEdit(this))
    , m_type(new QComboBox(this))
    , m_required(new QCheckBox(tr("Must be filled in"), this))
    , m_fixed(new QCheckBox(tr("Fixed: the same for everything beneath"), this))
    , m_valuePlace(new QWidget(this))
    , m_valueLayout(new QVBoxLayout(m_valuePlace))
    , m_description(new QLineEdit(this))
    , m_options(new QPlainTextEdit(this))
    , m_referenceCategory(new QComboBox(this))
    , m_note(new fields::NoteLabel(desk.themes, this))
    , m_form(new QFormLayout)
{
    setWindowTitle(m_setup.title);
    setMinimumWidth(dialogWidth);
    makeControls(*m_form);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(m_setup.verb, QDialogButtonBox::AcceptRole)->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->addWidget(m_note);
    layout->addStretch();
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &FieldDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FieldDialog::reject);
    showField(m_setup.field);
    connect(m_label, &QLineEdit::textChanged, this, &FieldDialog::refresh);
    connect(m_type, &QComboBox::currentIndexChanged, this, &FieldDialog::refresh);
    connect(m_required, &QCheckBox::toggled, this, &FieldDialog::refresh);
    connect(m_fixed, &QCheckBox::toggled, this, &FieldDialog::refresh);
    connect(m_options, &QPlainTextEdit::textChanged, this, &FieldDialog::refresh);
    connect(m_referenceCategory, &QComboBox::currentIndexChanged, this, &FieldDialog::refresh);
    refresh();
}

void FieldDialog::makeControls(QFormLayout& form)
{
    for (const FieldType type : allTypes)
        m_type->addItem(fieldTypeIcon(m_desk.icons, type), fieldTypeTitle(type), static_cast<int>(type));
    m_referenceCategory->addItem(tr("Anything in the codex"));
    for (const CategoryChoice& choice : categoryChoices(m_desk.session.project()))
        m_referenceCategory->addItem(choice.path, choice.id.toString());
    m_referenceCategory->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_valueLayout->setContentsMargins(0, 0, 0, 0);
    m_options->setTabChangesFocus(true);
    m_options->setPlaceholderText(tr("One choice on each line"));
    m_options->setFixedHeight(m_options->fontMetrics().lineSpacing() * visibleChoices);
    m_description->setPlaceholderText(tr("What belongs in here"));
    m_fixed->setToolTip(tr("The value a fixed field supplies to everything beneath it."));

    form.setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form.addRow(tr("Name"), m_label);
    form.addRow(tr("Type"), m_type);
    form.addRow(tr("Choices"), m_options);
    form.addRow(tr("Points to"), m_referenceCategory);
    form.addRow(tr("Description"), m_description);
    form.addRow(QString(), m_required);
    form.addRow(QString(), m_fixed);
    form.addRow(tr("Fixed value"), m_valuePlace);
}

void FieldDialog::showField(const Field& field)
{
    m_label->setText(field.displayName());
    m_type->setCurrentIndex(m_type->findData(static_cast<int>(field.type)));
    m_required->setChecked(field.isRequired);
    m_fixed->setChecked(field.isFixed);
    m_description->setText(field.description);
    m_options->setPlainText(field.options.join(u'\n'));
    if (!field.referenceCategory.isNull()) {
        const QString id = field.referenceCategory.toString();
        if (m_referenceCategory->findData(id) < 0)
            m_referenceCategory->addItem(tr("A category that is gone"), id);
        m_referenceCategory->setCurrentIndex(m_referenceCategory->findData(id));
    }
    m_valueField = field;
    makeValueEditor();
    if (!field.fixedValue.isEmpty())
        m_value->setValue(field.fixedValue);
}

Field FieldDialog::field() const
{
    // What the dialog does not show stays as it was.
    Field field = m_setup.field;
    const QString label = m_label->text().trimmed();
    // A field without a label of its own is shown by its key and keeps having none.
    if (!field.label.isEmpty() || label != field.key)
        field.label = label;
    if (field.key.isEmpty())
        field.key = m_setup.keyForLabel(label);
    field.type = static_cast<FieldType>(m_type->currentData().toInt());
    field.isRequired = m_required->isChecked();
    field.isFixed = m_setup.owner == FieldDialogSetup::Owner::Category && m_fixed->isChecked();
    field.description = m_description->text().trimmed();
    if (field.type == FieldType::Choice) {
        field.options.clear();
        for (const QString& line : m_options->toPlainText().split(u'\n')) {
            if (const QString option = line.trimmed(); !option.isEmpty() && !field.options.contains(option))
                field.options.append(option);
        }
    }
    if (field.type == FieldType::Reference)
        field.referenceCategory = core::CategoryId::fromString(m_referenceCategory->currentData().toString());
    if (field.isFixed)
        field.fixedValue = m_value->value().value_or(QString());
    return field;
}

void FieldDialog::makeValueEditor()
{
    std::optional<QString> value;
    if (m_value) {
        value = m_value->value();
        m_valueLayout->removeWidget(m_value);
        m_value->hide();
        m_value->deleteLater();
    }
    m_value = fields::makeValueEditor(m_desk, m_valueField, m_valuePlace);
    m_value->nameControl(tr("Fixed value"));
    m_value->setValue(value);
    m_valueLayout->addWidget(m_value);
}

void FieldDialog::refresh()
{
    const Field present = field();
    const bool isCategory = m_setup.owner == FieldDialogSetup::Owner::Category;
    m_form->setRowVisible(m_options, present.type == FieldType::Choice);
    m_form->setRowVisible(m_referenceCategory, present.type == FieldType::Reference);
    m_form->setRowVisible(m_fixed, isCategory);
    m_form->setRowVisible(m_valuePlace, present.isFixed);
    const bool isOtherValue = present.type != m_valueField.type || present.options != m_valueField.options ||
                              present.referenceCategory != m_valueField.referenceCategory;
    if (isOtherValue) {
        m_valueField = present;
        makeValueEditor();
    }
    m_note->setNote(present.label.isEmpty() ? QString() : m_setup.check(present).notice);
}

void FieldDialog::accept()
{
    m_value->commit();
    const FieldVerdict verdict = m_setup.check(field());
    if (verdict.refusal.isEmpty())
        return QDialog::accept();
    m_note->setNote(verdict.refusal, fields::NoteLabel::Tone::Error);
}

std::optional<Field> askForField(const shell::DeskContext& desk, FieldDialogSetup setup, QWidget* parent)
{
    // A child of the window, which stays whatever becomes of the page that asks.
    FieldDialog dialog(desk, std::move(setup), parent ? parent->window() : nullptr);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.field()) : std::nullopt;
}

} // namespace tw::desktop::codex
