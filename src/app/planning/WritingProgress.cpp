#include "app/planning/WritingProgress.h"

#include <algorithm>
#include <limits>
#include <map>

namespace tw::app::planning {

using core::writing::WritingGoal;
using core::writing::WritingLogEntry;

namespace {

QDate dateOf(const QString& text)
{
    return QDate::fromString(text, Qt::ISODate);
}

} // namespace

qint64 wordsOn(const WritingLog& log, QDate day)
{
    // A file merged from two machines may hold a day twice: both were written.
    qint64 words = 0;
    for (const WritingLogEntry& entry : log) {
        if (dateOf(entry.date) == day && qAddOverflow(words, entry.words, &words))
            return std::numeric_limits<qint64>::max();
    }
    return words;
}

WritingLog withWordsOn(WritingLog log, QDate day, qint64 words)
{
    const auto isOfDay = [day](const WritingLogEntry& entry) { return dateOf(entry.date) == day; };
    const auto first = std::ranges::find_if(log, isOfDay);
    if (first == log.end()) {
        if (words != 0)
            log.push_back({day.toString(Qt::ISODate), words});
        return log;
    }
    first->words = words;
    log.erase(std::remove_if(std::next(first), log.end(), isOfDay), log.end());
    return log;
}

Pace paceTowards(const WritingGoal& goal, qint64 totalWords, qint64 wordsToday, QDate today)
{
    Pace pace;
    if (goal.manuscriptWordTarget > 0)
        pace.wordsLeft = std::max<qint64>(0, goal.manuscriptWordTarget - totalWords);
    const QDate deadline = dateOf(goal.deadline);
    if (!deadline.isValid())
        return pace;
    pace.daysLeft = std::max<qint64>(0, today.daysTo(deadline) + 1);
    pace.isOverdue = pace.wordsLeft > 0 && *pace.daysLeft == 0;
    if (pace.wordsLeft > 0 && *pace.daysLeft > 0) {
        // From this morning on: the rate must not fall with every word of the day it asks for.
        const qint64 atMorning = pace.wordsLeft + std::max<qint64>(0, wordsToday);
        pace.wordsPerDay = (atMorning + *pace.daysLeft - 1) / *pace.daysLeft;
    }
    return pace;
}

int streak(const WritingLog& log, QDate today)
{
    std::map<QDate, qint64> words;
    for (const WritingLogEntry& entry : log)
        words[dateOf(entry.date)] += entry.words;
    const auto hasWords = [&words](QDate day) {
        const auto entry = words.find(day);
        return entry != words.end() && entry->second > 0;
    };
    int days = 0;
    for (QDate day = hasWords(today) ? today : today.addDays(-1); hasWords(day); day = day.addDays(-1))
        ++days;
    return days;
}

std::vector<DayWords> lastDays(const WritingLog& log, QDate today, int days)
{
    std::vector<DayWords> result;
    for (int back = days - 1; back >= 0; --back)
        result.push_back({today.addDays(-back), 0});
    for (const WritingLogEntry& entry : log) {
        const QDate day = dateOf(entry.date);
        if (!day.isValid() || day > today || day < result.front().day)
            continue;
        result[static_cast<std::size_t>(result.front().day.daysTo(day))].words += entry.words;
    }
    return result;
}

} // namespace tw::app::planning
