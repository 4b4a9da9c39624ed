#include "core/content/ContentKind.h"

#include "core/foundation/NameTable.h"

namespace tw::core::content {

using namespace Qt::Literals::StringLiterals;

namespace {

using KindName = foundation::NamedValue<ContentKind>;

constexpr std::array kindNames{
    KindName{ContentKind::Document, "document"_L1},
    KindName{ContentKind::Entity, "entity"_L1},
    KindName{ContentKind::Spreadsheet, "spreadsheet"_L1},
    KindName{ContentKind::Chart, "chart"_L1},
    KindName{ContentKind::Map, "map"_L1},
    KindName{ContentKind::Timeline, "timeline"_L1},
    KindName{ContentKind::TimelineEvent, "timeline_event"_L1},
    KindName{ContentKind::Media, "media"_L1},
    KindName{ContentKind::Source, "source"_L1},
    KindName{ContentKind::Task, "task"_L1},
    KindName{ContentKind::Canvas, "canvas"_L1},
    KindName{ContentKind::Comment, "comment"_L1},
    KindName{ContentKind::Language, "language"_L1},
    KindName{ContentKind::RandomTable, "random_table"_L1},
    KindName{ContentKind::StatBlock, "stat_block"_L1},
};

static_assert(kindNames.size() == allContentKinds.size());

} // namespace

QLatin1String contentKindName(ContentKind kind)
{
    return foundation::nameOf(kindNames, kind);
}

std::optional<ContentKind> contentKindFromName(QStringView name)
{
    return foundation::valueNamed(kindNames, name);
}

} // namespace tw::core::content
