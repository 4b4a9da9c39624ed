#include "app/style/WordTable.h"

#include "app/style/StyleTables.h"

#include <algorithm>
#include <bit>

namespace tw::app::style {

namespace {

/** So many slots for each word that most words of a text meet an empty one. */
constexpr std::size_t slotsPerWord = 16;

WordHash hashOf(QStringView word)
{
    WordHash hash;
    for (const QChar character : word)
        hash.add(character.unicode());
    return hash;
}

bool isSameWord(QStringView known, QStringView word)
{
    return std::ranges::equal(known, word, [](QChar left, QChar right) {
        return left.unicode() == WordHash::folded(right.unicode());
    });
}

} // namespace

const WordTable& WordTable::shared()
{
    static const WordTable table;
    return table;
}

WordTable::WordTable()
    : m_words(1)
    , m_roles(1)
{
    for (const QStringView word : auxiliaryVerbs())
        add(word, Auxiliary);
    for (const QStringView word : irregularParticiples())
        add(word, Participle);
    add(u"not", Negation);
    for (const std::span<const Phrase> phrases : {clichePhrases(), fillerPhrases(), wordyPhrases()}) {
        for (const Phrase& phrase : phrases) {
            for (const QStringView word : phrase.text.split(u' '))
                add(word, 0);
        }
    }
    index();
}

void WordTable::add(QStringView word, quint8 roles)
{
    const auto known = std::ranges::find(m_words, word);
    if (known != m_words.end()) {
        m_roles[static_cast<std::size_t>(known - m_words.begin())] |= roles;
        return;
    }
    m_words.push_back(word);
    m_roles.push_back(roles);
    m_longest = std::max(m_longest, word.size());
}

void WordTable::index()
{
    const std::size_t slotCount = std::bit_ceil(m_words.size() * slotsPerWord);
    m_mask = static_cast<quint32>(slotCount - 1);
    m_slots.resize(slotCount);
    const auto slotOf = [this](WordId id) { return hashOf(m_words[id]).value() & m_mask; };
    for (std::size_t id = 1; id < m_words.size(); ++id)
        m_order.push_back(static_cast<WordId>(id));
    std::ranges::sort(m_order, {}, slotOf);
    for (std::size_t place = 0; place < m_order.size(); ++place) {
        Slot& slot = m_slots[slotOf(m_order[place])];
        if (slot.first == slot.last)
            slot.first = static_cast<quint16>(place);
        slot.last = static_cast<quint16>(place + 1);
    }
}

WordId WordTable::find(QStringView word) const
{
    return find(word, hashOf(word));
}

WordId WordTable::findAmong(const Slot& slot, QStringView word) const
{
    for (quint16 place = slot.first; place < slot.last; ++place) {
        if (isSameWord(m_words[m_order[place]], word))
            return m_order[place];
    }
    return unknownWord;
}

} // namespace tw::app::style
