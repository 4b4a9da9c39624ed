#include "app/workspace/StructureNotice.h"

#include "core/document/DocumentTree.h"
#include "core/entity/CategoryLinks.h"

#include <QCoreApplication>

namespace tw::app::workspace {

QString structureNotice(const core::project::Project& project)
{
    const std::size_t strays =
        core::document::strayDocuments(project).size() + core::entity::CategoryLinks(project).strays().size();
    const int count = static_cast<int>(strays);
    if (count == 0)
        return {};
    return QCoreApplication::translate(
        "Workspace",
        "%n item(s) stand under themselves or under something that is missing; they are shown at the top "
        "level.",
        nullptr, count);
}

} // namespace tw::app::workspace
