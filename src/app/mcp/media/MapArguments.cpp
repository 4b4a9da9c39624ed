#include "app/mcp/media/MapArguments.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

core::Result<core::map::MapPoint> readPoint(const ToolArguments& arguments)
{
    const auto x = arguments.number(u"x");
    const auto y = arguments.number(u"y");
    const auto isFraction = [](const std::optional<double>& number) {
        return number && *number >= 0 && *number <= 1;
    };
    if (!isFraction(x) || !isFraction(y))
        return core::Failure{
            u"\"x\" and \"y\" are fractions of the image from its top left corner, from 0 to 1."_s};
    return core::map::MapPoint{*x, *y};
}

} // namespace tw::app::mcp
