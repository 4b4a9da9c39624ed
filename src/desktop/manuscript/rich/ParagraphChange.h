#pragma once

#include "desktop/manuscript/rich/RichTextReader.h"

#include <QTextBlock>

namespace tw::desktop::manuscript::rich {

/**
 * Makes these paragraphs of `count` blocks from `first` on, by one edit of the text between what is the same
 * at both ends, so that cursors elsewhere stay where they are. No block may stand in another frame than the
 * first, and at least one paragraph has to be left.
 */
void changeParagraphs(const QTextBlock& first, int count, const std::vector<RichParagraph>& wanted);

/** Gives a block and its text the look that the formats have now. */
void restyleBlock(const QTextBlock& block, const RichFormats& formats);
/** Makes another kind of block of it; the text keeps its own styles. */
void reshapeBlock(const QTextBlock& block, const BlockShape& shape, const RichFormats& formats);

} // namespace tw::desktop::manuscript::rich
