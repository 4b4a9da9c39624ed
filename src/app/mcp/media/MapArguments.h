#pragma once

#include "app/mcp/references/ColorArgument.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "core/map/Map.h"

namespace tw::app::mcp {

/** "x" and "y" of the arguments: fractions of the image, both there and within 0..1. */
[[nodiscard]] core::Result<core::map::MapPoint> readPoint(const ToolArguments& arguments);

/** The object that an argument names, to point at; null when the argument is absent or empty. */
template <class Kind>
[[nodiscard]] core::Result<core::ContentId> readLink(
    const workspace::Workspace& workspace, const ToolArguments& arguments, QStringView name)
{
    const QString wanted = arguments.text(name);
    return wanted.isEmpty() ? core::Result(core::ContentId()) : findToRefer<Kind>(workspace, wanted);
}

} // namespace tw::app::mcp
