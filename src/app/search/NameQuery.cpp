#include "app/search/NameQuery.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tw::app::search {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Letters that Unicode does not take apart, though a writer in a hurry does. */
constexpr std::array<std::pair<char16_t, QLatin1StringView>, 10> plainLetters{{
    {u'ø', "o"_L1},
    {u'ł', "l"_L1},
    {u'đ', "d"_L1},
    {u'ð', "d"_L1},
    {u'ħ', "h"_L1},
    {u'ı', "i"_L1},
    {u'æ', "ae"_L1},
    {u'œ', "oe"_L1},
    {u'þ', "th"_L1},
    {u'ß', "ss"_L1},
}};

constexpr char16_t lastAscii = 0x7f;

/** An accent; not the vowel signs of scripts that are nothing without them. */
bool isAccent(QChar character)
{
    return character.isMark() && character.script() == QChar::Script_Inherited;
}

QString folded(QStringView name)
{
    const auto isAscii = [](QChar character) { return character.unicode() <= lastAscii; };
    QString text = name.toString();
    if (!std::ranges::all_of(name, isAscii))
        text = text.normalized(QString::NormalizationForm_KD);
    text = text.toCaseFolded().simplified();
    if (std::ranges::all_of(text, isAscii))
        return text;
    QString plain;
    plain.reserve(text.size());
    for (const QChar character : std::as_const(text)) {
        if (isAscii(character)) {
            plain += character;
            continue;
        }
        const auto* const letter = std::ranges::find(
            plainLetters, character.unicode(), &std::pair<char16_t, QLatin1StringView>::first);
        if (letter != plainLetters.end())
            plain += letter->second;
        else if (!isAccent(character))
            plain += character;
    }
    return plain;
}

/** Blanks have no bit: words may stand in any order. */
quint64 lettersOf(QStringView text)
{
    constexpr unsigned digitsFrom = 26;
    constexpr unsigned othersFrom = 36;
    constexpr unsigned bits = 64;
    quint64 letters = 0;
    for (const QChar character : text) {
        const unsigned code = character.unicode();
        if (code >= 'a' && code <= 'z')
            letters |= quint64(1) << (code - 'a');
        else if (code >= '0' && code <= '9')
            letters |= quint64(1) << (digitsFrom + code - '0');
        else if (code != ' ')
            letters |= quint64(1) << (othersFrom + code % (bits - othersFrom));
    }
    return letters;
}

enum class WordPlace
{
    Nowhere,
    Inside,
    Beginning,
};

WordPlace placeOf(const QString& word, const QString& text)
{
    WordPlace best = WordPlace::Nowhere;
    for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        if (at == 0 || !text[at - 1].isLetterOrNumber())
            return WordPlace::Beginning;
        best = WordPlace::Inside;
    }
    return best;
}

} // namespace

FoldedName::FoldedName(QStringView name)
    : text(folded(name))
    , letters(lettersOf(text))
{}

NameQuery::NameQuery(QStringView typed)
    : m_typed(typed)
    , m_words(m_typed.text.split(u' ', Qt::SkipEmptyParts))
    , m_letters(m_words.join(QString()))
{}

std::optional<NameRank> NameQuery::rankOf(const FoldedName& name) const
{
    // Most names lack one of the letters, and need no closer look.
    if ((m_typed.letters & ~name.letters) != 0)
        return std::nullopt;
    if (name.text.startsWith(m_typed.text))
        return name.text.size() == m_typed.text.size() ? NameRank::Exact : NameRank::Beginning;
    NameRank rank = NameRank::WordBeginnings;
    for (const QString& word : m_words) {
        const WordPlace place = placeOf(word, name.text);
        if (place == WordPlace::Nowhere) {
            return hasLettersInOrder(name.text) ? std::optional(NameRank::LettersInOrder) : std::nullopt;
        }
        if (place == WordPlace::Inside)
            rank = NameRank::Inside;
    }
    return rank;
}

bool NameQuery::hasLettersInOrder(QStringView text) const
{
    auto wanted = m_letters.cbegin();
    for (auto letter = text.begin(); letter != text.end() && wanted != m_letters.cend(); ++letter) {
        if (*letter == *wanted)
            ++wanted;
    }
    return wanted == m_letters.cend();
}

} // namespace tw::app::search
