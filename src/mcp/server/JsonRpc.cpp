#include "mcp/server/JsonRpc.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Room for most answers, so that they need not be moved as they grow. */
constexpr qsizetype usualLine = 512;

QByteArray compact(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/** Without the brackets around it: what only stands in an array or an object is written as in one. */
QByteArray bare(const QByteArray& json)
{
    return json.sliced(1).chopped(1);
}

/** Any value but an array or an object. */
QByteArray scalar(const QJsonValue& value)
{
    if (const qint64 whole = value.toInteger(); value.isDouble() && value == QJsonValue(whole))
        return QByteArray::number(whole);
    return bare(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
}

void appendEscape(QByteArray& output, char character)
{
    constexpr char digits[] = "0123456789abcdef";
    switch (character) {
    case '"':
        output.append("\\\"");
        return;
    case '\\':
        output.append("\\\\");
        return;
    case '\n':
        output.append("\\n");
        return;
    case '\t':
        output.append("\\t");
        return;
    default:
        output.append("\\u00").append(digits[character >> 4]).append(digits[character & 0xf]);
    }
}

void appendQuoted(QByteArray& output, const QString& text)
{
    // Half a pair of surrogates, which UTF-8 cannot hold.
    if (!text.isValidUtf16()) {
        output.append(scalar(text));
        return;
    }
    const QByteArray bytes = text.toUtf8();
    output.append('"');
    qsizetype written = 0;
    for (qsizetype index = 0; index < bytes.size(); ++index) {
        const char character = bytes[index];
        const bool isPlain = (character < 0 || character >= ' ') && character != '"' && character != '\\';
        if (isPlain)
            continue;
        output.append(bytes.constData() + written, index - written);
        appendEscape(output, character);
        written = index + 1;
    }
    output.append(bytes.constData() + written, bytes.size() - written);
    output.append('"');
}

void append(QByteArray& line, const QJsonObject& result)
{
    line.append("\"result\":").append(compact(result));
}

void append(QByteArray& line, const ToolResult& result)
{
    line.append(R"("result":{"content":[{"type":"text","text":)");
    appendQuoted(line, result.text);
    line.append(R"(}],"isError":)").append(result.isError ? "true" : "false");
    if (!result.members.isEmpty())
        line.append(',').append(bare(compact(result.members)));
    line.append('}');
}

void append(QByteArray& line, const RpcError& error)
{
    QJsonObject described{{u"code"_s, static_cast<int>(error.code)}, {u"message"_s, error.message}};
    if (!error.data.isNull())
        described.insert(u"data"_s, error.data);
    line.append("\"error\":").append(compact(described));
}

} // namespace

bool isRequestId(const QJsonValue& id)
{
    return id.isString() || id.isDouble();
}

QByteArray responseLine(const QJsonValue& id, const RpcOutcome& outcome)
{
    QByteArray line;
    line.reserve(usualLine);
    line.append(R"({"jsonrpc":"2.0","id":)").append(scalar(id)).append(',');
    std::visit([&line](const auto& shown) { append(line, shown); }, outcome);
    return line.append('}');
}

QByteArray errorLine(const RpcError& error)
{
    return responseLine(QJsonValue(), error);
}

} // namespace tw::mcp::server
