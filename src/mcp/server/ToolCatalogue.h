#pragma once

#include "app/mcp/registry/McpServer.h"
#include "app/mcp/registry/ToolTable.h"
#include "core/foundation/Result.h"

#include <QHash>
#include <QJsonArray>
#include <QStringList>

#include <vector>

namespace tw::mcp::server {

/** A group of tools that can be offered or left out as one. */
struct ToolFamily
{
    /** As options call it. */
    QString name;
    /** For people. */
    QString title;
    app::mcp::ToolTable tools;
};

/** All families, in the order of the catalogue. */
[[nodiscard]] std::vector<ToolFamily> toolFamilies();

/** Which tools are offered. */
struct ToolChoice
{
    /** Only those that change neither the project nor a file. */
    bool isReadOnly = false;
    /** Families by name; all when empty. */
    QStringList families;
};

/** The names by which families are chosen. */
[[nodiscard]] QStringList familyNames();

/** The tools of one project as a client sees them. The workspace and the log outlive it. */
class ToolCatalogue
{
public:
    /** Fails for a family that does not exist; the message lists those that do. */
    [[nodiscard]] static core::Result<ToolCatalogue> create(
        app::workspace::Workspace& workspace, app::mcp::McpChangeLog& changeLog, const ToolChoice& choice,
        const QString& version);

    [[nodiscard]] const app::mcp::McpServer& server() const { return m_server; }
    [[nodiscard]] bool hasTool(const QString& name) const { return m_access.contains(name); }
    /** For a tool that is there. */
    [[nodiscard]] app::mcp::ToolAccess access(const QString& name) const { return m_access.value(name); }
    /** The entries of tools/list, always the same. */
    [[nodiscard]] const QJsonArray& listing() const { return m_listing; }

private:
    explicit ToolCatalogue(app::mcp::McpServer server)
        : m_server(std::move(server))
    {}

    app::mcp::McpServer m_server;
    QHash<QString, app::mcp::ToolAccess> m_access;
    QJsonArray m_listing;
};

} // namespace tw::mcp::server
