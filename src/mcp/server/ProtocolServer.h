#pragma once

#include "mcp/server/JsonRpc.h"
#include "mcp/server/MessageQueue.h"
#include "mcp/server/ProjectResources.h"
#include "mcp/server/ToolCatalogue.h"

#include <functional>
#include <optional>

namespace tw::mcp::server {

/**
 * The server's side of the Model Context Protocol: messages in, messages out, no process around it. Speaks
 * both generations: clients that begin with `initialize`, whose version then holds for the session, and those
 * of revision 2026-07-28, who say version and capabilities with every request and may ask `server/discover`
 * first.
 *
 * Anything may come in; what cannot be answered with a result is answered with an error. One message at a
 * time.
 */
class ProtocolServer
{
public:
    struct UseHooks
    {
        /** Runs before anything of the project is read. */
        std::function<void()> beforeUse;
        /** Runs after a tool that may have changed and saved it. What it says is put behind a failure. */
        std::function<QString()> afterChange;
    };

    /** The catalogue and the resources outlive the server. */
    ProtocolServer(const ToolCatalogue& catalogue, const ProjectResources& resources, UseHooks hooks);

    /** The line to answer with, without its end; none for notifications and for responses. */
    [[nodiscard]] std::optional<QByteArray> answer(const InputMessage& message);

private:
    /** How one request is spoken. */
    enum class Generation
    {
        Session,
        Stateless,
    };
    struct Request
    {
        QJsonObject params;
        Generation generation = Generation::Session;
    };
    using Handler = RpcOutcome (ProtocolServer::*)(const Request& request);
    struct Method;

    [[nodiscard]] std::optional<QByteArray> answerMessage(const QJsonValue& message);
    [[nodiscard]] std::optional<QByteArray> answerBatch(const QJsonArray& batch);
    [[nodiscard]] RpcOutcome run(const QString& methodName, const QJsonValue& params);
    [[nodiscard]] static std::optional<RpcError> checkEnvelope(const QJsonObject& meta);

    [[nodiscard]] RpcOutcome initialize(const Request& request);
    [[nodiscard]] RpcOutcome discover(const Request& request);
    [[nodiscard]] RpcOutcome ping(const Request& request);
    [[nodiscard]] RpcOutcome listTools(const Request& request);
    [[nodiscard]] RpcOutcome callTool(const Request& request);
    [[nodiscard]] RpcOutcome listResources(const Request& request);
    [[nodiscard]] RpcOutcome listResourceTemplates(const Request& request);
    [[nodiscard]] RpcOutcome readResource(const Request& request);
    [[nodiscard]] RpcOutcome listPrompts(const Request& request);
    [[nodiscard]] RpcOutcome getPrompt(const Request& request);

    [[nodiscard]] QJsonObject serverInfo() const;
    static const Method* findMethod(const QString& name);

    const ToolCatalogue& m_catalogue;
    const ProjectResources& m_resources;
    UseHooks m_hooks;
    /** What `initialize` came to; empty before. */
    QString m_sessionVersion;
};

} // namespace tw::mcp::server
