#pragma once

#include "core/document/Document.h"

#include <QStringList>

class QTextBlock;

namespace tw::desktop::proofreading {

/**
 * The paragraphs of a document as its page shows them: the prose, without marks of the markup; things within
 * the text are one character. Code is left out. May be called from any thread.
 */
[[nodiscard]] QStringList paragraphsOf(const core::document::DocumentBody& body);

/**
 * The same of a paragraph in an editor, with its places: what is no prose is blank. Where the source is
 * shown, marks that are part of words stay.
 */
[[nodiscard]] QString proseOf(const QTextBlock& block);

} // namespace tw::desktop::proofreading
