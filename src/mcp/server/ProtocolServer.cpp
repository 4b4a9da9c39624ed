#include "mcp/server/ProtocolServer.h"

#include "mcp/server/Prompts.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <chrono>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto statelessVersion = "2026-07-28"_L1;
/** Newest first: what a client that asks for an unknown one is offered. */
constexpr std::array sessionVersions{"2025-11-25"_L1, "2025-06-18"_L1, "2025-03-26"_L1, "2024-11-05"_L1};
/** The versions in which several messages may come as one array. */
constexpr std::array batchVersions{"2025-03-26"_L1, "2024-11-05"_L1};

constexpr auto protocolVersionKey = "io.modelcontextprotocol/protocolVersion"_L1;
constexpr auto clientCapabilitiesKey = "io.modelcontextprotocol/clientCapabilities"_L1;
constexpr auto serverInfoKey = "io.modelcontextprotocol/serverInfo"_L1;

/** How long a client may go by what it was told, and whether others may as well. */
struct Caching
{
    std::chrono::milliseconds lifetime;
    QLatin1String scope;
};
/** The same for the whole life of the process, whatever the project holds. */
constexpr Caching fixedAnswer{std::chrono::hours(1), "public"_L1};
/** What the writer may change at any moment. */
constexpr Caching projectContent{std::chrono::milliseconds(0), "private"_L1};

QJsonObject capabilities()
{
    return {{u"tools"_s, QJsonObject()}, {u"resources"_s, QJsonObject()}, {u"prompts"_s, QJsonObject()}};
}

RpcError invalidParams(const QString& message)
{
    return {ErrorCode::InvalidParams, message};
}

/** Where a result takes further members; none for an error. */
QJsonObject* membersOf(RpcOutcome& outcome)
{
    if (auto* const tool = std::get_if<ToolResult>(&outcome))
        return &tool->members;
    return std::get_if<QJsonObject>(&outcome);
}

} // namespace

/** What a method is answered by, and how long its results last; none for those that say nothing of it. */
struct ProtocolServer::Method
{
    QLatin1String name;
    Handler handler;
    std::optional<Caching> caching;
};

const ProtocolServer::Method* ProtocolServer::findMethod(const QString& name)
{
    static const std::array methods{
        Method{"initialize"_L1, &ProtocolServer::initialize, {}},
        Method{"server/discover"_L1, &ProtocolServer::discover, fixedAnswer},
        Method{"ping"_L1, &ProtocolServer::ping, {}},
        Method{"tools/list"_L1, &ProtocolServer::listTools, fixedAnswer},
        Method{"tools/call"_L1, &ProtocolServer::callTool, {}},
        Method{"resources/list"_L1, &ProtocolServer::listResources, projectContent},
        Method{"resources/templates/list"_L1, &ProtocolServer::listResourceTemplates, fixedAnswer},
        Method{"resources/read"_L1, &ProtocolServer::readResource, projectContent},
        Method{"prompts/list"_L1, &ProtocolServer::listPrompts, fixedAnswer},
        Method{"prompts/get"_L1, &ProtocolServer::getPrompt, {}},
    };
    const auto method = std::ranges::find(methods, name, &Method::name);
    return method == methods.end() ? nullptr : &*method;
}

ProtocolServer::ProtocolServer(
    const ToolCatalogue& catalogue, const ProjectResources& resources, UseHooks hooks)
    : m_catalogue(catalogue)
    , m_resources(resources)
    , m_hooks(std::move(hooks))
{}

std::optional<QByteArray> ProtocolServer::answer(const InputMessage& message)
{
    if (!message.problem.isEmpty())
        return errorLine({ErrorCode::ParseError, u"The message is not JSON: %1"_s.arg(message.problem)});
    return message.document.isArray() ? answerBatch(message.document.array())
                                      : answerMessage(message.document.object());
}

std::optional<QByteArray> ProtocolServer::answerBatch(const QJsonArray& batch)
{
    if (std::ranges::find(batchVersions, m_sessionVersion) == batchVersions.end()) {
        return errorLine(
            {ErrorCode::InvalidRequest,
             u"This version of the protocol has one message a line and no batches."_s});
    }
    if (batch.isEmpty())
        return errorLine({ErrorCode::InvalidRequest, u"The batch is empty."_s});
    QByteArrayList answers;
    for (const QJsonValue& message : batch) {
        if (const auto answered = answerMessage(message))
            answers.append(*answered);
    }
    return answers.isEmpty() ? std::nullopt : std::optional('[' + answers.join(',') + ']');
}

std::optional<QByteArray> ProtocolServer::answerMessage(const QJsonValue& value)
{
    static const QJsonValue rpcVersion(u"2.0"_s);
    const QJsonObject message = value.toObject();
    const QJsonValue id = message.value(u"id");
    const QJsonValue method = message.value(u"method");
    // Nothing is ever asked of the client, so that a response can only be a mistake: answering it would go on
    // for ever.
    if (method.isUndefined() && (message.contains(u"result") || message.contains(u"error")))
        return std::nullopt;
    if (!value.isObject() || message.value(u"jsonrpc") != rpcVersion || !method.isString() ||
        (!id.isUndefined() && !isRequestId(id))) {
        const RpcError error{
            ErrorCode::InvalidRequest, u"A message needs \"jsonrpc\": \"2.0\", a \"method\", and, to be "
                                       u"answered, an \"id\" that is a text or a "
                                       "number."_s};
        return isRequestId(id) ? responseLine(id, error) : errorLine(error);
    }
    if (id.isUndefined())
        return std::nullopt;
    return responseLine(id, run(method.toString(), message.value(u"params")));
}

std::optional<RpcError> ProtocolServer::checkEnvelope(const QJsonObject& meta)
{
    const QJsonValue version = meta.value(protocolVersionKey);
    if (!version.isString())
        return invalidParams(u"\"_meta\" needs \"%1\"."_s.arg(protocolVersionKey));
    if (version != statelessVersion) {
        return RpcError{
            ErrorCode::UnsupportedProtocolVersion,
            u"Unsupported protocol version: %1"_s.arg(version.toString()),
            QJsonObject{
                {u"supported"_s, QJsonArray{QString(statelessVersion)}},
                {u"requested"_s, version.toString()}}};
    }
    if (!meta.value(clientCapabilitiesKey).isObject())
        return invalidParams(u"\"_meta\" needs \"%1\", an object."_s.arg(clientCapabilitiesKey));
    return std::nullopt;
}

RpcOutcome ProtocolServer::run(const QString& methodName, const QJsonValue& params)
{
    const Method* const method = findMethod(methodName);
    if (!method)
        return RpcError{ErrorCode::MethodNotFound, u"Unknown method: %1"_s.arg(methodName)};
    if (!params.isUndefined() && !params.isObject())
        return invalidParams(u"\"params\" must be an object."_s);
    Request request{params.toObject(), Generation::Session};

    const QJsonObject meta = request.params.value(u"_meta").toObject();
    if (meta.contains(protocolVersionKey) || method->handler == &ProtocolServer::discover) {
        if (const auto refused = checkEnvelope(meta))
            return *refused;
        request.generation = Generation::Stateless;
    }
    RpcOutcome outcome = (this->*method->handler)(request);
    QJsonObject* const members = membersOf(outcome);
    if (members && request.generation == Generation::Stateless) {
        members->insert(u"resultType"_s, u"complete"_s);
        members->insert(u"_meta"_s, QJsonObject{{serverInfoKey, serverInfo()}});
        if (method->caching) {
            members->insert(u"ttlMs"_s, qint64{method->caching->lifetime.count()});
            members->insert(u"cacheScope"_s, method->caching->scope);
        }
    }
    return outcome;
}

QJsonObject ProtocolServer::serverInfo() const
{
    return {
        {u"name"_s, m_catalogue.server().name()},
        {u"title"_s, u"Vellory"_s},
        {u"version"_s, m_catalogue.server().version()}};
}

RpcOutcome ProtocolServer::initialize(const Request& request)
{
    const QJsonValue wanted = request.params.value(u"protocolVersion");
    if (!wanted.isString())
        return invalidParams(u"initialize needs \"protocolVersion\"."_s);
    const bool isKnown = std::ranges::find(sessionVersions, wanted.toString()) != sessionVersions.end();
    m_sessionVersion = isKnown ? wanted.toString() : QString(sessionVersions.front());
    return QJsonObject{
        {u"protocolVersion"_s, m_sessionVersion},
        {u"capabilities"_s, capabilities()},
        {u"serverInfo"_s, serverInfo()},
        {u"instructions"_s, m_catalogue.server().instructions()}};
}

RpcOutcome ProtocolServer::discover(const Request&)
{
    QJsonArray versions{QString(statelessVersion)};
    for (const QLatin1String version : sessionVersions)
        versions.append(version);
    return QJsonObject{
        {u"supportedVersions"_s, versions},
        {u"capabilities"_s, capabilities()},
        {u"instructions"_s, m_catalogue.server().instructions()}};
}

RpcOutcome ProtocolServer::ping(const Request&)
{
    return QJsonObject();
}

RpcOutcome ProtocolServer::listTools(const Request&)
{
    return QJsonObject{{u"tools"_s, m_catalogue.listing()}};
}

RpcOutcome ProtocolServer::callTool(const Request& request)
{
    const QJsonValue given = request.params.value(u"name");
    if (!given.isString())
        return invalidParams(u"tools/call needs \"name\", the name of a tool."_s);
    const QJsonValue arguments = request.params.value(u"arguments");
    if (!arguments.isUndefined() && !arguments.isNull() && !arguments.isObject())
        return invalidParams(u"\"arguments\" must be an object."_s);
    const QString name = given.toString();
    if (!m_catalogue.hasTool(name))
        return invalidParams(m_catalogue.server().callTool(name, {}).text);
    m_hooks.beforeUse();
    auto result = m_catalogue.server().callTool(name, arguments.toObject());
    if (m_catalogue.access(name) == app::mcp::ToolAccess::Changing) {
        const QString nextStep = m_hooks.afterChange();
        if (!result.ok && !nextStep.isEmpty())
            result.text += u' ' + nextStep;
    }
    return ToolResult{std::move(result.text), !result.ok};
}

RpcOutcome ProtocolServer::listResources(const Request& request)
{
    const QJsonValue cursor = request.params.value(u"cursor");
    if (!cursor.isUndefined() && !cursor.isString())
        return invalidParams(u"\"cursor\" must be a text."_s);
    m_hooks.beforeUse();
    auto list = m_resources.list(cursor.toString());
    if (!list)
        return invalidParams(list.message());
    return std::move(list).value();
}

RpcOutcome ProtocolServer::listResourceTemplates(const Request&)
{
    return QJsonObject{{u"resourceTemplates"_s, QJsonArray()}};
}

RpcOutcome ProtocolServer::readResource(const Request& request)
{
    const QJsonValue uri = request.params.value(u"uri");
    if (!uri.isString())
        return invalidParams(u"resources/read needs \"uri\"."_s);
    m_hooks.beforeUse();
    if (auto contents = m_resources.read(uri.toString()))
        return *contents;
    const bool isStateless = request.generation == Generation::Stateless;
    return RpcError{
        isStateless ? ErrorCode::InvalidParams : ErrorCode::ResourceNotFound,
        u"Unknown resource: %1"_s.arg(uri.toString()), QJsonObject{{u"uri"_s, uri}}};
}

RpcOutcome ProtocolServer::listPrompts(const Request&)
{
    return QJsonObject{{u"prompts"_s, server::listPrompts()}};
}

RpcOutcome ProtocolServer::getPrompt(const Request& request)
{
    auto prompt = server::getPrompt(
        request.params.value(u"name").toString(), request.params.value(u"arguments").toObject());
    if (!prompt)
        return invalidParams(prompt.message());
    return std::move(prompt).value();
}

} // namespace tw::mcp::server
