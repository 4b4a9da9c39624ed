#pragma once

#include <QLatin1String>
#include <QStringView>

#include <array>
#include <optional>

namespace tw::core::content {

/** The closed list of object kinds. Values and names are part of the file format. */
enum class ContentKind : qint32
{
    Document = 0,
    Entity = 1,
    Spreadsheet = 2,
    Chart = 3,
    Map = 4,
    Timeline = 5,
    TimelineEvent = 6,
    Media = 7,
    Source = 8,
    Task = 9,
    Canvas = 10,
    Comment = 11,
    Language = 12,
    RandomTable = 13,
    StatBlock = 14,
};

/** Every kind, in order of its value. */
inline constexpr std::array allContentKinds{
    ContentKind::Document, ContentKind::Entity,      ContentKind::Spreadsheet,   ContentKind::Chart,
    ContentKind::Map,      ContentKind::Timeline,    ContentKind::TimelineEvent, ContentKind::Media,
    ContentKind::Source,   ContentKind::Task,        ContentKind::Canvas,        ContentKind::Comment,
    ContentKind::Language, ContentKind::RandomTable, ContentKind::StatBlock,
};

/** The kind's name in files and tools; empty for a value outside the list. */
[[nodiscard]] QLatin1String contentKindName(ContentKind kind);

/** Exact and case-sensitive; none for an unknown name. */
[[nodiscard]] std::optional<ContentKind> contentKindFromName(QStringView name);

} // namespace tw::core::content
