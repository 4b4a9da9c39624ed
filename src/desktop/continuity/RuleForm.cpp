#include "desktop/continuity/RuleForm.h"

#include "app/timeline/RuleComparison.h"
#include "core/entity/Schema.h"
#include "desktop/fields/EntityChoices.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/shell/ProjectSession.h"

#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>

namespace tw::desktop::continuity {

using namespace Qt::Literals::StringLiterals;
using app::timeline::RuleComparison;
using core::entity::Entity;
using core::timeline::ContinuityRule;
using fields::NoteLabel;

RuleForm::RuleForm(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_choices(new fields::EntityChoiceModel(this))
    , m_name(new QLineEdit(this))
    , m_entity(new QLineEdit(this))
    , m_entityNote(new NoteLabel(desk.themes, this))
    , m_field(new QComboBox(this))
    , m_comparison(new QComboBox(this))
    , m_value(new QLineEdit(this))
    , m_date(new fields::StoryDateEdit(desk.themes, this))
{
    m_choices->setChoices(fields::entityChoices(desk.session.project(), {}));
    auto* const completer = new QCompleter(m_choices, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    m_entity->setCompleter(completer);
    m_field->setEditable(true);
    m_date->setCalendar(desk.session.project().calendar());
    m_date->focusProxy()->setAccessibleName(tr("On"));
    for (const RuleComparison comparison : app::timeline::allRuleComparisons)
        m_comparison->addItem(ruleComparisonPhrase(comparison), QString(ruleComparisonKey(comparison)));

    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Na&me"), m_name);
    form->addRow(tr("&Entity"), m_entity);
    form->addRow(QString(), m_entityNote);
    form->addRow(tr("&Property"), m_field);
    form->addRow(tr("&Comparison"), m_comparison);
    form->addRow(tr("&Value"), m_value);
    form->addRow(tr("On"), m_date);
    auto* const dateNote = new NoteLabel(desk.themes, this);
    dateNote->setNote(tr("Without a date, what the property says at present counts."));
    form->addRow(QString(), dateNote);
    connectFields();
}

void RuleForm::connectFields()
{
    connect(m_name, &QLineEdit::textEdited, this, [this](const QString& name) {
        m_rule.name = name;
        emit edited();
    });
    connect(m_entity, &QLineEdit::editingFinished, this, &RuleForm::takeEntity);
    connect(m_field, &QComboBox::currentTextChanged, this, &RuleForm::takeField);
    connect(m_comparison, &QComboBox::currentIndexChanged, this, [this] {
        m_rule.comparison = m_comparison->currentData().toString();
        showValueState();
        emit edited();
    });
    connect(m_value, &QLineEdit::textEdited, this, [this](const QString& value) {
        m_rule.value = value;
        emit edited();
    });
    connect(
        m_date, &fields::StoryDateEdit::instantEdited, this,
        [this](const std::optional<core::calendar::StoryInstant>& instant) {
            m_rule.instant = instant;
            emit edited();
        });
}

void RuleForm::setRule(const ContinuityRule& rule)
{
    const QSignalBlocker fieldBlocker(m_field);
    const QSignalBlocker comparisonBlocker(m_comparison);
    m_rule = rule;
    m_name->setText(rule.name);
    const auto* const entity = m_desk.session.project().findAs<Entity>(rule.entityId);
    m_shownEntity = entity ? entity->name().trimmed() : QString();
    m_entity->setText(m_shownEntity);
    m_entityNote->setNote(
        entity || rule.entityId.isNull() ? QString() : tr("The entity of this rule is no longer there."),
        NoteLabel::Tone::Error);
    fillFields();
    // A comparison that this program does not know stays as it is until another one is chosen.
    int comparison = m_comparison->findData(rule.comparison);
    if (comparison < 0) {
        comparison = m_comparison->count();
        m_comparison->addItem(rule.comparison, rule.comparison);
    }
    m_comparison->setCurrentIndex(comparison);
    m_value->setText(rule.value);
    m_date->setInstant(rule.instant);
    showValueState();
}

void RuleForm::fillFields()
{
    const QSignalBlocker blocker(m_field);
    m_field->clear();
    const core::project::Project& project = m_desk.session.project();
    if (const auto* const entity = project.findAs<Entity>(m_rule.entityId)) {
        for (const core::entity::ResolvedField& field : schemaOfEntity(project, *entity))
            m_field->addItem(field.field.displayName(), field.field.key);
    }
    const int known = m_field->findData(m_rule.fieldKey);
    m_field->setCurrentIndex(known);
    if (known < 0)
        m_field->setEditText(m_rule.fieldKey);
}

void RuleForm::takeEntity()
{
    const QString name = m_entity->text().trimmed();
    if (name == m_shownEntity)
        return;
    m_shownEntity = name;
    m_rule.entityId = fields::findEntityNamed(m_choices->choices(), name);
    const bool isLost = m_rule.entityId.isNull() && !name.isEmpty();
    m_entityNote->setNote(
        isLost ? tr("There is no entity, or more than one, called “%1”.").arg(name) : QString(),
        NoteLabel::Tone::Error);
    fillFields();
    // The property may have been typed by its name before anybody knew whose it is.
    takeField();
}

void RuleForm::takeField()
{
    // Typed text may be a name in the list, or the key of a property that the entity no longer has.
    const QString text = m_field->currentText().trimmed();
    int known = m_field->currentIndex();
    if (known < 0 || m_field->itemText(known) != text)
        known = m_field->findText(text, Qt::MatchFixedString);
    m_rule.fieldKey = known < 0 ? text : m_field->itemData(known).toString();
    emit edited();
}

void RuleForm::showValueState()
{
    const auto comparison = app::timeline::ruleComparisonFromKey(m_rule.comparison);
    m_value->setEnabled(!comparison || takesOperand(*comparison));
    m_value->setPlaceholderText(
        comparison == RuleComparison::OneOf ? tr("One value, or another: red|green") : QString());
}

void RuleForm::focusName()
{
    m_name->setFocus();
    m_name->selectAll();
}

bool RuleForm::commit()
{
    m_date->commit();
    takeEntity();
    return m_date->isReadable();
}

} // namespace tw::desktop::continuity
