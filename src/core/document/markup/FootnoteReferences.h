#pragma once

#include <QStringList>
#include <QStringView>

namespace tw::core::document::markup {

/** The footnotes that a Markdown body speaks of, each label once, in the order of the text. */
struct FootnoteLabels
{
    /** Labels that are referred to: what the reader sees as 1, 2, 3. */
    QStringList referenced;
    /** Labels of definitions that stand in the body itself. */
    QStringList defined;
};

[[nodiscard]] FootnoteLabels footnoteLabels(QStringView body);

} // namespace tw::core::document::markup
