#include "app/persistence/merge/LineMerge.h"

#include <QByteArrayView>
#include <QHash>

#include <algorithm>

namespace tw::app::persistence {

using core::foundation::DiffHunk;
using core::foundation::IndexRange;

namespace {

/** A text as lines, each with its newline, and as numbers that are equal for equal lines. */
struct LineText
{
    std::vector<QByteArrayView> lines;
    std::vector<quint32> numbers;

    [[nodiscard]] std::span<const quint32> numbersOf(IndexRange range) const
    {
        return std::span(numbers).subspan(
            static_cast<std::size_t>(range.first), static_cast<std::size_t>(range.count));
    }
};

class LineNumbers
{
public:
    [[nodiscard]] LineText read(const QByteArray& text)
    {
        LineText result;
        qsizetype start = 0;
        while (start < text.size()) {
            const qsizetype newline = text.indexOf('\n', start);
            const qsizetype end = newline < 0 ? text.size() : newline + 1;
            const QByteArrayView line = QByteArrayView(text).sliced(start, end - start);
            const auto fresh = static_cast<quint32>(m_numbers.size());
            const auto known = m_numbers.constFind(line);
            const quint32 number = known == m_numbers.constEnd() ? fresh : *known;
            if (number == fresh)
                m_numbers.insert(line, fresh);
            result.lines.push_back(line);
            result.numbers.push_back(number);
            start = end;
        }
        return result;
    }

private:
    QHash<QByteArrayView, quint32> m_numbers;
};

/** The changes of one side, read from first to last. */
class SideChanges
{
public:
    SideChanges(const LineText& base, const LineText& side)
        : m_text(side)
        , m_hunks(core::foundation::diffSequences(base.numbers, side.numbers))
    {}

    /** The next change; none at the end. */
    [[nodiscard]] const DiffHunk* next() const
    {
        return m_next < m_hunks.size() ? &m_hunks[m_next] : nullptr;
    }
    void take()
    {
        const DiffHunk& hunk = m_hunks[m_next++];
        m_shift += hunk.after.count - hunk.before.count;
    }
    /** How far lines of this side lie behind those of the base, after the changes taken so far. */
    [[nodiscard]] qsizetype shift() const { return m_shift; }
    [[nodiscard]] const LineText& text() const { return m_text; }

private:
    const LineText& m_text;
    std::vector<DiffHunk> m_hunks;
    std::size_t m_next = 0;
    qsizetype m_shift = 0;
};

/** Whether a change concerns the same lines of the base as a region does; insertions concern a place. */
bool touches(IndexRange change, IndexRange region)
{
    if (change.count == 0 && region.count == 0)
        return change.first == region.first;
    if (change.count == 0)
        return region.first < change.first && change.first < region.end();
    if (region.count == 0)
        return change.first < region.first && region.first < change.end();
    return change.first < region.end() && region.first < change.end();
}

/** An insertion comes before the change of the line it stands at. */
bool comesFirst(IndexRange left, IndexRange right)
{
    return left.first != right.first ? left.first < right.first : left.count < right.count;
}

class Merger
{
public:
    Merger(const LineText& base, const LineText& mine, const LineText& theirs)
        : m_base(base)
        , m_mine(base, mine)
        , m_theirs(base, theirs)
    {}

    [[nodiscard]] LineMerge run()
    {
        while (m_mine.next() || m_theirs.next())
            mergeRegion();
        append(m_base, {m_position, std::ssize(m_base.lines) - m_position});
        return std::move(m_result);
    }

private:
    void mergeRegion();
    [[nodiscard]] static bool extend(IndexRange& region, SideChanges& side);
    void append(const LineText& text, IndexRange range);
    void appendConflict(IndexRange mine, IndexRange theirs);
    void appendMark(const char* mark);
    void endLine();

    const LineText& m_base;
    SideChanges m_mine;
    SideChanges m_theirs;
    LineMerge m_result;
    /** Lines of the base that are dealt with. */
    qsizetype m_position = 0;
};

void Merger::mergeRegion()
{
    const DiffHunk* const mineNext = m_mine.next();
    const DiffHunk* const theirsNext = m_theirs.next();
    const bool isMineFirst = mineNext && (!theirsNext || comesFirst(mineNext->before, theirsNext->before));
    IndexRange region = isMineFirst ? mineNext->before : theirsNext->before;
    append(m_base, {m_position, region.first - m_position});

    const qsizetype mineShift = m_mine.shift();
    const qsizetype theirsShift = m_theirs.shift();
    // The first change belongs to the region by itself; whatever touches the region joins it.
    (isMineFirst ? m_mine : m_theirs).take();
    bool hasMine = isMineFirst;
    bool hasTheirs = !isMineFirst;
    for (bool grows = true; grows;) {
        const bool mineGrew = extend(region, m_mine);
        const bool theirsGrew = extend(region, m_theirs);
        hasMine |= mineGrew;
        hasTheirs |= theirsGrew;
        grows = mineGrew || theirsGrew;
    }
    m_position = region.end();
    const IndexRange mine{region.first + mineShift, region.count + m_mine.shift() - mineShift};
    const IndexRange theirs{region.first + theirsShift, region.count + m_theirs.shift() - theirsShift};
    if (!hasTheirs ||
        (hasMine && std::ranges::equal(m_mine.text().numbersOf(mine), m_theirs.text().numbersOf(theirs)))) {
        append(m_mine.text(), mine);
    } else if (!hasMine) {
        append(m_theirs.text(), theirs);
    } else {
        m_result.conflicts.push_back({region, mine, theirs});
        appendConflict(mine, theirs);
    }
}

bool Merger::extend(IndexRange& region, SideChanges& side)
{
    bool grew = false;
    for (const DiffHunk* hunk = side.next(); hunk && touches(hunk->before, region); hunk = side.next()) {
        const qsizetype end = std::max(region.end(), hunk->before.end());
        region.first = std::min(region.first, hunk->before.first);
        region.count = end - region.first;
        side.take();
        grew = true;
    }
    return grew;
}

void Merger::append(const LineText& text, IndexRange range)
{
    for (qsizetype line = range.first; line < range.end(); ++line) {
        endLine();
        m_result.text.append(text.lines[static_cast<std::size_t>(line)]);
    }
}

void Merger::endLine()
{
    // A last line without its newline may have found a successor.
    if (!m_result.text.isEmpty() && !m_result.text.endsWith('\n'))
        m_result.text.append('\n');
}

void Merger::appendMark(const char* mark)
{
    endLine();
    m_result.text.append(mark);
    m_result.text.append('\n');
}

void Merger::appendConflict(IndexRange mine, IndexRange theirs)
{
    appendMark("<<<<<<<");
    append(m_mine.text(), mine);
    appendMark("=======");
    append(m_theirs.text(), theirs);
    appendMark(">>>>>>>");
}

} // namespace

LineMerge mergeLines(const QByteArray& base, const QByteArray& mine, const QByteArray& theirs)
{
    LineNumbers numbers;
    const LineText baseText = numbers.read(base);
    const LineText mineText = numbers.read(mine);
    const LineText theirsText = numbers.read(theirs);
    return Merger(baseText, mineText, theirsText).run();
}

} // namespace tw::app::persistence
