#include "app/mcp/registry/CategoryFinder.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "core/content/ObjectName.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::Failure;
using core::Result;
using core::content::foldedName;
using core::project::Project;

std::vector<CategoryId> categoriesNamed(const Project& project, const QString& name)
{
    const QString wanted = foldedName(name);
    std::vector<CategoryId> found;
    for (const auto& [id, category] : project.taxonomy().categories()) {
        if (foldedName(category.name) == wanted)
            found.push_back(id);
    }
    const auto asId = CategoryId::fromString(name.trimmed());
    if (found.empty() && project.taxonomy().category(asId))
        found.push_back(asId);
    return found;
}

Result<CategoryId> chooseCategory(const Project& project, const QString& name)
{
    const std::vector<CategoryId> found = categoriesNamed(project, name);
    if (found.size() == 1)
        return found.front();
    if (found.empty())
        return noneNamed(u"category"_s, name);
    QStringList candidates;
    for (const CategoryId& id : found) {
        candidates.append(u"'%1' (id %2)"_s.arg(project.taxonomy().category(id)->name, id.toString()));
    }
    return severalNamed(u"category"_s, name, candidates);
}

Result<CategoryId> resolveCategory(const workspace::Workspace& workspace, const QString& name)
{
    auto own = chooseCategory(workspace.project(), name);
    if (own || !categoriesNamed(workspace.project(), name).empty())
        return own;
    for (const workspace::MountedLibrary& library : workspace.libraries()) {
        const std::vector<CategoryId> found = categoriesNamed(*library.project, name);
        if (!found.empty()) {
            return Failure{
                mountedNotChanged(library.project->taxonomy().category(found.front())->name, library.name)};
        }
    }
    return own;
}

} // namespace tw::app::mcp
