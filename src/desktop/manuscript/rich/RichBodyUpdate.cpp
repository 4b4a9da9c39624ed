#include "desktop/manuscript/rich/RichBody.h"

#include "desktop/manuscript/rich/ParagraphChange.h"
#include "desktop/manuscript/rich/RichFormats.h"
#include "desktop/manuscript/rich/RichTextReader.h"

#include <QTextCursor>
#include <QTextTable>

#include <algorithm>

namespace tw::desktop::manuscript::rich {

using markup::BlockKind;

namespace {

bool isTable(const BodyUnit& unit)
{
    return unit.block.kind == BlockKind::Table;
}

bool hasSize(const QTextTable& table, const markup::Table& wanted)
{
    return table.rows() == static_cast<int>(std::max<std::size_t>(1, wanted.rows.size())) &&
           table.columns() == static_cast<int>(columnCount(wanted)) &&
           columnsOf(table.format()) == wanted.columns;
}

void adjustTable(QTextTable& table, const markup::Table& wanted, const RichFormats& formats)
{
    for (int row = 0; row < table.rows(); ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            const QTextBlock block = cell.firstCursorPosition().block();
            const int count = cell.lastCursorPosition().block().blockNumber() - block.blockNumber() + 1;
            changeParagraphs(
                block, count,
                {readCell(wanted, static_cast<std::size_t>(row), static_cast<std::size_t>(column), formats)});
        }
    }
}

} // namespace

RichBody::Update RichBody::apply(const QString& body)
{
    if (!m_isChanged && body == m_text)
        return Update::InPlace;
    settle();
    const BodyUnits target = readUnits(body);
    m_lead = target.lead;
    m_lineEnd = target.lineEnd;
    m_tail = target.list.empty() ? QString() : target.list.back().gap.view().toString();
    QTextCursor edit(&m_document);
    edit.beginEditBlock();
    const bool isAdjusted = !m_document.isEmpty() && adjust(target);
    if (!isAdjusted)
        fill(target, edit);
    edit.endEditBlock();
    // The document knows its tables as frames only once the edit is through.
    setOrigins(target);
    m_text = body;
    m_isChanged = false;
    return isAdjusted ? Update::InPlace : Update::Whole;
}

bool RichBody::adjust(const BodyUnits& target)
{
    const std::vector<Unit> present = units();
    const std::size_t shared = std::min(present.size(), target.list.size());
    const auto isEqual = [&](std::size_t left, std::size_t right) {
        return present[left].origin().content.view() == target.list[right].content.view() &&
               present[left].origin().kind == target.list[right].block.kind;
    };
    std::size_t first = 0;
    while (first < shared && isEqual(first, first))
        ++first;
    std::size_t tail = 0;
    while (tail < shared - first && isEqual(present.size() - 1 - tail, target.list.size() - 1 - tail))
        ++tail;
    const std::size_t presentEnd = present.size() - tail;
    const std::size_t targetEnd = target.list.size() - tail;
    if (presentEnd == targetEnd)
        return adjustPairs(present, target, first, presentEnd - first);
    // Insertions and removals take a neighbour along, so that there is a block to work on at both sides.
    std::size_t end = presentEnd;
    std::size_t wantedEnd = targetEnd;
    if (first > 0)
        --first;
    else if (tail > 0)
        ++end, ++wantedEnd;
    if (first == end || first == wantedEnd)
        return false;
    return adjustRegion(present, target, first, end, wantedEnd);
}

bool RichBody::adjustPairs(
    const std::vector<Unit>& present, const BodyUnits& target, std::size_t first, std::size_t count)
{
    for (std::size_t index = first; index < first + count; ++index) {
        const BodyUnit& wanted = target.list[index];
        if ((present[index].table != nullptr) != isTable(wanted) ||
            (present[index].table && !hasSize(*present[index].table, wanted.block.table)))
            return false;
    }
    for (std::size_t index = first; index < first + count; ++index) {
        const BodyUnit& wanted = target.list[index];
        const Unit& unit = present[index];
        if (unit.origin().content.view() == wanted.content.view() && unit.origin().kind == wanted.block.kind)
            continue;
        if (unit.table)
            adjustTable(*unit.table, wanted.block.table, m_formats);
        else
            changeParagraphs(unit.block, 1, {readParagraph(wanted.block, m_formats)});
    }
    return true;
}

bool RichBody::adjustRegion(
    const std::vector<Unit>& present, const BodyUnits& target, std::size_t first, std::size_t presentEnd,
    std::size_t targetEnd)
{
    // Beside tables stand blocks that the body does not know.
    const bool hasTable =
        std::any_of(
            present.begin() + static_cast<std::ptrdiff_t>(first > 0 ? first - 1 : 0),
            present.begin() + static_cast<std::ptrdiff_t>(std::min(presentEnd + 1, present.size())),
            [](const Unit& unit) { return unit.table != nullptr; }) ||
        std::any_of(
            target.list.begin() + static_cast<std::ptrdiff_t>(first),
            target.list.begin() + static_cast<std::ptrdiff_t>(targetEnd), isTable);
    if (hasTable)
        return false;
    std::vector<RichParagraph> wanted;
    for (std::size_t index = first; index < targetEnd; ++index)
        wanted.push_back(readParagraph(target.list[index].block, m_formats));
    changeParagraphs(present[first].block, static_cast<int>(presentEnd - first), wanted);
    return true;
}

void RichBody::fill(const BodyUnits& target, QTextCursor& cursor)
{
    // A document that is cleared and filled in one edit is laid out as far as it is looked at, any other at
    // once.
    const QTextFrameFormat frame = m_document.rootFrame()->frameFormat();
    m_document.clear();
    m_document.rootFrame()->setFrameFormat(frame);
    cursor.setPosition(0);
    bool isBlockFree = true;
    for (const BodyUnit& unit : target.list) {
        if (isTable(unit)) {
            insertTable(cursor, unit.block.table, m_formats);
            isBlockFree = true;
            continue;
        }
        const RichParagraph paragraph = readParagraph(unit.block, m_formats);
        if (isBlockFree) {
            cursor.setBlockFormat(paragraph.format);
            cursor.setBlockCharFormat(paragraph.textFormat);
        } else {
            cursor.insertBlock(paragraph.format, paragraph.textFormat);
        }
        isBlockFree = false;
        insertPieces(cursor, paragraph.pieces);
    }
    if (isBlockFree) {
        cursor.setBlockFormat(m_formats.block({}));
        cursor.setBlockCharFormat(m_formats.text({}, {}));
    }
}

void RichBody::setOrigins(const BodyUnits& target)
{
    // An empty body still has the one block of the document to write in.
    std::size_t next = 0;
    const QTextFrame* const root = m_document.rootFrame();
    for (auto iterator = root->begin(); !iterator.atEnd(); ++iterator) {
        const bool isLeft = next < target.list.size();
        if (auto* const table = qobject_cast<QTextTable*>(iterator.currentFrame())) {
            if (isLeft)
                setOrigin(
                    table->cellAt(0, 0).firstCursorPosition().block(), target.list[next],
                    static_cast<int>(next));
            ++next;
        } else if (const QTextBlock block = iterator.currentBlock(); block.isValid()) {
            if (isLeft && !isTable(target.list[next])) {
                setOrigin(block, target.list[next], static_cast<int>(next));
                ++next;
            } else {
                setOrigin(block, {}, -1);
                BlockOrigin::of(block)->isFiller = !target.list.empty();
            }
        }
    }
}

void RichBody::setOrigin(const QTextBlock& block, const BodyUnit& unit, int place)
{
    BlockOrigin& origin = originAt(block);
    if (origin.content.view() == unit.content.view())
        origin.content = unit.content;
    else
        origin.setContent(unit.content);
    origin.gap = unit.gap;
    origin.kind = unit.block.kind;
    origin.setPlace(place);
    origin.isFiller = false;
}

void RichBody::restyle()
{
    QTextCursor edit(&m_document);
    edit.beginEditBlock();
    for (QTextBlock block = m_document.firstBlock(); block.isValid(); block = block.next())
        restyleBlock(block, m_formats);
    for (QTextFrame* const frame : m_document.rootFrame()->childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(frame))
            table->setFormat(m_formats.table(columnsOf(table->format())));
    }
    edit.endEditBlock();
}

} // namespace tw::desktop::manuscript::rich
