#pragma once

#include "app/workspace/Workspace.h"
#include "core/foundation/Result.h"

#include <QStringList>

#include <map>

namespace tw::app::mcp {

/** Whether names that nothing has become entities of their own. */
enum class MissingEntities
{
    Refuse,
    Create,
};

/**
 * The entities that a call names, found or made up: a name without an entity is refused, or becomes a stub,
 * the same one however often it is named. Stubs enter the project by push().
 */
class EntityNames
{
public:
    EntityNames(workspace::Workspace& workspace, MissingEntities missing, core::CategoryId category = {})
        : m_workspace(workspace)
        , m_missing(missing)
        , m_category(category)
    {}

    /** The id of the entity with that name. */
    [[nodiscard]] core::Result<core::ContentId> resolve(const QString& name);
    /** Each once, in the order of first appearance. */
    [[nodiscard]] core::Result<std::vector<core::ContentId>> resolve(const QStringList& names);

    /** The names of the stubs, in the order in which they came up. */
    [[nodiscard]] const QStringList& stubs() const { return m_stubs; }

    /** Adds the stubs to the project by commands. */
    void push() const;

private:
    workspace::Workspace& m_workspace;
    MissingEntities m_missing;
    core::CategoryId m_category;
    QStringList m_stubs;
    /** By folded name. */
    std::map<QString, core::ContentId> m_stubIds;
};

} // namespace tw::app::mcp
