#pragma once

#include "core/foundation/Result.h"
#include "core/taxonomy/Category.h"

#include <map>
#include <optional>
#include <vector>

namespace tw::core::taxonomy {

/**
 * The categories of a project and the walks over their parent links. A value; owned by the project.
 *
 * Everything here follows `parentId` alone and survives damaged links: unknown parents end a walk, loops
 * stop at the first repeat. What crosses from an entity is in core/entity/Schema.h.
 */
class Taxonomy
{
public:
    using CategoryMap = std::map<CategoryId, Category>;

    [[nodiscard]] const CategoryMap& categories() const { return m_categories; }

    /** None when there is no such category. The pointer holds until the taxonomy changes. */
    [[nodiscard]] const Category* category(const CategoryId& id) const;
    [[nodiscard]] Category* categoryForEdit(const CategoryId& id);

    /** Files the category under its id; one that was there is replaced. */
    void insert(Category category);
    void remove(const CategoryId& id);

    /** The category and its ancestors, root first; empty for an unknown id. */
    [[nodiscard]] std::vector<CategoryId> ancestorChain(const CategoryId& id) const;

    /**
     * All that the chain declares: a descendant's declaration of a key replaces the ancestor's in place, so
     * the order is that in which keys first appear from the root down. Excluded keys are still here.
     */
    [[nodiscard]] FieldList effectiveFields(const CategoryId& id) const;

    /** The categories of the chain that declare the key themselves, root first. */
    [[nodiscard]] std::vector<CategoryId> categoriesDefining(const CategoryId& id, QStringView key) const;

    /** Direct subcategories (null: the top level), by sort index, then name, then id. */
    [[nodiscard]] std::vector<CategoryId> childrenOf(const CategoryId& parentId) const;
    /** The categories that hang under an entity, in the same order. */
    [[nodiscard]] std::vector<CategoryId> childrenUnderEntity(const ContentId& entityId) const;

    /** True for the category itself and for everything beneath it. */
    [[nodiscard]] bool isSameOrBeneath(const CategoryId& id, const CategoryId& ancestorId) const;

    /** Whether the move is possible; the messages are for the user. */
    [[nodiscard]] Result<void> checkReparent(const CategoryId& id, const CategoryId& newParentId) const;

    /** Checks, then moves; a category that hung under an entity leaves it. */
    Result<void> reparent(const CategoryId& id, const CategoryId& newParentId);

    friend bool operator==(const Taxonomy&, const Taxonomy&) = default;

private:
    template <class Predicate>
    [[nodiscard]] std::vector<CategoryId> sortedSiblings(Predicate isSibling) const;

    CategoryMap m_categories;
};

/** The position of an own field with that key, or none. */
[[nodiscard]] std::optional<std::size_t> indexOfField(const Category& category, QStringView key);

} // namespace tw::core::taxonomy
