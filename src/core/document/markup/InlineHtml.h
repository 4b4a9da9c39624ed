// The runs of a block as HTML.
#pragma once

#include "core/document/markup/Inline.h"

#include <QHash>

namespace tw::core::document::markup {

/** Text as it may stand between tags and between the quotes of an attribute. */
[[nodiscard]] QString escapedForHtml(const QString& text);

/** " style="..."" and " data-tw-style="..."" of a block; empty when it has none. */
[[nodiscard]] QString blockAttributesForHtml(const BlockAttributes& attributes);

/** A label as part of an id. */
[[nodiscard]] QString footnoteAnchor(const QString& label);

/** Renders runs one block after another: it counts how often a footnote is referred to. */
class InlineHtml
{
public:
    [[nodiscard]] QString render(QStringView inlineMarkdown);

    /** The labels that were referred to, in order, each once. */
    [[nodiscard]] const QStringList& references() const { return m_references; }

private:
    [[nodiscard]] QString referenceTo(const QString& label);

    QStringList m_references;
    QHash<QString, int> m_counts;
};

} // namespace tw::core::document::markup
