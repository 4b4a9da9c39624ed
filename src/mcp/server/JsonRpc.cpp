#include "mcp/server/JsonRpc.h"

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;

bool isRequestId(const QJsonValue& id)
{
    return id.isString() || id.isDouble();
}

QJsonObject responseMessage(const QJsonValue& id, const RpcOutcome& outcome)
{
    QJsonObject message{{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, id}};
    if (const auto* result = std::get_if<QJsonObject>(&outcome)) {
        message.insert(u"result"_s, *result);
        return message;
    }
    const auto& error = std::get<RpcError>(outcome);
    QJsonObject described{{u"code"_s, static_cast<int>(error.code)}, {u"message"_s, error.message}};
    if (!error.data.isNull())
        described.insert(u"data"_s, error.data);
    message.insert(u"error"_s, described);
    return message;
}

QJsonObject errorMessage(const RpcError& error)
{
    return responseMessage(QJsonValue(), error);
}

} // namespace tw::mcp::server
