// Reads whatever text the fuzzer thinks of as a body and as legacy rich text, and writes it again.
#include "core/document/WordCount.h"
#include "core/document/markup/BlockWriter.h"
#include "core/document/markup/BodyWords.h"
#include "core/document/markup/HtmlRenderer.h"
#include "core/document/markup/InlineWriter.h"
#include "core/document/markup/LegacyHtml.h"
#include "core/document/markup/PlainText.h"

#include <algorithm>
#include <cstdlib>

using namespace tw::core::document;
using namespace tw::core::document::markup;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void readBody(const QString& body)
{
    const Blocks blocks = parseBlocks(body);
    qsizetype position = blocks.leadLength;
    QString rewritten = body.first(position);
    for (const Block& block : blocks.list) {
        require(block.start == position && block.length >= 0 && block.gapLength >= 0);
        position += block.length + block.gapLength;
        rewritten += writeBlock(block) + body.sliced(block.start + block.length, block.gapLength);
        const auto runs = canonicalRuns(parseInline(block.text));
        require(canonicalRuns(runs) == runs);
        (void)writeInline(runs);
    }
    require(position == body.size());
    require(std::ranges::equal(blocks.list, parseBlocks(rewritten).list, isSameContent));

    const PlainText plain(body);
    for (qsizetype offset = 0; offset <= plain.text().size(); ++offset)
        require(plain.toBody(offset) <= body.size() && plain.endInBody(offset) <= body.size());
    require(countBodyWords(body) == countWords(plain.text()));
    require(!renderHtml(body).contains(u"<script", Qt::CaseInsensitive));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    readBody(text);
    readBody(htmlToMarkdown(text));
    return 0;
}
