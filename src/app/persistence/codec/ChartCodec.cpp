#include "app/persistence/codec/KindCodec.h"

#include "core/chart/Chart.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::chart::Chart;
using core::chart::ChartDetails;
using core::chart::ChartSeries;

template <>
struct RecordOf<ChartSeries>
{
    static constexpr auto entries = std::tuple(
        always<Data<&ChartSeries::name>>("name"_L1), always<Data<&ChartSeries::values>>("values"_L1));
};

template <>
struct RecordOf<ChartDetails>
{
    static constexpr auto entries = std::tuple(
        always<Data<&ChartDetails::title>>("title"_L1), always<Data<&ChartDetails::chartKind>>("kind"_L1),
        ifSet<Data<&ChartDetails::categories>>("categories"_L1),
        ifSet<Data<&ChartDetails::series>>("series"_L1),
        ifSet<Data<&ChartDetails::valueAxisTitle>>("valueAxisTitle"_L1),
        ifSet<Data<&ChartDetails::categoryAxisTitle>>("categoryAxisTitle"_L1));
};

KindCodec chartCodec()
{
    return detailsKindCodec<Chart, ChartDetails>();
}

} // namespace tw::app::persistence
