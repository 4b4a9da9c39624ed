#include "app/persistence/codec/KindCodec.h"

#include "core/timeline/TimelineEvent.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::timeline::ConstraintKind;
using core::timeline::EventDetails;
using core::timeline::RelativeConstraint;
using core::timeline::TimelineEvent;

/** Numbers without a meaning of their own survive. */
template <>
struct ValueCodec<ConstraintKind>
{
    static void write(JsonWriter& writer, ConstraintKind kind)
    {
        writer.writeInteger(static_cast<qint32>(kind));
    }
    static bool isSet(ConstraintKind kind) { return kind != ConstraintKind(); }
    static bool read(const JsonNode& json, ConstraintKind& kind, TextPool&)
    {
        const std::optional<qint32> number = readInteger32(json);
        kind = static_cast<ConstraintKind>(number.value_or(static_cast<qint32>(kind)));
        return number.has_value();
    }
};

template <>
struct RecordOf<RelativeConstraint>
{
    static constexpr auto entries = std::tuple(
        always<Data<&RelativeConstraint::otherId>>("otherId"_L1),
        always<Data<&RelativeConstraint::kind>>("kind"_L1));
};

template <>
struct RecordOf<EventDetails>
{
    static constexpr auto entries = std::tuple(
        ifSet<Data<&EventDetails::timelineId>>("timelineId"_L1),
        always<Data<&EventDetails::title>>("title"_L1),
        always<Data<&EventDetails::startMinute>>("startMinute"_L1),
        always<Data<&EventDetails::durationMinutes>>("durationMinutes"_L1),
        always<Data<&EventDetails::ordinal>>("ordinal"_L1),
        ifSet<Data<&EventDetails::dateQualifier>>("dateQualifier"_L1),
        ifSet<Data<&EventDetails::participants>>("participants"_L1),
        ifSet<Data<&EventDetails::locationId>>("locationId"_L1),
        ifSet<Data<&EventDetails::parentId>>("parentId"_L1),
        ifSet<Data<&EventDetails::isCollapsed>>("collapsed"_L1),
        ifSet<Data<&EventDetails::constraints>>("constraints"_L1),
        ifSet<Data<&EventDetails::sceneIds>>("sceneIds"_L1),
        ifSet<Data<&EventDetails::description>>("description"_L1),
        ifSet<Data<&EventDetails::styleColor>>("styleColor"_L1),
        ifSet<Data<&EventDetails::styleLabel>>("styleLabel"_L1),
        ifSet<Data<&EventDetails::layer>>("layer"_L1));
};

KindCodec timelineEventCodec()
{
    return detailsKindCodec<TimelineEvent, EventDetails>();
}

} // namespace tw::app::persistence
