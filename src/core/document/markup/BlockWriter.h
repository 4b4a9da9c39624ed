#pragma once

#include "core/document/markup/Blocks.h"

namespace tw::core::document::markup {

/**
 * The canonical content of a block whose text was changed, without a line end at its end. Read again (in its
 * place among the items of a list) it is the same block, as long as its text comes from parseBlocks() or
 * writeInline(). A paragraph without text and attributes gives nothing.
 */
[[nodiscard]] QString writeBlock(const Block& block);

/** The line ends to write between two blocks, so that they stay two: 2 is a blank line. */
[[nodiscard]] int lineEndsBetween(BlockKind upper, BlockKind lower);

} // namespace tw::core::document::markup
