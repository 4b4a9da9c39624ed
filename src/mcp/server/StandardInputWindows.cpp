#include "mcp/server/StandardInput.h"

#include <windows.h>

namespace tw::mcp::server {

namespace {

constexpr qsizetype chunkSize = 64 * 1024;

/** Of a pipe, which is what clients use; a console or a file is only ever waited for. */
bool hasArrived()
{
    DWORD available = 0;
    return PeekNamedPipe(GetStdHandle(STD_INPUT_HANDLE), nullptr, 0, nullptr, &available, nullptr) &&
           available > 0;
}

} // namespace

QByteArray waitForInput()
{
    QByteArray bytes(chunkSize, Qt::Uninitialized);
    DWORD count = 0;
    // The end of a pipe is reported as an error.
    if (!ReadFile(
            GetStdHandle(STD_INPUT_HANDLE), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        return {};
    bytes.truncate(count);
    return bytes;
}

QByteArray takeArrivedInput()
{
    return hasArrived() ? waitForInput() : QByteArray();
}

} // namespace tw::mcp::server
