#include "app/mcp/registry/KindWords.h"

#include "core/foundation/NameTable.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::content::ContentKind;

namespace {

using KindWord = core::foundation::NamedValue<ContentKind>;

constexpr std::array kindWords{
    KindWord{ContentKind::Document, "document"_L1},
    KindWord{ContentKind::Entity, "entity"_L1},
    KindWord{ContentKind::Spreadsheet, "spreadsheet"_L1},
    KindWord{ContentKind::Chart, "chart"_L1},
    KindWord{ContentKind::Map, "map"_L1},
    KindWord{ContentKind::Timeline, "timeline"_L1},
    KindWord{ContentKind::TimelineEvent, "timeline event"_L1},
    KindWord{ContentKind::Media, "media asset"_L1},
    KindWord{ContentKind::Source, "source"_L1},
    KindWord{ContentKind::Task, "task"_L1},
    KindWord{ContentKind::Canvas, "canvas"_L1},
    KindWord{ContentKind::Comment, "comment"_L1},
    KindWord{ContentKind::Language, "language"_L1},
    KindWord{ContentKind::RandomTable, "random table"_L1},
    KindWord{ContentKind::StatBlock, "stat block"_L1},
};

static_assert(kindWords.size() == core::content::allContentKinds.size());

} // namespace

QLatin1String kindWord(ContentKind kind)
{
    return core::foundation::nameOf(kindWords, kind);
}

std::optional<ContentKind> kindOfWord(QStringView word)
{
    return core::foundation::valueNamed(kindWords, word);
}

QString kindWithArticleAndNaming(ContentKind kind)
{
    const bool isNamed = kind == ContentKind::Entity || kind == ContentKind::Language;
    return u"%1 %2 %3"_s.arg(
        kind == ContentKind::Entity ? "An"_L1 : "A"_L1, kindWord(kind), isNamed ? "named"_L1 : "titled"_L1);
}

} // namespace tw::app::mcp
