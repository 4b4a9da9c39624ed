#include "app/spreadsheet/FunctionArguments.h"

#include <array>
#include <cmath>
#include <limits>
#include <numbers>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

namespace {

/** More digits than a number has change nothing. */
constexpr double mostDigits = 300;

/**
 * 1.005 is kept as 1.00499..., 1.1 * 10 as 11.000...2: what lies within a few units of the last place of a
 * whole or a half number is taken for it, as people who see 15 digits expect.
 */
double snapped(double number)
{
    const double twice = std::round(number * 2);
    const double slack = std::abs(number) * 8 * std::numeric_limits<double>::epsilon();
    return std::abs(number * 2 - twice) <= 2 * slack ? twice / 2 : number;
}

template <class Round>
CellValue roundedAt(double number, double digits, Round round)
{
    digits = std::trunc(digits);
    if (digits > mostDigits)
        return number;
    if (digits < -mostDigits)
        return 0.0;
    const double scale = std::pow(10, std::abs(digits));
    const double scaled = digits < 0 ? number / scale : number * scale;
    // Too large to have that many digits.
    if (!std::isfinite(scaled))
        return number;
    const double whole = round(snapped(scaled));
    return digits < 0 ? whole * scale : whole / scale;
}

CellValue roundHalf(double number, double digits)
{
    return roundedAt(number, digits, [](double value) { return std::round(value); });
}

CellValue roundUp(double number, double digits)
{
    return roundedAt(
        number, digits, [](double value) { return std::copysign(std::ceil(std::abs(value)), value); });
}

CellValue roundDown(double number, double digits)
{
    return roundedAt(number, digits, [](double value) { return std::trunc(value); });
}

double absolute(double number)
{
    return std::abs(number);
}

/** The rest has the sign of the divisor. */
CellValue remainderOf(double number, double divisor)
{
    if (divisor == 0)
        return CellError::DivisionByZero;
    const double rest = std::fmod(number, divisor);
    return rest != 0 && (rest < 0) != (divisor < 0) ? rest + divisor : rest;
}

CellValue squareRoot(double number)
{
    return number < 0 ? CellValue(CellError::BadNumber) : CellValue(std::sqrt(number));
}

double exponential(double number)
{
    return std::exp(number);
}

CellValue naturalLogarithm(double number)
{
    return number <= 0 ? CellValue(CellError::BadNumber) : CellValue(std::log(number));
}

CellValue decimalLogarithm(double number)
{
    return number <= 0 ? CellValue(CellError::BadNumber) : CellValue(std::log10(number));
}

CellValue logarithm(double number, std::optional<double> base)
{
    if (!base || *base == 10)
        return decimalLogarithm(number);
    if (number <= 0 || *base <= 0)
        return CellError::BadNumber;
    if (*base == 1)
        return CellError::DivisionByZero;
    return std::log(number) / std::log(*base);
}

double wholePart(double number)
{
    return std::floor(number);
}

double signOf(double number)
{
    return number == 0 ? 0 : std::copysign(1, number);
}

double pi()
{
    return std::numbers::pi;
}

constexpr std::array functions{
    function<&absolute>("ABS"_L1),        function<&exponential>("EXP"_L1),
    function<&wholePart>("INT"_L1),       function<&naturalLogarithm>("LN"_L1),
    function<&logarithm>("LOG"_L1),       function<&decimalLogarithm>("LOG10"_L1),
    function<&remainderOf>("MOD"_L1),     function<&pi>("PI"_L1),
    function<&powerOf>("POWER"_L1),       function<&roundHalf>("ROUND"_L1),
    function<&roundDown>("ROUNDDOWN"_L1), function<&roundUp>("ROUNDUP"_L1),
    function<&signOf>("SIGN"_L1),         function<&squareRoot>("SQRT"_L1),
};

} // namespace

std::span<const Function> numberFunctions()
{
    return functions;
}

} // namespace tw::app::spreadsheet
