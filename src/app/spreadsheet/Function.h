#pragma once

#include "app/spreadsheet/CellAddress.h"
#include "app/spreadsheet/CellValue.h"
#include "app/spreadsheet/CellValues.h"

#include <QLatin1String>

#include <limits>
#include <optional>
#include <span>
#include <variant>

namespace tw::app::spreadsheet {

class Evaluation;
struct FormulaNode;

/** What an argument may be, and what a function gives: a value, or cells. */
using Operand = std::variant<CellValue, CellRange>;

/**
 * One call of a function. Arguments are worked out when they are asked for, each time anew: a function asks
 * for each at most once, or calls within each other cost twice as much at every level.
 */
class Call
{
public:
    Call(const Evaluation& evaluation, const FormulaNode& node)
        : m_evaluation(evaluation)
        , m_node(node)
    {}

    [[nodiscard]] int argumentCount() const;
    /** False beyond the last argument and where nothing stands between two separators. */
    [[nodiscard]] bool isGiven(int index) const;
    [[nodiscard]] Operand operand(int index) const;
    /** The argument as one value: #VALUE! for more than one cell. A missing argument is blank. */
    [[nodiscard]] CellValue value(int index) const;
    [[nodiscard]] const CellValues& cells() const;

private:
    const Evaluation& m_evaluation;
    const FormulaNode& m_node;
};

inline constexpr int anyNumberOfArguments = std::numeric_limits<int>::max();

struct Function
{
    QLatin1String name;
    int fewestArguments = 0;
    int mostArguments = 0;
    Operand (*run)(const Call& call) = nullptr;
};

/** The name in capitals; none when there is no such function. */
[[nodiscard]] const Function* findFunction(QStringView name);

/** By name. */
[[nodiscard]] std::span<const Function> allFunctions();

// The families that the list is made of

[[nodiscard]] std::span<const Function> numberFunctions();
[[nodiscard]] std::span<const Function> statisticsFunctions();
[[nodiscard]] std::span<const Function> logicFunctions();
[[nodiscard]] std::span<const Function> textFunctions();
[[nodiscard]] std::span<const Function> lookupFunctions();

} // namespace tw::app::spreadsheet
