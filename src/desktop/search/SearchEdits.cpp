#include "desktop/search/SearchEdits.h"

#include "app/search/Replacement.h"
#include "core/document/ActiveText.h"
#include "core/document/DocumentCommands.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::desktop::search {

using app::search::MatchField;
using app::search::TextMatch;
using app::search::TextMatcher;
using core::document::Document;

namespace {

std::vector<TextMatch> inField(const std::vector<TextMatch>& matches, MatchField field)
{
    std::vector<TextMatch> result;
    std::ranges::copy_if(matches, std::back_inserter(result), [field](const TextMatch& match) {
        return match.field == field;
    });
    return result;
}

/** Whether the matches still stand where they were found. */
bool isAsSearched(
    const Document& document, const TextMatcher& matcher, const app::search::DocumentMatches& found)
{
    const bool hasTitles = std::ranges::any_of(
        found.matches, [](const TextMatch& match) { return match.field != MatchField::Body; });
    const auto now = app::search::searchDocument(
        matcher, searchedDocument(document), {hasTitles, std::ssize(found.matches)});
    return now && now.value().matches == found.matches;
}

void replaceIn(
    shell::ProjectSession& session, Document& document, const TextMatcher& matcher,
    const std::vector<TextMatch>& chosen, const QString& replacement)
{
    using namespace core::document;
    if (const auto matches = inField(chosen, MatchField::Title); !matches.empty()) {
        session.apply(std::make_unique<SetDocumentTitleCommand>(
            document, app::search::replaceInText(document.title(), matcher, matches, replacement)));
    }
    if (const auto matches = inField(chosen, MatchField::Synopsis); !matches.empty()) {
        session.apply(std::make_unique<SetDocumentSynopsisCommand>(
            document, app::search::replaceInText(document.synopsis(), matcher, matches, replacement)));
    }
    if (const auto matches = inField(chosen, MatchField::Body); !matches.empty()) {
        session.apply(makeSetActiveTextCommand(
            document, app::search::buildReplacement(activeText(document), matcher, matches, replacement)));
    }
}

} // namespace

ReplacementOutcome replaceMatches(
    shell::ProjectSession& session, const TextMatcher& matcher,
    const std::vector<SearchModel::Checked>& checked, const QString& replacement)
{
    session.commitPendingEdits();
    ReplacementOutcome outcome;
    const auto step = session.macro(QCoreApplication::translate("UndoCommand", "Replace in the project"));
    for (const SearchModel::Checked& each : checked) {
        auto* const document = session.projectForCommands().findAsForEdit<Document>(each.all.id);
        if (!document || !isAsSearched(*document, matcher, each.all)) {
            ++outcome.changed;
        } else if (document->isLocked()) {
            ++outcome.locked;
        } else {
            replaceIn(session, *document, matcher, each.chosen, replacement);
            outcome.matches += std::ssize(each.chosen);
            ++outcome.documents;
        }
    }
    return outcome;
}

} // namespace tw::desktop::search
