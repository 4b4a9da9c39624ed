#include "core/document/markup/FootnoteReferences.h"

#include "core/document/markup/Blocks.h"
#include "core/document/markup/Inline.h"

namespace tw::core::document::markup {

namespace {

void appendOnce(QStringList& labels, const QString& label)
{
    if (!labels.contains(label))
        labels.append(label);
}

void appendReferences(QStringList& labels, QStringView text)
{
    // Most blocks have none, and looking is a great deal cheaper than reading.
    if (!text.contains(u"[^"))
        return;
    for (const Run& run : parseInline(text)) {
        if (run.kind == RunKind::FootnoteReference)
            appendOnce(labels, run.text);
    }
}

} // namespace

FootnoteLabels footnoteLabels(QStringView body)
{
    FootnoteLabels labels;
    for (const Block& block : parseBlocks(body).list) {
        if (block.kind == BlockKind::Code)
            continue;
        if (block.kind == BlockKind::FootnoteDefinition)
            appendOnce(labels.defined, block.label);
        appendReferences(labels.referenced, block.text);
        for (const auto& row : block.table.rows) {
            for (const QString& cell : row)
                appendReferences(labels.referenced, cell);
        }
    }
    return labels;
}

} // namespace tw::core::document::markup
