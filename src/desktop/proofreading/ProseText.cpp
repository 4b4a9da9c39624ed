#include "desktop/proofreading/ProseText.h"

#include "core/document/markup/Attributes.h"
#include "core/document/markup/Blocks.h"
#include "core/document/markup/Inline.h"
#include "core/document/markup/LegacyHtml.h"
#include "desktop/manuscript/rich/BlockShape.h"

#include <QTextBlock>

namespace tw::desktop::proofreading {

namespace markup = core::document::markup;
using markup::BlockKind;
using markup::RunKind;

namespace {

/** Blanks the groups that stand among the words. */
void blankGroups(QString& text)
{
    for (const markup::SourceRange& group : markup::findGroups(text)) {
        const qsizetype length = group.end - group.start;
        text.replace(group.start, length, QString(length, QChar::ObjectReplacementCharacter));
    }
}

QString proseOf(QStringView inlineMarkdown)
{
    QString prose;
    for (const markup::Run& run : markup::parseInline(inlineMarkdown)) {
        switch (run.kind) {
        case RunKind::Text:
            // As long as it is in the editor.
            prose += run.style.code ? QString(run.text.size(), QChar::ObjectReplacementCharacter) : run.text;
            break;
        case RunKind::SoftBreak:
            prose += u' ';
            break;
        case RunKind::HardBreak:
            prose += QChar::LineSeparator;
            break;
        case RunKind::Image:
        case RunKind::FootnoteReference:
            prose += QChar::ObjectReplacementCharacter;
            break;
        }
    }
    blankGroups(prose);
    return prose;
}

} // namespace

QStringList paragraphsOf(const core::document::DocumentBody& body)
{
    QStringList paragraphs;
    for (const markup::Block& block : markup::parseBlocks(markup::markdownOf(body)).list) {
        if (block.kind == BlockKind::Code || block.kind == BlockKind::Rule)
            continue;
        for (const auto& row : block.table.rows) {
            for (const QString& cell : row)
                paragraphs.append(proseOf(cell));
        }
        if (block.kind != BlockKind::Table)
            paragraphs.append(proseOf(block.text));
    }
    return paragraphs;
}

QString proseOf(const QTextBlock& block)
{
    using namespace manuscript::rich;
    if (kindOf(block.blockFormat()) == BlockKind::Code)
        return {};
    QString text = block.text();
    blankGroups(text);
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
        const QTextFragment run = fragment.fragment();
        if (!styleOf(run.charFormat()).code)
            continue;
        const int start = run.position() - block.position();
        text.replace(start, run.length(), QString(run.length(), QChar::ObjectReplacementCharacter));
    }
    return text;
}

} // namespace tw::desktop::proofreading
