#include "app/style/spelling/SpellingWords.h"

#include <algorithm>

namespace tw::app::style::spelling {

namespace {

using namespace Qt::StringLiterals;

constexpr char16_t softHyphen = u'\u00ad';
constexpr char16_t hyphen = u'\u2010';
constexpr char16_t firmHyphen = u'\u2011';
constexpr char16_t typographicApostrophe = u'\u2019';
constexpr char16_t nonJoiner = u'\u200c';
constexpr char16_t joiner = u'\u200d';

bool isWordUnit(QChar unit)
{
    // The scripts beyond the first plane are letters; what else lies there is no worse for standing alone.
    return unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate();
}

bool isHyphen(QChar unit)
{
    return unit == u'-' || unit == hyphen || unit == firmHyphen;
}

bool isApostrophe(QChar unit)
{
    return unit == u'\'' || unit == typographicApostrophe;
}

bool joinsWord(QChar unit)
{
    return isHyphen(unit) || isApostrophe(unit) || unit == softHyphen || unit == nonJoiner || unit == joiner;
}

bool hasDigit(QStringView word)
{
    return std::ranges::any_of(word, [](QChar unit) { return unit.isNumber(); });
}

/** Where in a run without white space an address begins that reaches to the run's end; the end when there is
 * none. */
qsizetype addressStart(QStringView run)
{
    if (run.contains(u'@'))
        return 0;
    const qsizetype page = run.indexOf("www."_L1, 0, Qt::CaseInsensitive);
    qsizetype scheme = run.indexOf("://"_L1);
    if (scheme < 0)
        return page < 0 ? run.size() : page;
    while (scheme > 0 && run[scheme - 1].isLetter())
        --scheme;
    return page < 0 ? scheme : std::min(scheme, page);
}

/** The end of the word that begins at `start`, no further than `end`. */
qsizetype wordEnd(QStringView text, qsizetype start, qsizetype end)
{
    qsizetype index = start;
    while (index < end) {
        const bool isInside = isWordUnit(text[index]) ||
                              (joinsWord(text[index]) && index + 1 < end && isWordUnit(text[index + 1]));
        if (!isInside)
            break;
        ++index;
    }
    return index;
}

void appendWords(QStringView text, qsizetype start, qsizetype end, std::vector<TextSpan>& words)
{
    for (qsizetype index = start; index < end;) {
        if (!isWordUnit(text[index])) {
            ++index;
            continue;
        }
        const TextSpan word{index, wordEnd(text, index, end) - index};
        if (!hasDigit(text.sliced(word.start, word.length)))
            words.push_back(word);
        index = word.end();
    }
}

} // namespace

std::vector<TextSpan> spellingWords(QStringView text)
{
    std::vector<TextSpan> words;
    for (qsizetype start = 0; start < text.size();) {
        if (text[start].isSpace()) {
            ++start;
            continue;
        }
        const auto space =
            std::find_if(text.begin() + start, text.end(), [](QChar unit) { return unit.isSpace(); });
        const qsizetype end = space - text.begin();
        const qsizetype address = addressStart(text.sliced(start, end - start));
        appendWords(text, start, start + address, words);
        start = end;
    }
    return words;
}

std::vector<TextSpan> hyphenatedParts(QStringView text, TextSpan word)
{
    std::vector<TextSpan> parts;
    qsizetype start = word.start;
    for (qsizetype index = word.start; index <= word.end(); ++index) {
        if (index < word.end() && !isHyphen(text[index]))
            continue;
        if (index > start)
            parts.push_back({start, index - start});
        start = index + 1;
    }
    return parts;
}

QString spellingForm(QStringView word)
{
    QString form = word.toString();
    const bool isPlain = std::ranges::all_of(word, [](QChar unit) { return unit.unicode() < 0x80; });
    if (isPlain)
        return form;
    form.remove(softHyphen);
    form.replace(typographicApostrophe, u'\'');
    form.replace(hyphen, u'-');
    form.replace(firmHyphen, u'-');
    return form.normalized(QString::NormalizationForm_C);
}

bool isAllCapitals(QStringView word)
{
    int letters = 0;
    for (const QChar unit : word) {
        if (!unit.isLetter())
            continue;
        if (!unit.isUpper())
            return false;
        ++letters;
    }
    return letters > 1;
}

QString withoutPossessive(const QString& word)
{
    if (word.endsWith("'s"_L1, Qt::CaseInsensitive))
        return word.chopped(2);
    return word.endsWith(u'\'') ? word.chopped(1) : word;
}

} // namespace tw::app::style::spelling
