#include "app/search/Replacement.h"

#include "app/search/GroupMask.h"
#include "core/document/markup/BlockWriter.h"
#include "core/document/markup/InlinePieces.h"
#include "core/document/markup/InlineWriter.h"
#include "core/document/markup/LegacyHtml.h"
#include "core/document/markup/PlainText.h"

#include <algorithm>
#include <optional>

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

/** `prose` is what was searched. None where groups tear marks apart, so that it is not what is edited here.
 */
std::optional<QString> editedInline(const QString& text, const QString& prose, const Edits& edits)
{
    const std::vector<markup::SourceRange> groups = markup::findLooseGroups(text, markup::takeApart(text));
    const GroupMask mask(text, groups);
    const std::vector<Run> runs = mask.parted(markup::parseInline(mask.text()));
    if (!groups.empty() && proseOf(runs, mask) != prose)
        return {};
    return mask.restored(markup::writeInline(editedRuns(runs, mask, edits)));
}

std::optional<QString> editedCode(const QString& text, const Edits& edits)
{
    const GroupMask mask(text, markup::findGroups(text));
    QString edited;
    for (const Run& run : editedRuns(mask.parted({Run{RunKind::Text, mask.text(), {}, {}}}), mask, edits))
        edited += run.text;
    return mask.restored(edited);
}

/** False when the part cannot be edited. */
bool apply(Block& block, const markup::PlainPart& part, const QString& prose, const Edits& edits)
{
    QString& text =
        block.kind == BlockKind::Table ? block.table.rows.at(part.row).at(part.column) : block.text;
    auto edited = block.kind == BlockKind::Code ? editedCode(text, edits) : editedInline(text, prose, edits);
    if (edited)
        text = std::move(*edited);
    return edited.has_value();
}

} // namespace

Replaced<DocumentBody> buildReplacement(
    const DocumentBody& body, const TextMatcher& matcher, const std::vector<TextMatch>& matches,
    const QString& replacement)
{
    const QString source = markup::markdownOf(body);
    markup::Blocks blocks = markup::parseBlocks(source);
    const markup::PlainText plain(source);
    std::vector<bool> isEdited(blocks.list.size(), false);
    qsizetype made = 0;
    qsizetype refused = 0;
    auto match = matches.begin();
    for (const markup::PlainPart& part : plain.parts()) {
        const QString prose = plain.text().sliced(part.start, part.length);
        Edits edits;
        for (; match != matches.end() && match->range.end() <= part.start + part.length; ++match) {
            const IndexRange range{match->range.first - part.start, match->range.count};
            if (match->field != MatchField::Body || range.first < 0)
                continue;
            QString text = matcher.replacementFor(match->groups, replacement);
            if (QStringView(prose).sliced(range.first, range.count) != text)
                edits.push_back({range, std::move(text)});
        }
        if (edits.empty())
            continue;
        if (!apply(blocks.list[part.block], part, prose, edits)) {
            refused += std::ssize(edits);
            continue;
        }
        made += std::ssize(edits);
        isEdited[part.block] = true;
    }
    if (made == 0)
        return {body, 0, refused};
    QString text = source.first(blocks.leadLength);
    for (std::size_t index = 0; index < blocks.list.size(); ++index) {
        const Block& block = blocks.list[index];
        text += isEdited[index] ? markup::writeBlock(block) : source.sliced(block.start, block.length);
        text += source.sliced(block.start + block.length, block.gapLength);
    }
    return {{text, BodyFormat::Markdown}, made, refused};
}

Replaced<QString> replaceInText(
    const QString& text, const TextMatcher& matcher, const std::vector<TextMatch>& matches,
    const QString& replacement)
{
    Replaced<QString> result{text};
    for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
        const QString wanted = matcher.replacementFor(match->groups, replacement);
        if (match->range.end() > text.size() ||
            QStringView(text).sliced(match->range.first, match->range.count) == wanted)
            continue;
        result.text.replace(match->range.first, match->range.count, wanted);
        ++result.made;
    }
    return result;
}

} // namespace tw::app::search
