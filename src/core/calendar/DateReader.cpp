#include "core/calendar/DateReader.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace tw::core::calendar {

namespace {

constexpr qint64 largestNumber = 1'000'000'000'000;
/** A date has at most a day and a year; a third number already makes the text no date. */
constexpr qsizetype mostNumbers = 2;

QStringList piecesOf(const QString& text)
{
    return QString(text).replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
}

bool isSame(const QString& left, const QString& right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/** A month's or the era's label of several words, which stands in the text as a run of pieces. */
struct LongLabel
{
    QStringList pieces;
    qsizetype month = -1; ///< Index of the month; -1 for the era label.
};

/** What the tokens of one text added up to. Tokens are counted after runs of a long label were joined. */
struct Findings
{
    QStringList tokens;
    QList<qint64> numbers;
    qsizetype month = -1;      ///< Index of the month named, -1 without one.
    qsizetype monthToken = -1; ///< Which token named it.
};

class TokenReader
{
public:
    explicit TokenReader(const Calendar& calendar)
        : m_calendar(calendar)
    {
        addLongLabel(calendar.eraName(), -1);
        for (qsizetype index = 0; index < calendar.months().size(); ++index)
            addLongLabel(calendar.months().at(index).name, index);
        // The longest label that fits wins; among equal ones the era, then the earlier month.
        std::ranges::stable_sort(
            m_longLabels, std::ranges::greater{}, [](const LongLabel& label) { return label.pieces.size(); });
    }

    std::optional<Findings> read(const QStringList& pieces)
    {
        for (qsizetype position = 0; position < pieces.size();) {
            const LongLabel* label = longLabelAt(pieces, position);
            const qsizetype length = label ? label->pieces.size() : 1;
            m_findings.tokens.append(pieces.sliced(position, length).join(u' '));
            if (label ? !takeLongLabel(*label) : !takeWord(pieces.at(position)))
                return std::nullopt;
            position += length;
        }
        return std::move(m_findings);
    }

private:
    void addLongLabel(const QString& name, qsizetype month)
    {
        QStringList pieces = piecesOf(name);
        if (pieces.size() > 1)
            m_longLabels.append({std::move(pieces), month});
    }

    const LongLabel* longLabelAt(const QStringList& pieces, qsizetype position) const
    {
        const auto stands = [&](const LongLabel& label) {
            return pieces.size() - position >= label.pieces.size() &&
                   std::equal(label.pieces.cbegin(), label.pieces.cend(), pieces.cbegin() + position, isSame);
        };
        const auto found = std::ranges::find_if(m_longLabels, stands);
        return found == m_longLabels.cend() ? nullptr : &*found;
    }

    bool takeLongLabel(const LongLabel& label) { return label.month < 0 || takeMonth(label.month); }

    bool takeWord(const QString& word)
    {
        if (isSame(word, u"Year"_s) ||
            (!m_calendar.eraName().isEmpty() && isSame(word, m_calendar.eraName())))
            return true;
        bool isNumber = false;
        const qint64 number = word.toLongLong(&isNumber, 10);
        if (!isNumber)
            return takeMonth(monthNamed(word));
        m_findings.numbers.append(number);
        return number >= -largestNumber && number <= largestNumber &&
               m_findings.numbers.size() <= mostNumbers;
    }

    bool takeMonth(qsizetype month)
    {
        if (month < 0 || m_findings.month >= 0)
            return false;
        m_findings.month = month;
        m_findings.monthToken = m_findings.tokens.size() - 1;
        return true;
    }

    /** The month with that name, else the only one whose name begins so; -1 if there is none. */
    qsizetype monthNamed(const QString& word) const
    {
        const QList<CalendarMonth>& months = m_calendar.months();
        qsizetype candidate = -1;
        bool isAmbiguous = false;
        for (qsizetype index = 0; index < months.size(); ++index) {
            const QString& name = months.at(index).name;
            if (!name.startsWith(word, Qt::CaseInsensitive))
                continue;
            if (isSame(name, word))
                return index;
            isAmbiguous = candidate >= 0;
            candidate = index;
        }
        return isAmbiguous ? -1 : candidate;
    }

    const Calendar& m_calendar;
    QList<LongLabel> m_longLabels;
    Findings m_findings;
};

/** Takes the time of day out of the text. No value when what looks like a time is none. */
std::optional<DateParts> takeTime(QString& text)
{
    static const QRegularExpression timeOfDay(u"\\b(\\d{1,2}):(\\d{2})\\b"_s);
    DateParts parts;
    const QRegularExpressionMatch match = timeOfDay.match(text);
    if (!match.hasMatch())
        return parts;
    parts.hour = match.capturedView(1).toInt();
    parts.minute = match.capturedView(2).toInt();
    if (parts.hour > 23 || parts.minute > 59)
        return std::nullopt;
    text.remove(match.capturedStart(), match.capturedLength());
    return parts;
}

} // namespace

std::optional<DateParts> parseDate(const Calendar& calendar, QStringView text)
{
    QString rest = text.trimmed().toString();
    std::optional<DateParts> parts = takeTime(rest);
    if (!parts)
        return std::nullopt;
    const std::optional<Findings> findings = TokenReader(calendar).read(piecesOf(rest));
    if (!findings || findings->numbers.isEmpty())
        return std::nullopt;

    const QList<qint64>& numbers = findings->numbers;
    parts->year = numbers.last();
    if (findings->month < 0)
        return numbers.size() == 1 ? parts : std::nullopt;

    parts->month = static_cast<qint32>(findings->month + 1);
    if (numbers.size() == 1) {
        // "25 Harvestmoon" names a day without a year: a lone number counts only behind the month. It is
        // looked for in its plain form, so that "+25" or "025" is not taken for a year either.
        const qsizetype token = findings->tokens.indexOf(QString::number(parts->year));
        return token >= findings->monthToken ? parts : std::nullopt;
    }
    if (numbers.first() < 1 || numbers.first() > calendar.months().at(findings->month).days)
        return std::nullopt;
    parts->day = static_cast<qint32>(numbers.first());
    return parts;
}

} // namespace tw::core::calendar
