#pragma once

#include "core/project/Project.h"

#include <memory>

namespace tw::app::workspace {

/** Another project, read but never written, whose objects the open project may refer to. */
struct MountedLibrary
{
    /** The library project's own name, or that of its folder. */
    QString name;
    /** Absolute. */
    QString path;
    std::unique_ptr<const core::project::Project> project;
};

} // namespace tw::app::workspace
