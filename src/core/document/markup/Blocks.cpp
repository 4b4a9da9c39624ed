#include "core/document/markup/Blocks.h"

#include "core/document/markup/Characters.h"
#include "core/document/markup/LinePatterns.h"
#include "core/document/markup/TableRows.h"

#include <QStringList>

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Line
{
    qsizetype start = 0;
    /** Where its line end begins. */
    qsizetype end = 0;
    /** Where the next line begins. */
    qsizetype next = 0;
    QStringView text;
};

/** The groups at the end of a text, each after a blank, and how much text is left before them. */
struct TrailingGroups
{
    qsizetype textLength = 0;
    QString words;
};

/** Where the group that ends the text begins; -1 when none does. */
qsizetype groupBeforeEnd(QStringView text)
{
    if (!text.endsWith(u'}'))
        return -1;
    const qsizetype before = text.chopped(1).lastIndexOf(u'}');
    const qsizetype start = text.indexOf(groupStart, before + 1);
    const bool standsAlone =
        start == 0 || (start > 0 && (isBlank(text[start - 1]) || text[start - 1] == u'\n'));
    return standsAlone ? start : -1;
}

TrailingGroups findTrailingGroups(QStringView text)
{
    QStringList groups;
    TrailingGroups result{text.size(), {}};
    while (true) {
        QStringView rest = text.first(result.textLength);
        while (!rest.isEmpty() && (isBlank(rest.back()) || rest.back() == u'\n'))
            rest.chop(1);
        const qsizetype start = groupBeforeEnd(rest);
        if (start < 0)
            break;
        groups.prepend(rest.sliced(start + groupStart.size()).chopped(1).toString());
        // The blank before the group belongs to the group.
        result.textLength = std::max<qsizetype>(start - 1, 0);
    }
    result.words = groups.join(u' ');
    return result;
}

class BlockReader
{
public:
    explicit BlockReader(QStringView body)
        : m_body(body)
        , m_hasReturns(body.contains(u'\r'))
    {
        m_line = lineAt(0);
    }

    [[nodiscard]] Blocks run()
    {
        m_blocks.leadLength = skipBlankLines();
        while (!atEnd())
            readBlock();
        return std::move(m_blocks);
    }

private:
    [[nodiscard]] bool atEnd() const { return m_line.start == m_body.size(); }
    [[nodiscard]] Line lineAt(qsizetype start) const;
    [[nodiscard]] qsizetype lineEndAfter(qsizetype start) const;
    void advance() { m_line = lineAt(m_line.next); }
    qsizetype skipBlankLines();

    void readBlock();
    void readContent(Block& block);
    void readCode(Block& block, const FenceLine& match);
    void readItem(Block& block, const ItemLine& match);
    void readQuotation(Block& block, const QuotationLine& match);
    void readTable(Block& block);
    void readParagraph(Block& block);
    [[nodiscard]] bool startsTable() const;
    [[nodiscard]] int itemDepth(int indent);

    /** Takes the rest of the present line as a line of the block's text and goes to the next line. */
    void takeLine(Block& block, QStringView rest);
    void takeContinuation(Block& block);
    static void takeAttributes(Block& block);

    QStringView m_body;
    /** Few bodies have any; without them the next line end is one character to look for. */
    bool m_hasReturns;
    Line m_line;
    /** The end of the last line that was taken. */
    qsizetype m_contentEnd = 0;
    /** How far the items that the next one may lie under are indented. */
    std::vector<int> m_itemIndents;
    Blocks m_blocks;
};

Line BlockReader::lineAt(qsizetype start) const
{
    const qsizetype end = lineEndAfter(start);
    const bool isPair = end + 1 < m_body.size() && m_body[end] == u'\r' && m_body[end + 1] == u'\n';
    const qsizetype next = std::min(end + (isPair ? 2 : 1), m_body.size());
    return {start, end, next, m_body.sliced(start, end - start)};
}

qsizetype BlockReader::lineEndAfter(qsizetype start) const
{
    if (m_hasReturns)
        return skip(m_body, start, [](QChar character) { return !isLineEnd(character); });
    const qsizetype end = m_body.indexOf(u'\n', start);
    return end < 0 ? m_body.size() : end;
}

qsizetype BlockReader::skipBlankLines()
{
    const qsizetype start = m_line.start;
    while (!atEnd() && isBlankLine(m_line.text))
        advance();
    return m_line.start - start;
}

void BlockReader::readBlock()
{
    Block block;
    block.start = m_line.start;
    readContent(block);
    block.length = m_contentEnd - block.start;
    takeAttributes(block);

    const bool isItem = block.kind == BlockKind::BulletItem || block.kind == BlockKind::NumberedItem;
    // An indented paragraph between items belongs to the list.
    if (!isItem && !(block.kind == BlockKind::Paragraph && isBlank(m_body[block.start])))
        m_itemIndents.clear();
    if (block.kind == BlockKind::Quotation) {
        // Quotation marks without text part the paragraphs of a quotation as blank lines do others.
        for (auto match = matchQuotation(m_line.text); match && isBlankLine(match->text);
             match = matchQuotation(m_line.text))
            advance();
    }
    skipBlankLines();
    block.gapLength = m_line.start - m_contentEnd;
    m_blocks.list.push_back(std::move(block));
}

void BlockReader::readContent(Block& block)
{
    const QStringView line = m_line.text;
    if (const auto fence = matchFence(line)) {
        readCode(block, *fence);
    } else if (const auto heading = matchHeading(line)) {
        block.kind = BlockKind::Heading;
        block.level = heading->level;
        takeLine(block, heading->text);
    } else if (isRuleLine(line)) {
        block.kind = BlockKind::Rule;
        takeLine(block, line.last(0));
        block.lines.clear();
    } else if (const auto footnote = matchFootnote(line)) {
        block.kind = BlockKind::FootnoteDefinition;
        block.label = footnote->label.toString();
        takeLine(block, footnote->text);
        takeContinuation(block);
    } else if (const auto item = matchItem(line)) {
        readItem(block, *item);
    } else if (const auto quotation = matchQuotation(line)) {
        readQuotation(block, *quotation);
    } else if (startsTable()) {
        readTable(block);
    } else {
        readParagraph(block);
    }
}

void BlockReader::readCode(Block& block, const FenceLine& match)
{
    block.kind = BlockKind::Code;
    block.marker = match.fence.toString();
    block.label = match.language.toString();
    m_contentEnd = m_line.end;
    advance();
    // Without its closing fence the code reaches to the end of the body.
    while (!atEnd()) {
        if (closesFence(m_line.text, block.marker)) {
            m_contentEnd = m_line.end;
            advance();
            return;
        }
        takeLine(block, m_line.text);
    }
}

void BlockReader::readItem(Block& block, const ItemLine& match)
{
    block.kind = match.isNumbered ? BlockKind::NumberedItem : BlockKind::BulletItem;
    block.indent = match.indent;
    block.level = itemDepth(match.indent);
    block.marker = match.marker.toString();
    takeLine(block, match.text);
    takeContinuation(block);
}

int BlockReader::itemDepth(int indent)
{
    // One column to the right may be a slip, two are meant.
    constexpr int leastStep = 2;
    while (!m_itemIndents.empty() && indent < m_itemIndents.back() + leastStep)
        m_itemIndents.pop_back();
    const auto depth = static_cast<int>(m_itemIndents.size());
    if (depth == deepestLevel)
        return depth;
    m_itemIndents.push_back(indent);
    return depth;
}

void BlockReader::readQuotation(Block& block, const QuotationLine& match)
{
    block.kind = BlockKind::Quotation;
    block.level = match.depth;
    takeLine(block, match.text);
    if (isBlankLine(match.text))
        return;
    while (!atEnd()) {
        const auto next = matchQuotation(m_line.text);
        if (!next || next->depth != block.level || isBlankLine(next->text))
            return;
        takeLine(block, next->text);
    }
}

bool BlockReader::startsTable() const
{
    if (!hasCellBorder(m_line.text) || m_line.next == m_body.size())
        return false;
    const QStringView separator = lineAt(m_line.next).text;
    // Dashes alone are a rule.
    return isTableSeparator(separator) && (separator.contains(u'|') || separator.contains(u':')) &&
           countCells(separator) == countCells(m_line.text);
}

void BlockReader::readTable(Block& block)
{
    block.kind = BlockKind::Table;
    block.table.rows.push_back(readCells(m_line.text));
    advance();
    block.table.columns = readAlignments(m_line.text);
    m_contentEnd = m_line.end;
    advance();
    while (!atEnd() && hasCellBorder(m_line.text) && !startsBlock(m_line.text)) {
        block.table.rows.push_back(readCells(m_line.text));
        m_contentEnd = m_line.end;
        advance();
    }
}

void BlockReader::readParagraph(Block& block)
{
    do {
        takeLine(block, m_line.text);
    } while (!atEnd() && !isBlankLine(m_line.text) && !startsBlock(m_line.text) && !startsTable());
}

void BlockReader::takeLine(Block& block, QStringView rest)
{
    if (!block.lines.empty())
        block.text += u'\n';
    block.lines.push_back({block.text.size(), rest.data() - m_body.data()});
    block.text += rest;
    m_contentEnd = m_line.end;
    advance();
}

void BlockReader::takeContinuation(Block& block)
{
    while (!atEnd() && isBlank(m_line.text.isEmpty() ? QChar() : m_line.text.front()) &&
           !isBlankLine(m_line.text) && !startsBlock(m_line.text))
        takeLine(block, m_line.text.sliced(skip(m_line.text, 0, isBlank)));
}

void BlockReader::takeAttributes(Block& block)
{
    if (block.kind == BlockKind::Rule || block.kind == BlockKind::Code || block.kind == BlockKind::Table)
        return;
    const TrailingGroups groups = findTrailingGroups(block.text);
    if (groups.textLength == block.text.size())
        return;
    block.attributes = readBlockAttributes(groups.words);
    block.text.truncate(groups.textLength);
    while (block.lines.size() > 1 && block.lines.back().inText > groups.textLength)
        block.lines.pop_back();
}

} // namespace

bool isSameContent(const Block& left, const Block& right)
{
    return left.kind == right.kind && left.level == right.level && left.marker == right.marker &&
           left.label == right.label && left.text == right.text && left.attributes == right.attributes &&
           left.table == right.table;
}

Blocks parseBlocks(QStringView body)
{
    return BlockReader(body).run();
}

} // namespace tw::core::document::markup
