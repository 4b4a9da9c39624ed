#include "desktop/continuity/RuleForm.h"

#include "app/timeline/RuleComparison.h"
#include "core/entity/Schema.h"
#include "desktop/continuity/RuleValue.h"
#include "desktop/fields/EntityChoices.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/shell/LibraryObjects.h"
#include "desktop/shell/ProjectSession.h"

#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStringListModel>

#include <algorithm>

namespace tw::desktop::continuity {

using namespace Qt::Literals::StringLiterals;
using app::timeline::RuleComparison;
using core::entity::Entity;
using core::timeline::ContinuityRule;
using fields::NoteLabel;

namespace {

QCompleter* completerOf(QAbstractItemModel* model, QObject* parent)
{
    auto* const completer = new QCompleter(model, parent);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    return completer;
}

/** Editable before any other control is made: Tab comes back to a box from wherever its line stands. */
QComboBox* makeEditableBox(QWidget* parent)
{
    auto* const box = new QComboBox(parent);
    box->setEditable(true);
    return box;
}

} // namespace

RuleForm::RuleForm(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_choices(new fields::EntityChoiceModel(this))
    , m_valueChoices(new QStringListModel(this))
    , m_name(new QLineEdit(this))
    , m_entity(new QLineEdit(this))
    , m_entityNote(new NoteLabel(desk.themes, this))
    , m_field(makeEditableBox(this))
    , m_comparison(new QComboBox(this))
    , m_value(new QLineEdit(this))
    , m_valueNote(new NoteLabel(desk.themes, this))
    , m_date(new fields::StoryDateEdit(desk.themes, this))
{
    fillChoices();
    m_entity->setCompleter(completerOf(m_choices, this));
    m_value->setCompleter(completerOf(m_valueChoices, this));
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
    form->addRow(QString(), m_valueNote);
    form->addRow(tr("On"), m_date);
    auto* const dateNote = new NoteLabel(desk.themes, this);
    dateNote->setNote(tr("Without a date, what the property says at present counts."));
    form->addRow(QString(), dateNote);
    connectFields();
}

RuleForm::~RuleForm() = default;

void RuleForm::connectFields()
{
    connect(m_name, &QLineEdit::textEdited, this, [this](const QString& name) {
        m_draft.rule.name = name;
        emit edited();
    });
    connect(m_entity, &QLineEdit::editingFinished, this, &RuleForm::takeEntity);
    connect(m_field, &QComboBox::currentTextChanged, this, &RuleForm::takeField);
    connect(m_comparison, &QComboBox::currentIndexChanged, this, &RuleForm::takeComparison);
    connect(m_value, &QLineEdit::textEdited, this, &RuleForm::takeValue);
    connect(
        m_value->completer(), qOverload<const QString&>(&QCompleter::activated), this, &RuleForm::takeValue);
    connect(m_value, &QLineEdit::editingFinished, this, &RuleForm::showValueFault);
    connect(
        m_date, &fields::StoryDateEdit::instantEdited, this,
        [this](const std::optional<core::calendar::StoryInstant>& instant) {
            m_draft.rule.instant = instant;
            emit edited();
        });
}

void RuleForm::fillChoices()
{
    m_ownChoices = fields::entityChoices(m_desk.session.project(), {});
    std::vector<fields::EntityChoice> choices = m_ownChoices;
    for (const app::workspace::MountedLibrary& library : m_desk.session.workspace().libraries()) {
        for (fields::EntityChoice& choice : fields::entityChoices(*library.project, {})) {
            if (m_desk.session.project().contains(choice.id))
                continue;
            choice.text += u" — "_s + library.name;
            choices.push_back(std::move(choice));
        }
    }
    m_choices->setChoices(std::move(choices));
}

QString RuleForm::entityText(const core::ContentId& id) const
{
    if (const auto* const entity = m_desk.session.project().findAs<Entity>(id))
        return entity->name().trimmed();
    // An entity of a library is told apart from namesakes by where it stands.
    const auto& choices = m_choices->choices();
    const auto listed = std::ranges::find(choices, id, &fields::EntityChoice::id);
    return listed == choices.end() ? QString() : listed->text;
}

void RuleForm::setDraft(const RuleDraft& draft)
{
    const QSignalBlocker fieldBlocker(m_field);
    const QSignalBlocker comparisonBlocker(m_comparison);
    m_draft = draft;
    const ContinuityRule& rule = draft.rule;
    m_name->setText(rule.name);
    m_shownEntity = entityText(rule.entityId);
    m_entity->setText(m_shownEntity);
    const app::codex::ObjectScope scope = shell::libraryScope(m_desk.session);
    const bool isLost =
        !rule.entityId.isNull() &&
        !app::codex::ScopedLookup(m_desk.session.project(), scope).findAs<Entity>(rule.entityId);
    m_entityNote->setNote(
        isLost ? tr("The entity of this rule is no longer there.") : QString(), NoteLabel::Tone::Error);
    fillFields();
    // A comparison that this program does not know stays as it is until another one is chosen.
    int comparison = m_comparison->findData(rule.comparison);
    if (comparison < 0) {
        comparison = m_comparison->count();
        m_comparison->addItem(rule.comparison, rule.comparison);
    }
    m_comparison->setCurrentIndex(comparison);
    const RuleValue value(m_desk.session);
    m_value->setText(draft.typedValue ? *draft.typedValue : value.inWords(rule));
    m_shownField = value.fieldOf(rule);
    m_date->setInstant(rule.instant);
    if (draft.typedDate)
        m_date->setTypedText(*draft.typedDate);
    showValueState();
    showValueFault();
}

void RuleForm::fillFields()
{
    const QSignalBlocker blocker(m_field);
    m_field->clear();
    const app::codex::ObjectScope scope = shell::libraryScope(m_desk.session);
    const app::codex::ScopedLookup lookup(m_desk.session.project(), scope);
    const core::ContentId& id = m_draft.rule.entityId;
    if (const auto* const entity = lookup.findAs<Entity>(id)) {
        for (const core::entity::ResolvedField& field : schemaOfEntity(lookup.ownerOf(id), *entity))
            m_field->addItem(field.field.displayName(), field.field.key);
    }
    const int known = m_field->findData(m_draft.rule.fieldKey);
    m_field->setCurrentIndex(known);
    if (known < 0)
        m_field->setEditText(m_draft.rule.fieldKey);
}

void RuleForm::takeEntity()
{
    const QString name = m_entity->text().trimmed();
    if (name == m_shownEntity)
        return;
    m_shownEntity = name;
    m_draft.rule.entityId = fields::findEntityNamed(m_ownChoices, name);
    if (m_draft.rule.entityId.isNull())
        m_draft.rule.entityId = fields::findEntityNamed(m_choices->choices(), name);
    const bool isLost = m_draft.rule.entityId.isNull() && !name.isEmpty();
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
    m_draft.rule.fieldKey = known < 0 ? text : m_field->itemData(known).toString();
    if (RuleValue(m_desk.session).fieldOf(m_draft.rule) != m_shownField)
        rereadValue();
    emit edited();
}

void RuleForm::takeComparison()
{
    m_draft.rule.comparison = m_comparison->currentData().toString();
    // A bar parts values for one comparison and is a character for the others.
    if (m_value->text().contains(u'|'))
        rereadValue();
    showValueState();
    showValueFault();
    emit edited();
}

void RuleForm::takeValue(const QString& words)
{
    m_draft.typedValue = words;
    m_valueNote->setNote({});
    emit edited();
}

void RuleForm::rereadValue()
{
    m_shownField = RuleValue(m_desk.session).fieldOf(m_draft.rule);
    m_draft.typedValue = m_value->text();
    showValueState();
    showValueFault();
}

void RuleForm::showValueState()
{
    const auto comparison = app::timeline::ruleComparisonFromKey(m_draft.rule.comparison);
    m_value->setEnabled(!comparison || takesOperand(*comparison));
    m_value->setPlaceholderText(
        comparison == RuleComparison::OneOf ? tr("One value, or another: red|green") : QString());
    // A list of values is typed; what is proposed would take the place of all of them.
    const bool isOneValue = comparison && *comparison != RuleComparison::OneOf;
    m_valueChoices->setStringList(
        isOneValue ? RuleValue(m_desk.session).choices(m_shownField) : QStringList());
}

void RuleForm::showValueFault()
{
    // What the rule already holds is not called in question.
    m_valueNote->setNote(
        m_draft.typedValue ? RuleValue(m_desk.session).read(m_draft.rule, *m_draft.typedValue).fault
                           : QString(),
        NoteLabel::Tone::Error);
}

void RuleForm::focusValue()
{
    m_value->setFocus();
    m_value->selectAll();
}

void RuleForm::focusDate()
{
    m_date->setFocus();
}

std::optional<QString> RuleForm::unreadDate() const
{
    return m_date->isReadable() ? std::nullopt : std::optional(m_date->lineEdit().text());
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
    showValueFault();
    return m_date->isReadable();
}

} // namespace tw::desktop::continuity
