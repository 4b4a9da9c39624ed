#pragma once

#include "core/project/Project.h"

#include <functional>
#include <vector>

namespace tw::app::codex {

/** Where an engine looks beside the project, and what it passes over. */
struct ObjectScope
{
    /** Mounted libraries, in their order; what the project holds wins. */
    std::vector<const core::project::Project*> libraries;
    /** Objects that must not be spoken of; empty for none. */
    std::function<bool(const core::content::ContentObject&)> isHidden;
};

/** Finds objects in the project, then in its libraries. Both must outlive it. */
class ScopedLookup
{
public:
    ScopedLookup(const core::project::Project& project, const ObjectScope& scope)
        : m_project(project)
        , m_scope(scope)
    {}

    /** None when the id resolves to nothing. */
    [[nodiscard]] const core::content::ContentObject* find(const core::ContentId& id) const;
    template <class Kind>
    [[nodiscard]] const Kind* findAs(const core::ContentId& id) const
    {
        return core::content::objectCast<Kind>(find(id));
    }
    /** The project that holds the object which find() gives. */
    [[nodiscard]] const core::project::Project& ownerOf(const core::ContentId& id) const;
    [[nodiscard]] bool isHidden(const core::content::ContentObject& object) const
    {
        return m_scope.isHidden && m_scope.isHidden(object);
    }

private:
    const core::project::Project& m_project;
    const ObjectScope& m_scope;
};

} // namespace tw::app::codex
