#include "app/codex/PropertyMigration.h"

#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "core/taxonomy/TaxonomyCommands.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace tw::app::codex {

using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::entity::FieldOrigin;
using core::entity::ResolvedField;
using core::entity::Schema;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;

namespace {

/** One property of one category. */
using PropertyKey = std::pair<CategoryId, QString>;

struct Holders
{
    std::set<ContentId> seeing;
    /** Hold a value of the key beneath the category without being shown it: not to be overlooked. */
    std::set<ContentId> others;
};

std::set<QString> heldKeys(const Entity& entity)
{
    std::set<QString> keys;
    for (const auto& [key, value] : entity.values())
        keys.insert(key);
    for (const auto& [key, values] : entity.timedValues())
        keys.insert(key);
    return keys;
}

/** Counts a value of one entity for the property it is shown under, or for all above it that it might belong
 * to. */
void count(
    const Project& project, const Entity& entity, const QString& key, const Schema& schema,
    std::map<PropertyKey, Holders>& holders)
{
    const ResolvedField* const shown = core::entity::findField(schema, key);
    if (shown && shown->origin == FieldOrigin::Entity)
        return;
    if (shown) {
        holders[{shown->definedBy, key}].seeing.insert(entity.id());
        return;
    }
    for (const CategoryId& category : project.taxonomy().categoriesDefining(entity.categoryId(), key))
        holders[{category, key}].others.insert(entity.id());
}

std::map<PropertyKey, Holders> countHolders(const Project& project)
{
    std::map<PropertyKey, Holders> holders;
    for (const Entity* entity : core::project::objectsOf<Entity>(project)) {
        const std::set<QString> keys = heldKeys(*entity);
        if (keys.empty())
            continue;
        const Schema schema = core::entity::schemaOfEntity(project, *entity);
        for (const QString& key : keys)
            count(project, *entity, key, schema, holders);
    }
    return holders;
}

/** An entity must not override a fixed property, so none may come to light when the category's own goes. */
bool isFixedElsewhere(const Project& project, const CategoryId& category, const QString& key)
{
    const auto defining = project.taxonomy().categoriesDefining(category, key);
    return std::ranges::any_of(defining, [&project, &key](const CategoryId& id) {
        return core::taxonomy::findField(project.taxonomy().category(id)->fields, key)->isFixed;
    });
}

} // namespace

PropertyPlan planPropertyMigration(const Project& project, Actor actor)
{
    const std::map<PropertyKey, Holders> holders = countHolders(project);
    PropertyPlan plan;
    for (const auto& [id, category] : project.taxonomy().categories()) {
        for (const Field& field : category.fields) {
            const auto found = holders.find({id, field.key});
            if (found == holders.end() || found->second.seeing.size() != 1 || !found->second.others.empty() ||
                isFixedElsewhere(project, id, field.key))
                continue;
            const auto* holder = project.findAs<Entity>(*found->second.seeing.begin());
            if (isLeftAlone(*holder, actor))
                ++plan.heldBack;
            else
                plan.moves.push_back({id, holder->id(), field});
        }
    }
    return plan;
}

std::vector<std::unique_ptr<core::undo::Command>> makePropertyMigration(
    Project& project, const std::vector<PropertyMove>& moves)
{
    std::vector<std::unique_ptr<core::undo::Command>> commands;
    std::map<ContentId, core::taxonomy::FieldList> ownFields;
    for (const PropertyMove& move : moves) {
        commands.push_back(
            std::make_unique<core::taxonomy::RemoveFieldCommand>(project, move.from, move.field.key));
        auto [fields, isNew] = ownFields.try_emplace(move.to);
        if (isNew)
            fields->second = project.findAs<Entity>(move.to)->ownFields();
        fields->second.push_back(move.field);
    }
    for (auto& [id, fields] : ownFields) {
        commands.push_back(std::make_unique<core::entity::SetEntityOwnFieldsCommand>(
            *project.findAsForEdit<Entity>(id), std::move(fields)));
    }
    return commands;
}

} // namespace tw::app::codex
