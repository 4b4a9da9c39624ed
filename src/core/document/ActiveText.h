#pragma once

#include "core/document/Document.h"
#include "core/undo/Command.h"

#include <memory>

namespace tw::core::document {

/** The variant in use; null when it is the main text, also when the active name is none of the variants'. */
[[nodiscard]] const DocumentVariant* activeVariant(const Document& document);

/** What the writer sees and edits: the text of the variant in use, else the main text. */
[[nodiscard]] DocumentBody activeText(const Document& document);

/** Sets what activeText() gives. The document outlives the command, as with every command. */
[[nodiscard]] std::unique_ptr<undo::Command> makeSetActiveTextCommand(Document& document, DocumentBody text);

} // namespace tw::core::document
