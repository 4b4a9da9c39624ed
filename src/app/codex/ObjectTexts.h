#pragma once

#include "core/content/ContentObject.h"

#include <QString>

#include <functional>

namespace tw::app::codex {

/** Told one text; true ends the walk. */
using TextVisitor = std::function<bool(const QString& text)>;

/**
 * Shows a visitor all texts of an object that people read, of every kind, but its name and the bodies of
 * documents: descriptions, notes, values, labels, cells, words of a dictionary, tags. Ids are left out.
 * Copies nothing.
 */
void visitTexts(const core::content::ContentObject& object, const TextVisitor& visitor);

} // namespace tw::app::codex
