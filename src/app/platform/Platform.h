#pragma once

class QLocalServer;
class QLocalSocket;
class QString;

/**
 * What the program needs from the system beyond Qt, one implementation a system. (File operations have theirs
 * in app/persistence/files/PlatformFiles.h.) Main thread only.
 */
namespace tw::app::platform {

/**
 * Listens on a name that only processes of the present user can connect to. False when the name is taken,
 * by a live server or by one that crashed; nothing is removed then.
 */
[[nodiscard]] bool listenForThisUser(QLocalServer& server, const QString& name);

/** Whether the server that the socket is connected to runs for the present user; false when in doubt. */
[[nodiscard]] bool isServerOfThisUser(const QLocalSocket& socket);

} // namespace tw::app::platform
