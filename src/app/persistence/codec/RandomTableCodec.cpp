#include "app/persistence/codec/KindCodec.h"

#include "core/ttrpg/RandomTable.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::ttrpg::RandomTable;
using core::ttrpg::RandomTableDetails;
using core::ttrpg::RandomTableEntry;

template <>
struct RecordOf<RandomTableEntry>
{
    static constexpr auto entries = std::tuple(
        always<Data<&RandomTableEntry::weight>>("weight"_L1),
        always<Data<&RandomTableEntry::text>>("text"_L1));
};

template <>
struct RecordOf<RandomTableDetails>
{
    static constexpr auto entries = std::tuple(
        always<Data<&RandomTableDetails::title>>("title"_L1),
        ifSet<Data<&RandomTableDetails::entries>>("entries"_L1));
};

KindCodec randomTableCodec()
{
    return detailsKindCodec<RandomTable, RandomTableDetails>();
}

} // namespace tw::app::persistence
