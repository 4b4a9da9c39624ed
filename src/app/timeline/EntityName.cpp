#include "app/timeline/EntityName.h"

#include "core/entity/Entity.h"

#include <QCoreApplication>

namespace tw::app::timeline {

QString entityName(const core::content::ContentObject* object)
{
    const auto* entity = core::content::objectCast<core::entity::Entity>(object);
    return entity && !entity->name().isEmpty() ? entity->name()
                                               : QCoreApplication::translate("Continuity", "An entity");
}

} // namespace tw::app::timeline
