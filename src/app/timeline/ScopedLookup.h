#pragma once

#include "app/timeline/ContinuityValidator.h"

namespace tw::app::timeline {

/** Finds objects in the project, then in its libraries. Both must outlive it. */
class ScopedLookup
{
public:
    ScopedLookup(const core::project::Project& project, const ContinuityScope& scope)
        : m_project(project)
        , m_scope(scope)
    {}

    /** None when the id resolves to nothing. */
    [[nodiscard]] const core::content::ContentObject* find(const core::ContentId& id) const;
    /** The project that holds the object which find() gives. */
    [[nodiscard]] const core::project::Project& ownerOf(const core::ContentId& id) const;
    [[nodiscard]] bool isHidden(const core::content::ContentObject& object) const
    {
        return m_scope.isHidden && m_scope.isHidden(object);
    }

private:
    const core::project::Project& m_project;
    const ContinuityScope& m_scope;
};

/** The display name of an entity; "An entity" for one without a name, for other objects and for none. */
[[nodiscard]] QString entityName(const core::content::ContentObject* object);

} // namespace tw::app::timeline
