#include "app/spreadsheet/FunctionArguments.h"

namespace tw::app::spreadsheet {

Read<double> readNumber(const CellValue& value)
{
    const CellValue number = asNumber(value);
    if (number.isError())
        return number.error();
    return number.number();
}

Read<QString> readText(const CellValue& value)
{
    if (value.isError())
        return value.error();
    return displayText(value);
}

Read<bool> readTruth(const CellValue& value)
{
    const CellValue truth = asTruth(value);
    if (truth.isError())
        return truth.error();
    return truth.truth();
}

Read<CellRange> readRange(const Operand& operand)
{
    if (const auto* range = std::get_if<CellRange>(&operand))
        return *range;
    const CellValue& value = std::get<CellValue>(operand);
    return value.isError() ? value.error() : CellError::BadValue;
}

} // namespace tw::app::spreadsheet
