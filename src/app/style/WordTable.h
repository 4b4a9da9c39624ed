#pragma once

#include <QStringView>

#include <vector>

namespace tw::app::style {

/** Number of a word that the rules know; `unknownWord` for all others. */
using WordId = quint16;
inline constexpr WordId unknownWord = 0;

/** The hash of a word in the making, ignoring case as regular expressions do (long s is s, the kelvin sign
 * k). */
class WordHash
{
public:
    void add(char16_t unit)
    {
        m_value = (m_value ^ folded(unit)) * prime;
        ++m_units;
    }

    [[nodiscard]] quint32 value() const { return m_value; }
    [[nodiscard]] qsizetype units() const { return m_units; }

    [[nodiscard]] static char16_t folded(char16_t unit)
    {
        if (unit < 0x80) [[likely]]
            return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit | 0x20) : unit;
        if (unit == longS)
            return u's';
        return unit == kelvinSign ? u'k' : unit;
    }

private:
    static constexpr quint32 prime = 0x01000193;
    static constexpr char16_t longS = 0x017f;
    static constexpr char16_t kelvinSign = 0x212a;

    quint32 m_value = 0x811c9dc5;
    qsizetype m_units = 0;
};

/**
 * The words of all tables of the rules, each with a number: one lookup a word of the text serves every rule.
 * Built once a process; may be read from any thread.
 */
class WordTable
{
public:
    [[nodiscard]] static const WordTable& shared();

    /** `hash` is the word's own. */
    [[nodiscard]] WordId find(QStringView word, const WordHash& hash) const
    {
        if (hash.units() > m_longest)
            return unknownWord;
        const Slot& slot = m_slots[hash.value() & m_mask];
        if (slot.first == slot.last) [[likely]]
            return unknownWord;
        return findAmong(slot, word);
    }
    [[nodiscard]] WordId find(QStringView word) const;

    /** One more than the largest number. */
    [[nodiscard]] std::size_t size() const { return m_words.size(); }
    [[nodiscard]] bool isAuxiliary(WordId id) const { return (m_roles[id] & Auxiliary) != 0; }
    [[nodiscard]] bool isNegation(WordId id) const { return (m_roles[id] & Negation) != 0; }
    [[nodiscard]] bool isParticiple(WordId id) const { return (m_roles[id] & Participle) != 0; }

private:
    enum Role : quint8
    {
        Auxiliary = 1,
        Negation = 2,
        Participle = 4,
    };
    /** The words of one hash, as a range of m_order. */
    struct Slot
    {
        quint16 first = 0;
        quint16 last = 0;
    };

    WordTable();
    void add(QStringView word, quint8 roles);
    void index();
    [[nodiscard]] WordId findAmong(const Slot& slot, QStringView word) const;

    std::vector<QStringView> m_words;
    std::vector<quint8> m_roles;
    std::vector<WordId> m_order;
    std::vector<Slot> m_slots;
    quint32 m_mask = 0;
    qsizetype m_longest = 0;
};

} // namespace tw::app::style
