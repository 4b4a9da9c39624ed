#include "desktop/manuscript/rich/BodyUnits.h"

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Line ends that part two paragraphs. */
constexpr int ordinaryGap = 2;

/** The offset behind the next line end, the view's size when there is none. */
qsizetype afterLineEnd(QStringView text, qsizetype from)
{
    for (qsizetype index = from; index < text.size(); ++index) {
        if (text[index] == u'\n')
            return index + 1;
        if (text[index] == u'\r')
            return index + (index + 1 < text.size() && text[index + 1] == u'\n' ? 2 : 1);
    }
    return text.size();
}

QString firstLineEnd(QStringView body)
{
    const qsizetype end = afterLineEnd(body, 0);
    if (end >= 2 && body[end - 1] == u'\n' && body[end - 2] == u'\r')
        return u"\r\n"_s;
    return end >= 1 && body[end - 1] == u'\r' ? u"\r"_s : u"\n"_s;
}

void appendWithBlankLines(BodyUnits& units, core::document::markup::Block&& block, const QString& body)
{
    BodyUnit unit;
    const qsizetype gapStart = block.start + block.length;
    const qsizetype gapEnd = gapStart + block.gapLength;
    const QStringView view(body);
    qsizetype end = gapStart;
    for (int lines = 0; lines < ordinaryGap && end < gapEnd; ++lines)
        end = afterLineEnd(view.first(gapEnd), end);
    unit.content = {body, block.start, block.length};
    unit.gap = {body, gapStart, end - gapStart};
    unit.block = std::move(block);
    units.list.push_back(std::move(unit));
    while (end < gapEnd) {
        const qsizetype next = afterLineEnd(view.first(gapEnd), end);
        qsizetype content = next;
        while (content > end && (view[content - 1] == u'\n' || view[content - 1] == u'\r'))
            --content;
        BodyUnit& blank = units.list.emplace_back();
        blank.content = {body, end, content - end};
        blank.gap = {body, content, next - content};
        end = next;
    }
}

} // namespace

int countLineEnds(QStringView text)
{
    int count = 0;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const bool isPair = text[index] == u'\r' && index + 1 < text.size() && text[index + 1] == u'\n';
        if (!isPair && (text[index] == u'\n' || text[index] == u'\r'))
            ++count;
    }
    return count;
}

BodyUnits readUnits(const QString& body)
{
    core::document::markup::Blocks blocks = core::document::markup::parseBlocks(body);
    BodyUnits units{body.first(blocks.leadLength), {}, firstLineEnd(body)};
    units.list.reserve(blocks.list.size());
    for (std::size_t index = 0; index < blocks.list.size(); ++index) {
        auto& block = blocks.list[index];
        // The blank lines at the end are the file's, not the writer's.
        if (index + 1 < blocks.list.size()) {
            appendWithBlankLines(units, std::move(block), body);
            continue;
        }
        BodyUnit unit;
        unit.content = {body, block.start, block.length};
        unit.gap = {body, block.start + block.length, block.gapLength};
        unit.block = std::move(block);
        units.list.push_back(std::move(unit));
    }
    return units;
}

} // namespace tw::desktop::manuscript::rich
