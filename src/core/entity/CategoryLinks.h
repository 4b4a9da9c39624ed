#pragma once

#include "core/project/Project.h"

#include <QHash>
#include <QSet>

namespace tw::core::entity {

/** What a category stands under: a category, an entity, or, with both null, nothing. */
struct CategoryParent
{
    CategoryId categoryId;
    ContentId entityId;

    [[nodiscard]] bool isNull() const { return categoryId.isNull() && entityId.isNull(); }
};

/**
 * Where every category of a project stands once damaged links are mended: an unknown parent is none, and a
 * loop, which may lead through entities, is cut at one place. A snapshot; the project must not change while
 * it is used.
 */
class CategoryLinks
{
public:
    explicit CategoryLinks(const project::Project& project);

    [[nodiscard]] CategoryParent parentOf(const taxonomy::Category& category) const;

    /** The categories at the top level that say they stand elsewhere. */
    [[nodiscard]] std::vector<CategoryId> strays() const;

private:
    enum class Walk
    {
        OnTheWay,
        Done,
    };

    void findLoop(const taxonomy::Category& start);
    [[nodiscard]] const taxonomy::Category* categoryAbove(const taxonomy::Category& category) const;

    const project::Project& m_project;
    QHash<CategoryId, Walk> m_walked;
    QSet<CategoryId> m_loopHeads;
};

} // namespace tw::core::entity
