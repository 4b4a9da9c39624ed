#include "app/spreadsheet/FormulaTokens.h"

#include "app/spreadsheet/CellValue.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

using core::Failure;
using core::Result;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Spreadsheet", text);
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'.' || character == u'$';
}

/** Cuts the formula into pieces, each by its first character. */
class Tokenizer
{
public:
    explicit Tokenizer(QStringView formula)
        : m_rest(formula)
    {}

    Result<std::vector<FormulaToken>> run()
    {
        while (!m_rest.isEmpty()) {
            if (!takeNext())
                return Failure{m_message};
        }
        return std::move(m_tokens);
    }

private:
    bool takeNext()
    {
        const QChar first = m_rest.front();
        if (first.isSpace())
            return take(TokenKind::Blanks, lengthWhile(0, [](QChar c) { return c.isSpace(); }));
        if (isDigit(first) || (first == u'.' && m_rest.size() > 1 && isDigit(m_rest[1])))
            return take(TokenKind::Number, numberLength());
        if (first == u'"')
            return takeText();
        if (first == u'#')
            return takeError();
        if (first == u'(')
            return take(TokenKind::OpenParenthesis, 1);
        if (first == u')')
            return take(TokenKind::CloseParenthesis, 1);
        if (first == u',' || first == u';')
            return take(TokenKind::Separator, 1);
        if (isNameCharacter(first))
            return takeName();
        return takeOperator();
    }

    bool take(TokenKind kind, qsizetype length)
    {
        m_tokens.push_back({kind, m_rest.first(length), {}});
        m_rest = m_rest.sliced(length);
        return true;
    }

    bool fail(const char* message, QStringView what = {})
    {
        m_message = translated(message);
        if (!what.isEmpty())
            m_message = m_message.arg(what);
        return false;
    }

    template <class Predicate>
    qsizetype lengthWhile(qsizetype from, Predicate predicate) const
    {
        qsizetype length = from;
        while (length < m_rest.size() && predicate(m_rest[length]))
            ++length;
        return length;
    }

    qsizetype numberLength() const
    {
        qsizetype length = lengthWhile(0, isDigit);
        if (length < m_rest.size() && m_rest[length] == u'.')
            length = lengthWhile(length + 1, isDigit);
        if (length < m_rest.size() && m_rest[length].toUpper() == u'E') {
            qsizetype exponent = length + 1;
            if (exponent < m_rest.size() && (m_rest[exponent] == u'+' || m_rest[exponent] == u'-'))
                ++exponent;
            if (const qsizetype end = lengthWhile(exponent, isDigit); end > exponent)
                return end;
        }
        return length;
    }

    bool takeText()
    {
        qsizetype length = 1;
        for (; length < m_rest.size(); ++length) {
            if (m_rest[length] != u'"')
                continue;
            if (length + 1 == m_rest.size() || m_rest[length + 1] != u'"')
                return take(TokenKind::Text, length + 1);
            ++length;
        }
        return fail(QT_TRANSLATE_NOOP("Spreadsheet", "A text is not closed: a quotation mark is missing."));
    }

    bool takeError()
    {
        constexpr qsizetype longestError = 7;
        for (qsizetype length = std::min(longestError, m_rest.size()); length > 1; --length) {
            if (errorFromText(m_rest.first(length)))
                return take(TokenKind::Error, length);
        }
        return fail(QT_TRANSLATE_NOOP("Spreadsheet", "\"%1\" has no meaning here."), m_rest.first(1));
    }

    bool takeName()
    {
        const qsizetype length = lengthWhile(0, isNameCharacter);
        // "LOG10(" is a function although LOG10 could be a cell.
        const bool isCall = length < m_rest.size() && m_rest[length] == u'(';
        const auto reference = isCall ? std::nullopt : referenceFromText(m_rest.first(length));
        take(reference ? TokenKind::Reference : TokenKind::Name, length);
        if (reference)
            m_tokens.back().reference = *reference;
        return true;
    }

    bool takeOperator()
    {
        static constexpr std::array operators{
            QStringView(u"<>"), QStringView(u"<="), QStringView(u">="), QStringView(u"="), QStringView(u"<"),
            QStringView(u">"),  QStringView(u"+"),  QStringView(u"-"),  QStringView(u"*"), QStringView(u"/"),
            QStringView(u"^"),  QStringView(u"&"),  QStringView(u"%"),  QStringView(u":")};
        for (const QStringView sign : operators) {
            if (m_rest.startsWith(sign))
                return take(TokenKind::Operator, sign.size());
        }
        return fail(QT_TRANSLATE_NOOP("Spreadsheet", "\"%1\" has no meaning here."), m_rest.first(1));
    }

    QStringView m_rest;
    std::vector<FormulaToken> m_tokens;
    QString m_message;
};

} // namespace

bool isFormula(QStringView cellText)
{
    return cellText.startsWith(u'=');
}

Result<std::vector<FormulaToken>> tokenize(QStringView formula)
{
    if (formula.size() > mostFormulaCharacters)
        return Failure{
            translated(QT_TRANSLATE_NOOP(
                           "Spreadsheet", "The formula is longer than %1 characters. Split it over "
                                          "several cells."))
                .arg(mostFormulaCharacters)};
    return Tokenizer(formula).run();
}

} // namespace tw::app::spreadsheet
