#include "desktop/manuscript/rich/RichBody.h"

#include "core/document/markup/BlockWriter.h"
#include "desktop/manuscript/rich/BlockShape.h"
#include "desktop/manuscript/rich/RichTextWriter.h"

#include <QTextCursor>
#include <QTextFrame>
#include <QTextTable>

namespace tw::desktop::manuscript::rich {

RichBody::RichBody(QTextDocument& document, const RichFormats& formats)
    : m_document(document)
    , m_formats(formats)
    , m_lineEnd(QStringLiteral("\n"))
{
    originAt(document.firstBlock());
}

BlockOrigin& RichBody::originAt(const QTextBlock& block) const
{
    if (BlockOrigin* const origin = BlockOrigin::of(block))
        return *origin;
    auto* const origin = new BlockOrigin(m_touched, block); // the block's
    QTextBlock(block).setUserData(origin);
    return *origin;
}

std::vector<RichBody::Unit> RichBody::units() const
{
    std::vector<Unit> units;
    units.reserve(static_cast<std::size_t>(m_document.blockCount()));
    const QTextFrame* const root = m_document.rootFrame();
    for (auto iterator = root->begin(); !iterator.atEnd(); ++iterator) {
        if (auto* const table = qobject_cast<QTextTable*>(iterator.currentFrame())) {
            units.push_back({table->cellAt(0, 0).firstCursorPosition().block(), table});
            originAt(units.back().block);
        } else if (const QTextBlock block = iterator.currentBlock(); block.isValid()) {
            if (!originAt(block).isFiller || block.length() > 1)
                units.push_back({block});
        }
    }
    return units;
}

void RichBody::leaveOutEmptyEdges()
{
    const auto leaveOut = [this](const QTextBlock& edge, const QTextBlock& neighbour) {
        if (edge.length() > 1 || !neighbour.isValid() || !QTextCursor(neighbour).currentTable())
            return;
        setOrigin(edge, {}, -1);
        originAt(edge).isFiller = true;
    };
    leaveOut(m_document.firstBlock(), m_document.firstBlock().next());
    leaveOut(m_document.lastBlock(), m_document.lastBlock().previous());
}

void RichBody::noteChange(int position, int added)
{
    m_isChanged = true;
    QTextBlock block = m_document.findBlock(position);
    const int end = position + added;
    for (; block.isValid() && block.position() <= end; block = block.next()) {
        if (const auto* const table = QTextCursor(block).currentTable()) {
            touchTable(*table);
            block = table->lastCursorPosition().block();
        } else {
            originAt(block).touch();
        }
    }
}

void RichBody::touchTable(const QTextTable& table)
{
    m_isChanged = true;
    const QTextBlock first = table.cellAt(0, 0).firstCursorPosition().block();
    originAt(first).touch();
    // A block that a table was inserted into may have become one of its cells, origin and all.
    const QTextBlock last = table.lastCursorPosition().block();
    for (QTextBlock block = first; block != last; block = block.next())
        block.next().setUserData(nullptr);
}

void RichBody::settle()
{
    for (BlockOrigin* const origin : std::exchange(*m_touched, {})) {
        origin->setTouched(false);
        readBack(*origin);
    }
}

void RichBody::readBack(BlockOrigin& origin)
{
    const auto* const table = QTextCursor(origin.block()).currentTable();
    const markup::Block block = table ? writeTable(*table) : writeParagraph(origin.block());
    origin.kind = block.kind;
    // However it is written, what says the same stays as it is.
    if (origin.place < 0 || !saysTheSame(block, origin.source())) {
        QString content = markup::writeBlock(block);
        if (m_lineEnd.size() != 1 || m_lineEnd != QLatin1String("\n"))
            content.replace(QLatin1String("\n"), m_lineEnd);
        const qsizetype length = content.size();
        origin.setContent({std::move(content), 0, length});
    }
}

void RichBody::appendGap(QString& text, const Unit& upper, const Unit& lower) const
{
    const BlockOrigin& above = upper.origin();
    const BlockOrigin& below = lower.origin();
    const auto isAsPlaced = [](const BlockOrigin& origin) {
        return origin.kind == origin.placedKind && origin.isBlank() == origin.wasBlank;
    };
    const bool areNeighbours = above.place >= 0 && below.place == above.place + 1;
    // However narrow a gap is, it parts the blocks that it was read between.
    if (areNeighbours && isAsPlaced(above) && isAsPlaced(below)) {
        text += above.gap.view();
        return;
    }
    const int needed = above.isBlank()   ? 1
                       : below.isBlank() ? 2
                                         : markup::lineEndsBetween(above.kind, below.kind);
    text += m_lineEnd.repeated(needed);
}

const QString& RichBody::text()
{
    if (!m_isChanged)
        return m_text;
    settle();
    const std::vector<Unit> all = units();
    QString text = m_lead;
    text.reserve(m_text.size() + m_text.size() / 64 + 64);
    struct Place
    {
        qsizetype start;
        qsizetype gapStart;
        qsizetype end;
    };
    std::vector<Place> places;
    places.reserve(all.size());
    for (std::size_t index = 0; index < all.size(); ++index) {
        const BlockOrigin& origin = all[index].origin();
        const qsizetype start = text.size();
        text += origin.content.view();
        const qsizetype gapStart = text.size();
        if (index + 1 < all.size())
            appendGap(text, all[index], all[index + 1]);
        else if (!origin.isBlank())
            text += m_tail;
        places.push_back({start, gapStart, text.size()});
    }
    m_text = text;
    for (std::size_t index = 0; index < all.size(); ++index) {
        BlockOrigin& origin = all[index].origin();
        const Place& place = places[index];
        origin.content = {m_text, place.start, place.gapStart - place.start};
        origin.gap = {m_text, place.gapStart, place.end - place.gapStart};
        origin.setPlace(static_cast<int>(index));
    }
    m_isChanged = false;
    return m_text;
}

qint64 RichBody::words()
{
    settle();
    qint64 words = 0;
    for (const Unit& unit : units())
        words += unit.origin().words();
    return words;
}

} // namespace tw::desktop::manuscript::rich
