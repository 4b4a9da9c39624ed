#pragma once

#include "core/foundation/Result.h"

#include <QString>

#include <memory>

class QLockFile;

namespace tw::app::persistence {

/**
 * Keeps two programs from writing one project at the same time. Held for one operation (check and write), in
 * the per-user data folder and never inside the project, under a name made from the project's canonical path.
 * Released when destroyed, and by the system when the program dies.
 */
class ProjectLock
{
public:
    /** Waits a short while; the failure says that another program is at work on the project. */
    [[nodiscard]] static core::Result<ProjectLock> acquire(
        const QString& projectPath, const QString& dataFolder);

    ProjectLock(ProjectLock&&) noexcept;
    ProjectLock& operator=(ProjectLock&&) noexcept;
    ~ProjectLock();

private:
    explicit ProjectLock(std::unique_ptr<QLockFile> file);

    std::unique_ptr<QLockFile> m_file;
};

} // namespace tw::app::persistence
