#include "app/style/PhraseTrie.h"

#include <algorithm>

namespace tw::app::style {

PhraseTrie::PhraseTrie(std::span<const Phrase> phrases)
    : m_phrases(phrases)
    , m_nodes(1)
    , m_starts(WordTable::shared().size(), noNode)
{
    for (std::size_t number = 0; number < phrases.size(); ++number)
        add(phrases[number].text, static_cast<int>(number));
    for (const Edge& edge : m_nodes.front().edges)
        m_starts[edge.word] = edge.target;
}

void PhraseTrie::add(QStringView phrase, int number)
{
    NodeIndex node = noNode;
    for (const QStringView word : phrase.split(u' ')) {
        const WordId id = WordTable::shared().find(word);
        NodeIndex next = following(node, id);
        if (next == noNode) {
            next = static_cast<NodeIndex>(m_nodes.size());
            m_nodes[node].edges.push_back({id, next});
            m_nodes.emplace_back();
        }
        node = next;
    }
    if (m_nodes[node].phrase == noPhrase)
        m_nodes[node].phrase = number;
}

PhraseTrie::NodeIndex PhraseTrie::following(NodeIndex node, WordId word) const
{
    const auto edge = std::ranges::find(m_nodes[node].edges, word, &Edge::word);
    return edge == m_nodes[node].edges.end() ? noNode : edge->target;
}

void PhraseTrie::forEachMatch(
    const ScannedText& text,
    const std::function<void(const Phrase& phrase, const Word& first, const Word& last)>& report) const
{
    const std::vector<Word>& words = text.words();
    for (std::size_t first = 0; first < words.size(); ++first) {
        if (m_starts[words[first].id] == noNode) [[likely]]
            continue;
        const Match match = matchAt(words, first);
        if (match.phrase == noPhrase)
            continue;
        report(m_phrases[static_cast<std::size_t>(match.phrase)], words[first], words[match.last]);
        first = match.last;
    }
}

PhraseTrie::Match PhraseTrie::matchAt(const std::vector<Word>& words, std::size_t first) const
{
    Match best;
    NodeIndex node = m_starts[words[first].id];
    for (std::size_t last = first; node != noNode;) {
        const int phrase = m_nodes[node].phrase;
        if (phrase != noPhrase && (best.phrase == noPhrase || phrase < best.phrase))
            best = {phrase, last};
        if (++last == words.size() || words[last].gap != Gap::Blank)
            break;
        node = following(node, words[last].id);
    }
    return best;
}

} // namespace tw::app::style
