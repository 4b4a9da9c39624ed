#pragma once

#include <QByteArray>
#include <QJsonDocument>

#include <deque>
#include <optional>

namespace tw::mcp::server {

/** One line of input: a document, or why it is none. */
struct InputMessage
{
    QJsonDocument document;
    /** Empty when the line was read. */
    QString problem;
};

/**
 * Takes input as it arrives apart into messages, one JSON document a line, and hands them out in order. A
 * request that a later message in the queue cancels is not handed out any more.
 *
 * Nothing in the input is trusted: lines beyond `longestLine` are read over and reported as one broken
 * message.
 */
class MessageQueue
{
public:
    /** Well above the longest manuscript in one document. */
    static constexpr qsizetype longestLine = 64 * 1024 * 1024;

    explicit MessageQueue(qsizetype lineLimit = longestLine)
        : m_lineLimit(lineLimit)
    {}

    void append(QByteArrayView bytes);
    /** The input ends; what is left without a line end counts as a line. */
    void finish();

    [[nodiscard]] bool isEmpty() const { return m_messages.empty(); }
    /** None when the queue is empty. */
    [[nodiscard]] std::optional<InputMessage> takeNext();

private:
    void addLine(const QByteArray& line);
    void cancel(const QJsonValue& requestId);

    qsizetype m_lineLimit;
    QByteArray m_line;
    /** The rest of the line is read over. */
    bool m_isLineTooLong = false;
    std::deque<InputMessage> m_messages;
};

} // namespace tw::mcp::server
