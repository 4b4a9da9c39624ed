#pragma once

#include "app/persistence/merge/FileMerge.h"
#include "desktop/icons/Icon.h"

namespace tw::desktop::review {

/** What the user calls the thing that a project file holds. */
struct FileTitle
{
    QString text; ///< "Low tide (document)".
    icons::Icon icon = icons::Icon::Document;
};

/** Read from the version here, else from the one on disk; the path where neither can be read. */
[[nodiscard]] FileTitle fileTitle(const app::persistence::FileMerge& file);

} // namespace tw::desktop::review
