#pragma once

#include "app/mcp/registry/ToolArguments.h"
#include "core/foundation/Result.h"

namespace tw::app::mcp {

/** The argument "color", written "#rrggbb"; empty when it is absent or null. */
[[nodiscard]] core::Result<QString> readColor(const ToolArguments& arguments);

} // namespace tw::app::mcp
