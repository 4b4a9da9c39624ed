#include "app/search/Replacement.h"

#include "core/document/markup/BlockWriter.h"
#include "core/document/markup/InlineWriter.h"
#include "core/document/markup/LegacyHtml.h"
#include "core/document/markup/PlainText.h"

#include <algorithm>

namespace tw::app::search {

namespace markup = core::document::markup;
using core::document::BodyFormat;
using core::document::DocumentBody;
using markup::Block;
using markup::BlockKind;
using markup::Run;
using markup::RunKind;

namespace {

/** What becomes of a stretch of a part's prose; counts from the part's start. */
struct Edit
{
    IndexRange range;
    QString text;
};

using Edits = std::vector<Edit>;

qsizetype plainLength(const Run& run)
{
    switch (run.kind) {
    case RunKind::Text:
        return run.text.size();
    case RunKind::SoftBreak:
    case RunKind::HardBreak:
        return 1;
    case RunKind::Image:
    case RunKind::FootnoteReference:
        return 0;
    }
    Q_UNREACHABLE();
}

/** Every edit goes where its text begins; what it reaches over in other runs goes. */
QString editedInline(const QString& text, const Edits& edits)
{
    std::vector<Run> result;
    qsizetype start = 0;
    auto edit = edits.begin();
    for (Run& run : markup::parseInline(text)) {
        const qsizetype end = start + plainLength(run);
        QString kept;
        qsizetype position = start;
        for (; edit != edits.end() && edit->range.first < end; ++edit) {
            const qsizetype from = std::max(edit->range.first, position);
            if (run.kind == RunKind::Text)
                kept += run.text.sliced(position - start, from - position);
            if (edit->range.first >= start)
                kept += edit->text;
            position = std::min(edit->range.end(), end);
            if (edit->range.end() > end)
                break;
        }
        if (run.kind == RunKind::Text)
            run.text = kept + run.text.sliced(position - start);
        else if (position > start) // A break that was part of what was found.
            run = {RunKind::Text, kept, {}, {}};
        if (run.kind != RunKind::Text || !run.text.isEmpty())
            result.push_back(std::move(run));
        start = end;
    }
    return markup::writeInline(result);
}

QString editedText(QString text, const Edits& edits)
{
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit)
        text.replace(edit->range.first, edit->range.count, edit->text);
    return text;
}

void apply(Block& block, const markup::PlainPart& part, const Edits& edits)
{
    if (block.kind == BlockKind::Table) {
        QString& cell = block.table.rows.at(part.row).at(part.column);
        cell = editedInline(cell, edits);
    } else if (block.kind == BlockKind::Code) {
        block.text = editedText(block.text, edits);
    } else {
        block.text = editedInline(block.text, edits);
    }
}

} // namespace

DocumentBody buildReplacement(
    const DocumentBody& body, const TextMatcher& matcher, const std::vector<TextMatch>& matches,
    const QString& replacement)
{
    const QString source = markup::markdownOf(body);
    markup::Blocks blocks = markup::parseBlocks(source);
    const markup::PlainText plain(source);
    std::vector<bool> isEdited(blocks.list.size(), false);
    auto match = matches.begin();
    for (const markup::PlainPart& part : plain.parts()) {
        Edits edits;
        for (; match != matches.end() && match->range.end() <= part.start + part.length; ++match) {
            const IndexRange range{match->range.first - part.start, match->range.count};
            if (match->field != MatchField::Body || range.first < 0)
                continue;
            edits.push_back({range, matcher.replacementFor(match->groups, replacement)});
        }
        if (edits.empty())
            continue;
        apply(blocks.list[part.block], part, edits);
        isEdited[part.block] = true;
    }
    QString text = source.first(blocks.leadLength);
    for (std::size_t index = 0; index < blocks.list.size(); ++index) {
        const Block& block = blocks.list[index];
        text += isEdited[index] ? markup::writeBlock(block) : source.sliced(block.start, block.length);
        text += source.sliced(block.start + block.length, block.gapLength);
    }
    return {text, BodyFormat::Markdown};
}

QString replaceInText(
    const QString& text, const TextMatcher& matcher, const std::vector<TextMatch>& matches,
    const QString& replacement)
{
    QString result = text;
    for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
        if (match->range.end() <= text.size())
            result.replace(
                match->range.first, match->range.count, matcher.replacementFor(match->groups, replacement));
    }
    return result;
}

} // namespace tw::app::search
