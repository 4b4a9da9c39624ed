#pragma once

#include "desktop/shell/SingleInstanceMessage.h"

#include <QLocalServer>
#include <QObject>

#include <vector>

class QLocalSocket;

namespace tw::desktop::shell {

/**
 * Hears what other starts of the program ask of this one. Takes the name over from an instance that crashed
 * (or, told to start anew, from one that runs). Whatever a client sends, it costs at most one bounded buffer.
 * Main thread only.
 */
class SingleInstanceServer final : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstanceServer(const QString& serverName, QObject* parent = nullptr);
    ~SingleInstanceServer() override;

    /** When it could not listen, the program works all the same, only nobody can hand it anything. */
    [[nodiscard]] bool isListening() const { return m_server.isListening(); }

signals:
    /** One a message; an empty path asks only for the window. */
    void requested(const QString& path);

private:
    struct Connection
    {
        QLocalSocket* socket;
        SingleInstanceMessage message;
    };

    void takeConnections();
    void read(QLocalSocket* socket);
    void forget(QLocalSocket* socket);
    [[nodiscard]] std::vector<Connection>::iterator find(const QLocalSocket* socket);

    QLocalServer m_server;
    /** Those that have not sent their line yet, oldest first. */
    std::vector<Connection> m_connections;
};

} // namespace tw::desktop::shell
