#include "core/calendar/Calendar.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace tw::core::calendar {

namespace {

// Wide enough for 2^31 days a year times 2^63 years in minutes.
__extension__ using Wide = __int128;

constexpr qint64 minutesPerHour = 60;
constexpr qint64 hoursPerDay = 24;
constexpr qint64 minutesPerDay = hoursPerDay * minutesPerHour;

struct Division
{
    qint64 quotient;
    qint64 remainder; ///< Never negative.
};

/** Divides toward minus infinity. Corrected from the truncating result, since multiplying back could
 * overflow. */
Division floorDivide(qint64 dividend, qint64 divisor)
{
    Division result{dividend / divisor, dividend % divisor};
    if (result.remainder < 0) {
        --result.quotient;
        result.remainder += divisor;
    }
    return result;
}

qint64 saturated(Wide value)
{
    constexpr Wide lowest = std::numeric_limits<qint64>::min();
    constexpr Wide highest = std::numeric_limits<qint64>::max();
    return static_cast<qint64>(std::clamp(value, lowest, highest));
}

QString withLabel(qint64 number, const QString& label)
{
    const QString digits = QString::number(number);
    return label.isEmpty() ? digits : digits + u' ' + label;
}

} // namespace

Calendar::Calendar()
    : m_months{{u"January"_s, 31},   {u"February"_s, 28}, {u"March"_s, 31},    {u"April"_s, 30},
               {u"May"_s, 31},       {u"June"_s, 30},     {u"July"_s, 31},     {u"August"_s, 31},
               {u"September"_s, 30}, {u"October"_s, 31},  {u"November"_s, 30}, {u"December"_s, 31}}
    , m_weekdays{u"Monday"_s, u"Tuesday"_s,  u"Wednesday"_s, u"Thursday"_s,
                 u"Friday"_s, u"Saturday"_s, u"Sunday"_s}
    , m_eraName(u"CE"_s)
{}

void Calendar::setEras(QList<CalendarEra> eras)
{
    std::ranges::stable_sort(eras, {}, &CalendarEra::startYear);
    m_eras = std::move(eras);
}

qint32 Calendar::yearLength() const
{
    qint64 sum = 0;
    for (const CalendarMonth& month : m_months)
        sum += month.days;
    return static_cast<qint32>(std::clamp<qint64>(sum, 0, std::numeric_limits<qint32>::max()));
}

DateParts Calendar::partsFromMinutes(StoryInstant instant) const
{
    const auto [dayIndex, minuteOfDay] = floorDivide(instant, minutesPerDay);
    DateParts parts;
    parts.hour = static_cast<qint32>(minuteOfDay / minutesPerHour);
    parts.minute = static_cast<qint32>(minuteOfDay % minutesPerHour);

    const qint32 daysPerYear = yearLength();
    if (daysPerYear < 1)
        return parts;

    const auto [yearIndex, dayOfYear] = floorDivide(dayIndex, daysPerYear);
    parts.year = yearIndex + 1;

    // A month of zero or negative length is stepped over like any other that ends before the day. A year
    // whose length was clamped, or whose months shrink, can run out of months: the date then stands behind
    // the last.
    qint64 daysLeft = dayOfYear;
    for (const CalendarMonth& month : m_months) {
        if (month.days > daysLeft) {
            parts.day = static_cast<qint32>(daysLeft + 1);
            break;
        }
        daysLeft -= month.days;
        ++parts.month;
    }
    return parts;
}

StoryInstant Calendar::minutesFromParts(const DateParts& parts) const
{
    Wide days = Wide{yearLength()} * (Wide{parts.year} - 1) + (Wide{parts.day} - 1);
    const qsizetype monthsBefore = std::clamp<qsizetype>(qsizetype{parts.month} - 1, 0, m_months.size());
    for (qsizetype index = 0; index < monthsBefore; ++index)
        days += m_months.at(index).days;
    return saturated((days * hoursPerDay + parts.hour) * minutesPerHour + parts.minute);
}

QString Calendar::formatInstant(StoryInstant instant) const
{
    const DateParts parts = partsFromMinutes(instant);
    const bool hasName = parts.month >= 1 && parts.month <= m_months.size();
    const QString month = hasName ? m_months.at(parts.month - 1).name : QString::number(parts.month);
    QString text = u"%1 %2, Year %3"_s.arg(QString::number(parts.day), month, formatYear(parts.year));
    if (parts.hour != 0 || parts.minute != 0)
        text += u", %1:%2"_s.arg(parts.hour, 2, 10, QChar(u'0')).arg(parts.minute, 2, 10, QChar(u'0'));
    return text;
}

QString Calendar::formatYear(qint64 year) const
{
    if (m_eras.isEmpty())
        return withLabel(year, m_eraName);

    // The last era that has begun; years before all of them belong to the first, with a count of zero or
    // less.
    auto next = std::ranges::upper_bound(m_eras, year, {}, &CalendarEra::startYear);
    if (next == m_eras.cbegin())
        ++next;
    const CalendarEra& era = *(next - 1);
    if (era.countsDown && next != m_eras.cend())
        return withLabel(saturated(Wide{next->startYear} - year), era.name);
    return withLabel(saturated(Wide{year} - era.startYear + 1), era.name);
}

QString Calendar::weekdayOf(StoryInstant instant) const
{
    if (m_weekdays.isEmpty())
        return {};
    const qint64 dayIndex = floorDivide(instant, minutesPerDay).quotient;
    return m_weekdays.at(floorDivide(dayIndex, m_weekdays.size()).remainder);
}

} // namespace tw::core::calendar
