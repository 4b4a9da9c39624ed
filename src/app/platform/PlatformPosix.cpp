#include "app/platform/Platform.h"

#include <QLocalServer>
#include <QLocalSocket>

#include <optional>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace tw::app::platform {

namespace {

constexpr mode_t nothingForOthers = 0077;

/** Files made in its lifetime are for the present user alone. The mask belongs to the whole process. */
class PrivateFilesScope
{
public:
    PrivateFilesScope()
        : m_earlier(::umask(nothingForOthers))
    {}
    ~PrivateFilesScope() { ::umask(m_earlier); }
    Q_DISABLE_COPY_MOVE(PrivateFilesScope)

private:
    mode_t m_earlier;
};

std::optional<uid_t> peerOf(int descriptor)
{
#ifdef Q_OS_LINUX
    ucred peer = {};
    socklen_t size = sizeof(peer);
    if (::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return std::nullopt;
    return peer.uid;
#else
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(descriptor, &user, &group) == 0 ? std::optional(user) : std::nullopt;
#endif
}

} // namespace

bool listenForThisUser(QLocalServer& server, const QString& name)
{
    // UserAccessOption would rename its socket over one that a live server listens on.
    const PrivateFilesScope scope;
    return server.listen(name);
}

bool isServerOfThisUser(const QLocalSocket& socket)
{
    return peerOf(static_cast<int>(socket.socketDescriptor())) == ::geteuid();
}

} // namespace tw::app::platform
