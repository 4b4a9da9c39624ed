#pragma once

#include "core/project/Project.h"
#include "core/timeline/Timeline.h"
#include "core/timeline/TimelineEvent.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::timeline {

class SetTimelineTitleCommand final : public undo::SetFieldCommand<&Timeline::title, &Timeline::setTitle>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTimelineEventCommand final
    : public undo::SetFieldCommand<&TimelineEvent::details, &TimelineEvent::setDetails>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTimelineErasCommand final
    : public undo::SetFieldCommand<&project::Project::timelineEras, &project::Project::setTimelineEras>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTimelineMarkersCommand final
    : public undo::SetFieldCommand<&project::Project::timelineMarkers, &project::Project::setTimelineMarkers>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTimelineBookmarksCommand final
    : public undo::SetFieldCommand<
          &project::Project::timelineBookmarks, &project::Project::setTimelineBookmarks>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTimelineViewSettingsCommand final
    : public undo::SetFieldCommand<&project::Project::timelineView, &project::Project::setTimelineView>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetTimelineViewPresetsCommand final
    : public undo::SetFieldCommand<
          &project::Project::timelineViewPresets, &project::Project::setTimelineViewPresets>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetContinuityRulesCommand final
    : public undo::SetFieldCommand<&project::Project::continuityRules, &project::Project::setContinuityRules>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::timeline
