#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tw::app::search {

/** A name as it is looked for: the case of letters, accents and the width of blanks do not count. */
struct FoldedName
{
    FoldedName() = default;
    explicit FoldedName(QStringView name);

    QString text;
    /** A bit for every letter that occurs; rare ones share theirs. */
    quint64 letters = 0;
};

/** How well a name fits what was typed, the best first. */
enum class NameRank : quint8
{
    Exact,
    /** The name begins with it. */
    Beginning,
    /** Every word typed begins a word of the name. */
    WordBeginnings,
    /** Every word typed stands somewhere in the name. */
    Inside,
    /** The letters typed occur in the name one after another, with others between. */
    LettersInOrder,
};

/** A few letters of a name, typed to find it. A value; const functions may be called from any thread. */
class NameQuery
{
public:
    explicit NameQuery(QStringView typed);

    [[nodiscard]] bool isEmpty() const { return m_words.isEmpty(); }
    /** None where the name does not fit at all. An empty query begins every name. */
    [[nodiscard]] std::optional<NameRank> rankOf(const FoldedName& name) const;

private:
    [[nodiscard]] bool hasLettersInOrder(QStringView text) const;

    FoldedName m_typed;
    QStringList m_words;
    /** The words without the blanks between. */
    QString m_letters;
};

} // namespace tw::app::search
