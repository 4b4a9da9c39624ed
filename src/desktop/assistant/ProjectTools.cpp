#include "desktop/assistant/ProjectTools.h"

#include "app/mcp/ToolFamilies.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

namespace tw::desktop::assistant {

using namespace Qt::Literals::StringLiterals;
using app::mcp::McpToolResult;

ProjectTools::ProjectTools(shell::ProjectSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    connect(
        &session, &shell::ProjectSession::changed, this,
        [this](const core::project::ProjectChanges& changes) {
            if (changes.isEverything)
                followProject();
        });
    followProject();
}

ProjectTools::~ProjectTools() = default;

void ProjectTools::followProject()
{
    const void* const workspace = m_session.isProjectOpen() ? &m_session.workspace() : nullptr;
    if (workspace == m_workspace)
        return;
    m_workspace = workspace;
    m_server.reset();
    m_changeLog.entries.clear();
    if (!workspace)
        return;
    m_server = std::make_unique<app::mcp::McpServer>(
        u"vellory"_s, QCoreApplication::applicationVersion(), QString());
    m_session.runOnWorkspace([this](app::workspace::Workspace& open) {
        app::mcp::registerMcpCoreTools(*m_server, open, m_changeLog);
        app::mcp::registerMcpWorldTools(*m_server, open, m_changeLog);
        app::mcp::registerMcpDocumentTools(*m_server, open, m_changeLog);
        app::mcp::registerMcpTimeAndSpaceTools(*m_server, open, m_changeLog);
    });
}

McpToolResult ProjectTools::call(const QString& name, const QJsonObject& arguments)
{
    if (!m_server)
        return McpToolResult::failure(u"No project is open in Vellory."_s);
    McpToolResult result = McpToolResult::failure({});
    m_session.runOnWorkspace(
        [&](app::workspace::Workspace&) { result = m_server->callTool(name, arguments); });
    return result;
}

} // namespace tw::desktop::assistant
