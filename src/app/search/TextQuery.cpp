#include "app/search/TextQuery.h"

#include <QCoreApplication>

namespace tw::app::search {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;

namespace {

/** Steps for one match: plenty for what people write, a fraction of a second for what explodes. */
constexpr int mostSteps = 1'000'000;

QString message(const char* text)
{
    return QCoreApplication::translate("TextQuery", text);
}

QRegularExpression::PatternOptions optionsOf(const TextQuery& query)
{
    QRegularExpression::PatternOptions options =
        QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::MultilineOption;
    if (!query.isCaseSensitive)
        options |= QRegularExpression::CaseInsensitiveOption;
    return options;
}

QString patternOf(const TextQuery& query)
{
    const QString pattern = query.isWholeWord ? u"\\b(?:"_s + query.text + u")\\b"_s : query.text;
    return u"(*LIMIT_MATCH=%1)"_s.arg(mostSteps) + pattern;
}

bool isWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character == u'_';
}

} // namespace

TextMatcher::TextMatcher(const TextQuery& query)
    : m_query(query)
    , m_fixed(query.text, query.isCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive)
{
    if (query.isRegularExpression)
        m_expression = QRegularExpression(patternOf(query), optionsOf(query));
}

Result<TextMatcher> TextMatcher::create(const TextQuery& query)
{
    if (query.text.isEmpty())
        return Failure{message(QT_TRANSLATE_NOOP("TextQuery", "Type what you are looking for."))};
    if (query.isRegularExpression) {
        // Asked without what is put around it, so that the place counts from what was typed.
        const QRegularExpression typed(query.text, optionsOf(query));
        if (!typed.isValid()) {
            return Failure{
                message(QT_TRANSLATE_NOOP(
                            "TextQuery",
                            "The regular expression cannot be read: %1 (at character %2). Correct it, "
                            "or switch regular expressions off."))
                    .arg(typed.errorString(), QString::number(typed.patternErrorOffset() + 1))};
        }
    }
    TextMatcher matcher(query);
    if (query.isRegularExpression)
        matcher.m_expression.optimize();
    return matcher;
}

bool TextMatcher::isWholeWord(const QString& text, qsizetype start) const
{
    const qsizetype end = start + m_query.text.size();
    const bool goesOnBefore =
        start > 0 && isWordCharacter(text[start - 1]) && isWordCharacter(m_query.text.front());
    const bool goesOnAfter =
        end < text.size() && isWordCharacter(text[end]) && isWordCharacter(m_query.text.back());
    return !goesOnBefore && !goesOnAfter;
}

std::vector<IndexRange> TextMatcher::findFixed(const QString& text, qsizetype most) const
{
    std::vector<IndexRange> matches;
    const qsizetype length = m_query.text.size();
    for (qsizetype start = m_fixed.indexIn(text); start >= 0 && std::ssize(matches) < most;) {
        const bool isMatch = !m_query.isWholeWord || isWholeWord(text, start);
        if (isMatch)
            matches.push_back({start, length});
        start = m_fixed.indexIn(text, start + (isMatch ? length : 1));
    }
    return matches;
}

Result<std::vector<IndexRange>> TextMatcher::findIn(const QString& text, qsizetype most) const
{
    if (!m_query.isRegularExpression)
        return findFixed(text, most);
    std::vector<IndexRange> matches;
    qsizetype position = 0;
    while (position <= text.size() && std::ssize(matches) < most) {
        const QRegularExpressionMatch match = m_expression.match(text, position);
        if (!match.isValid()) {
            return Failure{message(QT_TRANSLATE_NOOP(
                "TextQuery", "The regular expression is too complex for this text. Make it simpler, for "
                             "example with fewer "
                             "nested repetitions."))};
        }
        if (!match.hasMatch())
            break;
        if (match.capturedLength() > 0)
            matches.push_back({match.capturedStart(), match.capturedLength()});
        position = match.capturedEnd() + (match.capturedLength() == 0 ? 1 : 0);
    }
    return matches;
}

QStringList TextMatcher::groupsOf(const QString& text, IndexRange match) const
{
    if (!m_query.isRegularExpression)
        return {text.sliced(match.first, match.count)};
    // In the whole text: an expression may look at what stands around its match.
    return m_expression
        .match(
            text, match.first, QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption)
        .capturedTexts();
}

QString TextMatcher::replacementFor(const QStringList& groups, const QString& replacement) const
{
    if (!m_query.isRegularExpression)
        return replacement;
    QString result;
    for (qsizetype index = 0; index < replacement.size(); ++index) {
        const QChar next = index + 1 < replacement.size() ? replacement[index + 1] : QChar();
        if (replacement[index] == u'\\' && next >= u'0' && next <= u'9')
            result += groups.value(replacement[++index].digitValue());
        else if (replacement[index] == u'\\' && next == u'\\')
            result += replacement[++index];
        else
            result += replacement[index];
    }
    return result;
}

} // namespace tw::app::search
