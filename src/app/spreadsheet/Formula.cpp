#include "app/spreadsheet/Formula.h"

#include "app/spreadsheet/FormulaTokens.h"
#include "app/spreadsheet/Function.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <optional>
#include <span>

namespace tw::app::spreadsheet {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;

namespace {

/** Parentheses, calls and signs within each other. */
constexpr int deepestNesting = 64;

QString translated(const char* text)
{
    return QCoreApplication::translate("Spreadsheet", text);
}

struct OperatorSign
{
    QStringView sign;
    BinaryOperator meaning;
};

constexpr OperatorSign comparisons[] = {
    {u"=", BinaryOperator::Equal},   {u"<>", BinaryOperator::NotEqual},
    {u"<", BinaryOperator::Less},    {u"<=", BinaryOperator::LessOrEqual},
    {u">", BinaryOperator::Greater}, {u">=", BinaryOperator::GreaterOrEqual},
};
constexpr OperatorSign concatenation[] = {{u"&", BinaryOperator::Concatenate}};
constexpr OperatorSign sums[] = {{u"+", BinaryOperator::Add}, {u"-", BinaryOperator::Subtract}};
constexpr OperatorSign products[] = {{u"*", BinaryOperator::Multiply}, {u"/", BinaryOperator::Divide}};
constexpr OperatorSign powers[] = {{u"^", BinaryOperator::Power}};

/** Loosest first. A sign before an operand binds more tightly than all of these, so that -2^2 is 4. */
constexpr std::span<const OperatorSign> precedences[] = {comparisons, concatenation, sums, products, powers};

} // namespace

/** Reads by recursive descent; every way down passes through operand(), which counts the depth. */
class FormulaParser
{
public:
    explicit FormulaParser(std::vector<FormulaToken> tokens)
        : m_tokens(std::move(tokens))
    {
        std::erase_if(m_tokens, [](const FormulaToken& token) { return token.kind == TokenKind::Blanks; });
    }

    Result<Formula> run()
    {
        const auto root = expression(0);
        if (!root)
            return Failure{m_message};
        if (m_next < m_tokens.size())
            return Failure{unexpected()};
        m_formula.m_root = *root;
        return std::move(m_formula);
    }

private:
    /** None after a failure, whose message is kept. */
    using NodeNumber = std::optional<quint32>;

    NodeNumber expression(std::size_t precedence)
    {
        if (precedence == std::size(precedences))
            return operand();
        const NodeNumber first = expression(precedence + 1);
        if (!first)
            return first;
        FormulaNode chain;
        chain.kind = NodeKind::Chain;
        chain.operands = {*first};
        while (const auto meaning = takeOperator(precedences[precedence])) {
            const NodeNumber next = expression(precedence + 1);
            if (!next)
                return next;
            chain.operators.push_back(*meaning);
            chain.operands.push_back(*next);
        }
        return chain.operators.empty() ? first : add(std::move(chain));
    }

    NodeNumber operand()
    {
        if (m_depth == deepestNesting)
            return fail(translated(QT_TRANSLATE_NOOP(
                "Spreadsheet", "The formula is nested too deeply. Split it over several cells.")));
        ++m_depth;
        NodeNumber node;
        if (takeSign(u"-"))
            node = wrapped(NodeKind::Negation, operand());
        else if (takeSign(u"+"))
            node = wrapped(NodeKind::Identity, operand());
        else
            node = percentages(primary());
        --m_depth;
        return node;
    }

    NodeNumber percentages(NodeNumber node)
    {
        for (int count = 0; node && takeSign(u"%"); ++count) {
            node =
                count < deepestNesting
                    ? wrapped(NodeKind::Percentage, node)
                    : fail(translated(QT_TRANSLATE_NOOP(
                          "Spreadsheet", "The formula is nested too deeply. Split it over several cells.")));
        }
        return node;
    }

    NodeNumber primary()
    {
        if (m_next == m_tokens.size())
            return fail(unexpected());
        const FormulaToken& token = m_tokens[m_next];
        switch (token.kind) {
        case TokenKind::Number:
            ++m_next;
            return addLiteral(QLocale::c().toDouble(token.text));
        case TokenKind::Text:
            ++m_next;
            return addLiteral(token.text.sliced(1).chopped(1).toString().replace(u"\"\""_s, u"\""_s));
        case TokenKind::Error:
            ++m_next;
            return addLiteral(*errorFromText(token.text));
        case TokenKind::Reference:
            return range();
        case TokenKind::Name:
            return name();
        case TokenKind::OpenParenthesis:
            ++m_next;
            return closed(expression(0));
        default:
            return fail(unexpected());
        }
    }

    NodeNumber range()
    {
        FormulaNode node;
        node.kind = NodeKind::Range;
        const CellPosition first = m_tokens[m_next++].reference.position;
        CellPosition last = first;
        if (takeSign(u":")) {
            if (m_next == m_tokens.size() || m_tokens[m_next].kind != TokenKind::Reference)
                return fail(unexpected());
            last = m_tokens[m_next++].reference.position;
        }
        node.range.first = {std::min(first.row, last.row), std::min(first.column, last.column)};
        node.range.last = {std::max(first.row, last.row), std::max(first.column, last.column)};
        return add(std::move(node));
    }

    NodeNumber name()
    {
        const QString text = m_tokens[m_next++].text.toString().toUpper();
        if (m_next < m_tokens.size() && m_tokens[m_next].kind == TokenKind::OpenParenthesis) {
            ++m_next;
            return call(text);
        }
        if (text == u"TRUE" || text == u"FALSE")
            return addLiteral(text == u"TRUE");
        return addLiteral(CellError::UnknownName);
    }

    NodeNumber call(const QString& name)
    {
        FormulaNode node;
        node.kind = NodeKind::Call;
        node.function = findFunction(name);
        const bool isEmpty = isNext(TokenKind::CloseParenthesis);
        while (!isEmpty) {
            const bool isMissing = isNext(TokenKind::Separator) || isNext(TokenKind::CloseParenthesis);
            const NodeNumber argument = isMissing ? add(FormulaNode()) : expression(0);
            if (!argument)
                return argument;
            node.operands.push_back(*argument);
            if (!isNext(TokenKind::Separator))
                break;
            ++m_next;
        }
        const auto count = static_cast<int>(node.operands.size());
        if (node.function && (count < node.function->fewestArguments || count > node.function->mostArguments))
            return fail(
                QCoreApplication::translate("Spreadsheet", "%1 does not take %n argument(s).", nullptr, count)
                    .arg(name));
        return closed(add(std::move(node)));
    }

    NodeNumber closed(NodeNumber node)
    {
        if (!node)
            return node;
        if (!isNext(TokenKind::CloseParenthesis))
            return fail(
                m_next < m_tokens.size()
                    ? unexpected()
                    : translated(QT_TRANSLATE_NOOP("Spreadsheet", "A closing parenthesis is missing.")));
        ++m_next;
        return node;
    }

    NodeNumber add(FormulaNode node)
    {
        m_formula.m_nodes.push_back(std::move(node));
        return static_cast<quint32>(m_formula.m_nodes.size() - 1);
    }

    NodeNumber addLiteral(CellValue value)
    {
        FormulaNode node;
        node.kind = NodeKind::Literal;
        node.literal = std::move(value);
        return add(std::move(node));
    }

    NodeNumber wrapped(NodeKind kind, NodeNumber inner)
    {
        if (!inner)
            return inner;
        FormulaNode node;
        node.kind = kind;
        node.operands = {*inner};
        return add(std::move(node));
    }

    bool isNext(TokenKind kind) const { return m_next < m_tokens.size() && m_tokens[m_next].kind == kind; }

    bool takeSign(QStringView sign)
    {
        const bool isThere = m_next < m_tokens.size() && m_tokens[m_next].isOperator(sign);
        m_next += isThere ? 1 : 0;
        return isThere;
    }

    std::optional<BinaryOperator> takeOperator(std::span<const OperatorSign> signs)
    {
        for (const OperatorSign& sign : signs) {
            if (takeSign(sign.sign))
                return sign.meaning;
        }
        return std::nullopt;
    }

    NodeNumber fail(QString message)
    {
        m_message = std::move(message);
        return std::nullopt;
    }

    QString unexpected() const
    {
        if (m_next == m_tokens.size())
            return translated(QT_TRANSLATE_NOOP("Spreadsheet", "The formula ends too early."));
        return translated(QT_TRANSLATE_NOOP("Spreadsheet", "\"%1\" cannot stand where it does."))
            .arg(m_tokens[m_next].text);
    }

    std::vector<FormulaToken> m_tokens;
    std::size_t m_next = 0;
    int m_depth = 0;
    Formula m_formula;
    QString m_message;
};

Result<Formula> Formula::parse(QStringView text)
{
    auto tokens = tokenize(text);
    if (!tokens)
        return Failure{tokens.message()};
    return FormulaParser(std::move(tokens).value()).run();
}

std::vector<CellRange> Formula::precedents() const
{
    std::vector<CellRange> ranges;
    for (const FormulaNode& node : m_nodes) {
        if (node.kind == NodeKind::Range)
            ranges.push_back(node.range);
    }
    return ranges;
}

} // namespace tw::app::spreadsheet
