#include "app/mcp/world/CategoryPlace.h"

#include "app/mcp/world/WorldLookup.h"
#include "core/content/ObjectName.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::Failure;
using core::Result;
using core::project::Project;
using workspace::Workspace;

Result<GivenPlace> readCategoryPlace(const Workspace& workspace, const ToolArguments& arguments)
{
    const QString entityName = arguments.text(u"parent_entity").trimmed();
    const QString parentName = arguments.text(u"parent").trimmed();
    if (!entityName.isEmpty() && !parentName.isEmpty())
        return Failure{u"Pass at most one of \"parent\" or \"parent_entity\"."_s};
    if (!entityName.isEmpty()) {
        const auto entity = resolveByName(workspace, entityName, u"entity"_s, Purpose::Use);
        if (!entity)
            return Failure{entity.message()};
        return GivenPlace{
            true, {}, entity.value().object->id(), core::content::objectName(*entity.value().object)};
    }
    if (parentName.isEmpty())
        return GivenPlace{arguments.has(u"parent") || arguments.has(u"parent_entity"), {}, {}, {}};
    const auto parent = findCategoryForChange(workspace, parentName);
    if (!parent)
        return Failure{parent.message()};
    return GivenPlace{true, parent.value()->id, {}, parent.value()->name};
}

bool isCategoryNameTaken(const Project& project, const QString& name, const CategoryId& except)
{
    const QString wanted = core::content::foldedName(name);
    return std::ranges::any_of(project.taxonomy().categories(), [&](const auto& entry) {
        return entry.first != except && core::content::foldedName(entry.second.name) == wanted;
    });
}

} // namespace tw::app::mcp
