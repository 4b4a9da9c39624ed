#include "app/spreadsheet/Evaluation.h"

#include "app/spreadsheet/FunctionArguments.h"

#include <cmath>

namespace tw::app::spreadsheet {

namespace {

CellValue compared(BinaryOperator sign, const CellValue& left, const CellValue& right)
{
    const int order = compareValues(left, right);
    switch (sign) {
    case BinaryOperator::Equal:
        return order == 0;
    case BinaryOperator::NotEqual:
        return order != 0;
    case BinaryOperator::Less:
        return order < 0;
    case BinaryOperator::LessOrEqual:
        return order <= 0;
    case BinaryOperator::Greater:
        return order > 0;
    default:
        return order >= 0;
    }
}

CellValue calculated(BinaryOperator sign, double left, double right)
{
    switch (sign) {
    case BinaryOperator::Add:
        return left + right;
    case BinaryOperator::Subtract:
        return left - right;
    case BinaryOperator::Multiply:
        return left * right;
    case BinaryOperator::Divide:
        return right == 0 ? CellValue(CellError::DivisionByZero) : CellValue(left / right);
    default:
        return powerOf(left, right);
    }
}

CellValue applied(BinaryOperator sign, const CellValue& left, const CellValue& right)
{
    if (left.isError())
        return left;
    if (right.isError())
        return right;
    if (sign <= BinaryOperator::GreaterOrEqual)
        return compared(sign, left, right);
    if (sign == BinaryOperator::Concatenate)
        return boundedText(displayText(left) + displayText(right));
    const CellValue leftNumber = asNumber(left);
    const CellValue rightNumber = asNumber(right);
    if (leftNumber.isError())
        return leftNumber;
    if (rightNumber.isError())
        return rightNumber;
    return calculated(sign, leftNumber.number(), rightNumber.number());
}

CellValue divided(const CellValue& value, double divisor)
{
    const CellValue number = asNumber(value);
    return number.isError() ? number : CellValue(number.number() / divisor);
}

} // namespace

CellValue powerOf(double base, double exponent)
{
    if (base == 0 && exponent == 0)
        return CellError::BadNumber;
    if (base == 0 && exponent < 0)
        return CellError::DivisionByZero;
    return std::pow(base, exponent);
}

CellValue boundedText(QString text)
{
    return text.size() > mostTextCharacters ? CellValue(CellError::BadValue) : CellValue(std::move(text));
}

CellValue Evaluation::result() const
{
    const CellValue value = singleValue(operandOf(m_formula.root()));
    return value.isBlank() ? CellValue(0.0) : value;
}

CellValue Evaluation::singleValue(const Operand& operand) const
{
    if (const auto* value = std::get_if<CellValue>(&operand))
        return *value;
    const CellRange& range = std::get<CellRange>(operand);
    return range.isSingleCell() ? m_cells.at(range.first) : CellValue(CellError::BadValue);
}

Operand Evaluation::operandOf(const FormulaNode& node) const
{
    switch (node.kind) {
    case NodeKind::Literal:
        return node.literal;
    case NodeKind::Range:
        if (const auto range = m_cells.inGrid(node.range))
            return *range;
        return CellValue(CellError::BadReference);
    case NodeKind::Chain:
        return chain(node);
    case NodeKind::Negation:
        return divided(valueOf(node.operands[0]), -1);
    case NodeKind::Identity:
        return operandOf(node.operands[0]);
    case NodeKind::Percentage:
        return divided(valueOf(node.operands[0]), 100);
    case NodeKind::Call:
        return node.function ? node.function->run(Call(*this, node)) : CellValue(CellError::UnknownName);
    case NodeKind::Missing:
        break;
    }
    return CellValue();
}

CellValue Evaluation::chain(const FormulaNode& node) const
{
    CellValue result = valueOf(node.operands[0]);
    for (std::size_t index = 0; index < node.operators.size(); ++index)
        result = applied(node.operators[index], result, valueOf(node.operands[index + 1]));
    return result;
}

int Call::argumentCount() const
{
    return static_cast<int>(m_node.operands.size());
}

bool Call::isGiven(int index) const
{
    return index < argumentCount() &&
           !m_evaluation.isMissing(m_node.operands[static_cast<std::size_t>(index)]);
}

Operand Call::operand(int index) const
{
    if (!isGiven(index))
        return CellValue();
    return m_evaluation.operandOf(m_node.operands[static_cast<std::size_t>(index)]);
}

CellValue Call::value(int index) const
{
    return isGiven(index) ? m_evaluation.valueOf(m_node.operands[static_cast<std::size_t>(index)])
                          : CellValue();
}

const CellValues& Call::cells() const
{
    return m_evaluation.cells();
}

} // namespace tw::app::spreadsheet
