// What may leave a body for HTML. A body comes from anywhere; a value that is not known to be harmless is
// dropped.
#pragma once

#include <QString>
#include <QStringView>

namespace tw::core::document::markup {

/**
 * The target of a link or an image as it may be followed: relative, http, https or mailto, without control
 * characters. Empty for everything else, however the scheme is disguised.
 */
[[nodiscard]] QString safeLinkTarget(const QString& target);

/** The values as they may stand in a style attribute; empty when they may not. */
[[nodiscard]] QString safeColor(const QString& color);
[[nodiscard]] QString safeFontFamily(const QString& family);
[[nodiscard]] QString safeAlignment(const QString& alignment);

} // namespace tw::core::document::markup
