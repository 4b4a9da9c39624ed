#include "desktop/continuity/RulesDialog.h"

#include "core/timeline/TimelineCommands.h"
#include "desktop/continuity/RuleForm.h"
#include "desktop/continuity/RuleValue.h"
#include "desktop/fields/ListEditor.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

namespace tw::desktop::continuity {

using namespace Qt::Literals::StringLiterals;
using core::timeline::ContinuityRule;

namespace {

constexpr int charactersWide = 96;
constexpr int linesHigh = 22;
constexpr int ruleRole = Qt::UserRole;

} // namespace

QString faultIn(const RuleList& rules)
{
    QSet<QString> names;
    for (const ContinuityRule& rule : rules) {
        const QString name = rule.name.trimmed();
        if (name.isEmpty())
            return RulesDialog::tr("Every rule needs a name.");
        if (names.contains(name.toCaseFolded()))
            return RulesDialog::tr("Two rules are called “%1”. Give one of them another name.").arg(name);
        names.insert(name.toCaseFolded());
        if (rule.entityId.isNull())
            return RulesDialog::tr("Choose the entity that “%1” is about.").arg(name);
        if (rule.fieldKey.isEmpty())
            return RulesDialog::tr("Choose the property that “%1” looks at.").arg(name);
    }
    return {};
}

RulesDialog::RulesDialog(const shell::DeskContext& desk, const RuleList& rules, QWidget* parent)
    : QDialog(parent)
    , m_desk(desk)
    , m_list(new fields::ListEditor(
          desk, tr("Continuity rules"),
          tr("No rules: add one to hear when an entity is not what the story needs."), this))
    , m_form(new RuleForm(desk, this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    setWindowTitle(tr("Continuity Rules"));
    setSizeGripEnabled(true);
    // Long names are cut; nothing is to be scrolled for.
    m_list->list().setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_list->addButton(tr("&Add Rule")), &QPushButton::clicked, this, &RulesDialog::addRule);
    connect(m_list, &fields::ListEditor::removeRequested, this, &RulesDialog::removeRow);
    connect(&m_list->list(), &QListWidget::currentRowChanged, this, &RulesDialog::showCurrent);
    connect(m_form, &RuleForm::edited, this, &RulesDialog::takeForm);
    for (const ContinuityRule& rule : rules) {
        m_rules.push_back({rule});
        addRow(m_rules.size() - 1);
    }

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("Apply Rules"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &RulesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RulesDialog::reject);
    auto* const columns = new QHBoxLayout;
    columns->addWidget(m_list, 1);
    columns->addWidget(m_form, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
    m_list->list().setCurrentRow(0);
    showCurrent();
}

RulesDialog::~RulesDialog() = default;

RuleList RulesDialog::rules() const
{
    RuleList rules;
    for (int row = 0; row < m_list->list().count(); ++row)
        rules.push_back(m_rules[ruleOfRow(row)].rule);
    return rules;
}

std::size_t RulesDialog::ruleOfRow(int row) const
{
    return m_list->list().item(row)->data(ruleRole).toULongLong();
}

void RulesDialog::addRow(std::size_t rule)
{
    auto* const item = new QListWidgetItem(shell::shownName(m_rules[rule].rule.name), &m_list->list());
    item->setData(ruleRole, static_cast<qulonglong>(rule));
}

void RulesDialog::addRule()
{
    ContinuityRule rule;
    rule.name = tr("New rule");
    m_rules.push_back({std::move(rule)});
    addRow(m_rules.size() - 1);
    m_list->list().setCurrentRow(m_list->list().count() - 1);
    m_form->focusName();
}

void RulesDialog::removeRow(int row)
{
    delete m_list->list().takeItem(row);
}

void RulesDialog::keepUnreadDate()
{
    if (m_shown)
        m_rules[*m_shown].typedDate = m_form->unreadDate();
}

void RulesDialog::showCurrent()
{
    keepUnreadDate();
    const int row = m_list->list().currentRow();
    m_shown = row >= 0 ? std::optional(ruleOfRow(row)) : std::nullopt;
    m_form->setEnabled(row >= 0);
    m_form->setDraft(m_shown ? m_rules[*m_shown] : RuleDraft());
}

void RulesDialog::takeForm()
{
    QListWidgetItem* const item = m_list->list().currentItem();
    if (!item)
        return;
    RuleDraft& draft = m_rules[ruleOfRow(m_list->list().currentRow())];
    draft = m_form->draft();
    item->setText(shell::shownName(draft.rule.name));
    m_note->setNote({});
}

bool RulesDialog::storeValues()
{
    const RuleValue value(m_desk.session);
    for (int row = 0; row < m_list->list().count(); ++row) {
        RuleDraft& draft = m_rules[ruleOfRow(row)];
        if (draft.typedDate) {
            m_list->list().setCurrentRow(row);
            m_form->focusDate();
            return false;
        }
        if (!draft.typedValue)
            continue;
        const RuleValue::Reading reading = value.read(draft.rule, *draft.typedValue);
        if (!reading.fault.isEmpty()) {
            m_list->list().setCurrentRow(row);
            m_form->focusValue();
            return false;
        }
        draft.rule.value = reading.stored;
        draft.typedValue.reset();
    }
    return true;
}

void RulesDialog::accept()
{
    if (!m_form->commit())
        return;
    keepUnreadDate();
    const QString fault = faultIn(rules());
    m_note->setNote(fault, fields::NoteLabel::Tone::Error);
    if (fault.isEmpty() && storeValues())
        QDialog::accept();
}

void editContinuityRules(const shell::DeskContext& desk, QWidget* parent)
{
    RulesDialog dialog(desk, desk.session.project().continuityRules(), parent);
    if (dialog.exec() != QDialog::Accepted || dialog.rules() == desk.session.project().continuityRules())
        return;
    desk.session.apply(std::make_unique<core::timeline::SetContinuityRulesCommand>(
        desk.session.projectForCommands(), dialog.rules()));
}

} // namespace tw::desktop::continuity
