#include "desktop/shell/SingleInstance.h"

#include "app/platform/Platform.h"
#include "desktop/shell/SingleInstanceMessage.h"

#include <QCryptographicHash>
#include <QLocalSocket>

#include <chrono>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::milliseconds connectionTime{300};
constexpr std::chrono::milliseconds writingTime{1000};
constexpr qsizetype longestReadableName = 32;
constexpr qsizetype hashDigits = 12;

QString readableName(const QString& userName)
{
    QString name = userName;
    for (QChar& character : name) {
        const bool isSafe =
            character.isLetter() || character.isDigit() || character == u'-' || character == u'_';
        if (!isSafe)
            character = u'_';
    }
    return name.isEmpty() ? u"default"_s : name.left(longestReadableName);
}

} // namespace

QString userNameFromEnvironment()
{
    const QString name = qEnvironmentVariable("USERNAME");
    return name.isEmpty() ? qEnvironmentVariable("USER") : name;
}

QString serverName(const QString& userName)
{
    const QByteArray hash = QCryptographicHash::hash(userName.toUtf8(), QCryptographicHash::Sha256).toHex();
    return u"Tarnwick-%1-%2"_s.arg(readableName(userName), QString::fromLatin1(hash.first(hashDigits)));
}

bool sendToRunningInstance(const QString& serverName, const QString& path)
{
    const QByteArray message = encodeInstanceMessage(path);
    if (message.isEmpty())
        return false;
    QLocalSocket socket;
    socket.connectToServer(serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(static_cast<int>(connectionTime.count())) ||
        !app::platform::isServerOfThisUser(socket))
        return false;
    socket.write(message);
    socket.flush();
    if (socket.bytesToWrite() > 0)
        socket.waitForBytesWritten(static_cast<int>(writingTime.count()));
    socket.disconnectFromServer();
    return true;
}

} // namespace tw::desktop::shell
