#include "mcp/server/StandardInput.h"

#include <windows.h>

namespace tw::mcp::server {

namespace {

/** Of a pipe, which is what clients use; a console or a file is only ever waited for. */
bool hasArrived()
{
    DWORD available = 0;
    return PeekNamedPipe(GetStdHandle(STD_INPUT_HANDLE), nullptr, 0, nullptr, &available, nullptr) &&
           available > 0;
}

} // namespace

QByteArrayView StandardInput::waitForInput()
{
    DWORD count = 0;
    // The end of a pipe is reported as an error.
    if (!ReadFile(
            GetStdHandle(STD_INPUT_HANDLE), m_buffer.data(), static_cast<DWORD>(chunkSize), &count, nullptr))
        return {};
    return QByteArrayView(m_buffer).first(count);
}

QByteArrayView StandardInput::takeArrivedInput()
{
    return hasArrived() ? waitForInput() : QByteArrayView();
}

} // namespace tw::mcp::server
