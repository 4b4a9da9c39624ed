#pragma once

#include "app/mcp/registry/McpChangeLog.h"
#include "app/mcp/registry/McpServer.h"

#include <QObject>

#include <memory>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::assistant {

/**
 * The tools of the open project within the program: made anew whenever another project opens, together with
 * an empty log of changes. What a tool changes is announced by the session as any edit is. Main thread only.
 */
class ProjectTools final : public QObject
{
    Q_OBJECT

public:
    /** The session must outlive this. */
    ProjectTools(shell::ProjectSession& session, QObject* parent);
    ~ProjectTools() override;

    /** Null while no project is open. */
    [[nodiscard]] const app::mcp::McpServer* server() const { return m_server.get(); }
    [[nodiscard]] const app::mcp::McpChangeLog& changeLog() const { return m_changeLog; }

    /** Runs a tool on the project as it is, typing included. Fails when no project is open. */
    [[nodiscard]] app::mcp::McpToolResult call(const QString& name, const QJsonObject& arguments);

private:
    void followProject();

    shell::ProjectSession& m_session;
    app::mcp::McpChangeLog m_changeLog;
    std::unique_ptr<app::mcp::McpServer> m_server;
    /** What the handlers refer to; only compared. */
    const void* m_workspace = nullptr;
};

} // namespace tw::desktop::assistant
