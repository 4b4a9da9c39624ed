#include "app/mcp/registry/Display.h"

#include "core/calendar/DateReader.h"

#include <QRegularExpression>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::calendar::Calendar;
using core::calendar::StoryInstant;
using core::project::Project;

QString shortenForDisplay(const QString& text, qsizetype limit)
{
    const QString simplified = text.simplified();
    if (simplified.size() <= limit)
        return simplified;
    QString shortened = simplified.first(limit);
    if (shortened.back().isHighSurrogate())
        shortened.chop(1);
    return shortened.trimmed() + u"..."_s;
}

QString ValueDisplay::shown(const QString& value)
{
    if (m_shortening == Shortening::None)
        return value;
    if (value.simplified().size() > displayLimit)
        m_isAnyShortened = true;
    return shortenForDisplay(value);
}

QString ValueDisplay::note() const
{
    if (!m_isAnyShortened)
        return {};
    return u"\n\nNOTE: one or more field values above were shortened for brevity. Call get_entity again with "
           u"\"full\": "
           "true before editing any of them, or the unseen tail will be lost when you write the field back."_s;
}

QString dateText(const Project& project, StoryInstant instant)
{
    const Calendar& calendar = project.calendar();
    const QString text = calendar.formatInstant(instant);
    if (calendar.eras().isEmpty())
        return text;
    return u"%1 [year %2]"_s.arg(text, QString::number(calendar.partsFromMinutes(instant).year));
}

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

core::Result<StoryInstant> readDate(const Project& project, const QString& text)
{
    const Calendar& calendar = project.calendar();
    const auto parts = core::calendar::parseDate(calendar, withAbsoluteYear(text));
    if (!parts)
        return core::Failure{
            u"The date '%1' was not understood; use the project calendar (e.g. \"25 Harvestmoon 1250\" or \"1250\")."_s
                .arg(text)};
    return calendar.minutesFromParts(*parts);
}

} // namespace tw::app::mcp
