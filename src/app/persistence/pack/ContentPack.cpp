#include "app/persistence/pack/ContentPack.h"

#include "core/taxonomy/TaxonomyCommands.h"
#include "core/undo/CompositeCommand.h"

#include <QCoreApplication>

namespace tw::app::persistence {

using core::CategoryId;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::Taxonomy;

std::set<CategoryId> packedCategories(const Taxonomy& taxonomy, const std::set<CategoryId>& selected)
{
    std::set<CategoryId> packed;
    std::vector<CategoryId> due(selected.begin(), selected.end());
    while (!due.empty()) {
        const CategoryId id = due.back();
        due.pop_back();
        const Category* const category = taxonomy.category(id);
        if (!category || !packed.insert(id).second)
            continue;
        due.push_back(category->parentId);
        for (const Field& field : category->fields)
            due.push_back(field.referenceCategory);
    }
    return packed;
}

std::vector<Category> missingCategories(const Project& project, const ContentPack& pack)
{
    // First all of them without parents, so that every link is looked at in the taxonomy that will be.
    Taxonomy joined = project.taxonomy();
    std::vector<Category> missing;
    for (const Category& category : pack.categories) {
        if (joined.category(category.id))
            continue;
        missing.push_back(category);
        Category unlinked = category;
        unlinked.parentId = {};
        joined.insert(std::move(unlinked));
    }
    for (Category& category : missing) {
        // A project may refer to a parent it lacks; the one that comes now must not close a loop.
        if (!joined.category(category.parentId) || joined.isSameOrBeneath(category.parentId, category.id))
            category.parentId = {};
        joined.categoryForEdit(category.id)->parentId = category.parentId;
        if (!category.parentEntityId.isNull() && !project.contains(category.parentEntityId)) {
            category.parentEntityId = {};
            category.inheritedKeys.clear();
        }
        for (Field& field : category.fields) {
            if (!joined.category(field.referenceCategory))
                field.referenceCategory = {};
        }
    }
    return missing;
}

std::unique_ptr<core::undo::Command> importPack(Project& project, const ContentPack& pack)
{
    auto step = std::make_unique<core::undo::CompositeCommand>(
        QCoreApplication::translate("Persistence", "Import “%1”").arg(pack.info.name));
    for (Category& category : missingCategories(project, pack))
        step->add(std::make_unique<core::taxonomy::AddCategoryCommand>(project, std::move(category)));
    if (step->isEmpty())
        return nullptr;
    return step;
}

} // namespace tw::app::persistence
