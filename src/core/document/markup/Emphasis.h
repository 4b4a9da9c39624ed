// Which marks of emphasis belong together.
#pragma once

#include <QStringView>

#include <vector>

namespace tw::core::document::markup {

/** A run of "*", "_" or "~" and what became of it. */
struct Delimiter
{
    QChar mark;
    qsizetype length = 0;
    bool canOpen = false;
    bool canClose = false;
    /** Marks that found no counterpart: they are text. */
    qsizetype left = 0;
    int boldOpened = 0;
    int italicOpened = 0;
    int struckOpened = 0;
    int boldClosed = 0;
    int italicClosed = 0;
    int struckClosed = 0;
    /** Its neighbours among those that wait for a counterpart; -1 at the ends. */
    int previous = -1;
    int next = -1;
};

/** Matches marks by the usual rules, in time linear in their number. */
class EmphasisMatcher
{
public:
    /** The run of marks at `start`, told what it may do by its neighbours. Gives its index. */
    int add(QStringView text, qsizetype start, qsizetype length);

    /** The last that waits; everything after it is matched by matchAfter(). -1 for none. */
    [[nodiscard]] int last() const { return m_last; }

    /** Matches what was added after `bottom`; what finds no counterpart there finds none later. */
    void matchAfter(int bottom);

    [[nodiscard]] const Delimiter& at(int index) const
    {
        return m_delimiters[static_cast<std::size_t>(index)];
    }

private:
    [[nodiscard]] Delimiter& edit(int index) { return m_delimiters[static_cast<std::size_t>(index)]; }
    [[nodiscard]] int findOpener(int closer, int bottom) const;
    void pair(int opener, int closer);
    void remove(int index);

    std::vector<Delimiter> m_delimiters;
    int m_last = -1;
};

} // namespace tw::core::document::markup
