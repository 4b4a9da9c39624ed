#include "desktop/review/FileDifferences.h"

#include "app/text/WordDifference.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace tw::desktop::review {

using namespace Qt::Literals::StringLiterals;
using app::persistence::FileVersion;
using core::foundation::DiffHunk;
using core::foundation::IndexRange;

namespace {

constexpr qsizetype contextLines = 2;
/** Everything in a project file stands one step in. */
constexpr qsizetype indentStep = 4;

QString textOf(const QString& quoted)
{
    return QJsonDocument::fromJson('[' + quoted.toUtf8() + ']').array().at(0).toString();
}

QStringList readable(const app::persistence::FileMerge& file, const FileVersion& version)
{
    if (!version)
        return {};
    // Whatever another program made of the form is no difference worth seeing.
    return readableLines(app::persistence::canonicalForm(file.path, *version).value_or(*version));
}

std::vector<quint32> numbered(const QStringList& lines, QHash<QString, quint32>& numbers)
{
    std::vector<quint32> result;
    result.reserve(static_cast<std::size_t>(lines.size()));
    for (const QString& line : lines) {
        const auto known = numbers.constFind(line);
        const quint32 number = known == numbers.cend() ? static_cast<quint32>(numbers.size()) : *known;
        numbers.insert(line, number);
        result.push_back(number);
    }
    return result;
}

void append(
    std::vector<DifferenceLine>& result, LineSide side, const QStringList& lines, qsizetype begin,
    qsizetype end)
{
    for (qsizetype line = begin; line < end; ++line)
        result.push_back({side, lines.at(line)});
}

/** Appends lines of one side; `words` count from the start of the first line, in order. */
void append(
    std::vector<DifferenceLine>& result, LineSide side, const QStringList& lines,
    const std::vector<IndexRange>& words)
{
    qsizetype start = 0;
    for (const QString& line : lines) {
        DifferenceLine shown{side, line};
        for (const IndexRange& range : words) {
            const qsizetype begin = std::max(range.first, start) - start;
            const qsizetype end = std::min(range.end(), start + line.size()) - start;
            if (begin < end)
                shown.words.push_back({begin, end - begin});
        }
        result.push_back(std::move(shown));
        start += line.size() + 1;
    }
}

void appendChanged(std::vector<DifferenceLine>& result, const QStringList& mine, const QStringList& theirs)
{
    std::vector<IndexRange> mineWords;
    std::vector<IndexRange> theirWords;
    // A line that only one side has is marked as a whole.
    if (!mine.isEmpty() && !theirs.isEmpty()) {
        for (const auto& passage : app::text::compareTexts(mine.join(u'\n'), theirs.join(u'\n'))) {
            for (const DiffHunk& hunk : passage.words) {
                mineWords.push_back(hunk.before);
                theirWords.push_back(hunk.after);
            }
        }
    }
    append(result, LineSide::Mine, mine, mineWords);
    append(result, LineSide::Theirs, theirs, theirWords);
}

} // namespace

QStringList readableLines(const QByteArray& json)
{
    static const QRegularExpression member(
        uR"(^( *)(?:("(?:[^"\\]|\\.)*+"): )?(.*?),?$)"_s, QRegularExpression::DotMatchesEverythingOption);
    QStringList result;
    for (const QString& line : QString::fromUtf8(json).split(u'\n')) {
        const QRegularExpressionMatch match = member.match(line);
        const QString indent = match.captured(1).mid(indentStep);
        const QString value = match.captured(3);
        const bool isBracket =
            value.isEmpty() || (value.size() == 1 && QStringView(u"{}[]").contains(value.front()));
        const QString name = match.captured(2).isEmpty() ? QString() : textOf(match.captured(2)) + u": "_s;
        if (isBracket) {
            if (!name.isEmpty())
                result.append(indent + name.chopped(1));
            continue;
        }
        const QString text = value.startsWith(u'"') ? textOf(value) : value;
        if (!text.contains(u'\n')) {
            result.append(indent + name + text);
            continue;
        }
        if (!name.isEmpty())
            result.append(indent + name.chopped(1));
        result.append(text.split(u'\n'));
    }
    return result;
}

std::vector<DifferenceLine> fileDifferences(const app::persistence::FileMerge& file)
{
    const QStringList mine = readable(file, file.versions.mine);
    const QStringList theirs = readable(file, file.versions.theirs);
    QHash<QString, quint32> numbers;
    const std::vector<quint32> mineNumbers = numbered(mine, numbers);
    const std::vector<quint32> theirNumbers = numbered(theirs, numbers);
    std::vector<DifferenceLine> result;
    qsizetype shown = 0; // of mine
    for (const DiffHunk& hunk : core::foundation::diffSequences(mineNumbers, theirNumbers)) {
        const qsizetype contextBegin = std::max(shown, hunk.before.first - contextLines);
        const qsizetype trailing = result.empty() ? shown : std::min(contextBegin, shown + contextLines);
        append(result, LineSide::Both, mine, shown, trailing);
        if (trailing < contextBegin)
            result.push_back({LineSide::Gap, {}});
        append(result, LineSide::Both, mine, contextBegin, hunk.before.first);
        appendChanged(
            result, mine.sliced(hunk.before.first, hunk.before.count),
            theirs.sliced(hunk.after.first, hunk.after.count));
        shown = hunk.before.end();
    }
    append(result, LineSide::Both, mine, shown, std::min(mine.size(), shown + contextLines));
    if (shown + contextLines < mine.size())
        result.push_back({LineSide::Gap, {}});
    return result;
}

} // namespace tw::desktop::review
