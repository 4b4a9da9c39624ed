#pragma once

#include "core/content/ContentKind.h"

#include <QLatin1String>
#include <QString>

#include <optional>

namespace tw::app::mcp {

/** What tools call a kind of object: "document", "timeline event". */
[[nodiscard]] QLatin1String kindWord(core::content::ContentKind kind);
/** None for a word that is no kind's, as "object", which stands for all of them. */
[[nodiscard]] std::optional<core::content::ContentKind> kindOfWord(QStringView word);

/** What the kind calls its name: "A document titled", "An entity named". */
[[nodiscard]] QString kindWithArticleAndNaming(core::content::ContentKind kind);

} // namespace tw::app::mcp
