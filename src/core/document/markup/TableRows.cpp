#include "core/document/markup/TableRows.h"

#include "core/document/markup/Characters.h"

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** The offset of the next pipe from `from` on that no backslash stands before; the end when there is none. */
qsizetype nextBorder(QStringView line, qsizetype from)
{
    qsizetype pipe = line.indexOf(u'|', from);
    while (pipe > 0 && line[pipe - 1] == u'\\')
        pipe = line.indexOf(u'|', pipe + 1);
    return pipe < 0 ? line.size() : pipe;
}

QStringView trimmed(QStringView text)
{
    text = text.sliced(skip(text, 0, isBlank));
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

template <class Take>
void forEachCell(QStringView line, Take take)
{
    line = trimmed(line);
    qsizetype start = line.startsWith(u'|') ? 1 : 0;
    while (true) {
        const qsizetype end = nextBorder(line, start);
        take(trimmed(line.sliced(start, end - start)));
        // A pipe at the end closes the row.
        if (end + 1 >= line.size())
            return;
        start = end + 1;
    }
}

QLatin1StringView separatorText(ColumnAlignment alignment)
{
    switch (alignment) {
    case ColumnAlignment::Default:
        return "---"_L1;
    case ColumnAlignment::Left:
        return ":--"_L1;
    case ColumnAlignment::Center:
        return ":-:"_L1;
    case ColumnAlignment::Right:
        return "--:"_L1;
    }
    Q_UNREACHABLE();
}

QString writeRow(const std::vector<QString>& cells)
{
    QString row = u"|"_s;
    for (QString cell : cells) {
        cell.replace(u'\n', u' ').replace(u"|"_s, u"\\|"_s);
        row += (cell.isEmpty() ? u" "_s : u' ' + cell + u' ') + u'|';
    }
    return row;
}

} // namespace

bool hasCellBorder(QStringView line)
{
    return nextBorder(line, 0) < line.size();
}

std::vector<QString> readCells(QStringView line)
{
    std::vector<QString> cells;
    forEachCell(line, [&cells](QStringView cell) {
        cells.push_back(cell.toString());
        cells.back().replace(u"\\|"_s, u"|"_s);
    });
    return cells;
}

std::vector<QStringView> cellsAsWritten(QStringView line)
{
    std::vector<QStringView> cells;
    forEachCell(line, [&cells](QStringView cell) { cells.push_back(cell); });
    return cells;
}

qsizetype countCells(QStringView line)
{
    qsizetype count = 0;
    forEachCell(line, [&count](QStringView) { ++count; });
    return count;
}

std::vector<ColumnAlignment> readAlignments(QStringView separator)
{
    std::vector<ColumnAlignment> columns;
    forEachCell(separator, [&columns](QStringView cell) {
        const bool isLeft = cell.startsWith(u':');
        const bool isRight = cell.endsWith(u':');
        columns.push_back(
            isLeft && isRight ? ColumnAlignment::Center
            : isLeft          ? ColumnAlignment::Left
            : isRight         ? ColumnAlignment::Right
                              : ColumnAlignment::Default);
    });
    return columns;
}

QString writeTable(const Table& table)
{
    if (table.rows.empty())
        return {};
    // The separator row makes the table: it has a cell for every cell of the header.
    std::vector<ColumnAlignment> columns = table.columns;
    columns.resize(std::max<std::size_t>(table.rows.front().size(), 1));
    QString text = writeRow(table.rows.front()) + u"\n|"_s;
    for (const ColumnAlignment column : columns)
        text += u' ' + separatorText(column) + u" |"_s;
    for (std::size_t row = 1; row < table.rows.size(); ++row)
        text += u'\n' + writeRow(table.rows[row]);
    return text;
}

} // namespace tw::core::document::markup
