#pragma once

#include "app/mcp/registry/ToolArguments.h"
#include "app/mcp/timeline/StubEntities.h"
#include "core/timeline/TimelineEvent.h"

namespace tw::app::mcp {

/** The words for relative constraints in arguments and answers, in the order of the kinds. */
[[nodiscard]] const QStringList& constraintWords();
/** "starts_after" and so on; empty for kinds without a meaning. */
[[nodiscard]] QString constraintWord(core::timeline::ConstraintKind kind);

/**
 * What an event becomes by the arguments of a call: what they do not give stays, null clears. Titles and
 * timelines are not looked at. `self` is the event itself, null for a new one.
 */
[[nodiscard]] core::Result<core::timeline::EventDetails> withArguments(
    const workspace::Workspace& workspace, core::timeline::EventDetails details,
    const ToolArguments& arguments, EntityNames& entities, const core::ContentId& self);

} // namespace tw::app::mcp
