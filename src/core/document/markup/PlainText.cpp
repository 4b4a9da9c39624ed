#include "core/document/markup/PlainText.h"

#include "core/document/WordCount.h"
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
                for (std::size_t line = 0; line < block.lines.size(); ++line) {
                    const qsizetype start = block.lines[line].inText;
                    const qsizetype end =
                        line + 1 < block.lines.size() ? block.lines[line + 1].inText : block.text.size();
                    append(
                        QStringView(block.text).sliced(start, end - start), block.lines[line].inBody,
                        end - start);
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
void PlainText::appendInline(QStringView text, ToBody toBody)
{
    const qsizetype start = m_text.size();
    for (const InlinePiece& piece : takeApart(text).list) {
        const bool isBreak = piece.kind == RunKind::SoftBreak || piece.kind == RunKind::HardBreak;
        if (isBreak && m_text.size() > start)
            append(
                piece.kind == RunKind::SoftBreak ? u" " : u"\n", toBody(piece.sourceStart),
                piece.sourceLength);
        else if (piece.kind == RunKind::Text && piece.textStart >= 0)
            append(piece.text, toBody(piece.textStart), piece.text.size());
        else if (piece.kind == RunKind::Text)
            append(piece.text, toBody(piece.sourceStart), piece.sourceLength);
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

qint64 countBodyWords(const DocumentBody& body)
{
    return body.format == BodyFormat::Html ? countWords(htmlToMarkdown(body.text)) : countWords(body.text);
}

} // namespace tw::core::document::markup
