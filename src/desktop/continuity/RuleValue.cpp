#include "desktop/continuity/RuleValue.h"

#include "app/codex/DateText.h"
#include "app/timeline/RuleOperand.h"
#include "desktop/fields/EntityChoices.h"
#include "desktop/fields/ValueText.h"
#include "desktop/shell/LibraryObjects.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

namespace tw::desktop::continuity {

using namespace Qt::Literals::StringLiterals;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using core::timeline::ContinuityRule;

namespace {

constexpr QLatin1StringView truthValues[] = {"true"_L1, "false"_L1};

QString translated(const char* text)
{
    return QCoreApplication::translate("RuleValue", text);
}

} // namespace

RuleValue::RuleValue(const shell::ProjectSession& session)
    : m_project(session.project())
    , m_scope(shell::libraryScope(session))
    , m_values(m_project, m_scope)
{}

Field RuleValue::fieldOf(const ContinuityRule& rule) const
{
    const auto field = app::timeline::fieldOfRule(app::codex::ScopedLookup(m_project, m_scope), rule);
    return field ? field->field : Field();
}

QString RuleValue::inWords(const ContinuityRule& rule) const
{
    const auto comparison = app::timeline::ruleComparisonFromKey(rule.comparison);
    if (!comparison)
        return rule.value;
    const Field field = fieldOf(rule);
    QStringList words = operandInWords(m_values, field, *comparison, rule.value);
    for (QString& value : words) {
        if (field.type == FieldType::Boolean)
            value = fields::valueText(m_project, field, value);
        else if (field.type == FieldType::Reference)
            value.replace(u'\n', u", "_s);
    }
    return app::timeline::operandOf(words);
}

RuleValue::Reading RuleValue::read(const ContinuityRule& rule, const QString& words) const
{
    const auto comparison = app::timeline::ruleComparisonFromKey(rule.comparison);
    if (!comparison || !takesOperand(*comparison))
        return {words, {}};
    const Field field = fieldOf(rule);
    QStringList values = app::timeline::operandValues(*comparison, words);
    if (field.type == FieldType::Boolean) {
        for (QString& value : values) {
            for (const QLatin1StringView truth : truthValues) {
                if (value.trimmed().compare(
                        fields::valueText(m_project, field, truth), Qt::CaseInsensitive) == 0)
                    value = truth;
            }
        }
    }
    const auto stored = storedOperand(m_values, field, *comparison, values);
    return {stored.operand, stored.unsuited.isEmpty() ? QString() : faultOf(field, stored.unsuited.first())};
}

QString RuleValue::faultOf(const Field& field, const QString& value) const
{
    const QString name = value.trimmed();
    switch (field.type) {
    case FieldType::Number:
        return translated(QT_TRANSLATE_NOOP("RuleValue", "“%1” is not a number.")).arg(name);
    case FieldType::Boolean:
        return translated(QT_TRANSLATE_NOOP("RuleValue", "“%1” is neither yes nor no.")).arg(name);
    case FieldType::Date:
        return translated(
                   QT_TRANSLATE_NOOP(
                       "RuleValue",
                       "“%1” is not a date this calendar can read. Write it like “%2” or just a year."))
            .arg(name, app::codex::dateText(m_project.calendar(), 0));
    case FieldType::Choice:
        return translated(QT_TRANSLATE_NOOP("RuleValue", "“%1” is none of the choices: %2."))
            .arg(name, field.options.join(u", "_s));
    case FieldType::Reference:
    case FieldType::Text:
    case FieldType::Url:
        break;
    }
    return translated(
               QT_TRANSLATE_NOOP("RuleValue", "There is no entity, or more than one, called “%1” here."))
        .arg(name);
}

QStringList RuleValue::choices(const Field& field) const
{
    QStringList choices;
    if (field.type == FieldType::Choice)
        return field.options;
    if (field.type == FieldType::Boolean) {
        for (const QLatin1StringView truth : truthValues)
            choices += fields::valueText(m_project, field, truth);
    }
    if (field.type != FieldType::Reference)
        return choices;
    for (const fields::EntityChoice& choice : fields::entityChoices(m_project, field.referenceCategory))
        choices += choice.name;
    for (const core::project::Project* library : m_scope.libraries) {
        for (const fields::EntityChoice& choice : fields::entityChoices(*library, field.referenceCategory))
            choices += choice.name;
    }
    choices.removeDuplicates();
    return choices;
}

} // namespace tw::desktop::continuity
