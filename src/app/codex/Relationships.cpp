#include "app/codex/Relationships.h"

#include "core/entity/Schema.h"

#include <algorithm>
#include <set>

namespace tw::app::codex {

using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::entity::ResolvedField;
using core::entity::Schema;
using core::project::Project;
using core::taxonomy::FieldType;

namespace {

const Entity* findEntity(std::span<const Project* const> projects, const ContentId& id)
{
    for (const Project* const project : projects) {
        if (const auto* const entity = project->findAs<Entity>(id))
            return entity;
    }
    return nullptr;
}

void addOfEntity(
    std::vector<Relationship>& links, std::span<const Project* const> projects, const Schema& schema,
    const Entity& entity)
{
    for (const ResolvedField& field : schema) {
        if (field.field.type != FieldType::Reference)
            continue;
        const auto value = core::entity::shownValue(field, entity);
        if (!value)
            continue;
        for (const QString& line : value->split(u'\n')) {
            const ContentId id = ContentId::fromString(line.trimmed());
            if (!id.isNull())
                links.push_back({&entity, field.field.displayName(), findEntity(projects, id), id});
        }
    }
}

} // namespace

std::vector<Relationship> relationships(std::span<const Project* const> projects)
{
    std::vector<Relationship> links;
    std::set<ContentId> visited;
    for (const Project* const project : projects) {
        // Most entities have no fields of their own: one schema serves a whole category.
        std::map<CategoryId, Schema> schemas;
        for (const Entity* const entity : core::project::objectsOf<Entity>(*project)) {
            if (!visited.insert(entity->id()).second)
                continue;
            if (!entity->ownFields().empty()) {
                addOfEntity(links, projects, core::entity::schemaOfEntity(*project, *entity), *entity);
                continue;
            }
            auto known = schemas.find(entity->categoryId());
            if (known == schemas.end()) {
                known = schemas
                            .emplace(
                                entity->categoryId(),
                                core::entity::schemaOfCategory(*project, entity->categoryId()))
                            .first;
            }
            addOfEntity(links, projects, known->second, *entity);
        }
    }
    std::ranges::stable_sort(links, [](const Relationship& left, const Relationship& right) {
        return left.from->name().compare(right.from->name(), Qt::CaseInsensitive) < 0;
    });
    return links;
}

} // namespace tw::app::codex
