#include "core/timeline/TimelineEvent.h"

#include <limits>

namespace tw::core::timeline {

TimelineEvent::TimelineEvent(ContentId id, EventDetails details)
    : ContentObject(id, staticKind)
    , m_details(std::move(details))
{}

TimelineEvent::~TimelineEvent() = default;

calendar::StoryInstant TimelineEvent::endMinute() const
{
    using Limits = std::numeric_limits<calendar::StoryInstant>;
    const qint64 duration = std::max<qint64>(m_details.durationMinutes, 0);
    return m_details.startMinute > Limits::max() - duration ? Limits::max()
                                                            : m_details.startMinute + duration;
}

bool operator==(const TimelineEvent& left, const TimelineEvent& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_details == right.m_details;
}

} // namespace tw::core::timeline
