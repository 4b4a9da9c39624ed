#include "desktop/shell/SingleInstance.h"
#include "desktop/shell/SingleInstanceMessage.h"
#include "desktop/shell/SingleInstanceServer.h"

#include <QFile>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

using State = SingleInstanceMessage::State;

const QByteArray endless(longestInstanceMessage * 4, 'x');

class SingleInstanceTest : public testing::Test
{
protected:
    /** A client that sends these bytes and stays. */
    std::unique_ptr<QLocalSocket> client(const QByteArray& bytes)
    {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(name);
        EXPECT_TRUE(socket->waitForConnected());
        socket->write(bytes);
        socket->flush();
        // The system lets only so many wait for the server.
        QCoreApplication::processEvents();
        return socket;
    }

    /** The paths that arrived, as far as the last request. */
    QStringList requestsUntil(const QString& last)
    {
        while ((requests.isEmpty() || requests.last().first() != last) && requests.wait()) {
        }
        QStringList paths;
        for (const QVariantList& request : requests)
            paths.append(request.first().toString());
        return paths;
    }

    QTemporaryDir folder;
    QString name = folder.filePath(u"server"_s);
    std::unique_ptr<SingleInstanceServer> server = std::make_unique<SingleInstanceServer>(name);
    QSignalSpy requests{server.get(), &SingleInstanceServer::requested};
};

} // namespace

TEST(ServerNameTest, isSafeShortAndTellsUsersApart)
{
    const struct
    {
        QString user;
        QString readable;
    } cases[] = {
        {u"Jo Smith"_s, u"Jo_Smith"_s}, {u"jo-smith_2"_s, u"jo-smith_2"_s},
        {QString(), u"default"_s},      {u"../../etc"_s, u"______etc"_s},
        {u"Zoë"_s, u"Zoë"_s},           {QString(40, u'a'), QString(32, u'a')},
    };
    for (const auto& [user, readable] : cases) {
        const QRegularExpression expected(
            u"^Tarnwick-%1-[0-9a-f]{12}$"_s.arg(QRegularExpression::escape(readable)));
        EXPECT_TRUE(expected.match(serverName(user)).hasMatch()) << serverName(user).toStdString();
    }
    EXPECT_NE(serverName(u"a b"_s), serverName(u"a_b"_s));
    // The first digits of the well-known digest of "abc".
    EXPECT_EQ(serverName(u"abc"_s), u"Tarnwick-abc-ba7816bf8f01"_s);
}

TEST(ServerNameTest, asksTheEnvironmentForTheUser)
{
    const QByteArray userName = qgetenv("USERNAME");
    const QByteArray user = qgetenv("USER");
    qputenv("USER", "second");
    for (const auto& [value, expected] : {std::pair{"first", u"first"_s}, std::pair{"", u"second"_s}}) {
        qputenv("USERNAME", value);
        EXPECT_EQ(userNameFromEnvironment(), expected);
    }
    qputenv("USERNAME", userName);
    qputenv("USER", user);
}

TEST(SingleInstanceMessageTest, readsOneLineAndRefusesTheRest)
{
    const struct
    {
        QByteArray bytes;
        State state;
        QString path;
    } cases[] = {
        {"", State::Incomplete, {}},
        {"/a", State::Incomplete, {}},
        {"/a\n", State::Complete, u"/a"_s},
        {"\n", State::Complete, {}},
        {" /a b\r\n/c\n", State::Complete, u"/a b"_s},
        {"/Zo\xc3\xab\n", State::Complete, u"/Zoë"_s},
        {"\xef\xbb\xbf/a\n", State::Complete, u"\ufeff/a"_s},
        {"/Zo\xc3\n", State::Refused, {}},
        {"\xff\xfe/\n", State::Refused, {}},
        {endless.first(longestInstanceMessage - 1), State::Incomplete, {}},
        {endless.first(longestInstanceMessage - 1) + '\n', State::Complete,
         QString(longestInstanceMessage - 1, u'x')},
        {endless.first(longestInstanceMessage) + '\n', State::Refused, {}},
        {endless, State::Refused, {}},
    };
    for (const auto& sample : cases) {
        for (const qsizetype piece : {sample.bytes.size(), qsizetype(1), qsizetype(4095)}) {
            SingleInstanceMessage message;
            for (qsizetype begin = 0; piece > 0 && begin < sample.bytes.size(); begin += piece)
                message.append(sample.bytes.mid(begin, piece));
            EXPECT_EQ(message.state(), sample.state) << sample.bytes.left(20).toStdString();
            EXPECT_EQ(message.path(), sample.path);
        }
    }
}

TEST_F(SingleInstanceTest, handsOverWhatALineCanCarry)
{
    EXPECT_TRUE(sendToRunningInstance(name, u"/projects/Zoë’s novel.vellory"_s));
    EXPECT_TRUE(sendToRunningInstance(name, QString()));
    for (const QString& path : {u"/a\nb"_s, u"/blank at its end "_s, QString(70'000, u'x')})
        EXPECT_FALSE(sendToRunningInstance(name, path)) << path.left(20).toStdString();
    EXPECT_FALSE(sendToRunningInstance(folder.filePath(u"nobody"_s), u"/a"_s));
    EXPECT_TRUE(sendToRunningInstance(name, u"/last"_s));
    EXPECT_EQ(
        requestsUntil(u"/last"_s), (QStringList{u"/projects/Zoë’s novel.vellory"_s, QString(), u"/last"_s}));
}

TEST_F(SingleInstanceTest, hostileClientsDisturbNobody)
{
    std::vector<std::unique_ptr<QLocalSocket>> clients;
    for (int count = 0; count < 100; ++count)
        clients.push_back(client("no line feed"));
    for (const QByteArray& bytes : {endless, QByteArray("\xff\n"), QByteArray(100'000, '\0')})
        clients.push_back(client(bytes));
    client("gone before its line");
    EXPECT_TRUE(sendToRunningInstance(name, u"/after"_s));
    EXPECT_EQ(requestsUntil(u"/after"_s), QStringList{u"/after"_s});
    // Whoever was refused, and the oldest of too many, are cut off; what they still write goes nowhere.
    EXPECT_TRUE(QTest::qWaitFor([&] { return clients.front()->state() == QLocalSocket::UnconnectedState; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return clients.back()->state() == QLocalSocket::UnconnectedState; }));
    clients[99]->write("\nsecond line\n");
    EXPECT_EQ(requestsUntil(u"no line feed"_s), (QStringList{u"/after"_s, u"no line feed"_s}));
}

TEST_F(SingleInstanceTest, aListenerMayStayInItsOwnEventLoop)
{
    // As the window does while it asks; the client is long gone when the answer comes.
    QObject listener;
    QObject::connect(server.get(), &SingleInstanceServer::requested, &listener, [this](const QString& path) {
        if (path == u"/first"_s) {
            EXPECT_TRUE(sendToRunningInstance(name, u"/second"_s));
            EXPECT_TRUE(QTest::qWaitFor([this] { return requests.size() == 2; }));
        }
    });
    EXPECT_TRUE(sendToRunningInstance(name, u"/first"_s));
    EXPECT_EQ(requestsUntil(u"/second"_s), (QStringList{u"/first"_s, u"/second"_s}));
}

TEST_F(SingleInstanceTest, onlyTheUserMayConnectAndACrashedNameIsTakenOver)
{
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    EXPECT_EQ(QFile::permissions(name) & others, QFile::Permissions());

    // What a crash leaves behind is a name on which nobody listens.
    const QString stale = folder.filePath(u"stale"_s);
    QFile left(stale);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    const SingleInstanceServer second(stale);
    EXPECT_TRUE(second.isListening());
    EXPECT_TRUE(sendToRunningInstance(stale, QString()));
}

} // namespace tw::desktop::shell
