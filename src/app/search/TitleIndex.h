#pragma once

#include "app/search/NameQuery.h"
#include "core/content/ContentKind.h"
#include "core/foundation/Id.h"

#include <set>
#include <vector>

namespace tw::core::content {
class ContentObject;
}
namespace tw::core::project {
class Project;
}

namespace tw::app::search {

/** Which objects are found. */
struct TitleScope
{
    std::set<core::content::ContentKind> kinds;
    /** Only what this audience may see; empty for everything. */
    QString audience;
};

/** An object that was found by its title or, an entity, by an alias. */
struct TitleHit
{
    core::ContentId id;
    /** The position of the library it stands in; -1 for the project itself. */
    qsizetype library = -1;
    /** What it was found by, if that is not its title. */
    QString alias;
    NameRank rank = NameRank::Exact;
};

/**
 * The titles of a project and of its libraries, and the aliases of entities, prepared so that a few letters
 * find them in one pass, however they are written. A value that keeps nothing of the projects it was made of;
 * whoever owns it says what moved. Objects without a title are not found.
 */
class TitleIndex
{
public:
    /** Of objects that stand in several, the project counts before the libraries, and those in their order.
     */
    TitleIndex(
        TitleScope scope, const core::project::Project& project,
        const std::vector<const core::project::Project*>& libraries);

    /** Takes up objects of the project that came, went or changed. */
    void update(const core::project::Project& project, const std::set<core::ContentId>& moved);

    /**
     * The best hits, each object once, at most so many: by rank; then the project's own before those of
     * libraries, titles before aliases, short ones before long ones. Nothing for an empty query.
     */
    [[nodiscard]] std::vector<TitleHit> find(const NameQuery& query, qsizetype most) const;

private:
    struct Entry
    {
        core::ContentId id;
        qint32 library = -1;
        /** Null for a title. */
        QString alias;
        FoldedName name;
    };

    void add(const core::content::ContentObject& object, qint32 library);

    TitleScope m_scope;
    std::vector<Entry> m_entries;
};

} // namespace tw::app::search
