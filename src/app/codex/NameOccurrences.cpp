#include "app/codex/NameOccurrences.h"

#include "app/search/Replacement.h"
#include "core/document/markup/LegacyHtml.h"
#include "core/document/markup/PlainText.h"

namespace tw::app::codex {

using core::document::BodyFormat;
using core::document::DocumentBody;
using core::document::DocumentKind;
using core::document::markup::PlainText;
using core::foundation::IndexRange;

namespace {

QString withRangesReplaced(
    const QString& text, const std::vector<IndexRange>& ranges, const QString& replacement)
{
    QString result;
    result.reserve(text.size() + std::ssize(ranges) * replacement.size());
    qsizetype position = 0;
    for (const IndexRange& range : ranges) {
        result += QStringView(text).sliced(position, range.first - position);
        result += replacement;
        position = range.end();
    }
    return result += QStringView(text).sliced(position);
}

/** The matches as the engine of replacements takes them; none reaches over the border of two blocks. */
std::vector<search::TextMatch> matchesIn(const PlainText& plain, const QString& name)
{
    std::vector<search::TextMatch> matches;
    auto part = plain.parts().begin();
    for (const IndexRange& range : findName(plain.text(), name)) {
        while (part != plain.parts().end() && part->start + part->length < range.end())
            ++part;
        if (part == plain.parts().end() || range.first < part->start)
            continue;
        const qsizetype start = plain.toBody(range.first);
        matches.push_back(
            {search::MatchField::Body, range, {start, plain.endInBody(range.end()) - start}, {}, {}, {}});
    }
    return matches;
}

std::vector<IndexRange> rangesOf(
    const std::vector<search::TextMatch>& matches, IndexRange search::TextMatch::*which)
{
    std::vector<IndexRange> ranges;
    ranges.reserve(matches.size());
    for (const search::TextMatch& match : matches)
        ranges.push_back(match.*which);
    return ranges;
}

} // namespace

bool isWordCharacter(char32_t character)
{
    return QChar::isLetterOrNumber(character) || QChar::isMark(character);
}

char32_t characterBefore(QStringView text, qsizetype index)
{
    if (index <= 0)
        return 0;
    const QChar last = text[index - 1];
    if (last.isLowSurrogate() && index >= 2 && text[index - 2].isHighSurrogate())
        return QChar::surrogateToUcs4(text[index - 2], last);
    return last.unicode();
}

char32_t characterAt(QStringView text, qsizetype index)
{
    if (index >= text.size())
        return 0;
    const QChar first = text[index];
    if (first.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(first, text[index + 1]);
    return first.unicode();
}

std::vector<IndexRange> findName(QStringView text, QStringView name)
{
    std::vector<IndexRange> ranges;
    if (name.isEmpty())
        return ranges;
    const bool beginsAsWord = isWordCharacter(characterAt(name, 0));
    const bool endsAsWord = isWordCharacter(characterBefore(name, name.size()));
    for (qsizetype start = text.indexOf(name); start >= 0;) {
        const qsizetype end = start + name.size();
        const bool goesOn = (beginsAsWord && isWordCharacter(characterBefore(text, start))) ||
                            (endsAsWord && isWordCharacter(characterAt(text, end)));
        if (!goesOn)
            ranges.push_back({start, name.size()});
        start = text.indexOf(name, goesOn ? start + 1 : end);
    }
    return ranges;
}

Renamed<QString> renamedText(const QString& text, const NameChange& change)
{
    const std::vector<IndexRange> ranges = findName(text, change.oldName);
    if (ranges.empty())
        return {text, 0};
    return {withRangesReplaced(text, ranges, change.newName), std::ssize(ranges)};
}

Renamed<DocumentBody> renamedBody(const DocumentBody& body, DocumentKind kind, const NameChange& change)
{
    if (kind == DocumentKind::Screenplay && body.format == BodyFormat::Markdown) {
        // A screenplay is plain text: nothing in it is a mark.
        Renamed<QString> renamed = renamedText(body.text, change);
        return {{std::move(renamed.text), body.format}, renamed.count};
    }
    const QString source = core::document::markup::markdownOf(body);
    const PlainText plain(source);
    const std::vector<search::TextMatch> matches = matchesIn(plain, change.oldName);
    if (matches.empty())
        return {body, 0};
    const qsizetype count = std::ssize(matches);

    // Names put in place in the source leave all else untouched, unless they read differently there.
    const QString spliced =
        withRangesReplaced(source, rangesOf(matches, &search::TextMatch::source), change.newName);
    const QString expected =
        withRangesReplaced(plain.text(), rangesOf(matches, &search::TextMatch::range), change.newName);
    if (PlainText(spliced).text() == expected)
        return {{spliced, BodyFormat::Markdown}, count};
    const auto matcher = search::TextMatcher::create({change.oldName, true});
    auto replaced = search::buildReplacement({source}, matcher.value(), matches, change.newName);
    return {std::move(replaced.text), replaced.made};
}

} // namespace tw::app::codex
