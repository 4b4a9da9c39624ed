#pragma once

#include "core/foundation/Id.h"

#include <set>

namespace tw::core::project {

/** What moved in a project since somebody last asked. */
struct ProjectChanges
{
    std::set<ContentId> added;
    std::set<ContentId> removed;
    /** Objects whose fields changed; may also stand in `added`. */
    std::set<ContentId> changed;
    bool isTaxonomyChanged = false;
    /** Calendar, audiences, pins and the other project-wide data. */
    bool areSettingsChanged = false;
    /** Another project took this one's place: nothing that was read before holds. */
    bool isEverything = false;

    [[nodiscard]] bool isEmpty() const
    {
        return added.empty() && removed.empty() && changed.empty() && !isTaxonomyChanged &&
               !areSettingsChanged && !isEverything;
    }
    [[nodiscard]] bool concerns(const ContentId& id) const
    {
        return isEverything || added.contains(id) || removed.contains(id) || changed.contains(id);
    }
};

} // namespace tw::core::project
