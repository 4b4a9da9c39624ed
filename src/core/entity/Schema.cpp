#include "core/entity/Schema.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace tw::core::entity {

using project::Project;
using taxonomy::Category;
using taxonomy::Field;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Taxonomy", text);
}

const QString& keyOf(const ResolvedField& resolved)
{
    return resolved.field.key;
}

/** One category with those above it, on the way from an outermost root inwards. */
struct Stage
{
    /** From the root down; empty where the way is lost or closes to a loop. */
    std::vector<CategoryId> chain;
    /** The entity in the last category under which the next stage hangs; none for the innermost. */
    const Entity* holder = nullptr;
};

/** Outwards from a category, as far as something is taken through the entities on the way. */
std::vector<Stage> stagesFrom(const Project& project, const CategoryId& categoryId)
{
    std::vector<Stage> stages;
    std::set<CategoryId> entered;
    stages.push_back({project.taxonomy().ancestorChain(categoryId), nullptr});
    while (true) {
        std::vector<CategoryId>& chain = stages.back().chain;
        if (chain.empty() || !entered.insert(chain.front()).second) {
            chain.clear();
            return stages;
        }
        const Category& root = *project.taxonomy().category(chain.front());
        const auto* const holder = project.findAs<Entity>(root.parentEntityId);
        if (!holder || root.inheritedKeys.isEmpty())
            return stages;
        stages.push_back({project.taxonomy().ancestorChain(holder->categoryId()), holder});
    }
}

/** Leaves what a category under an entity takes through it: the fields it lists, in the entity's order. */
void crossInto(Schema& schema, const Category& root)
{
    std::erase_if(schema, [&root](const ResolvedField& resolved) {
        return !root.inheritedKeys.contains(resolved.field.key);
    });
    for (ResolvedField& resolved : schema)
        resolved.origin = FieldOrigin::ParentEntity;
}

void addCategory(Schema& schema, const Category& category, bool isLast)
{
    std::erase_if(schema, [&category](const ResolvedField& resolved) {
        return category.excludedKeys.contains(resolved.field.key);
    });
    const FieldOrigin origin = isLast ? FieldOrigin::Category : FieldOrigin::Ancestor;
    for (const Field& field : category.fields) {
        const ResolvedField resolved{field, origin, category.id};
        const auto known = std::ranges::find(schema, field.key, keyOf);
        if (known == schema.end())
            schema.push_back(resolved);
        else
            *known = resolved;
    }
}

void addOwnFields(Schema& schema, const Entity& entity)
{
    for (const Field& field : entity.ownFields()) {
        const auto inherited = std::ranges::find(schema, field.key, keyOf);
        if (inherited != schema.end()) {
            if (inherited->isFixed())
                continue;
            schema.erase(inherited);
        }
        schema.push_back({field, FieldOrigin::Entity, {}, entity.id()});
    }
}

/** Whether the category or one above it, through categories and entities alike, is such a one. */
template <class Predicate>
bool isAnyAbove(const Project& project, const CategoryId& id, Predicate isSuch)
{
    std::set<CategoryId> visited;
    const Category* current = project.taxonomy().category(id);
    while (current && visited.insert(current->id).second) {
        if (isSuch(*current))
            return true;
        CategoryId next = current->parentId;
        if (const auto* const entity = project.findAs<Entity>(current->parentEntityId))
            next = entity->categoryId();
        current = project.taxonomy().category(next);
    }
    return false;
}

QString categoryName(const Project& project, const CategoryId& id)
{
    const Category* const category = project.taxonomy().category(id);
    return category ? category->name : QString();
}

/** What reaches the entity from its category under that key. */
std::optional<ResolvedField> inheritedField(const Project& project, const Entity& entity, QStringView key)
{
    const Schema schema = schemaOfCategory(project, entity.categoryId());
    const ResolvedField* const inherited = findField(schema, key);
    return inherited ? std::optional(*inherited) : std::nullopt;
}

} // namespace

Schema schemaOfCategory(const Project& project, const CategoryId& categoryId)
{
    // From the outermost root inwards, without recursion: damaged links may lead through any number of
    // entities.
    const std::vector<Stage> stages = stagesFrom(project, categoryId);
    Schema schema;
    for (auto stage = stages.rbegin(); stage != stages.rend(); ++stage) {
        if (!schema.empty() && !stage->chain.empty())
            crossInto(schema, *project.taxonomy().category(stage->chain.front()));
        for (const CategoryId& id : stage->chain)
            addCategory(schema, *project.taxonomy().category(id), id == stage->chain.back());
        if (stage->holder)
            addOwnFields(schema, *stage->holder);
    }
    return schema;
}

Schema schemaOfEntity(const Project& project, const Entity& entity)
{
    Schema schema = schemaOfCategory(project, entity.categoryId());
    addOwnFields(schema, entity);
    return schema;
}

const ResolvedField* findField(const Schema& schema, QStringView key)
{
    const auto found = std::ranges::find_if(
        schema, [key](const ResolvedField& resolved) { return resolved.field.key == key; });
    return found == schema.end() ? nullptr : &*found;
}

std::optional<QString> shownValue(const ResolvedField& field, const Entity& entity)
{
    if (field.isFixed())
        return field.field.fixedValue;
    return entity.value(field.field.key);
}

std::optional<QString> shownValueAt(
    const ResolvedField& field, const Entity& entity, calendar::StoryInstant instant)
{
    if (!field.isFixed()) {
        if (const auto timed = entity.timedValues().find(field.field.key);
            timed != entity.timedValues().end()) {
            const auto after = std::ranges::upper_bound(timed->second, instant, {}, &TimedValue::instant);
            if (after != timed->second.begin())
                return std::prev(after)->value;
        }
    }
    return shownValue(field, entity);
}

Result<void> checkOwnField(const Project& project, const Entity& entity, const Field& field)
{
    if (auto checked = taxonomy::checkField(field); !checked)
        return checked;
    const auto inherited = inheritedField(project, entity, field.key);
    if (!inherited || !inherited->isFixed())
        return {};
    if (const auto* const owner = project.findAs<Entity>(inherited->ownedBy)) {
        return Failure{
            translated(
                QT_TRANSLATE_NOOP(
                    "Taxonomy",
                    "“%1” is a fixed property of “%2”, which supplies its value for what takes it from "
                    "there. "
                    "An entity cannot hold its own — change it there, or give this one a differently-named "
                    "property."))
                .arg(inherited->field.displayName(), owner->name())};
    }
    return Failure{
        translated(QT_TRANSLATE_NOOP(
                       "Taxonomy",
                       "“%1” is a fixed property of the category “%2”, which supplies its value for "
                       "everything beneath it. An entity cannot hold its own — change it on the "
                       "category, or give this one a differently-named property."))
            .arg(inherited->field.displayName(), categoryName(project, inherited->definedBy))};
}

QString ownFieldNotice(const Project& project, const Entity& entity, const Field& field)
{
    const auto inherited = inheritedField(project, entity, field.key);
    if (!inherited || inherited->isFixed())
        return {};
    if (const auto* const owner = project.findAs<Entity>(inherited->ownedBy)) {
        return translated(QT_TRANSLATE_NOOP(
                              "Taxonomy", "“%1” already comes from “%2”. Adding it here gives this entity "
                                          "its own version, which "
                                          "overrides the inherited one for it alone."))
            .arg(inherited->field.displayName(), owner->name());
    }
    return translated(
               QT_TRANSLATE_NOOP(
                   "Taxonomy",
                   "“%1” already comes from the category “%2”. Adding it here gives this entity its own "
                   "version, which overrides the inherited one for it alone."))
        .arg(inherited->field.displayName(), categoryName(project, inherited->definedBy));
}

bool isCategoryBeneath(const Project& project, const CategoryId& id, const CategoryId& ancestorId)
{
    return isAnyAbove(project, id, [&ancestorId](const Category& above) { return above.id == ancestorId; });
}

Result<void> checkMoveToCategory(const Project& project, const CategoryId& id, const CategoryId& newParentId)
{
    if (auto checked = project.taxonomy().checkReparent(id, newParentId); !checked)
        return checked;
    if (!newParentId.isNull() && isCategoryBeneath(project, newParentId, id))
        return Failure{translated(QT_TRANSLATE_NOOP("Taxonomy", "Reparenting there would create a cycle."))};
    return {};
}

Result<void> checkMoveToEntity(const Project& project, const CategoryId& id, const ContentId& entityId)
{
    const Category* const category = project.taxonomy().category(id);
    if (!category)
        return Failure{translated(QT_TRANSLATE_NOOP("Taxonomy", "Cannot reparent an unknown category."))};
    const auto* const entity = project.findAs<Entity>(entityId);
    if (!entity) {
        return Failure{translated(QT_TRANSLATE_NOOP(
            "Taxonomy", "A category can only hang under an entity of this project. Choose another place."))};
    }
    if (isCategoryBeneath(project, entity->categoryId(), id)) {
        return Failure{
            translated(
                QT_TRANSLATE_NOOP(
                    "Taxonomy",
                    "“%1” lies beneath the category “%2”, so the category cannot hang under it. Move the "
                    "entity to another category first."))
                .arg(entity->name(), category->name)};
    }
    return {};
}

Result<void> checkMoveOfEntity(const Project& project, const Entity& entity, const CategoryId& categoryId)
{
    const bool isBeneath = isAnyAbove(project, categoryId, [&entity](const Category& above) {
        return above.parentEntityId == entity.id();
    });
    if (!isBeneath)
        return {};
    return Failure{
        translated(
            QT_TRANSLATE_NOOP(
                "Taxonomy",
                "The category “%2” hangs somewhere beneath “%1”, so the entity cannot move into it. Move the "
                "category elsewhere first."))
            .arg(entity.name(), categoryName(project, categoryId))};
}

} // namespace tw::core::entity
