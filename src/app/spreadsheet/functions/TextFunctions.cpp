#include "app/spreadsheet/Criterion.h"
#include "app/spreadsheet/FunctionArguments.h"
#include "app/spreadsheet/NumberFormat.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::spreadsheet {

namespace {

/** Places count characters as people do, not halves of those beyond the basic plane. */
using Characters = QList<uint>;

QString textOf(const Characters& characters)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());
}

/** A count that a formula gives, cut to what a text can have; none below `least`. */
std::optional<qsizetype> countOf(double number, qsizetype least)
{
    if (!(number >= static_cast<double>(least)))
        return std::nullopt;
    return static_cast<qsizetype>(std::min(number, static_cast<double>(mostTextCharacters + 1)));
}

CellValue slice(const QString& text, qsizetype from, qsizetype count)
{
    const Characters characters = text.toUcs4();
    const qsizetype begin = std::clamp<qsizetype>(from, 0, characters.size());
    return textOf(characters.sliced(begin, std::min(count, characters.size() - begin)));
}

CellValue left(const QString& text, std::optional<double> wanted)
{
    const auto count = countOf(wanted.value_or(1), 0);
    return count ? slice(text, 0, *count) : CellValue(CellError::BadValue);
}

CellValue right(const QString& text, std::optional<double> wanted)
{
    const auto count = countOf(wanted.value_or(1), 0);
    if (!count)
        return CellError::BadValue;
    const qsizetype size = text.toUcs4().size();
    return slice(text, size - std::min(size, *count), *count);
}

CellValue middle(const QString& text, double start, double wanted)
{
    const auto from = countOf(start, 1);
    const auto count = countOf(wanted, 0);
    return from && count ? slice(text, *from - 1, *count) : CellValue(CellError::BadValue);
}

double lengthOf(const QString& text)
{
    return static_cast<double>(text.toUcs4().size());
}

CellValue upper(const QString& text)
{
    return boundedText(text.toUpper());
}

QString lower(const QString& text)
{
    return text.toLower();
}

CellValue proper(const QString& text)
{
    QString result = text.toLower();
    bool isInWord = false;
    for (QChar& character : result) {
        if (!isInWord)
            character = character.toUpper();
        isInWord = character.isLetter();
    }
    return result;
}

QString trimmed(const QString& text)
{
    return text.simplified();
}

bool isExact(const QString& one, const QString& other)
{
    return one == other;
}

/** Where `found` (-1 for nowhere) lies, from 1, counted in characters. */
CellValue placeOf(const QString& text, qsizetype found)
{
    if (found < 0)
        return CellError::BadValue;
    return static_cast<double>(text.first(found).toUcs4().size() + 1);
}

/** Where a search begins in the text; none when it lies outside. */
std::optional<qsizetype> beginOf(const QString& text, std::optional<double> start)
{
    const auto from = countOf(start.value_or(1), 1);
    const Characters characters = text.toUcs4();
    if (!from || *from > characters.size() + 1)
        return std::nullopt;
    return textOf(characters.first(*from - 1)).size();
}

CellValue find(const QString& wanted, const QString& text, std::optional<double> start)
{
    const auto from = beginOf(text, start);
    return from ? placeOf(text, text.indexOf(wanted, *from)) : CellValue(CellError::BadValue);
}

CellValue search(const QString& wanted, const QString& text, std::optional<double> start)
{
    const auto from = beginOf(text, start);
    return from ? placeOf(text, findPattern(text, wanted, *from)) : CellValue(CellError::BadValue);
}

CellValue substitute(
    const QString& text, const QString& old, const QString& fresh, std::optional<double> occurrence)
{
    if (old.isEmpty())
        return text;
    if (!occurrence) {
        const qsizetype growth = text.count(old) * (fresh.size() - old.size());
        return text.size() + growth > mostTextCharacters ? CellValue(CellError::BadValue)
                                                         : CellValue(QString(text).replace(old, fresh));
    }
    auto left = countOf(*occurrence, 1);
    if (!left)
        return CellError::BadValue;
    qsizetype place = text.indexOf(old);
    while (place >= 0 && --*left > 0)
        place = text.indexOf(old, place + old.size());
    return place < 0 ? CellValue(text) : boundedText(QString(text).replace(place, old.size(), fresh));
}

CellValue repeated(const QString& text, double times)
{
    const auto count = countOf(times, 0);
    if (!count || *count * text.size() > mostTextCharacters)
        return CellError::BadValue;
    return text.repeated(*count);
}

CellValue formatted(const CellValue& value, const QString& pattern)
{
    const CellValue number = asNumber(value);
    if (number.isError())
        return displayText(value);
    const auto text = formatNumber(number.number(), pattern);
    return text ? boundedText(*text) : CellValue(CellError::BadValue);
}

CellValue numberOf(const CellValue& value)
{
    return asNumber(value);
}

Operand joined(const Call& call, int first, const QString& separator, bool skipsEmpty)
{
    QString text;
    bool isFirst = true;
    const auto error =
        visitArguments(call, first, [&](const CellValue& value, bool /*isCell*/) -> std::optional<CellError> {
            if (value.isError())
                return value.error();
            const QString piece = displayText(value);
            if (skipsEmpty && piece.isEmpty())
                return std::nullopt;
            text += (isFirst ? QString() : separator) + piece;
            isFirst = false;
            return text.size() > mostTextCharacters ? std::optional(CellError::BadValue) : std::nullopt;
        });
    return error ? CellValue(*error) : CellValue(text);
}

Operand concatenate(const Call& call)
{
    return joined(call, 0, {}, false);
}

Operand joinTexts(const Call& call)
{
    const auto separator = readText(call.value(0));
    const auto skipsEmpty = readTruth(call.value(1));
    if (const auto* error = std::get_if<CellError>(&separator))
        return CellValue(*error);
    if (const auto* error = std::get_if<CellError>(&skipsEmpty))
        return CellValue(*error);
    return joined(call, 2, std::get<QString>(separator), std::get<bool>(skipsEmpty));
}

constexpr std::array functions{
    Function{"CONCAT"_L1, 1, anyNumberOfArguments, &concatenate},
    Function{"CONCATENATE"_L1, 1, anyNumberOfArguments, &concatenate},
    function<&isExact>("EXACT"_L1),
    function<&find>("FIND"_L1),
    function<&left>("LEFT"_L1),
    function<&lengthOf>("LEN"_L1),
    function<&lower>("LOWER"_L1),
    function<&middle>("MID"_L1),
    function<&proper>("PROPER"_L1),
    function<&repeated>("REPT"_L1),
    function<&right>("RIGHT"_L1),
    function<&search>("SEARCH"_L1),
    function<&substitute>("SUBSTITUTE"_L1),
    function<&formatted>("TEXT"_L1),
    Function{"TEXTJOIN"_L1, 3, anyNumberOfArguments, &joinTexts},
    function<&trimmed>("TRIM"_L1),
    function<&upper>("UPPER"_L1),
    function<&numberOf>("VALUE"_L1),
};

} // namespace

std::span<const Function> textFunctions()
{
    return functions;
}

} // namespace tw::app::spreadsheet
