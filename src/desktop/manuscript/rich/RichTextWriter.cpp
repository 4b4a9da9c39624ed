#include "desktop/manuscript/rich/RichTextWriter.h"

#include "core/document/markup/InlineWriter.h"
#include "desktop/manuscript/rich/BlockShape.h"
#include "desktop/manuscript/rich/RichTextReader.h"

#include <QTextTable>

#include <algorithm>

namespace tw::desktop::manuscript::rich {

using markup::Block;
using markup::BlockKind;
using markup::Run;
using markup::RunKind;

namespace {

void appendText(std::vector<Run>& runs, QStringView text, const QTextCharFormat& format)
{
    const markup::RunStyle style = styleOf(format);
    if (const QString character = standsFor(format); !character.isEmpty()) {
        runs.push_back({RunKind::Text, text.toString().replace(u' ', character), {}, style});
        return;
    }
    for (const QStringView line : text.split(QChar::LineSeparator)) {
        if (line.data() != text.data())
            runs.push_back({RunKind::HardBreak, {}, {}, {}});
        if (!line.isEmpty())
            runs.push_back({RunKind::Text, line.toString(), {}, style});
    }
}

void appendFragment(std::vector<Run>& runs, QStringView text, const QTextCharFormat& format)
{
    const RunKind kind = runKindOf(format);
    switch (kind) {
    case RunKind::Image:
    case RunKind::FootnoteReference:
        for (const QChar character : text) {
            if (character == QChar::ObjectReplacementCharacter)
                runs.push_back({kind, objectText(format), objectTarget(format), styleOf(format)});
            else
                appendText(runs, QStringView(&character, 1), format);
        }
        return;
    case RunKind::SoftBreak:
        for (const QChar character : text) {
            if (character == u' ')
                runs.push_back({RunKind::SoftBreak, {}, {}, {}});
            else
                appendText(runs, QStringView(&character, 1), format);
        }
        return;
    case RunKind::Text:
    case RunKind::HardBreak:
        appendText(runs, text, format);
    }
}

/** Code knows no styles; a note or an image in it is what it is written as. */
QString codeText(const QTextBlock& block)
{
    QString text;
    for (const Run& run : writeRuns(block)) {
        if (run.kind == RunKind::Text)
            text += run.text;
        else if (run.kind == RunKind::HardBreak)
            text += u'\n';
        else
            text += run.kind == RunKind::SoftBreak ? QStringLiteral("\n") : markup::writeInline({&run, 1});
    }
    return text;
}

/** What stands on one line in Markdown cannot hold breaks. */
void flattenBreaks(std::vector<Run>& runs)
{
    for (Run& run : runs) {
        if (run.kind == RunKind::SoftBreak || run.kind == RunKind::HardBreak)
            run = {RunKind::Text, QStringLiteral(" "), {}, {}};
    }
}

QString cellText(const QTextTableCell& cell)
{
    std::vector<Run> runs;
    for (auto iterator = cell.begin(); !iterator.atEnd(); ++iterator) {
        const QTextBlock block = iterator.currentBlock();
        if (!block.isValid())
            continue;
        if (!runs.empty())
            runs.push_back({RunKind::SoftBreak, {}, {}, {}});
        const std::vector<Run> more = writeRuns(block);
        runs.insert(runs.end(), more.begin(), more.end());
    }
    flattenBreaks(runs);
    return markup::writeInline(runs);
}

std::vector<Run> canonicalInline(QStringView text)
{
    return markup::canonicalRuns(markup::parseInline(text));
}

bool isSameTable(const markup::Table& left, const markup::Table& right)
{
    const auto cell = [](const markup::Table& table, std::size_t row, std::size_t column) {
        return column < table.rows[row].size() ? canonicalInline(table.rows[row][column])
                                               : std::vector<Run>();
    };
    if (left.rows.size() != right.rows.size() || columnCount(left) != columnCount(right))
        return false;
    const std::size_t columns = std::max(left.columns.size(), right.columns.size());
    for (std::size_t column = 0; column < columns; ++column) {
        const auto alignment = [column](const markup::Table& table) {
            return column < table.columns.size() ? table.columns[column] : markup::ColumnAlignment::Default;
        };
        if (alignment(left) != alignment(right))
            return false;
    }
    for (std::size_t row = 0; row < left.rows.size(); ++row) {
        const std::size_t cells = std::max(left.rows[row].size(), right.rows[row].size());
        for (std::size_t column = 0; column < cells; ++column) {
            if (cell(left, row, column) != cell(right, row, column))
                return false;
        }
    }
    return true;
}

} // namespace

std::vector<Run> writeRuns(const QTextBlock& block, int start, int end)
{
    std::vector<Run> runs;
    for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator) {
        const QTextFragment fragment = iterator.fragment();
        const int offset = fragment.position() - block.position();
        const int from = std::max(start, offset) - offset;
        const int to = std::min(end < 0 ? block.length() : end, offset + fragment.length()) - offset;
        if (from < to)
            appendFragment(runs, QStringView(fragment.text()).mid(from, to - from), fragment.charFormat());
    }
    return runs;
}

Block writeParagraph(const QTextBlock& textBlock)
{
    const BlockShape shape = shapeOf(textBlock.blockFormat());
    Block block;
    block.kind = shape.kind;
    block.level = shape.level;
    block.indent = shape.indent;
    block.marker = shape.marker;
    block.label = shape.label;
    block.attributes = shape.attributes;
    const bool hasText = textBlock.length() > 1;
    if ((shape.kind == BlockKind::Rule && hasText) || shape.kind == BlockKind::Table) {
        block.kind = BlockKind::Paragraph;
        block.level = 0;
    }
    if (block.kind == BlockKind::Code) {
        block.text = codeText(textBlock);
        return block;
    }
    std::vector<Run> runs = writeRuns(textBlock);
    if (block.kind == BlockKind::Heading)
        flattenBreaks(runs);
    block.text = markup::writeInline(runs);
    return block;
}

Block writeTable(const QTextTable& table)
{
    Block block;
    block.kind = BlockKind::Table;
    block.table.columns = columnsOf(table.format());
    block.table.columns.resize(static_cast<std::size_t>(table.columns()));
    for (int row = 0; row < table.rows(); ++row) {
        std::vector<QString>& cells = block.table.rows.emplace_back();
        for (int column = 0; column < table.columns(); ++column)
            cells.push_back(cellText(table.cellAt(row, column)));
    }
    return block;
}

bool saysTheSame(const Block& block, QStringView source)
{
    const markup::Blocks read = markup::parseBlocks(source);
    if (read.list.size() != 1 || read.leadLength != 0)
        return read.list.empty() && block.kind == BlockKind::Paragraph && block.text.isEmpty() &&
               block.attributes.isEmpty();
    Block before = read.list.front();
    if (before.kind != block.kind || before.label != block.label || before.attributes != block.attributes)
        return false;
    // How deep an item stands shows among its neighbours alone; that it was not moved shows in its indent.
    if (isItem(block.kind) ? before.indent != block.indent || before.marker != block.marker
                           : before.level != block.level)
        return false;
    if (block.kind == BlockKind::Table)
        return isSameTable(before.table, block.table);
    if (block.kind == BlockKind::Code)
        return before.marker == block.marker && before.text == block.text;
    std::vector<Run> runs = canonicalInline(before.text);
    if (block.kind == BlockKind::Heading)
        flattenBreaks(runs);
    return runs == canonicalInline(block.text);
}

} // namespace tw::desktop::manuscript::rich
