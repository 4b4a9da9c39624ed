// A saved project with the server of the protocol on top: lines in, lines out.
#pragma once

#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "core/document/Document.h"
#include "mcp/server/ProtocolServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace tw::mcp::server {

class ServerFixture : public testing::Test
{
protected:
    ServerFixture()
        : workspace(std::make_unique<app::workspace::Workspace>(environment))
    {
        EXPECT_TRUE(workspace->saveAs(root.filePath(QStringLiteral("project"))));
        auto created = ToolCatalogue::create(*workspace, log, {}, QStringLiteral("1.0"));
        EXPECT_TRUE(created) << created.message().toStdString();
        catalogue = std::make_unique<ToolCatalogue>(std::move(created).value());
        resources = std::make_unique<ProjectResources>(*workspace, *catalogue);
        server = std::make_unique<ProtocolServer>(
            *catalogue, *resources,
            ProtocolServer::UseHooks{[this] { ++timesRefreshed; }, [this] { return nextStep; }});
    }

    /** Empty for no answer. */
    QByteArray answerTo(const QByteArray& line)
    {
        MessageQueue queue;
        queue.append(QByteArray(line).replace('\n', ' ') + '\n');
        const auto message = queue.takeNext();
        return message ? server->answer(*message).value_or(QByteArray()) : QByteArray();
    }

    static QJsonObject parse(const QByteArray& line) { return QJsonDocument::fromJson(line).object(); }
    QJsonObject ask(const QByteArray& line) { return parse(answerTo(line)); }

    static QJsonObject result(const QJsonObject& answer)
    {
        EXPECT_TRUE(answer.contains(u"result")) << QJsonDocument(answer).toJson().toStdString();
        return answer.value(u"result").toObject();
    }
    static QJsonObject error(const QJsonObject& answer)
    {
        EXPECT_FALSE(answer.contains(u"result")) << QJsonDocument(answer).toJson().toStdString();
        return answer.value(u"error").toObject();
    }
    static QString textOf(const QJsonObject& toolResult)
    {
        return toolResult.value(u"content").toArray().first().toObject().value(u"text").toString();
    }

    /** A session of that version. */
    QJsonObject begin(const QByteArray& version)
    {
        return result(ask(
            R"({"jsonrpc":"2.0","id":0,"method":"initialize","params":{"capabilities":{},"protocolVersion":")" +
            version + "\"}}"));
    }
    /** A request of the generation without sessions; `params` are more members. */
    QJsonObject stateless(const QByteArray& method, const QByteArray& params = {})
    {
        return ask(
            R"({"jsonrpc":"2.0","id":1,"method":")" + method +
            R"(","params":{"_meta":{"io.modelcontextprotocol/protocolVersion":"2026-07-28",)"
            R"("io.modelcontextprotocol/clientCapabilities":{}})" +
            (params.isEmpty() ? QByteArray() : ',' + params) + "}}");
    }
    QJsonObject call(const QByteArray& tool, const QByteArray& arguments)
    {
        return ask(
            R"({"jsonrpc":"2.0","id":1,"method":"tools/call","params":{"name":")" + tool +
            R"(","arguments":)" + arguments + "}}");
    }
    QJsonObject readResource(const QString& uri)
    {
        return ask(
            R"({"jsonrpc":"2.0","id":1,"method":"resources/read","params":{"uri":")" + uri.toUtf8() + "\"}}");
    }

    QTemporaryDir root;
    app::persistence::DiskFileSystem files;
    app::persistence::StorageEnvironment environment{files, root.filePath(QStringLiteral("data"))};
    std::unique_ptr<app::workspace::Workspace> workspace;
    app::mcp::McpChangeLog log;
    std::unique_ptr<ToolCatalogue> catalogue;
    std::unique_ptr<ProjectResources> resources;
    std::unique_ptr<ProtocolServer> server;
    int timesRefreshed = 0;
    /** What is put behind failures of tools that may change something. */
    QString nextStep;
};

} // namespace tw::mcp::server
