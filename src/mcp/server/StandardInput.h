#pragma once

#include <QByteArray>

/** Standard input as a client writes to it: without the buffering that waits until a buffer is full. */
namespace tw::mcp::server {

/** What has arrived, as soon as anything has; empty at the end and after an error. */
[[nodiscard]] QByteArray waitForInput();

/** What has arrived, without waiting; also empty when nothing has. */
[[nodiscard]] QByteArray takeArrivedInput();

} // namespace tw::mcp::server
