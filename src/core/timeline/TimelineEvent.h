#pragma once

#include "core/calendar/Calendar.h"
#include "core/content/ContentObject.h"

#include <vector>

namespace tw::core::timeline {

/** Relative constraint kinds that have a meaning; other numbers in a file are kept and never checked. */
enum class ConstraintKind : qint32
{
    StartsAfter = 0,
    EndsBefore = 1,
    HappensDuring = 2,
};

struct RelativeConstraint
{
    ContentId otherId;
    ConstraintKind kind = ConstraintKind::StartsAfter;

    friend bool operator==(const RelativeConstraint&, const RelativeConstraint&) = default;
};

/** Everything of an event that one edit changes. */
struct EventDetails
{
    ContentId timelineId;
    QString title;
    calendar::StoryInstant startMinute = 0;
    /** Minutes, not negative; 0 for a moment. */
    qint64 durationMinutes = 0;
    /** The place among events when the timeline shows order instead of dates. */
    qint32 ordinal = 0;
    /** How certain the date is ("circa", "before"), as the writer words it. */
    QString dateQualifier;
    std::vector<ContentId> participants;
    ContentId locationId;
    /** The event this one is part of. */
    ContentId parentId;
    bool isCollapsed = false;
    std::vector<RelativeConstraint> constraints;
    /** Documents that tell the event. */
    std::vector<ContentId> sceneIds;
    QString description;
    /** "#rrggbb", or empty. */
    QString styleColor;
    QString styleLabel;
    QString layer;

    friend bool operator==(const EventDetails&, const EventDetails&) = default;
};

class TimelineEvent final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::TimelineEvent;

    TimelineEvent(ContentId id, EventDetails details);
    ~TimelineEvent() override;

    [[nodiscard]] const EventDetails& details() const { return m_details; }
    void setDetails(EventDetails details) { m_details = std::move(details); }

    [[nodiscard]] const QString& title() const { return m_details.title; }
    /** Start plus duration, saturating. */
    [[nodiscard]] calendar::StoryInstant endMinute() const;

    friend bool operator==(const TimelineEvent& left, const TimelineEvent& right);

private:
    EventDetails m_details;
};

} // namespace tw::core::timeline
