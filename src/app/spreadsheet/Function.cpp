#include "app/spreadsheet/Function.h"

#include <algorithm>
#include <vector>

namespace tw::app::spreadsheet {

std::span<const Function> allFunctions()
{
    static const std::vector<Function> sorted = [] {
        std::vector<Function> functions;
        for (const auto family :
             {numberFunctions(), statisticsFunctions(), logicFunctions(), textFunctions(), lookupFunctions()})
            functions.insert(functions.end(), family.begin(), family.end());
        std::ranges::sort(functions, {}, &Function::name);
        return functions;
    }();
    return sorted;
}

const Function* findFunction(QStringView name)
{
    const auto functions = allFunctions();
    const auto found = std::ranges::lower_bound(
        functions, name, [](QStringView left, QStringView right) { return left.compare(right) < 0; },
        [](const Function& function) { return function.name.toString(); });
    return found != functions.end() && name == found->name ? &*found : nullptr;
}

} // namespace tw::app::spreadsheet
