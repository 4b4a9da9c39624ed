#include "desktop/codex/TimedValueDialog.h"

#include "desktop/codex/FieldDialog.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/fields/ValueEditor.h"
#include "desktop/shell/ProjectSession.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace tw::desktop::codex {

using core::entity::ResolvedField;
using core::entity::Schema;

namespace {

constexpr int dialogWidth = 440;

} // namespace

TimedValueDialog::TimedValueDialog(
    const shell::DeskContext& desk, Schema schema, const std::optional<TimedEntry>& present, QWidget* parent)
    : QDialog(parent)
    , m_desk(desk)
    , m_schema(std::move(schema))
    , m_field(new QComboBox(this))
    , m_date(new fields::StoryDateEdit(desk.themes, this))
    , m_valuePlace(new QVBoxLayout)
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    setWindowTitle(tr("State over Time"));
    setMinimumWidth(dialogWidth);
    std::erase_if(m_schema, [](const ResolvedField& resolved) { return resolved.isFixed(); });
    for (const ResolvedField& resolved : m_schema) {
        m_field->addItem(
            fieldTypeIcon(desk.icons, resolved.field.type), resolved.field.displayName(), resolved.field.key);
    }
    m_date->focusProxy()->setAccessibleName(tr("From"));
    m_date->setCalendar(desk.session.project().calendar());
    if (present) {
        m_field->setCurrentIndex(std::max(0, m_field->findData(present->key)));
        m_date->setInstant(present->timed.instant);
    }
    auto* const form = new QFormLayout;
    form->addRow(tr("Property"), m_field);
    form->addRow(tr("From"), m_date);
    form->addRow(tr("Value"), m_valuePlace);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(present ? tr("Change State") : tr("Add State"), QDialogButtonBox::AcceptRole)
        ->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_note);
    layout->addStretch();
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &TimedValueDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TimedValueDialog::reject);
    connect(m_field, &QComboBox::currentIndexChanged, this, [this] { makeEditor(m_value->value()); });
    makeEditor(present ? std::optional(present->timed.value) : std::nullopt);
}

const core::taxonomy::Field& TimedValueDialog::field() const
{
    return m_schema[static_cast<std::size_t>(m_field->currentIndex())].field;
}

void TimedValueDialog::makeEditor(const std::optional<QString>& value)
{
    if (m_value) {
        m_valuePlace->removeWidget(m_value);
        m_value->hide();
        m_value->deleteLater();
    }
    m_value = fields::makeValueEditor(m_desk, field(), this);
    m_value->nameControl(tr("Value"));
    m_value->setValue(value);
    m_valuePlace->addWidget(m_value);
}

TimedEntry TimedValueDialog::entry() const
{
    return {field().key, {m_date->instant().value_or(0), m_value->value().value_or(QString())}};
}

void TimedValueDialog::accept()
{
    m_date->commit();
    m_value->commit();
    if (!m_date->isReadable())
        return;
    if (m_date->instant())
        return QDialog::accept();
    m_note->setNote(tr("Enter the date from which the value holds."), fields::NoteLabel::Tone::Error);
}

} // namespace tw::desktop::codex
