#include "app/codex/CategoryTwins.h"

#include "core/document/markup/Entities.h"
#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "core/spreadsheet/SpreadsheetCommands.h"
#include "core/taxonomy/TaxonomyCommands.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace tw::app::codex {

using core::CategoryId;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;

namespace {

using Push = std::function<void(std::unique_ptr<core::undo::Command>)>;
using EntityCounts = std::map<CategoryId, qsizetype>;

QString unescapedOnce(const QString& name)
{
    QString plain;
    qsizetype position = 0;
    while (position < name.size()) {
        if (name.at(position) == u'&') {
            if (const auto entity = core::document::markup::readEntity(QStringView(name).sliced(position));
                entity.length > 0) {
                plain += entity.text;
                position += entity.length;
                continue;
            }
        }
        plain += name.at(position++);
    }
    return plain;
}

EntityCounts countEntities(const Project& project)
{
    EntityCounts counts;
    for (const Entity* entity : core::project::objectsOf<Entity>(project))
        ++counts[entity->categoryId()];
    return counts;
}

CategoryTwins twinsOf(const QString& name, std::vector<const Category*> group, const EntityCounts& counts)
{
    const auto count = [&counts](const Category* category) {
        const auto found = counts.find(category->id);
        return found == counts.end() ? qsizetype{0} : found->second;
    };
    const auto kept = std::ranges::max_element(group, {}, [&](const Category* category) {
        return std::tuple(count(category), category->name == name);
    });
    CategoryTwins twins{name, (*kept)->id, count(*kept), {}, 0};
    for (const Category* category : group) {
        if (category->id == twins.kept)
            continue;
        twins.merged.push_back(category->id);
        twins.movedEntities += count(category);
    }
    return twins;
}

void copyMissingFields(Project& project, const CategoryId& from, const CategoryId& to, const Push& push)
{
    for (const Field& field : project.taxonomy().category(from)->fields) {
        const auto& known = project.taxonomy().category(to)->fields;
        if (core::taxonomy::findField(known, field.key) == known.end())
            push(std::make_unique<core::taxonomy::AddFieldCommand>(project, to, field, known.size()));
    }
}

/** Points the reference properties of categories and entities, and linked spreadsheets, at the other
 * category. */
void movePointers(Project& project, const CategoryId& from, const CategoryId& to, const Push& push)
{
    // Copies: the commands replace what the loops would walk over.
    for (const auto& [id, category] :
         core::taxonomy::Taxonomy::CategoryMap(project.taxonomy().categories())) {
        for (std::size_t index = 0; index < category.fields.size(); ++index) {
            Field field = category.fields[index];
            if (field.referenceCategory != from)
                continue;
            field.referenceCategory = to;
            push(std::make_unique<core::taxonomy::RemoveFieldCommand>(project, id, field.key));
            push(std::make_unique<core::taxonomy::AddFieldCommand>(project, id, field, index));
        }
    }
    for (const Entity* entity : core::project::objectsOf<Entity>(project)) {
        core::taxonomy::FieldList fields = entity->ownFields();
        for (Field& field : fields) {
            if (field.referenceCategory == from)
                field.referenceCategory = to;
        }
        if (fields != entity->ownFields()) {
            push(std::make_unique<core::entity::SetEntityOwnFieldsCommand>(
                *project.findAsForEdit<Entity>(entity->id()), std::move(fields)));
        }
    }
    using core::spreadsheet::Spreadsheet;
    for (const Spreadsheet* sheet : core::project::objectsOf<Spreadsheet>(project)) {
        if (sheet->linkedCategoryId() == from) {
            push(std::make_unique<core::spreadsheet::SetSpreadsheetLinkedCategoryCommand>(
                *project.findAsForEdit<Spreadsheet>(sheet->id()), to));
        }
    }
    auto templates = project.entityTemplates();
    for (core::entity::EntityTemplate& entityTemplate : templates) {
        if (entityTemplate.categoryId == from)
            entityTemplate.categoryId = to;
    }
    if (templates != project.entityTemplates())
        push(std::make_unique<core::entity::SetEntityTemplatesCommand>(project, std::move(templates)));
}

void moveContents(Project& project, const CategoryId& from, const CategoryId& to, const Push& push)
{
    for (const Entity* entity : core::project::objectsOf<Entity>(project)) {
        // What the kept category hangs under moves up with the removal instead.
        if (entity->categoryId() == from && core::entity::checkMoveOfEntity(project, *entity, to)) {
            push(std::make_unique<core::entity::SetEntityCategoryCommand>(
                *project.findAsForEdit<Entity>(entity->id()), to));
        }
    }
    auto place = static_cast<qint32>(project.taxonomy().childrenOf(to).size());
    for (const CategoryId& child : project.taxonomy().childrenOf(from)) {
        // As does what holds it.
        if (core::entity::checkMoveToCategory(project, child, to))
            push(std::make_unique<core::taxonomy::ReparentCategoryCommand>(project, child, to, place++));
    }
}

} // namespace

QString unescapedName(const QString& name)
{
    QString plain = name;
    for (QString once = unescapedOnce(plain); once != plain; once = unescapedOnce(plain))
        plain = once;
    return plain;
}

std::vector<CategoryTwins> findCategoryTwins(const Project& project)
{
    std::map<QString, std::vector<const Category*>> groups;
    for (const auto& [id, category] : project.taxonomy().categories())
        groups[unescapedName(category.name)].push_back(&category);
    std::vector<CategoryTwins> twins;
    EntityCounts counts;
    for (const auto& [name, group] : groups) {
        const bool isWrittenTwoWays = std::ranges::any_of(
            group, [&group](const Category* category) { return category->name != group.front()->name; });
        if (!isWrittenTwoWays)
            continue;
        if (counts.empty())
            counts = countEntities(project);
        twins.push_back(twinsOf(name, group, counts));
    }
    return twins;
}

bool isMergeHindered(const Project& project, const CategoryTwins& twins, Actor actor)
{
    return std::ranges::any_of(core::project::objectsOf<Entity>(project), [&](const Entity* entity) {
        return isLeftAlone(*entity, actor) &&
               std::ranges::find(twins.merged, entity->categoryId()) != twins.merged.end();
    });
}

void mergeCategoryTwins(Project& project, const CategoryTwins& twins, const Push& push)
{
    for (const CategoryId& twin : twins.merged) {
        copyMissingFields(project, twin, twins.kept, push);
        movePointers(project, twin, twins.kept, push);
        moveContents(project, twin, twins.kept, push);
        push(std::make_unique<core::taxonomy::RemoveCategoryCommand>(project, twin));
    }
}

} // namespace tw::app::codex
