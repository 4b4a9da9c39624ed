#include "app/mcp/timeline/EventArguments.h"

#include "app/mcp/references/ColorArgument.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "core/document/Document.h"

#include <algorithm>
#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::calendar::StoryInstant;
using core::content::ContentKind;
using core::timeline::ConstraintKind;
using core::timeline::EventDetails;
using core::timeline::RelativeConstraint;
using core::timeline::TimelineEvent;
using workspace::Workspace;

namespace {

/** An object of the open project to point at; the null id for an empty name. */
Result<ContentId> ownObject(const Workspace& workspace, ContentKind kind, const QString& name)
{
    if (name.isEmpty())
        return ContentId();
    const auto found = resolveByName(workspace, name, kindWord(kind), Purpose::Use);
    if (!found)
        return Failure{found.message()};
    return found.value().object->id();
}

/** Minutes from the start to a date, which must not lie before it. */
Result<qint64> durationUntil(const Workspace& workspace, StoryInstant start, const QString& end)
{
    const auto instant = readDate(workspace.project(), end);
    if (!instant)
        return Failure{instant.message()};
    if (instant.value() < start)
        return Failure{u"The end date '%1' is before the event's start."_s.arg(end)};
    // The whole axis is longer than a duration can say.
    const quint64 minutes = static_cast<quint64>(instant.value()) - static_cast<quint64>(start);
    constexpr auto longest = static_cast<quint64>(std::numeric_limits<qint64>::max());
    return static_cast<qint64>(std::min(minutes, longest));
}

Result<void> setDates(const Workspace& workspace, EventDetails& details, const ToolArguments& arguments)
{
    if (const QString date = arguments.text(u"date"); !date.isEmpty()) {
        const auto start = readDate(workspace.project(), date);
        if (!start)
            return Failure{start.message()};
        details.startMinute = start.value();
    }
    if (!arguments.has(u"end"))
        return {};
    if (const QString end = arguments.text(u"end"); !end.isEmpty()) {
        const auto duration = durationUntil(workspace, details.startMinute, end);
        if (!duration)
            return Failure{duration.message()};
        details.durationMinutes = duration.value();
    } else {
        details.durationMinutes = 0;
    }
    return {};
}

Result<void> setWhoAndWhere(EventDetails& details, const ToolArguments& arguments, EntityNames& entities)
{
    if (const auto names = arguments.givenTextList(u"participants")) {
        auto participants = entities.resolve(*names);
        if (!participants)
            return Failure{participants.message()};
        details.participants = std::move(participants).value();
    }
    if (const auto name = arguments.givenText(u"location")) {
        details.locationId = {};
        if (!name->isEmpty()) {
            const auto location = entities.resolve(*name);
            if (!location)
                return Failure{location.message()};
            details.locationId = location.value();
        }
    }
    return {};
}

/** Whether an event is part of another, directly or by way of others. Survives loops in damaged files. */
bool isPartOf(const Workspace& workspace, ContentId part, const ContentId& whole)
{
    std::set<ContentId> seen;
    while (!part.isNull() && seen.insert(part).second) {
        if (part == whole)
            return true;
        const auto* event = workspace.project().findAs<TimelineEvent>(part);
        part = event ? event->details().parentId : ContentId();
    }
    return false;
}

Result<void> setParent(
    const Workspace& workspace, EventDetails& details, const ToolArguments& arguments, const ContentId& self)
{
    const auto name = arguments.givenText(u"parent");
    if (!name)
        return {};
    const auto parent = ownObject(workspace, ContentKind::TimelineEvent, *name);
    if (!parent)
        return Failure{parent.message()};
    if (!self.isNull() && isPartOf(workspace, parent.value(), self))
        return Failure{u"'%1' cannot be part of '%2' -- that would place the event inside itself."_s.arg(
            details.title, *name)};
    details.parentId = parent.value();
    return {};
}

Result<void> setScenes(const Workspace& workspace, EventDetails& details, const ToolArguments& arguments)
{
    const auto titles = arguments.givenTextList(u"scenes");
    if (!titles)
        return {};
    details.sceneIds.clear();
    for (const QString& title : *titles) {
        const auto scene = resolveByName(workspace, title, kindWord(ContentKind::Document), Purpose::Use);
        if (!scene)
            return Failure{scene.message()};
        const ContentId& id = scene.value().object->id();
        if (std::ranges::find(details.sceneIds, id) == details.sceneIds.end())
            details.sceneIds.push_back(id);
    }
    return {};
}

Result<void> setConstraints(
    const Workspace& workspace, EventDetails& details, const ToolArguments& arguments, const ContentId& self)
{
    if (!arguments.has(u"constraints"))
        return {};
    details.constraints.clear();
    for (const ToolArguments& record : arguments.records(u"constraints")) {
        const QString name = record.text(u"other");
        const auto other = resolveByName(workspace, name, kindWord(ContentKind::TimelineEvent), Purpose::Use);
        if (!other)
            return Failure{other.message()};
        if (other.value().object->id() == self)
            return Failure{u"'%1' cannot be constrained by itself."_s.arg(name)};
        const auto kind = constraintWords().indexOf(record.text(u"kind"));
        details.constraints.push_back({other.value().object->id(), static_cast<ConstraintKind>(kind)});
    }
    return {};
}

Result<void> setLooks(EventDetails& details, const ToolArguments& arguments)
{
    details.description = arguments.givenText(u"description").value_or(details.description);
    details.styleLabel = arguments.givenText(u"label").value_or(details.styleLabel);
    if (arguments.has(u"color")) {
        const auto color = readColor(arguments);
        if (!color)
            return Failure{color.message()};
        details.styleColor = color.value();
    }
    return {};
}

} // namespace

const QStringList& constraintWords()
{
    static const QStringList words{u"starts_after"_s, u"ends_before"_s, u"happens_during"_s};
    return words;
}

QString constraintWord(ConstraintKind kind)
{
    return constraintWords().value(static_cast<qsizetype>(kind));
}

Result<EventDetails> withArguments(
    const Workspace& workspace, EventDetails details, const ToolArguments& arguments, EntityNames& entities,
    const ContentId& self)
{
    Result<void> read = setDates(workspace, details, arguments);
    if (read)
        read = setWhoAndWhere(details, arguments, entities);
    if (read)
        read = setParent(workspace, details, arguments, self);
    if (read)
        read = setScenes(workspace, details, arguments);
    if (read)
        read = setConstraints(workspace, details, arguments, self);
    if (read)
        read = setLooks(details, arguments);
    if (!read)
        return Failure{read.message()};
    return details;
}

} // namespace tw::app::mcp
