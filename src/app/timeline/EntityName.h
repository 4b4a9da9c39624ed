#pragma once

#include "core/content/ContentObject.h"

namespace tw::app::timeline {

/** The display name of an entity; "An entity" for one without a name, for other objects and for none. */
[[nodiscard]] QString entityName(const core::content::ContentObject* object);

} // namespace tw::app::timeline
