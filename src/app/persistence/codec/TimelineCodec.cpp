#include "app/persistence/codec/KindCodec.h"

#include "core/timeline/Timeline.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::timeline::Timeline;

template <>
struct RecordOf<Timeline>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Timeline::title, &Timeline::setTitle>>("title"_L1),
        ifSet<Property<&Timeline::description, &Timeline::setDescription>>("description"_L1),
        always<Property<&Timeline::sortIndex, &Timeline::setSortIndex>>("sortIndex"_L1));
};

KindCodec timelineCodec()
{
    return objectKindCodec<Timeline, [](const core::ContentId& id) {
        return std::make_unique<Timeline>(id, QString());
    }>();
}

} // namespace tw::app::persistence
