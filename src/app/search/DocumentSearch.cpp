#include "app/search/DocumentSearch.h"

#include "core/document/markup/LegacyHtml.h"
#include "core/document/markup/PlainText.h"

#include <algorithm>

namespace tw::app::search {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::document::markup::PlainPart;
using core::document::markup::PlainText;

namespace {

/** Characters of context on either side. */
constexpr qsizetype contextLength = 40;

QString inOneLine(QString text)
{
    return text.replace(u'\n', u' ').replace(u'\t', u' ');
}

TextMatch matchIn(const TextMatcher& matcher, const QString& text, MatchField field, IndexRange range)
{
    const qsizetype start = std::max<qsizetype>(range.first - contextLength, 0);
    const qsizetype end = std::min(range.end() + contextLength, text.size());
    return {
        field,
        range,
        range,
        inOneLine((start > 0 ? u"…"_s : QString()) + text.sliced(start, range.first - start)),
        inOneLine(text.sliced(range.first, range.count)),
        inOneLine(text.sliced(range.end(), end - range.end()) + (end < text.size() ? u"…"_s : QString())),
        matcher.groupsOf(text, range)};
}

} // namespace

Result<std::vector<TextMatch>> findMatches(
    const TextMatcher& matcher, const core::document::DocumentBody& body, qsizetype most)
{
    const PlainText plain(core::document::markup::markdownOf(body));
    const auto found = matcher.findIn(plain.text(), most);
    if (!found)
        return Failure{found.message()};
    std::vector<TextMatch> matches;
    auto part = plain.parts().begin();
    for (const IndexRange& range : found.value()) {
        while (part != plain.parts().end() && part->start + part->length < range.end())
            ++part;
        if (part == plain.parts().end())
            break;
        if (range.first < part->start)
            continue;
        TextMatch match = matchIn(matcher, plain.text(), MatchField::Body, range);
        match.source.first = plain.toBody(range.first);
        match.source.count = plain.endInBody(range.end()) - match.source.first;
        matches.push_back(std::move(match));
    }
    return matches;
}

Result<DocumentMatches> searchDocument(
    const TextMatcher& matcher, const SearchedDocument& document, const SearchScope& scope)
{
    DocumentMatches result{document.id, document.title, {}};
    const auto left = [&] { return scope.mostMatches - std::ssize(result.matches); };
    if (scope.hasTitles) {
        for (const auto& [text, field] :
             {std::pair(document.title, MatchField::Title),
              std::pair(document.synopsis, MatchField::Synopsis)}) {
            const auto found = matcher.findIn(text, left());
            if (!found)
                return Failure{found.message()};
            for (const IndexRange& range : found.value())
                result.matches.push_back(matchIn(matcher, text, field, range));
        }
    }
    auto found = findMatches(matcher, document.body, left());
    if (!found)
        return Failure{found.message()};
    std::ranges::move(found.value(), std::back_inserter(result.matches));
    return result;
}

} // namespace tw::app::search
