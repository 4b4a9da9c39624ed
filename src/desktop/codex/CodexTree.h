#pragma once

#include "core/project/Project.h"
#include "desktop/codex/CodexItem.h"

#include <QCollator>
#include <QHash>

#include <optional>
#include <vector>

namespace tw::desktop::codex {

/** Compares names as a reader sorts them; remembers what it worked out, since a codex is sorted often. */
class NameOrder
{
public:
    NameOrder();

    [[nodiscard]] QCollatorSortKey key(const QString& name);

private:
    QCollator m_collator;
    QHash<QString, QCollatorSortKey> m_keys;
};

/**
 * The shape of the codex: categories by sort order, beneath a category its subcategories and then its
 * entities, beneath an entity the categories that hang under it. What a damaged link leaves without a way to
 * the top stands at the top level. A value; nodes are addressed by their index, the root is node 0.
 */
class CodexTree
{
public:
    struct Node
    {
        CodexItem item;
        std::size_t parent = 0;
        /** Children stand one after the other. */
        std::size_t firstChild = 0;
        std::size_t childCount = 0;
        /** Entities anywhere beneath. */
        int entityCount = 0;

        friend bool operator==(const Node&, const Node&) = default;
    };

    static constexpr std::size_t root = 0;

    CodexTree();
    CodexTree(const core::project::Project& project, NameOrder& order);

    [[nodiscard]] const Node& node(std::size_t index) const { return m_nodes[index]; }
    [[nodiscard]] std::size_t nodeCount() const { return m_nodes.size(); }
    [[nodiscard]] std::optional<std::size_t> find(const CodexItem& item) const;
    /** The position among its parent's children. */
    [[nodiscard]] int rowOf(std::size_t index) const;

    /** Equal shape, whatever the things are called. */
    friend bool operator==(const CodexTree& left, const CodexTree& right)
    {
        return left.m_nodes == right.m_nodes;
    }

private:
    std::vector<Node> m_nodes;
    QHash<CodexItem, std::size_t> m_indexes;
};

} // namespace tw::desktop::codex
