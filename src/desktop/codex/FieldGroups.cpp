#include "desktop/codex/FieldGroups.h"

#include "desktop/shell/ObjectTitles.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::entity::FieldOrigin;
using core::entity::ResolvedField;
using core::project::Project;
using Source = FieldGroup::Source;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("FieldGroups", text);
}

Source sourceOf(const ResolvedField& resolved)
{
    if (resolved.isFixed())
        return Source::Fixed;
    switch (resolved.origin) {
    case FieldOrigin::Entity:
        return Source::Own;
    case FieldOrigin::ParentEntity:
        return Source::ThroughEntity;
    case FieldOrigin::Ancestor:
        return Source::Ancestor;
    case FieldOrigin::Category:
        break;
    }
    return Source::Category;
}

} // namespace

std::vector<FieldGroup> fieldGroups(const Project& project, const Entity& entity)
{
    const auto chain = project.taxonomy().ancestorChain(entity.categoryId());
    const auto depth = [&chain](const core::CategoryId& id) {
        return std::ranges::find(chain, id) - chain.begin();
    };
    std::vector<FieldGroup> groups;
    for (const ResolvedField& resolved : core::entity::schemaOfEntity(project, entity)) {
        const Source source = sourceOf(resolved);
        const bool isByCategory = source == Source::Ancestor || source == Source::Category;
        const core::CategoryId categoryId = isByCategory ? resolved.definedBy : core::CategoryId();
        const auto known = std::ranges::find_if(groups, [&](const FieldGroup& group) {
            return group.source == source && group.categoryId == categoryId;
        });
        if (known == groups.end())
            groups.push_back({source, categoryId, {resolved}});
        else
            known->fields.push_back(resolved);
    }
    std::ranges::stable_sort(groups, [&depth](const FieldGroup& left, const FieldGroup& right) {
        return left.source == right.source ? depth(left.categoryId) < depth(right.categoryId)
                                           : left.source < right.source;
    });
    return groups;
}

QString groupTitle(const Project& project, const Entity& entity, const FieldGroup& group)
{
    switch (group.source) {
    case Source::ThroughEntity: {
        const auto chain = project.taxonomy().ancestorChain(entity.categoryId());
        const auto* const root = chain.empty() ? nullptr : project.taxonomy().category(chain.front());
        const auto* const parent = root ? project.findAs<Entity>(root->parentEntityId) : nullptr;
        return translated(QT_TRANSLATE_NOOP("FieldGroups", "Through %1"))
            .arg(parent ? shell::objectTitle(*parent) : QString());
    }
    case Source::Own:
        return translated(QT_TRANSLATE_NOOP("FieldGroups", "Only here"));
    case Source::Fixed:
        return translated(QT_TRANSLATE_NOOP("FieldGroups", "Fixed"));
    case Source::Ancestor:
    case Source::Category:
        break;
    }
    const auto* const category = project.taxonomy().category(group.categoryId);
    return category ? category->name : QString();
}

QString groupToolTip(const FieldGroup& group, const QString& title)
{
    switch (group.source) {
    case Source::ThroughEntity:
        return translated(QT_TRANSLATE_NOOP(
            "FieldGroups", "Properties that cross from the entity this category hangs under."));
    case Source::Own:
        return translated(QT_TRANSLATE_NOOP("FieldGroups", "Properties of this entity alone."));
    case Source::Fixed:
        return translated(QT_TRANSLATE_NOOP(
            "FieldGroups", "Values that a category supplies to everything beneath it. Change them there."));
    case Source::Ancestor:
        return translated(QT_TRANSLATE_NOOP("FieldGroups", "Inherited from the category “%1”.")).arg(title);
    case Source::Category:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("FieldGroups", "Declared by the category “%1”.")).arg(title);
}

std::vector<HiddenValue> hiddenValues(const Project& project, const Entity& entity)
{
    const auto schema = core::entity::schemaOfEntity(project, entity);
    const auto isShown = [&schema](const QString& key) {
        const ResolvedField* const resolved = core::entity::findField(schema, key);
        return resolved && !resolved->isFixed();
    };
    std::vector<HiddenValue> hidden;
    for (const auto& [key, value] : entity.values()) {
        if (!isShown(key))
            hidden.push_back({key, value});
    }
    for (const auto& [key, values] : entity.timedValues()) {
        for (const auto& timed : values) {
            if (!isShown(key)) {
                hidden.push_back(
                    {key, translated(QT_TRANSLATE_NOOP("FieldGroups", "%1 (from %2)"))
                              .arg(timed.value, project.calendar().formatInstant(timed.instant))});
            }
        }
    }
    return hidden;
}

} // namespace tw::desktop::codex
