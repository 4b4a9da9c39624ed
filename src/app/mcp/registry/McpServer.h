#pragma once

#include "app/mcp/registry/McpToolResult.h"
#include "app/mcp/registry/McpToolSpec.h"

#include <QHash>

#include <functional>
#include <vector>

namespace tw::app::mcp {

/**
 * The tools of one open project by name, for whoever runs them: the assistant of the program, or the
 * companion executable. Filled once by the functions of ToolFamilies.h and not changed afterwards. Calls run
 * on the thread of the workspace, one after another.
 */
class McpServer
{
public:
    using Handler = std::function<McpToolResult(const QJsonObject& arguments)>;
    using CallObserver = std::function<void(const QString& toolName)>;

    McpServer(QString name, QString version, QString instructions);

    [[nodiscard]] const QString& name() const { return m_name; }
    [[nodiscard]] const QString& version() const { return m_version; }
    [[nodiscard]] const QString& instructions() const { return m_instructions; }

    /** A tool of that name that is there already is replaced and keeps its place in the catalogue. */
    void registerTool(McpToolSpec spec, Handler handler);

    /** In the order of registration. */
    [[nodiscard]] const std::vector<McpToolSpec>& tools() const { return m_catalogue; }

    /** Names are compared exactly. An unknown one is a failure. */
    [[nodiscard]] McpToolResult callTool(const QString& name, const QJsonObject& arguments) const;

    /** Told the name of every call that finds its tool, just before the tool runs. */
    void setCallObserver(CallObserver observer) { m_callObserver = std::move(observer); }

private:
    QString m_name;
    QString m_version;
    QString m_instructions;
    std::vector<McpToolSpec> m_catalogue;
    QHash<QString, Handler> m_handlers;
    CallObserver m_callObserver;
};

} // namespace tw::app::mcp
