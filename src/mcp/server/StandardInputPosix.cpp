#include "mcp/server/StandardInput.h"

#include <cerrno>

#include <poll.h>
#include <unistd.h>

namespace tw::mcp::server {

namespace {

constexpr qsizetype chunkSize = 64 * 1024;

bool hasArrived()
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, 0) == 1 && (input.revents & POLLIN) != 0;
}

} // namespace

QByteArray waitForInput()
{
    QByteArray bytes(chunkSize, Qt::Uninitialized);
    ssize_t count = 0;
    do {
        count = ::read(STDIN_FILENO, bytes.data(), static_cast<std::size_t>(bytes.size()));
    } while (count < 0 && errno == EINTR);
    bytes.truncate(count < 0 ? 0 : count);
    return bytes;
}

QByteArray takeArrivedInput()
{
    return hasArrived() ? waitForInput() : QByteArray();
}

} // namespace tw::mcp::server
