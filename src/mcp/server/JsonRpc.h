#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <variant>

/** The messages of JSON-RPC 2.0, as far as the Model Context Protocol uses them. */
namespace tw::mcp::server {

enum class ErrorCode : int
{
    ParseError = -32700,
    InvalidRequest = -32600,
    MethodNotFound = -32601,
    InvalidParams = -32602,
    /** Of the protocol before 2026-07-28; later a missing resource is InvalidParams. */
    ResourceNotFound = -32002,
    UnsupportedProtocolVersion = -32022,
};

struct RpcError
{
    ErrorCode code = ErrorCode::InvalidRequest;
    QString message;
    /** Left out when null. */
    QJsonValue data = {};
};

/** What a tool says: by far the most frequent result, and written without making an object of it. */
struct ToolResult
{
    QString text;
    bool isError = false;
    /** Further members of the result. */
    QJsonObject members = {};
};

/** What a request comes to. */
using RpcOutcome = std::variant<QJsonObject, ToolResult, RpcError>;

/** A text or a number: what a request may be called by. */
[[nodiscard]] bool isRequestId(const QJsonValue& id);

/** The message that answers the request of that id, as one line without its end. */
[[nodiscard]] QByteArray responseLine(const QJsonValue& id, const RpcOutcome& outcome);
/** For messages whose id cannot be told; it is null then. */
[[nodiscard]] QByteArray errorLine(const RpcError& error);

} // namespace tw::mcp::server
