// The built companion as a process of its own.
#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

class CompanionTest : public testing::Test
{
protected:
    CompanionTest()
    {
        companion.setProgram(QStringLiteral(TW_COMPANION));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name :
             {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"XDG_DATA_HOME"_s, u"XDG_CONFIG_HOME"_s})
            environment.remove(name);
        environment.insert(u"HOME"_s, home.path());
        companion.setProcessEnvironment(environment);
    }

    ~CompanionTest() override
    {
        companion.kill();
        companion.waitForFinished();
    }

    QString makeProject(const QString& name)
    {
        const app::persistence::StorageEnvironment environment{files, home.filePath(u"data"_s)};
        app::workspace::Workspace workspace(environment);
        const QString path = home.filePath(name);
        EXPECT_TRUE(workspace.saveAs(path));
        return path;
    }

    void send(const QByteArray& line) { companion.write(line + '\n'); }

    QJsonObject receive()
    {
        while (!companion.canReadLine() && companion.waitForReadyRead()) {
        }
        return QJsonDocument::fromJson(companion.readLine()).object();
    }

    /** Runs it without input to its end. */
    int run(const QStringList& arguments)
    {
        companion.setArguments(arguments);
        companion.start();
        companion.closeWriteChannel();
        EXPECT_TRUE(companion.waitForFinished());
        return companion.exitCode();
    }

    QTemporaryDir home;
    app::persistence::DiskFileSystem files;
    QProcess companion;
};

} // namespace

TEST_F(CompanionTest, servesAFolderAndASingleFileUntilTheInputEnds)
{
    for (const QString& name : {u"project"_s, u"project.vellory"_s}) {
        companion.setArguments({makeProject(name)});
        companion.start();
        send(
            R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":"2025-11-25","capabilities":{}}})");
        EXPECT_EQ(receive().value(u"result").toObject().value(u"protocolVersion"), u"2025-11-25"_s);
        send(R"({"jsonrpc":"2.0","method":"notifications/initialized"})");
        send(R"({"jsonrpc":"2.0","id":2,"method":"tools/call",)"
             R"("params":{"name":"create_document","arguments":{"title":"Dämmerung"}}})");
        const QJsonObject result = receive().value(u"result").toObject();
        EXPECT_EQ(
            result.value(u"content").toArray().first().toObject().value(u"text"),
            u"Created document 'Dämmerung'."_s);
        // What is asked for before the end is answered before the end.
        companion.write(R"({"jsonrpc":"2.0","id":3,"method":"ping"})");
        companion.closeWriteChannel();
        EXPECT_EQ(receive().value(u"id"), 3);
        ASSERT_TRUE(companion.waitForFinished());
        EXPECT_EQ(companion.exitCode(), 0);
        EXPECT_EQ(companion.readAllStandardError(), QByteArray());
        EXPECT_EQ(companion.readAllStandardOutput(), QByteArray());
    }
}

TEST_F(CompanionTest, aCallThatIsCancelledBeforeItsTurnIsNotRun)
{
    companion.setArguments({makeProject(u"project"_s)});
    companion.start();
    const auto create = [](const QByteArray& id) {
        return R"({"jsonrpc":"2.0","id":)" + id +
               R"(,"method":"tools/call","params":{"name":"create_document","arguments":{"title":"D)" + id +
               "\"}}}\n";
    };
    // In one piece, so that all has arrived when the first is about to run.
    companion.write(
        create("1") + create("2") +
        R"({"jsonrpc":"2.0","method":"notifications/cancelled","params":{"requestId":2,"reason":"changed my mind"}})"
        "\n" +
        create("3"));
    EXPECT_EQ(receive().value(u"id"), 1);
    EXPECT_EQ(receive().value(u"id"), 3);
    send(R"({"jsonrpc":"2.0","id":4,"method":"tools/call","params":{"name":"get_recent_changes"}})");
    const QJsonObject result = receive().value(u"result").toObject();
    EXPECT_EQ(
        result.value(u"content").toArray().first().toObject().value(u"text"),
        u"Created document 'D1'.\nCreated document 'D3'."_s);
}

TEST_F(CompanionTest, saysInOneLineWhyItCannotBegin)
{
    const QString project = makeProject(u"project"_s);
    const struct
    {
        QStringList arguments;
        QByteArray message;
    } cases[] = {
        {{}, "Say which project to open"},
        {{project, project}, "Say which project to open"},
        {{home.filePath(u"none"_s)}, "none"},
        {{home.filePath(u"none.vellory"_s)}, "none.vellory"},
        {{project, u"--families"_s, u"core,cooking"_s}, "no family of tools called \"cooking\""},
        {{project, u"--unheard-of"_s}, "unheard-of"},
    };
    for (const auto& sample : cases) {
        EXPECT_EQ(run(sample.arguments), 1);
        const QByteArray error = companion.readAllStandardError();
        EXPECT_TRUE(error.startsWith("vellory-mcp: ") && error.contains(sample.message))
            << error.toStdString();
        EXPECT_EQ(error.count('\n'), 1) << error.toStdString();
        EXPECT_EQ(companion.readAllStandardOutput(), QByteArray());
    }
}

TEST_F(CompanionTest, tellsItsVersionAndHelp)
{
    EXPECT_EQ(run({u"--version"_s}), 0);
    EXPECT_TRUE(companion.readAllStandardOutput().startsWith("vellory-mcp "));
    EXPECT_EQ(run({u"--help"_s}), 0);
    EXPECT_TRUE(companion.readAllStandardOutput().contains("--read-only"));
}

} // namespace tw::mcp
