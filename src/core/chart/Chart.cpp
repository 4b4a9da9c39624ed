#include "core/chart/Chart.h"

namespace tw::core::chart {

Chart::Chart(ContentId id, ChartDetails details)
    : ContentObject(id, staticKind)
    , m_details(std::move(details))
{}

Chart::~Chart() = default;

bool operator==(const Chart& left, const Chart& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_details == right.m_details;
}

} // namespace tw::core::chart
