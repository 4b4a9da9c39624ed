#pragma once

#include "app/style/ScannedText.h"
#include "app/style/StyleTables.h"

#include <functional>
#include <span>
#include <vector>

namespace tw::app::style {

/**
 * Finds the phrases of a table in a text, whole words only: at the first place where any of them stands, the
 * one that comes first in the table, and on from its end. May be used from any thread.
 */
class PhraseTrie
{
public:
    /** The table must outlive the trie. */
    explicit PhraseTrie(std::span<const Phrase> phrases);

    /** Calls with the phrase and with its first and last word, in the order of the text. */
    void forEachMatch(
        const ScannedText& text,
        const std::function<void(const Phrase& phrase, const Word& first, const Word& last)>& report) const;

private:
    using NodeIndex = quint16;
    static constexpr NodeIndex noNode = 0;
    static constexpr int noPhrase = -1;

    struct Edge
    {
        WordId word;
        NodeIndex target;
    };
    /** The words up to here; node 0 stands for none. */
    struct Node
    {
        std::vector<Edge> edges;
        int phrase = noPhrase;
    };
    struct Match
    {
        int phrase = noPhrase;
        std::size_t last = 0;
    };

    void add(QStringView phrase, int number);
    [[nodiscard]] NodeIndex following(NodeIndex node, WordId word) const;
    [[nodiscard]] Match matchAt(const std::vector<Word>& words, std::size_t first) const;

    std::span<const Phrase> m_phrases;
    std::vector<Node> m_nodes;
    /** The node after each first word, by its number. */
    std::vector<NodeIndex> m_starts;
};

} // namespace tw::app::style
