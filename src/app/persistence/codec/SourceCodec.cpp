#include "app/persistence/codec/KindCodec.h"

#include "core/research/Source.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::research::Source;
using core::research::SourceDetails;

template <>
struct RecordOf<SourceDetails>
{
    static constexpr auto entries = std::tuple(
        always<Data<&SourceDetails::sourceType>>("sourceType"_L1),
        always<Data<&SourceDetails::title>>("title"_L1),
        ifSet<Data<&SourceDetails::citationKey>>("citationKey"_L1),
        ifSet<Data<&SourceDetails::fields>>("fields"_L1));
};

KindCodec sourceCodec()
{
    return detailsKindCodec<Source, SourceDetails>();
}

} // namespace tw::app::persistence
