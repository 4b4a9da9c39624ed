// Character references such as "&amp;" and "&#39;".
#pragma once

#include <QString>
#include <QStringView>

namespace tw::core::document::markup {

struct Entity
{
    /** What it stands for; never a line end or another control character. */
    QString text;
    /** Its length in the source; 0 when there is none. */
    qsizetype length = 0;
};

/** The reference that begins at the "&" in front of the text. Looks at a bounded number of characters. */
[[nodiscard]] Entity readEntity(QStringView text);

} // namespace tw::core::document::markup
