#pragma once

#include "core/document/markup/Blocks.h"
#include "desktop/manuscript/rich/BlockOrigin.h"

#include <vector>

namespace tw::desktop::manuscript::rich {

/** A block of a body, or one of the blank lines that writers put between blocks on purpose. */
struct BodyUnit
{
    core::document::markup::Block block;
    SourcePiece content;
    SourcePiece gap;
};

/** A body cut into what the page shows. Lead, contents and gaps, put together, are the body. */
struct BodyUnits
{
    QString lead;
    std::vector<BodyUnit> list;
    /** What parts lines in this body: that of its first line. */
    QString lineEnd;
};

/** A blank line more than needed to part two blocks is an empty paragraph, so that what was typed stays. */
[[nodiscard]] BodyUnits readUnits(const QString& body);

[[nodiscard]] int countLineEnds(QStringView text);

} // namespace tw::desktop::manuscript::rich
