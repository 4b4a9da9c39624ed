#include "app/persistence/codec/KindCodec.h"

#include "core/ttrpg/StatBlock.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::ttrpg::Stat;
using core::ttrpg::StatAction;
using core::ttrpg::StatBlock;
using core::ttrpg::StatBlockDetails;

template <>
struct RecordOf<Stat>
{
    static constexpr auto entries =
        std::tuple(always<Data<&Stat::label>>("label"_L1), always<Data<&Stat::value>>("value"_L1));
};

template <>
struct RecordOf<StatAction>
{
    static constexpr auto entries =
        std::tuple(always<Data<&StatAction::name>>("name"_L1), always<Data<&StatAction::text>>("text"_L1));
};

template <>
struct RecordOf<StatBlockDetails>
{
    static constexpr auto entries = std::tuple(
        always<Data<&StatBlockDetails::title>>("title"_L1),
        ifSet<Data<&StatBlockDetails::system>>("system"_L1),
        ifSet<Data<&StatBlockDetails::notes>>("notes"_L1), ifSet<Data<&StatBlockDetails::stats>>("stats"_L1),
        ifSet<Data<&StatBlockDetails::actions>>("actions"_L1));
};

KindCodec statBlockCodec()
{
    return detailsKindCodec<StatBlock, StatBlockDetails>();
}

} // namespace tw::app::persistence
