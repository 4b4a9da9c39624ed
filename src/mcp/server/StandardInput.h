#pragma once

#include <QByteArray>

namespace tw::mcp::server {

/**
 * Standard input as a client writes to it: without the buffering that waits until a buffer is full. One for a
 * process; what it hands out holds until it is asked again.
 */
class StandardInput
{
public:
    /** What has arrived, as soon as anything has; empty at the end and after an error. */
    [[nodiscard]] QByteArrayView waitForInput();

    /** What has arrived, without waiting; also empty when nothing has. */
    [[nodiscard]] QByteArrayView takeArrivedInput();

private:
    static constexpr qsizetype chunkSize = 64 * 1024;

    QByteArray m_buffer{chunkSize, Qt::Uninitialized};
};

} // namespace tw::mcp::server
