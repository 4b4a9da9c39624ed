#include "app/typing/TypingCorrection.h"

#include <algorithm>
#include <array>

namespace tw::app::typing {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar enDash = u'–';
constexpr QChar emDash = u'—';
constexpr QChar ellipsis = u'…';
constexpr QChar apostrophe = u'’';

// French sets its marks off with spaces that do not break.
constexpr std::array marks{
    QuotationMarks{"en"_L1, u"“", u"”", u"‘", u"’"},
    QuotationMarks{"cs"_L1, u"„", u"“", u"‚", u"‘"},
    QuotationMarks{"da"_L1, u"»", u"«", u"›", u"‹"},
    QuotationMarks{"de"_L1, u"„", u"“", u"‚", u"‘"},
    QuotationMarks{"de-CH"_L1, u"«", u"»", u"‹", u"›"},
    QuotationMarks{"el"_L1, u"«", u"»", u"“", u"”"},
    QuotationMarks{"es"_L1, u"«", u"»", u"“", u"”"},
    QuotationMarks{"fi"_L1, u"”", u"”", u"’", u"’"},
    QuotationMarks{"fr"_L1, u"«\u202f", u"\u202f»", u"“", u"”"},
    QuotationMarks{"fr-CH"_L1, u"«", u"»", u"‹", u"›"},
    QuotationMarks{"hu"_L1, u"„", u"”", u"»", u"«"},
    QuotationMarks{"it"_L1, u"«", u"»", u"“", u"”"},
    QuotationMarks{"nb"_L1, u"«", u"»", u"‘", u"’"},
    QuotationMarks{"nl"_L1, u"“", u"”", u"‘", u"’"},
    QuotationMarks{"pl"_L1, u"„", u"”", u"«", u"»"},
    QuotationMarks{"pt"_L1, u"«", u"»", u"“", u"”"},
    QuotationMarks{"pt-BR"_L1, u"“", u"”", u"‘", u"’"},
    QuotationMarks{"ru"_L1, u"«", u"»", u"„", u"“"},
    QuotationMarks{"sv"_L1, u"”", u"”", u"’", u"’"},
    QuotationMarks{"uk"_L1, u"«", u"»", u"„", u"“"},
};

/** A quote here opens: at the start, behind a blank, a bracket, a dash or another opening quote. */
bool opensAfter(QStringView before, const QuotationMarks& quotes)
{
    if (before.isEmpty())
        return true;
    const QChar last = before.back();
    const bool isQuote = before.endsWith(quotes.opening) || before.endsWith(quotes.innerOpening);
    // French marks end with a space that is no blank between words.
    return isQuote || last.isSpace() || u"([{—–-/\u00bf\u00a1"_s.contains(last);
}

/** Whether a quotation that was opened with these marks is still open. */
bool isOpen(QStringView before, QStringView opening, QStringView closing)
{
    return before.lastIndexOf(opening) > before.lastIndexOf(closing);
}

QString singleQuote(QStringView before, const QuotationMarks& quotes)
{
    if (opensAfter(before, quotes))
        return quotes.innerOpening.toString();
    const bool closes = quotes.innerOpening != quotes.innerClosing &&
                        isOpen(before, quotes.innerOpening, quotes.innerClosing);
    return closes ? quotes.innerClosing.toString() : QString(apostrophe);
}

std::optional<TypingCorrection> correctDash(QStringView text)
{
    const QStringView before = text.chopped(1);
    const bool isBlank = text.back() == u' ';
    if (isBlank && before.endsWith(u" -"))
        return before.trimmed().size() > 1 ? std::optional(TypingCorrection{2, enDash + u" "_s})
                                           : std::nullopt;
    if (text.back() != u'-')
        return {};
    // A line of dashes alone is a break between scenes in the making.
    const bool isOnlyDashes = std::ranges::all_of(before, [](QChar character) {
        return character == u'-' || character.isSpace() || character == enDash;
    });
    if (isOnlyDashes)
        return {};
    if (before.endsWith(enDash))
        return TypingCorrection{2, QString(emDash)};
    return before.endsWith(u'-') ? std::optional(TypingCorrection{2, QString(enDash)}) : std::nullopt;
}

} // namespace

std::span<const QuotationMarks> allQuotationMarks()
{
    return marks;
}

const QuotationMarks& quotationMarksOf(QStringView language)
{
    const QString wanted = language.toString().replace(u'_', u'-');
    for (const QStringView name :
         {QStringView(wanted), QStringView(wanted).first(std::min<qsizetype>(2, wanted.size()))}) {
        const auto found = std::ranges::find_if(marks, [name](const QuotationMarks& each) {
            return name.compare(each.language, Qt::CaseInsensitive) == 0;
        });
        if (found != marks.end())
            return *found;
    }
    return marks.front();
}

std::optional<TypingCorrection> correctTyping(QStringView text, const TypingRules& rules)
{
    if (text.isEmpty())
        return {};
    const QStringView before = text.chopped(1);
    switch (text.back().unicode()) {
    case u'"':
        if (!rules.quotes)
            return {};
        return TypingCorrection{
            1,
            (opensAfter(before, *rules.quotes) ? rules.quotes->opening : rules.quotes->closing).toString()};
    case u'\'':
        return rules.quotes ? std::optional(TypingCorrection{1, singleQuote(before, *rules.quotes)})
                            : std::nullopt;
    case u'.':
        // A fourth dot is one of a row of dots.
        if (rules.joinsEllipsis && before.endsWith(u".."_s) && !before.endsWith(u"..."_s))
            return TypingCorrection{3, QString(ellipsis)};
        return {};
    case u'-':
    case u' ':
        return rules.joinsDashes ? correctDash(text) : std::nullopt;
    default:
        return {};
    }
}

} // namespace tw::app::typing
