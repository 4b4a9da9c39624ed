#pragma once

#include "core/calendar/Calendar.h"

#include <QString>

#include <vector>

namespace tw::core::timeline {

/** A named, coloured span behind the events. */
struct TimelineEra
{
    QString name;
    QString color;
    calendar::StoryInstant startMinute = 0;
    calendar::StoryInstant endMinute = 0;

    friend bool operator==(const TimelineEra&, const TimelineEra&) = default;
};

struct TimelineMarker
{
    QString name;
    calendar::StoryInstant instant = 0;
    /** The story's "now". */
    bool isNow = false;

    friend bool operator==(const TimelineMarker&, const TimelineMarker&) = default;
};

/** A range of the axis to come back to. */
struct TimelineBookmark
{
    QString name;
    calendar::StoryInstant startMinute = 0;
    calendar::StoryInstant endMinute = 0;

    friend bool operator==(const TimelineBookmark&, const TimelineBookmark&) = default;
};

struct LaneArrangement
{
    QString groupBy = QStringLiteral("character");
    QString label;
    bool isHidden = false;
    bool isCollapsed = false;

    friend bool operator==(const LaneArrangement&, const LaneArrangement&) = default;
};

struct SeriesArrangement
{
    QString label;
    bool isHidden = false;

    friend bool operator==(const SeriesArrangement&, const SeriesArrangement&) = default;
};

/** How the timeline panel draws. Choices are kept as the names of the file format; unknown ones survive. */
struct TimelineViewSettings
{
    QString colorBy = QStringLiteral("none");
    QString groupBy = QStringLiteral("none");
    QString density = QStringLiteral("comfortable");
    /** Pixels at 100 %; 0 for the default. */
    qint32 rowHeight = 0;
    qint32 eventSize = 0;
    bool showLabels = true;
    QString labelPlacement = QStringLiteral("auto");
    QString labelFormat = QStringLiteral("titleOnly");
    bool showGridlines = true;
    bool showDensityStrip = true;
    bool showConflictMarks = true;
    bool isOrdinalMode = false;
    QString seriesShape = QStringLiteral("line");
    std::vector<LaneArrangement> laneArrangements;
    std::vector<SeriesArrangement> seriesArrangements;

    friend bool operator==(const TimelineViewSettings&, const TimelineViewSettings&) = default;
};

struct TimelineViewPreset
{
    QString name;
    TimelineViewSettings settings;

    friend bool operator==(const TimelineViewPreset&, const TimelineViewPreset&) = default;
};

} // namespace tw::core::timeline
