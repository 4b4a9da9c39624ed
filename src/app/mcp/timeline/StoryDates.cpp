#include "app/mcp/timeline/StoryDates.h"

#include "app/mcp/registry/Display.h"

#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::calendar::StoryInstant;
using core::project::Project;

Result<StoryInstant> storyDate(const Project& project, const QString& text)
{
    const auto date = readDate(project, text);
    if (!date)
        return Failure{
            u"The date '%1' was not understood; use the project calendar (e.g. \"25 Harvestmoon 1250\" or \"1250\")."_s
                .arg(text)};
    return date.value();
}

Result<StorySpan> storySpan(const Project& project, StoryInstant start, const QString& end)
{
    const auto instant = storyDate(project, end);
    if (!instant)
        return Failure{instant.message()};
    if (instant.value() < start)
        return Failure{u"The end date '%1' is before the event's start."_s.arg(end)};
    // The whole axis is longer than a duration can say.
    const quint64 minutes = static_cast<quint64>(instant.value()) - static_cast<quint64>(start);
    constexpr auto longest = static_cast<quint64>(std::numeric_limits<qint64>::max());
    return StorySpan{start, static_cast<qint64>(std::min(minutes, longest))};
}

} // namespace tw::app::mcp
