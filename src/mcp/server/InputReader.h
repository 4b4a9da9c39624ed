#pragma once

#include <QByteArray>

#include <functional>
#include <memory>

namespace tw::mcp::server {

/**
 * Reads on a thread of its own, so that what has arrived can be looked at before the next call runs.
 * Waits while a good deal is unread. The thread ends with the input; one that still waits for input when the
 * reader goes is left to the end of the process.
 */
class InputReader
{
public:
    /** Waits for input and gives the number of bytes it put there; none at the end and after an error. */
    using Read = std::function<qsizetype(char* buffer, qsizetype size)>;

    explicit InputReader(Read read);
    ~InputReader();

    InputReader(const InputReader&) = delete;
    InputReader& operator=(const InputReader&) = delete;

    /** Everything that has arrived since the last call; waits for something. Empty at the end of the input.
     */
    [[nodiscard]] QByteArray waitForInput();
    /** The same without waiting: empty also when nothing has arrived. */
    [[nodiscard]] QByteArray takeArrived();

private:
    struct Shared;

    std::shared_ptr<Shared> m_shared;
};

} // namespace tw::mcp::server
