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

/** Replaces in one of the document's texts; nothing is done where nothing would change. */
template <class Command>
qsizetype replaceInLine(
    shell::ProjectSession& session, Document& document, const QString& text, const TextMatcher& matcher,
    const std::vector<TextMatch>& matches, const QString& replacement)
{
    auto replaced = app::search::replaceInText(text, matcher, matches, replacement);
    if (replaced.made > 0)
        session.apply(std::make_unique<Command>(document, std::move(replaced.text)));
    return replaced.made;
}

void replaceIn(
    shell::ProjectSession& session, Document& document, const TextMatcher& matcher,
    const std::vector<TextMatch>& chosen, const QString& replacement, ReplacementOutcome& outcome)
{
    using namespace core::document;
    qsizetype made = replaceInLine<SetDocumentTitleCommand>(
        session, document, document.title(), matcher, inField(chosen, MatchField::Title), replacement);
    made += replaceInLine<SetDocumentSynopsisCommand>(
        session, document, document.synopsis(), matcher, inField(chosen, MatchField::Synopsis), replacement);
    auto body = app::search::buildReplacement(
        activeText(document), matcher, inField(chosen, MatchField::Body), replacement);
    if (body.made > 0)
        session.apply(makeSetActiveTextCommand(document, std::move(body.text)));
    made += body.made;
    outcome.matches += made;
    outcome.refused += body.refused;
    outcome.documents += made > 0 ? 1 : 0;
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
            replaceIn(session, *document, matcher, each.chosen, replacement, outcome);
        }
    }
    return outcome;
}

} // namespace tw::desktop::search
