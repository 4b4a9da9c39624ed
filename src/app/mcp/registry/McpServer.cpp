#include "app/mcp/registry/McpServer.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

McpServer::McpServer(QString name, QString version, QString instructions)
    : m_name(std::move(name))
    , m_version(std::move(version))
    , m_instructions(std::move(instructions))
{}

void McpServer::registerTool(McpToolSpec spec, Handler handler)
{
    m_handlers.insert(spec.name, std::move(handler));
    const auto known = std::ranges::find(m_catalogue, spec.name, &McpToolSpec::name);
    if (known == m_catalogue.end())
        m_catalogue.push_back(std::move(spec));
    else
        *known = std::move(spec);
}

McpToolResult McpServer::callTool(const QString& name, const QJsonObject& arguments) const
{
    const auto handler = m_handlers.constFind(name);
    if (handler == m_handlers.constEnd())
        return McpToolResult::failure(u"Unknown tool: %1"_s.arg(name));
    if (m_callObserver)
        m_callObserver(name);
    return (*handler)(arguments);
}

} // namespace tw::app::mcp
