#pragma once

#include "app/workspace/Workspace.h"

#include <optional>
#include <span>

namespace tw::app::mcp {

/**
 * How an answer speaks of an object that another one points at: its name, also from a mounted library; a
 * stand-in for what is excluded from AI, has no name, or is gone. Empty for the null id.
 */
[[nodiscard]] QString referenceName(const workspace::Workspace& workspace, const core::ContentId& id);

/** The names of several, with commas between them. */
[[nodiscard]] QString referenceNames(
    const workspace::Workspace& workspace, std::span<const core::ContentId> ids);

} // namespace tw::app::mcp
