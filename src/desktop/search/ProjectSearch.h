#pragma once

#include "app/search/DocumentSearch.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <vector>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::search {

using Results = std::vector<app::search::DocumentMatches>;

/** How a search ended. */
struct SearchEnd
{
    /** Why it could not be done; empty when it could. */
    QString failure;
    /** There may be more than was found. */
    bool isLimitReached = false;
};

/**
 * Looks through the project's documents in reading order, on a thread of its own over copies of the texts, so
 * that typing goes on. A new search ends the one before; nothing of that one is heard any more.
 */
class ProjectSearch final : public QObject
{
    Q_OBJECT

public:
    ProjectSearch(shell::ProjectSession& session, QObject* parent);
    ~ProjectSearch() override;

    void start(const app::search::TextMatcher& matcher, const app::search::SearchScope& scope);
    void cancel();
    [[nodiscard]] bool isRunning() const { return m_cancelled != nullptr; }

signals:
    /** Documents with matches, as they are found. */
    void found(const tw::desktop::search::Results& results);
    /** Not after cancel(). */
    void finished(const tw::desktop::search::SearchEnd& end);

private:
    using Flag = std::shared_ptr<std::atomic_bool>;

    void run(
        const std::vector<app::search::SearchedDocument>& documents, const app::search::TextMatcher& matcher,
        app::search::SearchScope scope, const Flag& cancelled);
    /** Hands results over to the main thread. */
    void post(const Flag& search, Results results);
    void postEnd(const Flag& search, const SearchEnd& end);

    shell::ProjectSession& m_session;
    /** Set while a search runs; raised, it ends. */
    Flag m_cancelled;
    QThreadPool m_pool;
};

/** What is searched of one document; see ActiveText.h for which text that is. */
[[nodiscard]] app::search::SearchedDocument searchedDocument(const core::document::Document& document);

} // namespace tw::desktop::search
