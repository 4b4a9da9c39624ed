#include "app/spreadsheet/FunctionArguments.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

namespace {

/** Only the branch that is taken is worked out. */
Operand choose(const Call& call)
{
    const CellValue condition = asTruth(call.value(0));
    if (condition.isError())
        return condition;
    if (condition.truth())
        return call.operand(1);
    return call.argumentCount() > 2 ? call.operand(2) : CellValue(false);
}

struct TruthCount
{
    int yes = 0;
    int all = 0;
};

/** Texts in cells are passed over. */
template <class Result>
Operand truths(const Call& call, Result result)
{
    TruthCount count;
    const auto error =
        visitArguments(call, 0, [&count](const CellValue& value, bool isCell) -> std::optional<CellError> {
            if (isCell && value.isText())
                return std::nullopt;
            const CellValue truth = asTruth(value);
            if (truth.isError())
                return truth.error();
            count.yes += truth.truth() ? 1 : 0;
            ++count.all;
            return std::nullopt;
        });
    if (error)
        return CellValue(*error);
    if (count.all == 0)
        return CellValue(CellError::BadValue);
    return CellValue(result(count));
}

Operand all(const Call& call)
{
    return truths(call, [](const TruthCount& count) { return count.yes == count.all; });
}

Operand any(const Call& call)
{
    return truths(call, [](const TruthCount& count) { return count.yes > 0; });
}

Operand oddNumber(const Call& call)
{
    return truths(call, [](const TruthCount& count) { return count.yes % 2 == 1; });
}

bool opposite(bool truth)
{
    return !truth;
}

Operand unlessError(const Call& call)
{
    const CellValue value = call.value(0);
    return value.isError() ? call.operand(1) : value;
}

Operand unlessNotAvailable(const Call& call)
{
    const CellValue value = call.value(0);
    return value == CellValue(CellError::NotAvailable) ? call.operand(1) : value;
}

// These look at errors too, so that they take the call itself.

Operand isBlank(const Call& call)
{
    return CellValue(call.value(0).isBlank());
}

Operand isError(const Call& call)
{
    return CellValue(call.value(0).isError());
}

Operand isNumber(const Call& call)
{
    return CellValue(call.value(0).isNumber());
}

Operand isText(const Call& call)
{
    return CellValue(call.value(0).isText());
}

CellValue notAvailable()
{
    return CellError::NotAvailable;
}

constexpr std::array functions{
    Function{"AND"_L1, 1, anyNumberOfArguments, &all},
    Function{"IF"_L1, 2, 3, &choose},
    Function{"IFERROR"_L1, 2, 2, &unlessError},
    Function{"IFNA"_L1, 2, 2, &unlessNotAvailable},
    Function{"ISBLANK"_L1, 1, 1, &isBlank},
    Function{"ISERROR"_L1, 1, 1, &isError},
    Function{"ISNUMBER"_L1, 1, 1, &isNumber},
    Function{"ISTEXT"_L1, 1, 1, &isText},
    function<&notAvailable>("NA"_L1),
    function<&opposite>("NOT"_L1),
    Function{"OR"_L1, 1, anyNumberOfArguments, &any},
    Function{"XOR"_L1, 1, anyNumberOfArguments, &oddNumber},
};

} // namespace

std::span<const Function> logicFunctions()
{
    return functions;
}

} // namespace tw::app::spreadsheet
