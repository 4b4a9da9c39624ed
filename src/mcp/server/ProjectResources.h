#pragma once

#include "app/workspace/Workspace.h"
#include "core/foundation/Result.h"
#include "mcp/server/ToolCatalogue.h"

#include <QJsonObject>

#include <optional>

namespace tw::mcp::server {

/**
 * Documents and codex entities as resources to read, "vellory://document/<id>". What is excluded from AI is
 * not there. A resource reads as the tool for its kind shows it, and is offered while that tool is.
 */
class ProjectResources
{
public:
    /** Both outlive this. */
    ProjectResources(const app::workspace::Workspace& workspace, const ToolCatalogue& catalogue)
        : m_workspace(workspace)
        , m_catalogue(catalogue)
    {}

    /** {"resources", "nextCursor"?}: some hundred at a time. Fails for a cursor that was not given out. */
    [[nodiscard]] core::Result<QJsonObject> list(const QString& cursor) const;
    /** {"contents"}; none when there is no such resource. */
    [[nodiscard]] std::optional<QJsonObject> read(const QString& uri) const;

private:
    const app::workspace::Workspace& m_workspace;
    const ToolCatalogue& m_catalogue;
};

} // namespace tw::mcp::server
