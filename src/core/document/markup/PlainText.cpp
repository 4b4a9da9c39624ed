#include "core/document/markup/PlainText.h"

#include "core/document/markup/Blocks.h"
#include "core/document/markup/Characters.h"
#include "core/document/markup/InlinePieces.h"
#include "core/document/markup/LegacyHtml.h"
#include "core/document/markup/TableRows.h"

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** The lines of a table's content, without the row of dashes. */
std::vector<QStringView> tableRows(QStringView content)
{
    std::vector<QStringView> rows;
    for (qsizetype start = 0; start < content.size();) {
        const qsizetype end = skip(content, start, [](QChar character) { return !isLineEnd(character); });
        if (end > start)
            rows.push_back(content.sliced(start, end - start));
        start = end + 1;
    }
    rows.erase(rows.begin() + 1);
    return rows;
}

/** Where an offset of a block's text stands in the body. Offsets come in ascending order. */
class TextPlaces
{
public:
    explicit TextPlaces(const std::vector<BlockLine>& lines)
        : m_lines(lines)
    {}

    [[nodiscard]] qsizetype operator()(qsizetype offset)
    {
        while (m_line + 1 < m_lines.size() && m_lines[m_line + 1].inText <= offset)
            ++m_line;
        return m_lines[m_line].inBody + offset - m_lines[m_line].inText;
    }

private:
    const std::vector<BlockLine>& m_lines;
    std::size_t m_line = 0;
};

} // namespace

PlainText::PlainText(QStringView body)
{
    const Blocks blocks = parseBlocks(body);
    const auto addPart = [this](
                             std::size_t block, std::size_t row, std::size_t column, QChar border, auto add) {
        if (!m_parts.empty())
            m_text += border;
        const qsizetype start = m_text.size();
        add();
        m_parts.push_back({start, m_text.size() - start, block, row, column});
    };
    for (std::size_t index = 0; index < blocks.list.size(); ++index) {
        const Block& block = blocks.list[index];
        if (block.kind == BlockKind::Table) {
            const std::vector<QStringView> rows = tableRows(body.sliced(block.start, block.length));
            for (std::size_t row = 0; row < rows.size(); ++row) {
                const std::vector<QStringView> cells = cellsAsWritten(rows[row]);
                for (std::size_t column = 0; column < cells.size(); ++column) {
                    const QStringView cell = cells[column];
                    addPart(index, row, column, column == 0 ? u'\n' : u'\t', [&] {
                        appendInline(
                            cell, [&](qsizetype offset) { return cell.data() - body.data() + offset; });
                    });
                }
            }
        } else if (block.kind == BlockKind::Code) {
            addPart(index, 0, 0, u'\n', [&] {
                const std::vector<SourceRange> groups = findGroups(block.text);
                TextPlaces toBody(block.lines);
                for (std::size_t line = 0; line < block.lines.size(); ++line) {
                    const qsizetype start = block.lines[line].inText;
                    const qsizetype end =
                        line + 1 < block.lines.size() ? block.lines[line + 1].inText : block.text.size();
                    appendOutside(groups, QStringView(block.text).sliced(start, end - start), start, toBody);
                }
            });
        } else if (block.kind != BlockKind::Rule) {
            addPart(index, 0, 0, u'\n', [&] { appendInline(block.text, TextPlaces(block.lines)); });
        }
    }
}

void PlainText::append(QStringView text, qsizetype body, qsizetype bodyLength)
{
    if (text.isEmpty())
        return;
    m_segments.push_back({m_text.size(), text.size(), body, bodyLength});
    m_text += text;
}

template <class ToBody>
void PlainText::appendOutside(
    const std::vector<SourceRange>& groups, QStringView text, qsizetype start, ToBody& toBody)
{
    const qsizetype end = start + text.size();
    qsizetype position = start;
    const auto appendTo = [&](qsizetype next) {
        if (next > position)
            append(text.sliced(position - start, next - position), toBody(position), next - position);
    };
    for (auto group = std::ranges::upper_bound(groups, start, {}, &SourceRange::end);
         group != groups.end() && group->start < end; ++group) {
        appendTo(group->start);
        position = std::min(group->end, end);
    }
    appendTo(end);
}

template <class ToBody>
void PlainText::appendConverted(
    const std::vector<SourceRange>& groups, const InlinePiece& piece, ToBody& toBody)
{
    const qsizetype end = piece.sourceStart + piece.sourceLength;
    const auto group = std::ranges::upper_bound(groups, piece.sourceStart, {}, &SourceRange::end);
    QString text = piece.text;
    if (group != groups.end() && group->start < end) {
        // One escaped character of a group, unless it is a span of code that holds groups.
        if (!piece.isCode)
            return;
        const std::vector<SourceRange> within = findGroups(text);
        for (auto each = within.rbegin(); each != within.rend(); ++each)
            text.remove(each->start, each->end - each->start);
    }
    append(text, toBody(piece.sourceStart), piece.sourceLength);
}

template <class ToBody>
void PlainText::appendInline(QStringView text, ToBody toBody)
{
    const qsizetype start = m_text.size();
    const InlinePieces pieces = takeApart(text);
    const std::vector<SourceRange> groups = findLooseGroups(text, pieces);
    const auto isInGroup = [&groups](const InlinePiece& piece) {
        const auto group = std::ranges::upper_bound(groups, piece.sourceStart, {}, &SourceRange::end);
        return group != groups.end() && group->start <= piece.sourceStart;
    };
    bool hasBegun = false;
    for (const InlinePiece& piece : pieces.list) {
        const bool isBreak = piece.kind == RunKind::SoftBreak || piece.kind == RunKind::HardBreak;
        if (isBreak && (hasBegun || piece.kind == RunKind::HardBreak) && !isInGroup(piece))
            append(
                piece.kind == RunKind::SoftBreak ? u" " : u"\n", toBody(piece.sourceStart),
                piece.sourceLength);
        else if (piece.kind == RunKind::Text && piece.textStart >= 0)
            appendOutside(groups, piece.text, piece.textStart, toBody);
        else if (piece.kind == RunKind::Text)
            appendConverted(groups, piece, toBody);
        // A group at the beginning counts: a break behind it is a blank, also for who sees the group.
        hasBegun =
            hasBegun || m_text.size() > start || (piece.kind == RunKind::Text && !piece.text.isEmpty());
    }
}

const PlainText::Segment* PlainText::segmentAt(qsizetype offset) const
{
    const auto next = std::ranges::upper_bound(m_segments, offset, {}, &Segment::start);
    return next == m_segments.begin() ? nullptr : &*std::prev(next);
}

qsizetype PlainText::toBody(qsizetype offset) const
{
    const Segment* const segment = segmentAt(offset);
    if (!segment)
        return m_segments.empty() ? 0 : m_segments.front().body;
    const qsizetype within = offset - segment->start;
    if (within >= segment->length)
        return segment->body + segment->bodyLength;
    return segment->body + (segment->length == segment->bodyLength ? within : 0);
}

qsizetype PlainText::endInBody(qsizetype offset) const
{
    const Segment* const segment = offset > 0 ? segmentAt(offset - 1) : nullptr;
    if (!segment)
        return toBody(offset);
    const qsizetype within = offset - segment->start;
    return segment->body + (segment->length == segment->bodyLength && within <= segment->length
                                ? within
                                : segment->bodyLength);
}

QString plainText(const DocumentBody& body)
{
    return PlainText(markdownOf(body)).text();
}

} // namespace tw::core::document::markup
