#include "mcp/server/StandardInput.h"

#include <cerrno>

#include <poll.h>
#include <unistd.h>

namespace tw::mcp::server {

namespace {

bool hasArrived()
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, 0) == 1 && (input.revents & POLLIN) != 0;
}

} // namespace

QByteArrayView StandardInput::waitForInput()
{
    ssize_t count = 0;
    do {
        count = ::read(STDIN_FILENO, m_buffer.data(), static_cast<std::size_t>(chunkSize));
    } while (count < 0 && errno == EINTR);
    return QByteArrayView(m_buffer).first(count < 0 ? 0 : count);
}

QByteArrayView StandardInput::takeArrivedInput()
{
    return hasArrived() ? waitForInput() : QByteArrayView();
}

} // namespace tw::mcp::server
