#include "desktop/shell/SingleInstanceServer.h"

#include "app/platform/Platform.h"

#include <QLocalSocket>

#include <algorithm>

namespace tw::desktop::shell {

namespace {

/** Who keeps more connections open than a person starts programs loses the oldest. */
constexpr std::size_t mostConnections = 32;
constexpr qsizetype readAtOnce = 4096;

} // namespace

SingleInstanceServer::SingleInstanceServer(const QString& serverName, QObject* parent)
    : QObject(parent)
{
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstanceServer::takeConnections);
    if (app::platform::listenForThisUser(m_server, serverName))
        return;
    QLocalServer::removeServer(serverName);
    static_cast<void>(app::platform::listenForThisUser(m_server, serverName));
}

SingleInstanceServer::~SingleInstanceServer()
{
    // The sockets go with the server, and say so, when the connections are gone already.
    for (const Connection& connection : m_connections)
        connection.socket->disconnect(this);
}

void SingleInstanceServer::takeConnections()
{
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        socket->setReadBufferSize(longestInstanceMessage);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] { forget(socket); });
        m_connections.push_back({socket, {}});
        if (m_connections.size() > mostConnections)
            forget(m_connections.front().socket);
        // A client that writes and leaves at once may have done both before anybody listened.
        read(socket);
    }
}

void SingleInstanceServer::read(QLocalSocket* socket)
{
    const auto connection = find(socket);
    if (connection == m_connections.end())
        return;
    using State = SingleInstanceMessage::State;
    SingleInstanceMessage& message = connection->message;
    while (message.state() == State::Incomplete && socket->bytesAvailable() > 0) {
        const QByteArray bytes = socket->read(readAtOnce);
        if (bytes.isEmpty())
            break;
        message.append(bytes);
    }
    if (message.state() == State::Incomplete) {
        if (socket->state() == QLocalSocket::UnconnectedState)
            forget(socket);
        return;
    }
    const bool isComplete = message.state() == State::Complete;
    const QString path = message.path();
    forget(socket);
    // Last, because a listener may ask the user, and anything may happen until that is answered.
    if (isComplete)
        emit requested(path);
}

void SingleInstanceServer::forget(QLocalSocket* socket)
{
    const auto connection = find(socket);
    if (connection == m_connections.end())
        return;
    m_connections.erase(connection);
    socket->disconnect(this);
    socket->disconnectFromServer();
    socket->deleteLater();
}

std::vector<SingleInstanceServer::Connection>::iterator SingleInstanceServer::find(const QLocalSocket* socket)
{
    return std::ranges::find(m_connections, socket, &Connection::socket);
}

} // namespace tw::desktop::shell
