#include "app/timeline/ScopedLookup.h"

#include "core/entity/Entity.h"

#include <QCoreApplication>

namespace tw::app::timeline {

using core::ContentId;
using core::content::ContentObject;
using core::project::Project;

const ContentObject* ScopedLookup::find(const ContentId& id) const
{
    return id.isNull() ? nullptr : ownerOf(id).find(id);
}

const Project& ScopedLookup::ownerOf(const ContentId& id) const
{
    if (!m_project.contains(id)) {
        for (const Project* library : m_scope.libraries) {
            if (library->contains(id))
                return *library;
        }
    }
    return m_project;
}

QString entityName(const ContentObject* object)
{
    const auto* entity = core::content::objectCast<core::entity::Entity>(object);
    return entity && !entity->name().isEmpty() ? entity->name()
                                               : QCoreApplication::translate("Continuity", "An entity");
}

} // namespace tw::app::timeline
