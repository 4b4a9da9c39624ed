// The clipboard: what is taken along, and what is taken in.
#include "desktop/manuscript/rich/RichPage.h"

#include "core/document/markup/BlockWriter.h"
#include "core/document/markup/HtmlRenderer.h"
#include "core/document/markup/InlineWriter.h"
#include "core/document/markup/LegacyHtml.h"
#include "desktop/manuscript/rich/RichTextWriter.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTextBlock>
#include <QTextTable>
#include <QUrl>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;
using markup::Block;
using markup::BlockKind;

namespace {

constexpr QLatin1StringView markdownType = "text/markdown"_L1;

/** The part of a block that is selected; a whole block keeps its kind. */
Block selectedPart(const QTextBlock& block, int start, int end)
{
    const int from = std::max(0, start - block.position());
    const int to = std::min(block.length() - 1, end - block.position());
    Block part = writeParagraph(block);
    if (from == 0 && to == block.length() - 1)
        return part;
    if (part.kind != BlockKind::Code)
        part.text = markup::writeInline(writeRuns(block, from, to));
    else
        part.text = part.text.mid(from, to - from);
    return part;
}

QString joined(const std::vector<Block>& blocks)
{
    QString markdown;
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        if (index > 0)
            markdown +=
                QString(u'\n').repeated(markup::lineEndsBetween(blocks[index - 1].kind, blocks[index].kind));
        markdown += markup::writeBlock(blocks[index]);
    }
    return markdown;
}

/** Paragraphs of text without any formatting, as Markdown. */
std::vector<Block> plainBlocks(QString text)
{
    text.replace("\r\n"_L1, "\n"_L1);
    text.replace(u'\r', u'\n');
    std::vector<Block> blocks;
    for (const QString& line : text.split(u'\n')) {
        if (line.trimmed().isEmpty())
            continue;
        const markup::Run run{markup::RunKind::Text, line, {}, {}};
        blocks.emplace_back().text = markup::writeInline({&run, 1});
    }
    return blocks;
}

} // namespace

QString RichPage::selectedMarkdown() const
{
    const QTextCursor cursor = textCursor();
    const int start = cursor.selectionStart();
    const int end = cursor.selectionEnd();
    const QTextBlock first = document()->findBlock(start);
    // Within one paragraph it is a stretch of text, whatever the paragraph is.
    if (end <= first.position() + first.length() - 1 && kindOf(first.blockFormat()) != BlockKind::Code) {
        Block text;
        text.text = markup::writeInline(writeRuns(first, start - first.position(), end - first.position()));
        return markup::writeBlock(text);
    }
    std::vector<Block> blocks;
    for (QTextBlock block = first; block.isValid() && block.position() < end; block = block.next()) {
        if (const auto* const table = QTextCursor(block).currentTable()) {
            blocks.push_back(writeTable(*table));
            block = document()->findBlock(table->lastPosition());
        } else if (block.length() > 1 || kindOf(block.blockFormat()) == BlockKind::Rule) {
            blocks.push_back(selectedPart(block, start, end));
        }
    }
    return joined(blocks);
}

QMimeData* RichPage::createMimeDataFromSelection() const
{
    auto* const taken = new QMimeData; // the clipboard's
    const QString markdown = selectedMarkdown();
    taken->setData(markdownType, markdown.toUtf8());
    taken->setHtml(markup::renderHtml(markdown));
    QString text = textCursor().selectedText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    text.remove(QChar::ObjectReplacementCharacter);
    taken->setText(text);
    return taken;
}

bool RichPage::canInsertFromMimeData(const QMimeData* source) const
{
    // Files belong to the window, which opens projects.
    const QList<QUrl> urls = source->urls();
    if (!urls.isEmpty() && urls.constFirst().isLocalFile())
        return false;
    return source->hasText() || source->hasHtml() || source->hasImage() || source->hasFormat(markdownType);
}

void RichPage::insertFromMimeData(const QMimeData* source)
{
    if (isReadOnly())
        return;
    const bool isCode = currentShape().kind == BlockKind::Code;
    if (isCode)
        insertPlainText(source->text());
    else if (source->hasFormat(markdownType))
        insertMarkdown(QString::fromUtf8(source->data(markdownType)));
    else if (source->hasImage() && !source->hasText())
        emit imagePasted(qvariant_cast<QImage>(source->imageData()));
    else if (source->hasHtml())
        insertMarkdown(markup::htmlToMarkdown(source->html()));
    else
        insertPlainText(source->text());
}

void RichPage::insertPlainText(const QString& text)
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    if (currentShape().kind == BlockKind::Code) {
        QString lines = text;
        lines.replace("\r\n"_L1, "\n"_L1);
        cursor.insertText(
            lines.replace(u'\n', QChar(QChar::LineSeparator)), m_formats.text({}, currentShape()));
    } else if (const std::vector<Block> blocks = plainBlocks(text); !blocks.empty()) {
        insertBlocks(cursor, blocks);
    }
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void RichPage::pastePlainText()
{
    const QMimeData* const source = QApplication::clipboard()->mimeData();
    if (source && source->hasText() && !isReadOnly())
        insertPlainText(source->text());
}

} // namespace tw::desktop::manuscript::rich
