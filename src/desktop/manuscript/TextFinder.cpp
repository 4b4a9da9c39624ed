#include "desktop/manuscript/TextFinder.h"

#include <QTextBlock>
#include <QTextDocument>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

TextFinder::TextFinder(const FindQuery& query)
    : m_isRegularExpression(query.isRegularExpression)
{
    if (query.text.isEmpty())
        return;
    QString pattern = query.isRegularExpression ? query.text : QRegularExpression::escape(query.text);
    if (query.isWholeWord)
        pattern = u"(?<!\\w)(?:%1)(?!\\w)"_s.arg(pattern);
    m_pattern.setPattern(pattern);
    QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
    if (!query.isCaseSensitive)
        options |= QRegularExpression::CaseInsensitiveOption;
    m_pattern.setPatternOptions(options);
}

QString TextFinder::error() const
{
    return m_pattern.isValid() ? QString() : m_pattern.errorString();
}

void TextFinder::eachIn(
    const QTextBlock& block, const std::function<bool(const FoundPlace& place)>& take) const
{
    if (isEmpty() || !m_pattern.isValid())
        return;
    auto matches = m_pattern.globalMatch(block.text());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const FoundPlace place{
            block.position() + static_cast<int>(match.capturedStart()),
            static_cast<int>(match.capturedLength())};
        if (place.length > 0 && !take(place))
            return;
    }
}

std::vector<FoundPlace> TextFinder::findAll(const QTextDocument& document, std::size_t most) const
{
    std::vector<FoundPlace> places;
    for (QTextBlock block = document.begin(); block.isValid() && places.size() < most; block = block.next()) {
        eachIn(block, [&](const FoundPlace& place) {
            places.push_back(place);
            return places.size() < most;
        });
    }
    return places;
}

std::optional<FoundPlace> TextFinder::findFrom(const QTextDocument& document, int position) const
{
    std::optional<FoundPlace> found;
    for (QTextBlock block = document.findBlock(position); block.isValid() && !found; block = block.next()) {
        eachIn(block, [&](const FoundPlace& place) {
            if (place.position >= position)
                found = place;
            return !found;
        });
    }
    return found;
}

std::optional<FoundPlace> TextFinder::findBefore(const QTextDocument& document, int position) const
{
    std::optional<FoundPlace> found;
    QTextBlock block = document.findBlock(position);
    for (block = block.isValid() ? block : document.lastBlock(); block.isValid() && !found;
         block = block.previous()) {
        eachIn(block, [&](const FoundPlace& place) {
            if (place.position < position)
                found = place;
            return place.position < position;
        });
    }
    return found;
}

QString TextFinder::replacementFor(const QString& found, const QString& replacement) const
{
    if (!m_isRegularExpression)
        return replacement;
    const QRegularExpressionMatch match = m_pattern.match(found);
    QString result;
    for (qsizetype index = 0; index < replacement.size(); ++index) {
        const bool isEscape = replacement[index] == u'\\' && index + 1 < replacement.size();
        if (!isEscape) {
            result += replacement[index];
            continue;
        }
        const QChar next = replacement[++index];
        if (next.isDigit())
            result += match.captured(next.digitValue());
        else if (next == u't')
            result += u'\t';
        else
            result += next;
    }
    return result;
}

} // namespace tw::desktop::manuscript
