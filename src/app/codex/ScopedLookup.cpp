#include "app/codex/ScopedLookup.h"

namespace tw::app::codex {

using core::ContentId;
using core::project::Project;

const core::content::ContentObject* ScopedLookup::find(const ContentId& id) const
{
    return id.isNull() ? nullptr : ownerOf(id).find(id);
}

const Project& ScopedLookup::ownerOf(const ContentId& id) const
{
    if (!m_project.contains(id)) {
        for (const Project* library : m_scope.libraries) {
            if (library->contains(id))
                return *library;
        }
    }
    return m_project;
}

} // namespace tw::app::codex
