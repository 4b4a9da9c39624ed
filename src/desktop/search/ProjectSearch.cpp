#include "desktop/search/ProjectSearch.h"

#include "core/document/ActiveText.h"
#include "core/document/DocumentTree.h"
#include "desktop/shell/ProjectSession.h"

namespace tw::desktop::search {

using app::search::DocumentMatches;
using app::search::SearchedDocument;
using app::search::SearchScope;
using app::search::TextMatcher;
using core::ContentId;
using core::document::Document;

namespace {

/** Results are handed over in portions, so that the first ones are seen at once and few wake the window. */
constexpr std::size_t portion = 50;

std::vector<SearchedDocument> documentsInReadingOrder(const core::project::Project& project)
{
    const core::document::DocumentTree tree = core::document::documentTree(project);
    std::vector<SearchedDocument> documents;
    std::vector<ContentId> open{ContentId()};
    while (!open.empty()) {
        const ContentId id = open.back();
        open.pop_back();
        if (const auto* const document = project.findAs<Document>(id))
            documents.push_back(searchedDocument(*document));
        if (const auto children = tree.find(id); children != tree.end())
            open.insert(open.end(), children->second.rbegin(), children->second.rend());
    }
    return documents;
}

} // namespace

SearchedDocument searchedDocument(const Document& document)
{
    return {document.id(), document.title(), document.synopsis(), core::document::activeText(document)};
}

ProjectSearch::ProjectSearch(shell::ProjectSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    m_pool.setMaxThreadCount(1);
}

ProjectSearch::~ProjectSearch()
{
    cancel();
    m_pool.waitForDone();
}

void ProjectSearch::cancel()
{
    if (m_cancelled)
        *m_cancelled = true;
    m_cancelled.reset();
}

void ProjectSearch::start(const TextMatcher& matcher, const SearchScope& scope)
{
    cancel();
    m_session.commitPendingEdits();
    m_cancelled = std::make_shared<std::atomic_bool>(false);
    m_pool.start([this, documents = documentsInReadingOrder(m_session.project()), matcher, scope,
                  cancelled = m_cancelled] { run(documents, matcher, scope, cancelled); });
}

void ProjectSearch::run(
    const std::vector<SearchedDocument>& documents, const TextMatcher& matcher, SearchScope scope,
    const Flag& cancelled)
{
    Results results;
    SearchEnd end;
    for (const SearchedDocument& document : documents) {
        if (*cancelled)
            return;
        auto matches = app::search::searchDocument(matcher, document, scope);
        if (!matches) {
            end.failure = matches.message();
            break;
        }
        scope.mostMatches -= std::ssize(matches.value().matches);
        if (!matches.value().matches.empty())
            results.push_back(std::move(matches).value());
        if (results.size() == portion)
            post(cancelled, std::exchange(results, {}));
        end.isLimitReached = scope.mostMatches <= 0;
        if (end.isLimitReached)
            break;
    }
    post(cancelled, std::move(results));
    postEnd(cancelled, end);
}

void ProjectSearch::post(const Flag& search, Results results)
{
    if (results.empty())
        return;
    QMetaObject::invokeMethod(
        this,
        [this, search, results = std::move(results)] {
            if (m_cancelled == search)
                emit found(results);
        },
        Qt::QueuedConnection);
}

void ProjectSearch::postEnd(const Flag& search, const SearchEnd& end)
{
    QMetaObject::invokeMethod(
        this,
        [this, search, end] {
            if (m_cancelled != search)
                return;
            m_cancelled.reset();
            emit finished(end);
        },
        Qt::QueuedConnection);
}

} // namespace tw::desktop::search
