#include "app/codex/FieldConversion.h"

#include "app/codex/CategoryEdits.h"
#include "app/timeline/RuleOperand.h"
#include "core/entity/EntityCommands.h"
#include "core/timeline/TimelineCommands.h"

namespace tw::app::codex {

using core::CategoryId;
using core::entity::Entity;
using core::entity::EntityTemplate;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using core::timeline::ContinuityRule;

namespace {

class Converter
{
public:
    Converter(
        const Project& project, const ObjectScope& scope, const Category& category, const Field& before,
        Field after)
        : m_project(project)
        , m_lookup(project, scope)
        , m_category(category)
        , m_before(before)
        , m_after(std::move(after))
        , m_values(project, scope)
    {}

    [[nodiscard]] ConversionPlan run()
    {
        m_after.fixedValue = converted(m_before.fixedValue);
        planReplaceField(m_plan.edits, m_category, m_after);
        for (const Entity* const entity : core::project::objectsOf<Entity>(m_project)) {
            if (reaches(*entity))
                convert(*entity);
        }
        convertTemplates();
        convertRules();
        return std::move(m_plan);
    }

private:
    /** Whether the category's definition is the one that counts for a category beneath, dropped there or not.
     */
    [[nodiscard]] bool defines(const CategoryId& categoryId) const
    {
        const auto defining = m_project.taxonomy().categoriesDefining(categoryId, m_after.key);
        return !defining.empty() && defining.back() == m_category.id;
    }

    [[nodiscard]] bool reaches(const Entity& entity) const
    {
        if (core::taxonomy::findField(entity.ownFields(), m_after.key) != entity.ownFields().end())
            return false;
        if (defines(entity.categoryId()))
            return true;
        // Taken through the entity that a category hangs under.
        const core::entity::Schema schema = core::entity::schemaOfEntity(m_project, entity);
        const auto* const field = core::entity::findField(schema, m_after.key);
        return field && field->definedBy == m_category.id;
    }

    [[nodiscard]] bool isLeftAlone(const Entity& entity) const
    {
        return entity.isLocked() || m_lookup.isHidden(entity);
    }

    /** The value in its new form, counted; as it is when it does not suit. */
    [[nodiscard]] QString converted(const QString& value)
    {
        if (value.trimmed().isEmpty())
            return value;
        const QString words = m_values.inWords(m_before, value);
        const auto stored = m_values.stored(m_after, words);
        if (!stored) {
            m_plan.kept.append(words);
            return words;
        }
        ++m_plan.migratedCount;
        return *stored;
    }

    void convert(const Entity& entity)
    {
        const auto value = entity.value(m_after.key);
        const auto timed = entity.timedValues().find(m_after.key);
        const bool hasStates = timed != entity.timedValues().end();
        if (!value && !hasStates)
            return;
        if (isLeftAlone(entity)) {
            m_plan.untouchedCount += (value ? 1 : 0) + (hasStates ? std::ssize(timed->second) : 0);
            return;
        }
        if (value) {
            if (const QString text = converted(*value); text != *value) {
                m_plan.edits.add([id = entity.id(), key = m_after.key, text](Project& project) {
                    return std::make_unique<core::entity::SetFieldValueCommand>(
                        *project.findAsForEdit<Entity>(id), key, text);
                });
            }
        }
        if (hasStates) {
            core::entity::TimedValues states = entity.timedValues();
            for (core::entity::TimedValue& state : states[m_after.key])
                state.value = converted(state.value);
            if (states != entity.timedValues()) {
                m_plan.edits.set<core::entity::SetEntityTimedValuesCommand>(entity.id(), std::move(states));
            }
        }
    }

    void convertTemplates()
    {
        std::vector<EntityTemplate> templates = m_project.entityTemplates();
        for (EntityTemplate& entityTemplate : templates) {
            const auto value = entityTemplate.fieldValues.find(m_after.key);
            if (value != entityTemplate.fieldValues.end() && defines(entityTemplate.categoryId))
                value->second = converted(value->second);
        }
        if (templates != m_project.entityTemplates())
            m_plan.edits.setInProject<core::entity::SetEntityTemplatesCommand>(std::move(templates));
    }

    /** Rules go on comparing with what the values become. */
    void convertRules()
    {
        std::vector<ContinuityRule> rules = m_project.continuityRules();
        for (ContinuityRule& rule : rules) {
            const auto* const entity = m_project.findAs<Entity>(rule.entityId);
            if (rule.fieldKey != m_after.key || !entity || !reaches(*entity))
                continue;
            const auto comparison = timeline::ruleComparisonFromKey(rule.comparison);
            if (!comparison || !takesOperand(*comparison) || rule.value.trimmed().isEmpty())
                continue;
            if (isLeftAlone(*entity))
                ++m_plan.untouchedCount;
            else
                convert(rule, *comparison);
        }
        if (rules != m_project.continuityRules())
            m_plan.edits.setInProject<core::timeline::SetContinuityRulesCommand>(std::move(rules));
    }

    void convert(ContinuityRule& rule, timeline::RuleComparison comparison)
    {
        const QStringList words = operandInWords(m_values, m_before, comparison, rule.value);
        const timeline::StoredOperand stored = storedOperand(m_values, m_after, comparison, words);
        rule.value = stored.operand;
        if (stored.unsuited.isEmpty())
            ++m_plan.ruleCount;
        for (const QString& value : stored.unsuited)
            m_plan.keptOperands.push_back({rule.name, value});
    }

    const Project& m_project;
    const ScopedLookup m_lookup;
    const Category& m_category;
    const Field& m_before;
    Field m_after;
    ValueConversion m_values;
    ConversionPlan m_plan;
};

} // namespace

ConversionPlan planConversion(
    const Project& project, const ConversionRequest& request, const ObjectScope& scope)
{
    const Category* const category = project.taxonomy().category(request.categoryId);
    if (!category)
        return {};
    const auto before = core::taxonomy::findField(category->fields, request.key);
    if (before == category->fields.end())
        return {};
    Field after = *before;
    after.type = request.type;
    after.options = request.type == FieldType::Choice ? request.options : QStringList();
    after.referenceCategory = request.type == FieldType::Reference ? request.referenceCategory : CategoryId();
    return Converter(project, scope, *category, *before, std::move(after)).run();
}

} // namespace tw::app::codex
