#include "app/text/WordDifference.h"

#include <QHash>

#include <algorithm>

namespace tw::app::text {

using core::foundation::DiffHunk;
using core::foundation::diffSequences;

namespace {

/** A text as tokens: where each begins, one more for the end, and numbers that are equal for equal tokens. */
struct Tokens
{
    std::vector<qsizetype> starts;
    std::vector<quint32> numbers;

    [[nodiscard]] IndexRange characters(IndexRange range) const
    {
        const qsizetype start = starts[static_cast<std::size_t>(range.first)];
        return {start, starts[static_cast<std::size_t>(range.end())] - start};
    }
};

bool isWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate() ||
           character == u'\'' || character == u'\u2019';
}

qsizetype endOfLine(QStringView text, qsizetype start)
{
    const qsizetype end = text.indexOf(u'\n', start);
    return end < 0 ? text.size() : end + 1;
}

/** Words, stretches of white space within a line, and every other character by itself. */
qsizetype endOfWord(QStringView text, qsizetype start)
{
    const auto isBlank = [](QChar character) { return character.isSpace() && character != u'\n'; };
    qsizetype end = start + 1;
    const auto goOn = [&](auto belongs) {
        while (end < text.size() && belongs(text[end]))
            ++end;
    };
    if (isWordCharacter(text[start]))
        goOn(isWordCharacter);
    else if (isBlank(text[start]))
        goOn(isBlank);
    return end;
}

class Tokenizer
{
public:
    using EndOf = qsizetype (*)(QStringView text, qsizetype start);

    explicit Tokenizer(EndOf endOf)
        : m_endOf(endOf)
    {}

    [[nodiscard]] Tokens read(QStringView text)
    {
        Tokens tokens;
        for (qsizetype start = 0; start < text.size();) {
            const qsizetype end = m_endOf(text, start);
            const QStringView token = text.sliced(start, end - start);
            const auto fresh = static_cast<quint32>(m_numbers.size());
            const auto known = m_numbers.constFind(token);
            tokens.numbers.push_back(known == m_numbers.cend() ? fresh : *known);
            if (known == m_numbers.cend())
                m_numbers.insert(token, fresh);
            tokens.starts.push_back(start);
            start = end;
        }
        tokens.starts.push_back(text.size());
        return tokens;
    }

private:
    EndOf m_endOf;
    QHash<QStringView, quint32> m_numbers;
};

bool isBlank(QStringView text)
{
    return std::ranges::all_of(
        text, [](QChar character) { return character.isSpace() && character != u'\n'; });
}

/** The differing words of one passage; changes with nothing but blanks between them are one. */
std::vector<DiffHunk> compareWords(QStringView before, QStringView after)
{
    Tokenizer tokenizer(endOfWord);
    const Tokens beforeTokens = tokenizer.read(before);
    const Tokens afterTokens = tokenizer.read(after);
    std::vector<DiffHunk> words;
    for (const DiffHunk& hunk : diffSequences(beforeTokens.numbers, afterTokens.numbers)) {
        const DiffHunk change{beforeTokens.characters(hunk.before), afterTokens.characters(hunk.after)};
        DiffHunk* const last = words.empty() ? nullptr : &words.back();
        if (last && isBlank(before.sliced(last->before.end(), change.before.first - last->before.end()))) {
            last->before.count = change.before.end() - last->before.first;
            last->after.count = change.after.end() - last->after.first;
        } else {
            words.push_back(change);
        }
    }
    return words;
}

} // namespace

std::vector<ChangedPassage> compareTexts(QStringView before, QStringView after)
{
    Tokenizer tokenizer(endOfLine);
    const Tokens beforeLines = tokenizer.read(before);
    const Tokens afterLines = tokenizer.read(after);
    std::vector<ChangedPassage> passages;
    for (const DiffHunk& hunk : diffSequences(beforeLines.numbers, afterLines.numbers)) {
        ChangedPassage passage{beforeLines.characters(hunk.before), afterLines.characters(hunk.after), {}};
        passage.words = compareWords(
            before.sliced(passage.before.first, passage.before.count),
            after.sliced(passage.after.first, passage.after.count));
        for (DiffHunk& word : passage.words) {
            word.before.first += passage.before.first;
            word.after.first += passage.after.first;
        }
        passages.push_back(std::move(passage));
    }
    return passages;
}

QString withPassageRestored(QStringView before, const QString& after, const ChangedPassage& passage)
{
    QString text = after;
    return text.replace(
        passage.after.first, passage.after.count,
        before.sliced(passage.before.first, passage.before.count).toString());
}

std::vector<DifferencePiece> layOver(
    QStringView before, QStringView after, const std::vector<ChangedPassage>& passages)
{
    std::vector<DifferencePiece> pieces;
    qsizetype position = 0;
    const auto add = [&pieces](PieceKind kind, QStringView text, int passage) {
        if (!text.isEmpty())
            pieces.push_back({kind, text.toString(), passage});
    };
    const auto addSame = [&](qsizetype end, int passage) {
        add(PieceKind::Same, after.sliced(position, end - position), passage);
        position = end;
    };
    for (std::size_t index = 0; index < passages.size(); ++index) {
        const ChangedPassage& passage = passages[index];
        const auto number = static_cast<int>(index);
        addSame(passage.after.first, -1);
        for (const DiffHunk& word : passage.words) {
            addSame(word.after.first, number);
            add(PieceKind::Removed, before.sliced(word.before.first, word.before.count), number);
            add(PieceKind::Added, after.sliced(word.after.first, word.after.count), number);
            position = word.after.end();
        }
        addSame(passage.after.end(), number);
    }
    addSame(after.size(), -1);
    return pieces;
}

} // namespace tw::app::text
