#pragma once

#include "core/document/markup/Blocks.h"
#include "core/document/markup/Inline.h"

#include <QTextBlock>

#include <vector>

class QTextTable;

namespace tw::desktop::manuscript::rich {

/** The text of a block between two offsets in it, as runs. */
[[nodiscard]] std::vector<core::document::markup::Run> writeRuns(
    const QTextBlock& block, int start = 0, int end = -1);

/** What a block of the text document says; its text is canonical inline Markdown. */
[[nodiscard]] core::document::markup::Block writeParagraph(const QTextBlock& block);
[[nodiscard]] core::document::markup::Block writeTable(const QTextTable& table);

/**
 * Whether a block still says what stands in `source`, its content as it was read: then the bytes may stay as
 * they are, however they are written.
 */
[[nodiscard]] bool saysTheSame(const core::document::markup::Block& block, QStringView source);

} // namespace tw::desktop::manuscript::rich
