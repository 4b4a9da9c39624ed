#pragma once

#include "core/project/Project.h"
#include "core/project/ProjectChanges.h"

#include <map>

namespace tw::desktop::shell {

/**
 * The words of the prose and screenplays of a project, counted once and kept up to date by what changed.
 * Notes do not count towards the manuscript.
 */
class ProjectWords
{
public:
    void update(const core::project::Project& project, const core::project::ProjectChanges& changes);

    [[nodiscard]] qint64 total() const { return m_total; }
    /** 0 for what is no document of the project. Also counts notes. */
    [[nodiscard]] qint64 ofDocument(const core::ContentId& id) const;

private:
    struct Count
    {
        qint64 words = 0;
        bool belongsToManuscript = false;
    };

    void forget(const core::ContentId& id);
    void count(const core::project::Project& project, const core::ContentId& id);

    std::map<core::ContentId, Count> m_counts;
    qint64 m_total = 0;
};

} // namespace tw::desktop::shell
