#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tw::core::calendar {

/**
 * A moment of the story: minutes on one absolute axis, whatever calendar it is read in. Instant 0 is 00:00 of
 * day 1 of month 1 of year 1; negative instants lie before it.
 */
using StoryInstant = qint64;

/** A calendar date with its time of day. The defaults are the start of year 1. */
struct DateParts
{
    qint64 year = 1;   ///< Year 1 is the epoch year; year 0 lies before it.
    qint32 month = 1;  ///< From 1.
    qint32 day = 1;    ///< Day of the month, from 1.
    qint32 hour = 0;   ///< 0..23
    qint32 minute = 0; ///< 0..59

    bool operator==(const DateParts&) const = default;
};

struct CalendarMonth
{
    QString name;
    qint32 days = 0;

    bool operator==(const CalendarMonth&) const = default;
};

struct CalendarEra
{
    QString name;
    qint64 startYear = 1;    ///< Absolute year in which the era begins.
    bool countsDown = false; ///< Counts backward toward the start of the era that follows.

    bool operator==(const CalendarEra&) const = default;
};

/**
 * A way of reading and writing story instants: months, a weekday cycle and year labels, without leap years.
 * A plain value. A new one is the twelve-month default. Whatever the lists hold (no months, lengths of zero
 * or below), every conversion gives a result; results beyond 64 bits stop at the limits.
 */
class Calendar
{
public:
    Calendar();

    [[nodiscard]] const QList<CalendarMonth>& months() const { return m_months; }
    void setMonths(QList<CalendarMonth> months) { m_months = std::move(months); }

    /** The weekday cycle; its first name is the weekday of the epoch day. */
    [[nodiscard]] const QStringList& weekdays() const { return m_weekdays; }
    void setWeekdays(QStringList weekdays) { m_weekdays = std::move(weekdays); }

    /** The label after every year while there are no named eras; may be empty. */
    [[nodiscard]] const QString& eraName() const { return m_eraName; }
    void setEraName(QString eraName) { m_eraName = std::move(eraName); }

    /** The named eras, ascending by start year; equal start years keep the order in which they were given. */
    [[nodiscard]] const QList<CalendarEra>& eras() const { return m_eras; }
    void setEras(QList<CalendarEra> eras);

    /** Days of a year, 0 when the months sum to nothing or less. */
    [[nodiscard]] qint32 yearLength() const;

    /** Only the time of day is meaningful when the year has no length. */
    [[nodiscard]] DateParts partsFromMinutes(StoryInstant instant) const;

    /** Checks nothing: day 40 of a month of 30 days, or hour 30, carries into the next unit. */
    [[nodiscard]] StoryInstant minutesFromParts(const DateParts& parts) const;

    /** The date text, "25 Harvestmoon, Year 1250 CE"; the time follows unless it is midnight. */
    [[nodiscard]] QString formatInstant(StoryInstant instant) const;

    /** The label of a year alone: "1250 CE", "3 Before Fall". */
    [[nodiscard]] QString formatYear(qint64 year) const;

    /** Empty when the calendar has no weekdays. */
    [[nodiscard]] QString weekdayOf(StoryInstant instant) const;

    bool operator==(const Calendar&) const = default;

private:
    QList<CalendarMonth> m_months;
    QStringList m_weekdays;
    QString m_eraName;
    QList<CalendarEra> m_eras;
};

} // namespace tw::core::calendar
