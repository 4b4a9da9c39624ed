#include "core/content/ObjectName.h"

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

namespace tw::core::content {

namespace {

template <class Kind>
const Kind& as(const ContentObject& object)
{
    return static_cast<const Kind&>(object);
}

} // namespace

QString objectName(const ContentObject& object)
{
    switch (object.kind()) {
    case ContentKind::Document:
        return as<document::Document>(object).title();
    case ContentKind::Entity:
        return as<entity::Entity>(object).name();
    case ContentKind::Spreadsheet:
        return as<spreadsheet::Spreadsheet>(object).title();
    case ContentKind::Chart:
        return as<chart::Chart>(object).details().title;
    case ContentKind::Map:
        return as<map::Map>(object).title();
    case ContentKind::Timeline:
        return as<timeline::Timeline>(object).title();
    case ContentKind::TimelineEvent:
        return as<timeline::TimelineEvent>(object).details().title;
    case ContentKind::Media:
        return as<media::Media>(object).caption();
    case ContentKind::Source:
        return as<research::Source>(object).details().title;
    case ContentKind::Task:
        return as<task::Task>(object).title();
    case ContentKind::Canvas:
        return as<canvas::Canvas>(object).title();
    case ContentKind::Comment:
        return {};
    case ContentKind::Language:
        return as<conlang::Language>(object).details().name;
    case ContentKind::RandomTable:
        return as<ttrpg::RandomTable>(object).details().title;
    case ContentKind::StatBlock:
        return as<ttrpg::StatBlock>(object).details().title;
    }
    return {};
}

QString foldedName(QStringView name)
{
    return name.trimmed().toString().toLower();
}

} // namespace tw::core::content
