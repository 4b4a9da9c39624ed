#pragma once

#include "core/writing/Writing.h"

#include <QDate>

#include <optional>
#include <vector>

/** What the writing log and the goal say about each other. Pure; the day is passed in. */
namespace tw::app::planning {

using WritingLog = std::vector<core::writing::WritingLogEntry>;

/** The words logged for a day; 0 for none. */
[[nodiscard]] qint64 wordsOn(const WritingLog& log, QDate day);

/**
 * The log with so many words for the day. Entries stay in their order, a new one comes last; entries whose
 * date cannot be read stay as they are. No entry is made for 0 words.
 */
[[nodiscard]] WritingLog withWordsOn(WritingLog log, QDate day, qint64 words);

/** How a manuscript stands towards its goal. */
struct Pace
{
    /** 0 when there is no target, or it is reached. */
    qint64 wordsLeft = 0;
    /** With today; none without a deadline, 0 when it has passed. */
    std::optional<qint64> daysLeft;
    /** To be in time, rounded up; none when there is no deadline, or nothing to write. */
    std::optional<qint64> wordsPerDay;
    /** The deadline has passed and words are missing. */
    bool isOverdue = false;
};

/** `wordsToday` are part of the total; what they already did for today counts. */
[[nodiscard]] Pace paceTowards(
    const core::writing::WritingGoal& goal, qint64 totalWords, qint64 wordsToday, QDate today);

/** Days in a row with words, up to today; a today without words yet breaks nothing. */
[[nodiscard]] int streak(const WritingLog& log, QDate today);

struct DayWords
{
    QDate day;
    qint64 words = 0;
};

/** Each of the last days up to today, the oldest first; days that were not logged have 0 words. */
[[nodiscard]] std::vector<DayWords> lastDays(const WritingLog& log, QDate today, int days);

} // namespace tw::app::planning
