#pragma once

#include "core/project/Project.h"

#include <map>
#include <span>

namespace tw::core::project {

/**
 * Numbers siblings in a new order and can give them back the numbers they had. For commands that move one
 * object among others, of a kind with a sort index. Objects that are gone meanwhile are passed over.
 */
template <class Kind>
class SiblingOrder
{
public:
    /** From 0 on; of several calls, the numbers before the first one are kept. */
    void number(Project& project, std::span<const ContentId> siblings)
    {
        qint32 index = 0;
        for (const ContentId& id : siblings)
            setIndex(project, id, index++);
    }

    /** Back to the numbers before number(), which may start anew afterwards. */
    void restore(Project& project)
    {
        for (const auto& [id, index] : std::exchange(m_formerIndices, {})) {
            if (auto* const object = project.findAsForEdit<Kind>(id);
                object && object->sortIndex() != index) {
                object->setSortIndex(index);
                object->touch();
            }
        }
    }

private:
    void setIndex(Project& project, const ContentId& id, qint32 index)
    {
        auto* const object = project.findAsForEdit<Kind>(id);
        if (!object || object->sortIndex() == index)
            return;
        m_formerIndices.emplace(id, object->sortIndex());
        object->setSortIndex(index);
        object->touch();
    }

    std::map<ContentId, qint32> m_formerIndices;
};

} // namespace tw::core::project
