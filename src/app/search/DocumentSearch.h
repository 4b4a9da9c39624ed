#pragma once

#include "app/search/TextQuery.h"
#include "core/content/ContentObject.h"
#include "core/document/Document.h"

namespace tw::app::search {

enum class MatchField
{
    Title,
    Synopsis,
    Body,
};

/** One match with the text around it. */
struct TextMatch
{
    MatchField field = MatchField::Body;
    /** In the title or the synopsis, or in the plain prose of the body. */
    IndexRange range;
    /** Where it stands in the body as Markdown; as `range` in the other fields. */
    IndexRange source;
    /** A little of the line before and after, in one line. */
    QString before = {};
    QString found = {};
    QString after = {};
    /** As TextMatcher::groupsOf() gives them. */
    QStringList groups = {};

    friend bool operator==(const TextMatch&, const TextMatch&) = default;
};

/** What is looked through of one document: copies, so that a thread of its own may do it. */
struct SearchedDocument
{
    core::ContentId id;
    QString title;
    QString synopsis;
    core::document::DocumentBody body;
};

struct SearchScope
{
    /** Titles and synopses as well. */
    bool hasTitles = true;
    /** In all documents together; what is beyond is not looked for. */
    qsizetype mostMatches = 5000;

    friend bool operator==(const SearchScope&, const SearchScope&) = default;
};

struct DocumentMatches
{
    core::ContentId id;
    QString title;
    /** In the order of the text. */
    std::vector<TextMatch> matches;
};

/** The matches in the plain prose of a body, none across the border of two blocks. */
[[nodiscard]] core::Result<std::vector<TextMatch>> findMatches(
    const TextMatcher& matcher, const core::document::DocumentBody& body, qsizetype most);

/** The matches in one document, titles first. */
[[nodiscard]] core::Result<DocumentMatches> searchDocument(
    const TextMatcher& matcher, const SearchedDocument& document, const SearchScope& scope);

} // namespace tw::app::search
