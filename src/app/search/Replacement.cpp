#include "app/search/Replacement.h"

#include "app/search/GroupMask.h"
#include "core/document/markup/BlockWriter.h"
#include "core/document/markup/InlinePieces.h"
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

QString proseOf(const std::vector<Run>& runs, const GroupMask& mask)
{
    QString prose;
    for (const Run& run : runs) {
        if (run.kind == RunKind::Text && !mask.isStandIn(run))
            prose += run.text;
        else if (run.kind == RunKind::SoftBreak || run.kind == RunKind::HardBreak)
            prose += run.kind == RunKind::SoftBreak ? u' ' : u'\n';
    }
    return prose;
}

/** Every edit goes where its text begins; what it reaches over in other runs goes. Stand-ins stay. */
std::vector<Run> editedRuns(std::vector<Run> runs, const GroupMask& mask, const Edits& edits)
{
    std::vector<Run> result;
    qsizetype start = 0;
    auto edit = edits.begin();
    for (Run& run : runs) {
        const qsizetype end = start + (mask.isStandIn(run) ? 0 : plainLength(run));
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
    return result;
}

/** `prose` is what was searched. Where groups tear marks apart, so that it is not what is edited here,
 * nothing is. */
QString editedInline(const QString& text, const QString& prose, const Edits& edits)
{
    const std::vector<markup::SourceRange> groups = markup::findLooseGroups(text, markup::takeApart(text));
    const GroupMask mask(text, groups);
    const std::vector<Run> runs = mask.parted(markup::parseInline(mask.text()));
    if (!groups.empty() && proseOf(runs, mask) != prose)
        return text;
    return mask.restored(markup::writeInline(editedRuns(runs, mask, edits))).value_or(text);
}

QString editedCode(const QString& text, const Edits& edits)
{
    const GroupMask mask(text, markup::findGroups(text));
    QString edited;
    for (const Run& run : editedRuns(mask.parted({Run{RunKind::Text, mask.text(), {}, {}}}), mask, edits))
        edited += run.text;
    return mask.restored(edited).value_or(text);
}

void apply(Block& block, const markup::PlainPart& part, const QString& prose, const Edits& edits)
{
    if (block.kind == BlockKind::Table) {
        QString& cell = block.table.rows.at(part.row).at(part.column);
        cell = editedInline(cell, prose, edits);
    } else if (block.kind == BlockKind::Code) {
        block.text = editedCode(block.text, edits);
    } else {
        block.text = editedInline(block.text, prose, edits);
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
        apply(blocks.list[part.block], part, plain.text().sliced(part.start, part.length), edits);
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
