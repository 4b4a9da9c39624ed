#include "app/codex/DateText.h"

#include "core/calendar/DateReader.h"

#include <QRegularExpression>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::calendar::Calendar;
using core::calendar::StoryInstant;

namespace {

/** What dateText() wrote with named eras, as a date with its absolute year; unchanged when it is nothing of
 * the kind. */
QString withAbsoluteYear(const QString& text)
{
    static const QRegularExpression written(
        u"^\\s*(?<day>.*?), Year .*?(?<time>, \\d{1,2}:\\d{2})? \\[year (?<year>-?\\d+)\\]\\s*$"_s);
    const QRegularExpressionMatch match = written.match(text);
    if (!match.hasMatch())
        return text;
    return u"%1, Year %2%3"_s.arg(match.captured(u"day"), match.captured(u"year"), match.captured(u"time"));
}

} // namespace

QString dateText(const Calendar& calendar, StoryInstant instant)
{
    const QString text = calendar.formatInstant(instant);
    if (calendar.eras().isEmpty())
        return text;
    return u"%1 [year %2]"_s.arg(text, QString::number(calendar.partsFromMinutes(instant).year));
}

std::optional<StoryInstant> readDateText(const Calendar& calendar, const QString& text)
{
    const auto parts = core::calendar::parseDate(calendar, withAbsoluteYear(text));
    return parts ? std::optional(calendar.minutesFromParts(*parts)) : std::nullopt;
}

} // namespace tw::app::codex
