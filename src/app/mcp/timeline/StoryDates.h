#pragma once

#include "app/mcp/registry/ToolArguments.h"
#include "core/calendar/Calendar.h"
#include "core/foundation/Result.h"
#include "core/project/Project.h"

#include <optional>

namespace tw::app::mcp {

/** A date that a tool was given; the failure is what all tools with dates answer. */
[[nodiscard]] core::Result<core::calendar::StoryInstant> storyDate(
    const core::project::Project& project, const QString& text);

/** When something begins and how long it goes on, in minutes. */
struct StorySpan
{
    core::calendar::StoryInstant start = 0;
    qint64 duration = 0;
};

/** From one date to another; refuses an end before its start. */
[[nodiscard]] core::Result<StorySpan> storySpan(
    const core::project::Project& project, core::calendar::StoryInstant start, const QString& end);

} // namespace tw::app::mcp
