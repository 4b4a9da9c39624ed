#pragma once

#include <QString>

namespace tw::core::writing {

/** Words written on one day. */
struct WritingLogEntry
{
    /** "yyyy-MM-dd"; kept as text. */
    QString date;
    qint64 words = 0;

    friend bool operator==(const WritingLogEntry&, const WritingLogEntry&) = default;
};

/** 0 and the empty deadline mean no goal. */
struct WritingGoal
{
    qint64 dailyWordTarget = 0;
    qint64 manuscriptWordTarget = 0;
    /** "yyyy-MM-dd"; kept as text. */
    QString deadline;

    friend bool operator==(const WritingGoal&, const WritingGoal&) = default;
};

} // namespace tw::core::writing
