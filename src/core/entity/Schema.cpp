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

/**
 * Resolves from the outermost root inwards: a chain of categories, the entity that the next chain hangs
 * under, that chain. A list of chains and no recursion, for in a damaged file there may be any number of
 * them.
 */
class SchemaResolver
{
public:
    explicit SchemaResolver(const Project& project)
        : m_project(project)
    {}

    [[nodiscard]] Schema categorySchema(const CategoryId& categoryId) const
    {
        Schema schema;
        const std::vector<Chain> chains = chainsAbove(categoryId);
        for (auto chain = chains.rbegin(); chain != chains.rend(); ++chain) {
            if (chain->through)
                schema = crossingFields(std::move(schema), *chain);
            for (const Category* const category : chain->categories)
                addCategory(schema, *category, category == chain->categories.back());
        }
        return schema;
    }

    [[nodiscard]] Schema entitySchema(const Entity& entity) const
    {
        Schema schema = categorySchema(entity.categoryId());
        addOwnFields(schema, entity);
        return schema;
    }

private:
    /** A category and those above it, the root first, and the entity whose fields the root takes keys of. */
    struct Chain
    {
        std::vector<const Category*> categories;
        const Entity* through;
    };

    static const QString& keyOf(const ResolvedField& resolved) { return resolved.field.key; }

    /** The innermost chain first. */
    [[nodiscard]] std::vector<Chain> chainsAbove(CategoryId categoryId) const
    {
        std::vector<Chain> chains;
        std::set<CategoryId> entered;
        while (true) {
            Chain chain{{}, nullptr};
            for (const CategoryId& id : m_project.taxonomy().ancestorChain(categoryId))
                chain.categories.push_back(m_project.taxonomy().category(id));
            if (chain.categories.empty())
                return chains;
            const Category& root = *chain.categories.front();
            if (!entered.insert(root.id).second)
                return chains;
            if (!root.inheritedKeys.isEmpty())
                chain.through = m_project.findAs<Entity>(root.parentEntityId);
            const Entity* const through = chain.through;
            chains.push_back(std::move(chain));
            if (!through)
                return chains;
            categoryId = through->categoryId();
        }
    }

    static void addOwnFields(Schema& schema, const Entity& entity)
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

    /** The fields that a category under an entity takes through it: those it lists, in the entity's order. */
    static Schema crossingFields(Schema schema, const Chain& chain)
    {
        const Category& root = *chain.categories.front();
        addOwnFields(schema, *chain.through);
        std::erase_if(schema, [&root](const ResolvedField& resolved) {
            return !root.inheritedKeys.contains(resolved.field.key);
        });
        for (ResolvedField& resolved : schema)
            resolved.origin = FieldOrigin::ParentEntity;
        return schema;
    }

    static void addCategory(Schema& schema, const Category& category, bool isLast)
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

    const Project& m_project;
};

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
    return SchemaResolver(project).categorySchema(categoryId);
}

Schema schemaOfEntity(const Project& project, const Entity& entity)
{
    return SchemaResolver(project).entitySchema(entity);
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
