#include "app/mcp/timeline/StubEntities.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "core/content/ContentCommands.h"
#include "core/content/ObjectName.h"
#include "core/entity/Entity.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::foldedName;
using core::entity::Entity;

namespace {

/** Whether anything answers to the name, be it several entities, or one that may not be used. */
bool isTaken(const workspace::Workspace& workspace, const QString& name)
{
    const auto isEntityIn = [&name](const core::project::Project& project) {
        const auto isEntity = [&project](const ContentId& id) {
            return project.findAs<Entity>(id) != nullptr;
        };
        return std::ranges::any_of(project.names().named(name), isEntity) ||
               std::ranges::any_of(project.names().aliased(name), isEntity);
    };
    return isEntityIn(workspace.project()) ||
           std::ranges::any_of(workspace.libraries(), [&](const workspace::MountedLibrary& library) {
               return isEntityIn(*library.project);
           });
}

} // namespace

Result<ContentId> EntityNames::resolve(const QString& name)
{
    if (name.trimmed().isEmpty())
        return Failure{u"A non-empty name is required."_s};
    if (m_missing == MissingEntities::Refuse || isTaken(m_workspace, name))
        return findToRefer<Entity>(m_workspace, name);
    if (const auto checked = checkNameText(name); !checked)
        return Failure{checked.message()};
    const auto [stub, isNew] = m_stubIds.try_emplace(foldedName(name), ContentId::create());
    if (isNew)
        m_stubs += name.trimmed();
    return stub->second;
}

Result<std::vector<ContentId>> EntityNames::resolve(const QStringList& names)
{
    std::vector<ContentId> ids;
    for (const QString& name : names) {
        const auto id = resolve(name);
        if (!id)
            return Failure{id.message()};
        if (std::ranges::find(ids, id.value()) == ids.end())
            ids.push_back(id.value());
    }
    return ids;
}

void EntityNames::push() const
{
    for (const QString& name : m_stubs) {
        m_workspace.undoStack().push(std::make_unique<core::content::AddObjectCommand>(
            m_workspace.projectForEdit(),
            std::make_unique<Entity>(m_stubIds.at(foldedName(name)), m_category, name)));
    }
}

} // namespace tw::app::mcp
