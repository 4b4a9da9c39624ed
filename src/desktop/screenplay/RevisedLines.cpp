#include "desktop/screenplay/RevisedLines.h"

#include "core/foundation/SequenceDiff.h"

#include <QHash>
#include <QStringView>

#include <vector>

namespace tw::desktop::screenplay {

namespace {

/** Equal lines get equal numbers; blanks at their ends do not count. */
std::vector<quint32> numbersOf(const QList<QStringView>& lines, QHash<QStringView, quint32>& known)
{
    std::vector<quint32> numbers;
    numbers.reserve(static_cast<std::size_t>(lines.size()));
    for (const QStringView line : lines) {
        const QStringView text = line.trimmed();
        auto entry = known.find(text);
        if (entry == known.end())
            entry = known.insert(text, static_cast<quint32>(known.size()));
        numbers.push_back(*entry);
    }
    return numbers;
}

} // namespace

std::set<int> revisedLinesOf(const QString& baseline, const QString& text)
{
    const QList<QStringView> before = QStringView(baseline).split(u'\n');
    const QList<QStringView> after = QStringView(text).split(u'\n');
    QHash<QStringView, quint32> known;
    const std::vector<quint32> oldLines = numbersOf(before, known);
    const std::vector<quint32> newLines = numbersOf(after, known);
    std::set<int> revised;
    for (const core::foundation::DiffHunk& hunk : core::foundation::diffSequences(oldLines, newLines)) {
        const auto end = static_cast<int>(hunk.after.end());
        bool isSeen = false;
        for (auto line = static_cast<int>(hunk.after.first); line < end; ++line) {
            if (!after.at(line).trimmed().isEmpty()) {
                revised.insert(line);
                isSeen = true;
            }
        }
        for (int line = end; !isSeen && line < after.size(); ++line) {
            if (after.at(line).trimmed().isEmpty())
                continue;
            revised.insert(line);
            isSeen = true;
        }
    }
    return revised;
}

} // namespace tw::desktop::screenplay
