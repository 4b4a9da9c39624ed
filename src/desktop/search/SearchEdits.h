#pragma once

#include "app/search/TextQuery.h"
#include "desktop/search/SearchModel.h"

namespace tw::desktop::search {

/** What came of a replacement. */
struct ReplacementOutcome
{
    /** Those that read differently now. */
    qsizetype matches = 0;
    qsizetype documents = 0;
    /** Matches left alone because their marks cannot be taken apart. */
    qsizetype refused = 0;
    /** Documents left alone because they are locked. */
    qsizetype locked = 0;
    /** Documents left alone because they are not what was searched any more. */
    qsizetype changed = 0;
};

/** Replaces the chosen matches in titles, synopses and texts as one undo step. */
ReplacementOutcome replaceMatches(
    shell::ProjectSession& session, const app::search::TextMatcher& matcher,
    const std::vector<SearchModel::Checked>& checked, const QString& replacement);

} // namespace tw::desktop::search
