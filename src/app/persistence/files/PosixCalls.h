#pragma once

#include "app/persistence/files/FileSystem.h"

#include <QByteArray>
#include <QtGlobal>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/** What the files for POSIX systems share. */
namespace tw::app::persistence::platform {

/** An open file that closes itself. */
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {}
    Q_DISABLE_COPY(Descriptor)
    Descriptor& operator=(Descriptor&&) = delete;

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] int release() { return std::exchange(m_number, -1); }

    /** Some systems report a failed write only here. */
    bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

/** The result of a system call that a signal may interrupt. */
template <class Call>
auto repeatedWhileInterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

/** Not open when the system refuses, which `errno` tells. */
inline Descriptor openPath(const QByteArray& path, int flags, mode_t mode = 0)
{
    return Descriptor(
        repeatedWhileInterrupted([&] { return ::open(path.constData(), flags | O_CLOEXEC, mode); }));
}

[[nodiscard]] FileStamp stampFrom(const struct stat& status);

} // namespace tw::app::persistence::platform
