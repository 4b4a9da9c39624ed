#pragma once

#include "core/foundation/Result.h"
#include "core/foundation/SequenceDiff.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QStringMatcher>

#include <vector>

namespace tw::app::search {

using core::foundation::IndexRange;

/** What somebody looks for. */
struct TextQuery
{
    QString text = {};
    bool isCaseSensitive = false;
    bool isWholeWord = false;
    bool isRegularExpression = false;

    friend bool operator==(const TextQuery&, const TextQuery&) = default;
};

/**
 * A query ready to be looked for. A value; const functions may be called from any thread.
 *
 * Regular expressions are given a bounded number of steps for each match, so that none hangs the program.
 */
class TextMatcher
{
public:
    /** Fails, with a message for the user, for an empty query and for an expression that cannot be read. */
    [[nodiscard]] static core::Result<TextMatcher> create(const TextQuery& query);

    /** The first matches in order, at most `most`; none is empty. Fails when the expression is too complex.
     */
    [[nodiscard]] core::Result<std::vector<IndexRange>> findIn(const QString& text, qsizetype most) const;

    /**
     * What a match of findIn() in the same text consists of: the match as a whole, then the groups of a
     * regular expression.
     */
    [[nodiscard]] QStringList groupsOf(const QString& text, IndexRange match) const;

    /**
     * What takes the place of a match with these groups. In a regular expression "\1" to "\9" are its groups,
     * "\0" is the whole match, and "\\" a backslash; otherwise the replacement is taken as it is.
     */
    [[nodiscard]] QString replacementFor(const QStringList& groups, const QString& replacement) const;

private:
    explicit TextMatcher(const TextQuery& query);

    [[nodiscard]] std::vector<IndexRange> findFixed(const QString& text, qsizetype most) const;
    [[nodiscard]] bool isWholeWord(const QString& text, qsizetype start) const;

    TextQuery m_query;
    QStringMatcher m_fixed;
    QRegularExpression m_expression;
};

} // namespace tw::app::search
