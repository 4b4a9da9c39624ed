#include "app/persistence/codec/ProjectCodec.h"

#include "app/persistence/codec/Record.h"
#include "app/persistence/files/JsonFile.h"
#include "core/project/Project.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::calendar::Calendar;
using core::calendar::CalendarEra;
using core::calendar::CalendarMonth;
using core::calendar::Reckoning;
using core::entity::EntityTemplate;
using core::plot::BeatAssignment;
using core::plot::BeatSheet;
using core::plot::PlotThread;
using core::project::LibraryMount;
using core::project::Project;
using core::project::PropertyMigration;
using core::project::SavedSearch;
using core::timeline::ContinuityRule;
using core::timeline::LaneArrangement;
using core::timeline::SeriesArrangement;
using core::timeline::TimelineBookmark;
using core::timeline::TimelineEra;
using core::timeline::TimelineMarker;
using core::timeline::TimelineViewPreset;
using core::timeline::TimelineViewSettings;
using core::writing::DocumentProofreading;
using core::writing::WritingGoal;
using core::writing::WritingLogEntry;

template <>
struct RecordOf<SavedSearch>
{
    static constexpr auto entries = std::tuple(
        always<Data<&SavedSearch::name>>("name"_L1), always<Data<&SavedSearch::query>>("query"_L1));
};

template <>
struct RecordOf<EntityTemplate>
{
    static constexpr auto entries = std::tuple(
        always<Data<&EntityTemplate::name>>("name"_L1),
        always<Data<&EntityTemplate::categoryId>>("categoryId"_L1),
        always<Data<&EntityTemplate::fieldValues>>("fieldValues"_L1));
};

template <>
struct RecordOf<PropertyMigration>
{
    static constexpr auto entries = std::tuple(always<Data<&PropertyMigration::answer>>("answer"_L1));
};

template <>
struct RecordOf<PlotThread>
{
    static constexpr auto entries = std::tuple(
        always<Data<&PlotThread::id>>("id"_L1), always<Data<&PlotThread::name>>("name"_L1),
        ifSet<Data<&PlotThread::description>>("description"_L1),
        ifSet<Data<&PlotThread::characterId>>("characterId"_L1), ifSet<Data<&PlotThread::color>>("color"_L1));
};

template <>
struct RecordOf<ContinuityRule>
{
    static constexpr auto entries = std::tuple(
        always<Data<&ContinuityRule::name>>("name"_L1),
        always<Data<&ContinuityRule::entityId>>("entityId"_L1),
        always<Data<&ContinuityRule::fieldKey>>("fieldKey"_L1),
        always<Data<&ContinuityRule::comparison>>("comparison"_L1),
        always<Data<&ContinuityRule::value>>("value"_L1),
        ifSet<Data<&ContinuityRule::instant>>("instant"_L1));
};

template <>
struct RecordOf<TimelineEra>
{
    static constexpr auto entries = std::tuple(
        always<Data<&TimelineEra::name>>("name"_L1), ifSet<Data<&TimelineEra::color>>("color"_L1),
        always<Data<&TimelineEra::startMinute>>("startMinute"_L1),
        always<Data<&TimelineEra::endMinute>>("endMinute"_L1));
};

template <>
struct RecordOf<TimelineMarker>
{
    static constexpr auto entries = std::tuple(
        always<Data<&TimelineMarker::name>>("name"_L1), always<Data<&TimelineMarker::instant>>("instant"_L1),
        always<Data<&TimelineMarker::isNow>>("isNow"_L1));
};

template <>
struct RecordOf<TimelineBookmark>
{
    static constexpr auto entries = std::tuple(
        always<Data<&TimelineBookmark::name>>("name"_L1),
        always<Data<&TimelineBookmark::startMinute>>("startMinute"_L1),
        always<Data<&TimelineBookmark::endMinute>>("endMinute"_L1));
};

template <>
struct RecordOf<BeatAssignment>
{
    static constexpr auto entries = std::tuple(
        always<Data<&BeatAssignment::beatName>>("beatName"_L1),
        always<Data<&BeatAssignment::documentId>>("documentId"_L1));
};

template <>
struct RecordOf<BeatSheet>
{
    static constexpr auto entries = std::tuple(
        always<Data<&BeatSheet::templateId>>("templateId"_L1),
        always<Data<&BeatSheet::assignments>>("assignments"_L1));
};

template <>
struct RecordOf<LibraryMount>
{
    static constexpr auto entries = std::tuple(
        always<Data<&LibraryMount::path>>("path"_L1), always<Data<&LibraryMount::isWritable>>("writable"_L1));
};

template <>
struct RecordOf<WritingLogEntry>
{
    static constexpr auto entries = std::tuple(
        always<Data<&WritingLogEntry::date>>("date"_L1), always<Data<&WritingLogEntry::words>>("words"_L1));
};

template <>
struct RecordOf<WritingGoal>
{
    static constexpr auto entries = std::tuple(
        always<Data<&WritingGoal::dailyWordTarget>>("dailyWordTarget"_L1),
        always<Data<&WritingGoal::manuscriptWordTarget>>("manuscriptWordTarget"_L1),
        always<Data<&WritingGoal::deadline>>("deadline"_L1));
};

template <>
struct RecordOf<DocumentProofreading>
{
    static constexpr auto entries = std::tuple(
        always<Data<&DocumentProofreading::documentId>>("documentId"_L1),
        ifSet<Data<&DocumentProofreading::languages>>("languages"_L1),
        ifSet<Data<&DocumentProofreading::ignored>>("ignored"_L1));
};

template <>
struct RecordOf<CalendarMonth>
{
    static constexpr auto entries = std::tuple(
        always<Data<&CalendarMonth::name>>("name"_L1), always<Data<&CalendarMonth::days>>("days"_L1));
};

/** Eras have been named by either key. */
template <>
struct RecordOf<CalendarEra>
{
    static constexpr auto entries = std::tuple(
        alsoRead<Data<&CalendarEra::name>>("eraName"_L1), always<Data<&CalendarEra::name>>("name"_L1),
        always<Data<&CalendarEra::startYear>>("startYear"_L1),
        always<Data<&CalendarEra::countsDown>>("countsDown"_L1));
};

/** A list that takes the default's place only when it holds something. */
template <auto Get, auto Set>
struct DefaultUnlessFilled : Property<Get, Set>
{
    static void edit(Calendar& calendar, auto change)
    {
        std::remove_cvref_t<decltype((calendar.*Get)())> list;
        change(list);
        if (!list.isEmpty())
            (calendar.*Set)(std::move(list));
    }
};

template <>
struct RecordOf<Calendar>
{
    static constexpr auto entries = std::tuple(
        always<DefaultUnlessFilled<&Calendar::months, &Calendar::setMonths>>("months"_L1),
        always<DefaultUnlessFilled<&Calendar::weekdays, &Calendar::setWeekdays>>("weekdays"_L1),
        always<Property<&Calendar::eraName, &Calendar::setEraName>>("eraName"_L1),
        always<DefaultUnlessFilled<&Calendar::eras, &Calendar::setEras>>("eras"_L1));
};

template <>
struct RecordOf<Reckoning>
{
    static constexpr auto entries = std::tuple(
        always<Data<&Reckoning::name>>("name"_L1),
        always<Data<&Reckoning::epochOffsetMinutes>>("epochOffsetMinutes"_L1),
        always<Data<&Reckoning::calendar>>("calendar"_L1));
};

template <>
struct RecordOf<LaneArrangement>
{
    static constexpr auto entries = std::tuple(
        always<Data<&LaneArrangement::groupBy>>("groupBy"_L1),
        always<Data<&LaneArrangement::label>>("label"_L1),
        always<Data<&LaneArrangement::isHidden>>("hidden"_L1),
        always<Data<&LaneArrangement::isCollapsed>>("collapsed"_L1));
};

template <>
struct RecordOf<SeriesArrangement>
{
    static constexpr auto entries = std::tuple(
        always<Data<&SeriesArrangement::label>>("label"_L1),
        always<Data<&SeriesArrangement::isHidden>>("hidden"_L1));
};

template <>
struct RecordOf<TimelineViewSettings>
{
    static constexpr auto entries = std::tuple(
        always<Data<&TimelineViewSettings::colorBy>>("colorBy"_L1),
        always<Data<&TimelineViewSettings::groupBy>>("groupBy"_L1),
        always<Data<&TimelineViewSettings::density>>("density"_L1),
        always<Data<&TimelineViewSettings::rowHeight>>("rowHeight"_L1),
        always<Data<&TimelineViewSettings::eventSize>>("eventSize"_L1),
        always<Data<&TimelineViewSettings::showLabels>>("showLabels"_L1),
        always<Data<&TimelineViewSettings::labelPlacement>>("labelPlacement"_L1),
        always<Data<&TimelineViewSettings::labelFormat>>("labelFormat"_L1),
        always<Data<&TimelineViewSettings::showGridlines>>("showGridlines"_L1),
        always<Data<&TimelineViewSettings::showDensityStrip>>("showDensityStrip"_L1),
        always<Data<&TimelineViewSettings::showConflictMarks>>("showConflictMarks"_L1),
        always<Data<&TimelineViewSettings::isOrdinalMode>>("ordinalMode"_L1),
        always<Data<&TimelineViewSettings::seriesShape>>("seriesShape"_L1),
        always<Data<&TimelineViewSettings::laneArrangements>>("laneArrangements"_L1),
        always<Data<&TimelineViewSettings::seriesArrangements>>("seriesArrangements"_L1));
};

template <>
struct RecordOf<TimelineViewPreset>
{
    static constexpr auto entries = std::tuple(
        always<Data<&TimelineViewPreset::name>>("name"_L1),
        always<Data<&TimelineViewPreset::settings>>("settings"_L1));
};

template <>
struct RecordOf<Project>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Project::pinned, &Project::setPinnedIds>>("pinned"_L1),
        always<Property<&Project::savedSearches, &Project::setSavedSearches>>("savedSearches"_L1),
        always<Property<&Project::entityTemplates, &Project::setEntityTemplates>>("entityTemplates"_L1),
        always<Property<&Project::audiences, &Project::setAudiences>>("audiences"_L1),
        ifSet<Property<&Project::propertyMigration, &Project::setPropertyMigration>>("propertyMigration"_L1),
        always<Property<&Project::defaultAudiences, &Project::setDefaultAudiences>>("defaultAudiences"_L1),
        always<Property<&Project::plotThreads, &Project::setPlotThreads>>("plotThreads"_L1),
        always<Property<&Project::continuityRules, &Project::setContinuityRules>>("continuityRules"_L1),
        always<Property<&Project::timelineEras, &Project::setTimelineEras>>("timelineEras"_L1),
        always<Property<&Project::timelineMarkers, &Project::setTimelineMarkers>>("timelineMarkers"_L1),
        always<Property<&Project::timelineBookmarks, &Project::setTimelineBookmarks>>("timelineBookmarks"_L1),
        always<Property<&Project::beatSheet, &Project::setBeatSheet>>("beatSheet"_L1),
        always<Property<&Project::libraryMounts, &Project::setLibraryMounts>>("mounts"_L1),
        always<Property<&Project::writingLog, &Project::setWritingLog>>("writingLog"_L1),
        always<Property<&Project::writingGoal, &Project::setWritingGoal>>("writingGoal"_L1),
        always<Property<&Project::calendar, &Project::setCalendar>>("calendar"_L1),
        always<Property<&Project::reckonings, &Project::setReckonings>>("reckonings"_L1),
        always<Property<&Project::timelineView, &Project::setTimelineView>>("timelineView"_L1),
        always<Property<&Project::timelineViewPresets, &Project::setTimelineViewPresets>>(
            "timelineViewPresets"_L1),
        always<Property<&Project::name, &Project::setName>>("name"_L1),
        ifSet<Property<&Project::proofreading, &Project::setProofreading>>("proofreading"_L1));
};

void appendProjectDocument(QByteArray& output, const Project& project)
{
    JsonWriter writer(output);
    writer.beginObject();
    writeEntries(writer, project);
    writer.endObject();
}

QByteArray serializeProjectDocument(const Project& project)
{
    QByteArray bytes;
    appendProjectDocument(bytes, project);
    return bytes;
}

core::Result<void> readProjectDocument(const QByteArray& bytes, const QString& path, Project& project)
{
    ParseScratch scratch;
    if (!scratch.tree.parse(bytes))
        return invalidJson(path);
    readEntries(scratch.tree.root(), project, scratch.texts);
    return {};
}

} // namespace tw::app::persistence
