#pragma once

#include <QString>

namespace tw::desktop::fields {

/** The names of the picture files that can be shown, as a file dialog takes them: "*.png *.jpg ...". */
[[nodiscard]] QString imageNamePatterns();

} // namespace tw::desktop::fields
