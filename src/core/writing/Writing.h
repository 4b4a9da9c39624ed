#pragma once

#include "core/foundation/Id.h"

#include <QStringList>

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

/** How one document is proofread; a document without a record is proofread as the user likes it. */
struct DocumentProofreading
{
    ContentId documentId;
    /** Of dictionaries, as "en_US"; empty for the user's. */
    QStringList languages;
    /** Findings that nobody wants to hear of again, each a kind and the text it stands on; the latest last.
     */
    QStringList ignored;

    [[nodiscard]] bool isEmpty() const { return languages.isEmpty() && ignored.isEmpty(); }
    friend bool operator==(const DocumentProofreading&, const DocumentProofreading&) = default;
};

} // namespace tw::core::writing
