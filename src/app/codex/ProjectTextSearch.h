#pragma once

#include "core/content/ContentKind.h"
#include "core/foundation/Result.h"
#include "core/project/Project.h"

#include <functional>
#include <optional>
#include <vector>

namespace tw::app::codex {

struct TextSearch
{
    /** Looked for as it is, in letters of any case. */
    QString text;
    std::optional<core::content::ContentKind> kind;
    /** More objects than this are not looked for. */
    qsizetype mostHits = 50;
    /** Objects that are passed over beside those excluded from AI; empty for none. */
    std::function<bool(const core::content::ContentObject&)> isHidden = {};
};

/** An object that holds the text. */
struct TextHit
{
    const core::content::ContentObject* object = nullptr;
    /** The first place with a little around it, in one line. */
    QString snippet;
};

/**
 * The objects with the text in their names, then those with it anywhere else: bodies of documents with their
 * variants, and every other text people read. Objects excluded from AI are passed over. Fails for an empty
 * text.
 *
 * Bodies are looked through as they are stored, without copies; only where a word of the query stands is a
 * body read as prose. So time grows with the size of the project, and a word that has marks inside itself is
 * not found.
 */
[[nodiscard]] core::Result<std::vector<TextHit>> searchTexts(
    const core::project::Project& project, const TextSearch& search);

} // namespace tw::app::codex
