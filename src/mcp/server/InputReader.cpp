#include "mcp/server/InputReader.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace tw::mcp::server {

namespace {

constexpr qsizetype chunkSize = 64 * 1024;
/** Unread input beyond which the thread waits. */
constexpr qsizetype mostUnread = 128 * 1024 * 1024;

} // namespace

struct InputReader::Shared
{
    std::mutex mutex;
    std::condition_variable changed;
    QByteArray arrived;
    bool isAtEnd = false;
};

InputReader::InputReader(Read read)
    : m_shared(std::make_shared<Shared>())
{
    // Detached, since nothing can end a read that waits for a client.
    std::thread([shared = m_shared, read = std::move(read)] {
        QByteArray chunk(chunkSize, Qt::Uninitialized);
        for (;;) {
            const qsizetype count = read(chunk.data(), chunkSize);
            std::unique_lock lock(shared->mutex);
            if (count <= 0) {
                shared->isAtEnd = true;
                shared->changed.notify_all();
                return;
            }
            shared->arrived.append(chunk.constData(), count);
            shared->changed.notify_all();
            shared->changed.wait(lock, [&shared] { return shared->arrived.size() < mostUnread; });
        }
    }).detach();
}

InputReader::~InputReader() = default;

QByteArray InputReader::waitForInput()
{
    std::unique_lock lock(m_shared->mutex);
    m_shared->changed.wait(lock, [this] { return !m_shared->arrived.isEmpty() || m_shared->isAtEnd; });
    m_shared->changed.notify_all();
    return std::exchange(m_shared->arrived, {});
}

QByteArray InputReader::takeArrived()
{
    const std::scoped_lock lock(m_shared->mutex);
    m_shared->changed.notify_all();
    return std::exchange(m_shared->arrived, {});
}

} // namespace tw::mcp::server
