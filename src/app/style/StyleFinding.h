#pragma once

#include <QString>
#include <QStringList>

namespace tw::app::style {

/** What a rule of style is about. The numbers are those that tools answer with. */
enum class IssueKind : qint32
{
    LongSentence = 0,
    PassiveVoice = 1,
    FillerWord = 2,
    RepeatedWord = 3,
    Wordiness = 4,
    Adverb = 5,
    Cliche = 6,
};

/** A place of a text that a rule has something to say about. */
struct StyleFinding
{
    /** In UTF-16 code units of the scanned text. */
    qint64 start = 0;
    qint64 length = 0;
    IssueKind kind = IssueKind::LongSentence;
    /** A sentence for the writer, in the language of the program. */
    QString message;
    /** What may take the place of the whole span; empty when the rule has no better words. */
    QStringList suggestions;

    friend bool operator==(const StyleFinding&, const StyleFinding&) = default;
};

} // namespace tw::app::style
