#include "desktop/shell/ObjectTitles.h"

#include "core/canvas/Canvas.h"
#include "core/chart/Chart.h"
#include "core/conlang/Language.h"
#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "core/media/Media.h"
#include "core/research/Source.h"
#include "core/spreadsheet/Spreadsheet.h"
#include "core/task/Task.h"
#include "core/timeline/Timeline.h"
#include "core/timeline/TimelineEvent.h"
#include "core/ttrpg/RandomTable.h"
#include "core/ttrpg/StatBlock.h"

#include <QCoreApplication>

namespace tw::desktop::shell {

using core::content::ContentKind;
using core::content::ContentObject;

namespace {

template <class Kind>
const Kind& as(const ContentObject& object)
{
    return static_cast<const Kind&>(object);
}

QString ownTitle(const ContentObject& object)
{
    switch (object.kind()) {
    case ContentKind::Document:
        return as<core::document::Document>(object).title();
    case ContentKind::Entity:
        return as<core::entity::Entity>(object).name();
    case ContentKind::Spreadsheet:
        return as<core::spreadsheet::Spreadsheet>(object).title();
    case ContentKind::Chart:
        return as<core::chart::Chart>(object).details().title;
    case ContentKind::Map:
        return as<core::map::Map>(object).title();
    case ContentKind::Timeline:
        return as<core::timeline::Timeline>(object).title();
    case ContentKind::TimelineEvent:
        return as<core::timeline::TimelineEvent>(object).title();
    case ContentKind::Media:
        return as<core::media::Media>(object).caption();
    case ContentKind::Source:
        return as<core::research::Source>(object).details().title;
    case ContentKind::Task:
        return as<core::task::Task>(object).title();
    case ContentKind::Canvas:
        return as<core::canvas::Canvas>(object).title();
    case ContentKind::Comment:
        return {};
    case ContentKind::Language:
        return as<core::conlang::Language>(object).details().name;
    case ContentKind::RandomTable:
        return as<core::ttrpg::RandomTable>(object).details().title;
    case ContentKind::StatBlock:
        return as<core::ttrpg::StatBlock>(object).details().title;
    }
    return {};
}

} // namespace

QString shownName(const QString& name)
{
    return name.isEmpty() ? QCoreApplication::translate("ObjectTitles", "Untitled") : name;
}

QString objectTitle(const ContentObject& object)
{
    return shownName(ownTitle(object));
}

QString reckoningTitle(const core::calendar::Reckoning& reckoning)
{
    return reckoning.name.isEmpty() ? QCoreApplication::translate("ObjectTitles", "(unnamed reckoning)")
                                    : reckoning.name;
}

core::ContentId findObject(const core::project::Project& project, const QString& idOrTitle)
{
    if (const auto id = core::ContentId::fromString(idOrTitle); project.contains(id))
        return id;
    for (const auto& [id, object] : project.objects()) {
        if (ownTitle(*object) == idOrTitle)
            return id;
    }
    return {};
}

} // namespace tw::desktop::shell
