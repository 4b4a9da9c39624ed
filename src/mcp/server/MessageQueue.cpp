#include "mcp/server/MessageQueue.h"

#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;

void MessageQueue::append(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qsizetype end = bytes.indexOf('\n');
        const QByteArrayView part = end < 0 ? bytes : bytes.first(end);
        if (m_line.size() + part.size() > m_lineLimit) {
            m_isLineTooLong = true;
            m_line.clear();
        }
        if (!m_isLineTooLong)
            m_line.append(part);
        if (end < 0)
            return;
        bytes = bytes.sliced(end + 1);
        finish();
    }
}

void MessageQueue::finish()
{
    if (std::exchange(m_isLineTooLong, false)) {
        m_messages.push_back(
            {{}, u"The message is longer than %1 bytes."_s.arg(QString::number(m_lineLimit))});
        return;
    }
    const QByteArray line = std::exchange(m_line, {}).trimmed();
    if (!line.isEmpty())
        addLine(line);
}

void MessageQueue::addLine(const QByteArray& line)
{
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError) {
        m_messages.push_back({{}, error.errorString()});
        return;
    }
    static const QJsonValue cancellation(u"notifications/cancelled"_s);
    const QJsonObject message = document.object();
    if (message.value(u"method") == cancellation && !message.contains(u"id"))
        cancel(message.value(u"params").toObject().value(u"requestId"));
    else
        m_messages.push_back({std::move(document), {}});
}

void MessageQueue::cancel(const QJsonValue& requestId)
{
    // A request that was answered already, or that makes the session, goes on as it is.
    std::erase_if(m_messages, [&requestId](const InputMessage& message) {
        const QJsonObject request = message.document.object();
        return !requestId.isUndefined() && request.value(u"id") == requestId && request.contains(u"method") &&
               request.value(u"method") != "initialize"_L1;
    });
}

std::optional<InputMessage> MessageQueue::takeNext()
{
    if (m_messages.empty())
        return std::nullopt;
    InputMessage next = std::move(m_messages.front());
    m_messages.pop_front();
    return next;
}

} // namespace tw::mcp::server
