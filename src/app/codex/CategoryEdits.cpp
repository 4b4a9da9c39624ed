#include "app/codex/CategoryEdits.h"

#include "core/entity/Schema.h"
#include "core/taxonomy/TaxonomyCommands.h"

#include <limits>

namespace tw::app::codex {

using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;

void planReplaceField(EditPlan& plan, const Category& category, const Field& field)
{
    const auto index = core::taxonomy::indexOfField(category, field.key);
    if (!index)
        return;
    plan.add([id = category.id, key = field.key](Project& project) {
        return std::make_unique<core::taxonomy::RemoveFieldCommand>(project, id, key);
    });
    plan.add([id = category.id, field, place = *index](Project& project) {
        return std::make_unique<core::taxonomy::AddFieldCommand>(project, id, field, place);
    });
}

qint32 sortIndexAtEnd(const Project& project, const CategoryId& parentId, const ContentId& parentEntityId)
{
    const std::vector<CategoryId> siblings = parentEntityId.isNull()
                                                 ? project.taxonomy().childrenOf(parentId)
                                                 : project.taxonomy().childrenUnderEntity(parentEntityId);
    if (siblings.empty())
        return 0;
    const qint32 last = project.taxonomy().category(siblings.back())->sortIndex;
    return last == std::numeric_limits<qint32>::max() ? last : last + 1;
}

qsizetype planRescueCategories(EditPlan& plan, const Project& project, const ContentId& entityId)
{
    const std::vector<CategoryId> hanging = project.taxonomy().childrenUnderEntity(entityId);
    const auto* const entity = project.findAs<Entity>(entityId);
    for (const CategoryId& id : hanging) {
        CategoryId parentId = entity ? entity->categoryId() : CategoryId();
        if (!core::entity::checkMoveToCategory(project, id, parentId))
            parentId = {};
        plan.add([id, parentId](Project& edited) {
            return std::make_unique<core::taxonomy::ReparentCategoryCommand>(
                edited, id, parentId, sortIndexAtEnd(edited, parentId));
        });
    }
    return std::ssize(hanging);
}

} // namespace tw::app::codex
