#pragma once

#include "core/document/Document.h"

namespace tw::core::document {

/** The body with Markdown behind it as paragraphs of its own, in the format that the body has. */
[[nodiscard]] DocumentBody withAppended(const DocumentBody& body, const QString& markdown);

} // namespace tw::core::document
