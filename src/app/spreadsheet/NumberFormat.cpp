#include "app/spreadsheet/NumberFormat.h"

#include <algorithm>
#include <cmath>

namespace tw::app::spreadsheet {

namespace {

constexpr qsizetype mostPlaces = 30;
constexpr qsizetype groupSize = 3;

bool isPlace(QChar character)
{
    return character == u'0' || character == u'#' || character == u',' || character == u'.';
}

/** The pattern taken apart. */
struct Pattern
{
    QString before;
    QString behind;
    qsizetype fewestWholeDigits = 0;
    qsizetype fewestDecimals = 0;
    qsizetype mostDecimals = 0;
    bool isGrouped = false;
    bool isPercentage = false;
};

QString withoutQuotes(QStringView text)
{
    return text.toString().remove(u'"');
}

std::optional<Pattern> readPattern(QStringView text)
{
    const auto first = std::ranges::find_if(text, isPlace);
    const auto last = std::find_if_not(first, text.end(), isPlace);
    const QStringView places = text.sliced(first - text.begin(), last - first);
    const qsizetype point = places.indexOf(u'.');
    const QStringView whole = point < 0 ? places : places.first(point);
    const QStringView decimals = point < 0 ? QStringView() : places.sliced(point + 1);

    Pattern pattern;
    pattern.before = withoutQuotes(text.first(first - text.begin()));
    pattern.behind = withoutQuotes(text.sliced(last - text.begin()));
    pattern.fewestWholeDigits = whole.count(u'0');
    pattern.fewestDecimals = decimals.count(u'0');
    pattern.mostDecimals = pattern.fewestDecimals + decimals.count(u'#');
    pattern.isGrouped = whole.contains(u',');
    pattern.isPercentage = pattern.behind.contains(u'%');
    if (whole.count(u'0') + whole.count(u'#') + pattern.mostDecimals == 0 || places.size() > mostPlaces)
        return std::nullopt;
    return pattern;
}

} // namespace

std::optional<QString> formatNumber(double number, QStringView patternText)
{
    const auto pattern = readPattern(patternText);
    if (!pattern)
        return std::nullopt;
    const double shown = std::abs(pattern->isPercentage ? number * 100 : number);
    QString digits = QString::number(shown, 'f', static_cast<int>(pattern->mostDecimals));
    const bool isZero = std::ranges::all_of(digits, [](QChar c) { return c == u'0' || c == u'.'; });

    QString decimals;
    if (const qsizetype point = digits.indexOf(u'.'); point >= 0) {
        decimals = digits.sliced(point + 1);
        digits.truncate(point);
    }
    while (decimals.size() > pattern->fewestDecimals && decimals.endsWith(u'0'))
        decimals.chop(1);
    if (digits == u"0")
        digits.clear();
    digits = digits.rightJustified(pattern->fewestWholeDigits, u'0');
    if (pattern->isGrouped) {
        for (qsizetype index = digits.size() - groupSize; index > 0; index -= groupSize)
            digits.insert(index, u',');
    }
    if (!decimals.isEmpty())
        digits += u'.' + decimals;
    const QString sign = number < 0 && !isZero ? QStringLiteral("-") : QString();
    return sign + pattern->before + digits + pattern->behind;
}

} // namespace tw::app::spreadsheet
