#include "mcp/server/MessageQueue.h"

#include <QJsonObject>

#include <gtest/gtest.h>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;

namespace {

/** The ids of what is handed out; "!" for what is no message. */
QString drained(MessageQueue& queue)
{
    QString ids;
    while (const auto message = queue.takeNext())
        ids += message->problem.isEmpty() ? message->document.object().value(u"id").toVariant().toString()
                                          : u"!"_s;
    return ids;
}

QByteArray request(int id)
{
    return "{\"id\":" + QByteArray::number(id) + ",\"method\":\"ping\"}\n";
}

QByteArray cancellation(const QByteArray& id)
{
    return "{\"method\":\"notifications/cancelled\",\"params\":{\"requestId\":" + id + "}}\n";
}

} // namespace

TEST(MessageQueueTest, linesComeOutWholeHoweverTheyArrive)
{
    const QByteArray input = request(1) + "\n  \r\n" + request(2).chopped(1) + "\r\n" + request(3);
    for (const int chunk : {1, 2, 7, 1000}) {
        MessageQueue queue;
        for (qsizetype start = 0; start < input.size(); start += chunk)
            queue.append(
                QByteArrayView(input).sliced(start, std::min<qsizetype>(chunk, input.size() - start)));
        EXPECT_EQ(drained(queue), u"123"_s) << chunk;
    }
    MessageQueue queue;
    queue.append(request(1).chopped(1));
    EXPECT_TRUE(queue.isEmpty());
    queue.finish();
    EXPECT_EQ(drained(queue), u"1"_s) << "the last line need not end";
    queue.finish();
    EXPECT_TRUE(queue.isEmpty());
}

TEST(MessageQueueTest, aLineThatIsTooLongIsReadOver)
{
    MessageQueue queue(100);
    queue.append(request(1) + QByteArray(60, 'x'));
    queue.append(QByteArray(60, 'x'));
    queue.append(QByteArray(60, 'x') + '\n' + request(2));
    EXPECT_EQ(drained(queue), u"1!2"_s);
    queue.append(QByteArray(200, 'x'));
    queue.finish();
    EXPECT_EQ(drained(queue), u"!"_s);
}

TEST(MessageQueueTest, aWaitingRequestCanBeCancelled)
{
    MessageQueue queue;
    queue.append(request(1) + request(2) + "{\"id\":3,\"method\":\"initialize\"}\n");
    queue.append(
        cancellation("2") + cancellation("3") + cancellation("9") + cancellation("\"1\"") +
        cancellation("null"));
    queue.append("{\"method\":\"notifications/cancelled\"}\n" + request(2));
    EXPECT_EQ(drained(queue), u"132"_s) << "what comes later is another request";
}

} // namespace tw::mcp::server
