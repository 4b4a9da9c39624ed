#include "app/platform/Platform.h"

#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>

#include <qt_windows.h>

namespace tw::app::platform {

namespace {

/** A handle of the system that closes itself. */
class Handle
{
public:
    explicit Handle(HANDLE handle)
        : m_handle(handle)
    {}
    ~Handle()
    {
        if (isOpen())
            ::CloseHandle(m_handle);
    }
    Q_DISABLE_COPY_MOVE(Handle)

    [[nodiscard]] bool isOpen() const { return m_handle != nullptr && m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/** The TOKEN_USER record of a process; empty when the system does not tell. */
QByteArray userOf(HANDLE process)
{
    HANDLE opened = nullptr;
    if (!::OpenProcessToken(process, TOKEN_QUERY, &opened))
        return {};
    const Handle token(opened);
    DWORD size = 0;
    ::GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    QByteArray record(static_cast<qsizetype>(size), '\0');
    if (!::GetTokenInformation(token.get(), TokenUser, record.data(), size, &size))
        return {};
    return record;
}

PSID identifierIn(QByteArray& record)
{
    return reinterpret_cast<TOKEN_USER*>(record.data())->User.Sid;
}

} // namespace

bool listenForThisUser(QLocalServer& server, const QString& name)
{
    // A pipe replaces no other one, so the option has no catch here.
    server.setSocketOptions(QLocalServer::UserAccessOption);
    return server.listen(name);
}

bool isServerOfThisUser(const QLocalSocket& socket)
{
    ULONG processId = 0;
    const auto pipe = reinterpret_cast<HANDLE>(socket.socketDescriptor());
    if (!::GetNamedPipeServerProcessId(pipe, &processId))
        return false;
    const Handle process(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
    if (!process.isOpen())
        return false;
    QByteArray server = userOf(process.get());
    QByteArray own = userOf(::GetCurrentProcess());
    return !server.isEmpty() && !own.isEmpty() && ::EqualSid(identifierIn(server), identifierIn(own));
}

} // namespace tw::app::platform
