#include "app/codex/ObjectRemoval.h"

#include "app/codex/CategoryEdits.h"
#include "app/codex/References.h"
#include "core/content/ContentCommands.h"
#include "core/document/DocumentTree.h"

namespace tw::app::codex {

using core::content::ContentKind;

RemovalPlan planRemoval(const core::project::Project& project, const core::content::ContentObject& object)
{
    RemovalPlan plan;
    plan.rescuedCategoryCount = planRescueCategories(plan.edits, project, object.id());
    plan.danglingCount = planRepoint(project, object.id(), {}).referenceCount - plan.rescuedCategoryCount;
    if (object.kind() == ContentKind::Document)
        plan.unreachableCount = std::ssize(core::document::documentSubtree(project, object.id())) - 1;
    plan.edits.add([id = object.id()](core::project::Project& edited) {
        return std::make_unique<core::content::RemoveObjectCommand>(edited, id);
    });
    return plan;
}

} // namespace tw::app::codex
