#pragma once

#include "app/spreadsheet/CellAddress.h"
#include "app/spreadsheet/CellValue.h"
#include "core/foundation/Result.h"

#include <vector>

namespace tw::app::spreadsheet {

struct Function;

/** What stands between two operands. */
enum class BinaryOperator
{
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Concatenate,
    Add,
    Subtract,
    Multiply,
    Divide,
    Power,
};

enum class NodeKind
{
    /** A value as written. */
    Literal,
    /** A cell or a rectangle of cells. */
    Range,
    /** Operands with operators between them, all of one precedence, worked from the left. */
    Chain,
    Negation,
    /** A plus sign: the operand as it is. */
    Identity,
    Percentage,
    Call,
    /** Nothing between two separators. */
    Missing,
};

/** One node of a formula's tree. */
struct FormulaNode
{
    NodeKind kind = NodeKind::Missing;
    CellValue literal;
    CellRange range;
    /** None for a function that does not exist. */
    const Function* function = nullptr;
    /** Numbers of nodes in the formula. */
    std::vector<quint32> operands;
    /** Of a chain: one fewer than operands. */
    std::vector<BinaryOperator> operators;
};

/**
 * A formula that was read: a value. Nesting is bounded, so that whoever walks the tree by recursion needs
 * little stack.
 */
class Formula
{
public:
    /** `text` is what follows the "=". A failure says what is wrong, for the user. */
    [[nodiscard]] static core::Result<Formula> parse(QStringView text);

    [[nodiscard]] const FormulaNode& root() const { return m_nodes[m_root]; }
    [[nodiscard]] const FormulaNode& node(quint32 number) const { return m_nodes[number]; }

    /** Everything it reads, each as often as it is written. */
    [[nodiscard]] std::vector<CellRange> precedents() const;

private:
    friend class FormulaParser;
    Formula() = default;

    std::vector<FormulaNode> m_nodes;
    quint32 m_root = 0;
};

} // namespace tw::app::spreadsheet
