#include "app/spreadsheet/Criterion.h"
#include "app/spreadsheet/FunctionArguments.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

namespace {

/** What SUM and its like need of their numbers. */
struct Tally
{
    double sum = 0;
    double product = 1;
    double least = 0;
    double most = 0;
    qint64 count = 0;

    void add(double number)
    {
        sum += number;
        product *= number;
        least = count == 0 ? number : std::min(least, number);
        most = count == 0 ? number : std::max(most, number);
        ++count;
    }
};

template <class Result>
Operand tallied(const Call& call, Result result)
{
    Tally tally;
    if (const auto error = visitNumbers(call, 0, [&tally](double number) { tally.add(number); }))
        return CellValue(*error);
    return CellValue(result(tally));
}

CellValue averageOf(const Tally& tally)
{
    if (tally.count == 0)
        return CellError::DivisionByZero;
    return tally.sum / static_cast<double>(tally.count);
}

Operand sum(const Call& call)
{
    return tallied(call, [](const Tally& tally) { return tally.sum; });
}

Operand average(const Call& call)
{
    return tallied(call, averageOf);
}

Operand minimum(const Call& call)
{
    return tallied(call, [](const Tally& tally) { return tally.least; });
}

Operand maximum(const Call& call)
{
    return tallied(call, [](const Tally& tally) { return tally.most; });
}

Operand product(const Call& call)
{
    return tallied(call, [](const Tally& tally) { return tally.count == 0 ? 0.0 : tally.product; });
}

Operand median(const Call& call)
{
    std::vector<double> numbers;
    if (const auto error = visitNumbers(call, 0, [&numbers](double number) { numbers.push_back(number); }))
        return CellValue(*error);
    if (numbers.empty())
        return CellValue(CellError::BadNumber);
    std::ranges::sort(numbers);
    const std::size_t middle = numbers.size() / 2;
    const bool isOdd = numbers.size() % 2 == 1;
    return CellValue(isOdd ? numbers[middle] : (numbers[middle - 1] + numbers[middle]) / 2);
}

/** Values of all arguments for which `counts` holds; errors are values here. */
template <class Counts>
Operand counted(const Call& call, Counts counts)
{
    double count = 0;
    static_cast<void>(
        visitArguments(call, 0, [&](const CellValue& value, bool isCell) -> std::optional<CellError> {
            count += counts(value, isCell) ? 1 : 0;
            return std::nullopt;
        }));
    return CellValue(count);
}

Operand countNumbers(const Call& call)
{
    return counted(call, [](const CellValue& value, bool isCell) {
        return value.isNumber() || (!isCell && asNumber(value).isNumber());
    });
}

Operand countValues(const Call& call)
{
    return counted(call, [](const CellValue& /*value*/, bool /*isCell*/) { return true; });
}

/** Empty texts, which formulas give, look blank and count as such. */
bool looksBlank(const CellValue& value)
{
    return value.isBlank() || (value.isText() && value.text().isEmpty());
}

Operand countBlank(const CellValues& cells, const CellRange& range)
{
    qint64 filled = 0;
    cells.visit(range, [&filled](CellPosition /*position*/, const CellValue& value) {
        filled += looksBlank(value) ? 0 : 1;
        return true;
    });
    return CellValue(static_cast<double>(range.cellCount() - filled));
}

Operand countIf(const CellValues& cells, const CellRange& range, const CellValue& condition)
{
    const Criterion criterion(condition);
    qint64 found = 0;
    qint64 filled = 0;
    cells.visit(range, [&](CellPosition /*position*/, const CellValue& value) {
        ++filled;
        found += criterion.holds(value) ? 1 : 0;
        return true;
    });
    // The walk passes over blank cells; all of them satisfy the criterion, or none.
    if (criterion.holds(CellValue()))
        found += range.cellCount() - filled;
    return CellValue(static_cast<double>(found));
}

/** The numbers of `values` at the places where `range` satisfies the condition; blank cells may do so too. */
std::variant<Tally, CellError> tallyIf(
    const CellValues& cells, const CellRange& range, const CellValue& condition,
    const std::optional<CellRange>& values)
{
    const Criterion criterion(condition);
    const CellRange added = values.value_or(range);
    Tally tally;
    std::optional<CellError> error;
    cells.visit(added, [&](CellPosition position, const CellValue& value) {
        const CellPosition tested{
            range.first.row + position.row - added.first.row,
            range.first.column + position.column - added.first.column};
        if (!range.contains(tested) || !criterion.holds(cells.at(tested)))
            return true;
        if (value.isError())
            error = value.error();
        else if (value.isNumber())
            tally.add(value.number());
        return !error;
    });
    if (error)
        return *error;
    return tally;
}

Operand sumIf(
    const CellValues& cells, const CellRange& range, const CellValue& condition,
    const std::optional<CellRange>& values)
{
    const auto tally = tallyIf(cells, range, condition, values);
    if (const auto* error = std::get_if<CellError>(&tally))
        return CellValue(*error);
    return CellValue(std::get<Tally>(tally).sum);
}

Operand averageIf(
    const CellValues& cells, const CellRange& range, const CellValue& condition,
    const std::optional<CellRange>& values)
{
    const auto tally = tallyIf(cells, range, condition, values);
    if (const auto* error = std::get_if<CellError>(&tally))
        return CellValue(*error);
    return averageOf(std::get<Tally>(tally));
}

/** The n-th number of a range in ascending or descending order. */
template <class Order>
Operand ranked(const CellValues& cells, const CellRange& range, double rank, Order order)
{
    std::vector<double> numbers;
    std::optional<CellError> error;
    cells.visit(range, [&](CellPosition /*position*/, const CellValue& value) {
        if (value.isError())
            error = value.error();
        else if (value.isNumber())
            numbers.push_back(value.number());
        return !error;
    });
    if (error)
        return CellValue(*error);
    if (!(rank >= 1) || rank > static_cast<double>(numbers.size()))
        return CellValue(CellError::BadNumber);
    std::ranges::sort(numbers, order);
    return CellValue(numbers[static_cast<std::size_t>(rank) - 1]);
}

Operand smallest(const CellValues& cells, const CellRange& range, double rank)
{
    return ranked(cells, range, rank, std::less());
}

Operand largest(const CellValues& cells, const CellRange& range, double rank)
{
    return ranked(cells, range, rank, std::greater());
}

constexpr std::array functions{
    Function{"AVERAGE"_L1, 1, anyNumberOfArguments, &average},
    function<&averageIf>("AVERAGEIF"_L1),
    Function{"COUNT"_L1, 1, anyNumberOfArguments, &countNumbers},
    Function{"COUNTA"_L1, 1, anyNumberOfArguments, &countValues},
    function<&countBlank>("COUNTBLANK"_L1),
    function<&countIf>("COUNTIF"_L1),
    function<&largest>("LARGE"_L1),
    Function{"MAX"_L1, 1, anyNumberOfArguments, &maximum},
    Function{"MEDIAN"_L1, 1, anyNumberOfArguments, &median},
    Function{"MIN"_L1, 1, anyNumberOfArguments, &minimum},
    Function{"PRODUCT"_L1, 1, anyNumberOfArguments, &product},
    function<&smallest>("SMALL"_L1),
    Function{"SUM"_L1, 1, anyNumberOfArguments, &sum},
    function<&sumIf>("SUMIF"_L1),
};

} // namespace

std::span<const Function> statisticsFunctions()
{
    return functions;
}

} // namespace tw::app::spreadsheet
