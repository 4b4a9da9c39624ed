#pragma once

#include "core/content/ContentObject.h"

#include <QString>

namespace tw::core::content {

/** What the writer calls an object: its title, name or caption, as stored. Empty for comments, which have
 * none. */
[[nodiscard]] QString objectName(const ContentObject& object);

/** What two names must share to count as the same one: blanks around them and the case of letters do not
 * matter. */
[[nodiscard]] QString foldedName(QStringView name);

} // namespace tw::core::content
