// What holds for every tool there is: the catalogue that clients were promised, and what odd arguments may
// do.
#include "app/mcp/ToolFamilies.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "support/TestFiles.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray contentsOf(QStringView path)
{
    QFile file(test::repositoryPath(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toString().toStdString();
    return file.readAll();
}

/** Every tool, on a copy of the sample project. */
class AllToolsTest : public testing::Test
{
protected:
    AllToolsTest()
    {
        const QString sample = test::repositoryPath(u"examples/low-water");
        QDirIterator found(sample, QDir::Files, QDirIterator::Subdirectories);
        while (found.hasNext()) {
            const QString copy = folder() + found.next().sliced(sample.size());
            QDir().mkpath(QFileInfo(copy).path());
            EXPECT_TRUE(QFile::copy(found.filePath(), copy));
        }
        auto opened = workspace::Workspace::open(environment, folder());
        EXPECT_TRUE(opened) << opened.message().toStdString();
        project = std::move(opened).value();
        for (const auto registerFamily :
             {registerMcpCoreTools, registerMcpWorldTools, registerMcpDocumentTools,
              registerMcpTimeAndSpaceTools})
            registerFamily(server, *project, log);
    }

    [[nodiscard]] QString folder() const { return root.filePath(u"low-water"_s); }
    [[nodiscard]] qsizetype steps() const { return project->history().position().undoLength; }
    [[nodiscard]] persistence::ProjectFileMap serialized() const
    {
        return persistence::serializeProject(project->project());
    }

    [[nodiscard]] QJsonObject propertiesOf(const QString& tool) const
    {
        const auto spec = std::ranges::find(server.tools(), tool, &McpToolSpec::name);
        return spec->inputSchema.value(u"properties").toObject();
    }

    /** A call that may do as it likes, as long as a failure does nothing; what succeeds is undone. */
    McpToolResult tryCall(const QString& tool, const QJsonObject& arguments)
    {
        const qsizetype stepsBefore = steps();
        const qsizetype logBefore = log.entries.size();
        const bool wasModified = project->isModified();
        McpToolResult result = server.callTool(tool, arguments);
        const qsizetype changes = steps() - stepsBefore;
        EXPECT_FALSE(result.text.isEmpty());
        EXPECT_EQ(project->isModified(), changes == 0 && wasModified);
        EXPECT_TRUE(changes == 0 || (changes == 1 && result.ok));
        EXPECT_EQ(log.entries.size() - logBefore, changes);
        // The next change saves what this takes back.
        if (changes > 0)
            project->undoStack().undo();
        return result;
    }

    QTemporaryDir root;
    persistence::DiskFileSystem files;
    persistence::StorageEnvironment environment{files, root.filePath(u"data"_s)};
    std::unique_ptr<workspace::Workspace> project;
    McpServer server{u"vellory"_s, u"1.0"_s, {}};
    McpChangeLog log;
};

QStringList typesOf(const QJsonObject& property)
{
    const QJsonValue type = property.value(u"type");
    return type.isArray() ? type.toVariant().toStringList() : QStringList{type.toString()};
}

QString typeOf(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return u"boolean"_s;
    case QJsonValue::Double:
        return value.toDouble() == double(value.toInteger(-1)) ? u"integer"_s : u"number"_s;
    case QJsonValue::String:
        return u"string"_s;
    case QJsonValue::Array:
        return u"array"_s;
    default:
        return u"object"_s;
    }
}

/** One value of every type, and some that are hard to bear. */
QJsonArray oddValues()
{
    QJsonObject deep;
    QJsonArray nested;
    for (int level = 0; level < 200; ++level) {
        deep = {{u"name"_s, QJsonArray{deep}}};
        nested = QJsonArray{nested};
    }
    QJsonArray many;
    for (int number = 0; number < 2000; ++number)
        many.append(QString::number(number));
    return {
        QJsonValue(),
        true,
        0,
        -1,
        qint64{9'007'199'254'740'993},
        0.5,
        1e300,
        u""_s,
        u" \t\n"_s,
        u"%1 %2 {.tw x=y} [^1]"_s,
        QString(10'000, u'x'),
        u"a\0b"_s,
        QString(QChar(0xd800)),
        u"\u202e\u0301\ufeff\U0001f9d9"_s,
        u"5eed0000-1111-4222-8000-000000000001"_s,
        QJsonArray(),
        QJsonArray{QJsonValue(), 5, u"x"_s},
        QJsonArray{QJsonObject{{u"name"_s, 5}}},
        nested,
        many,
        QJsonObject(),
        QJsonObject{{QString(), QJsonValue()}, {u"A1"_s, QJsonObject()}},
        deep,
    };
}

} // namespace

TEST_F(AllToolsTest, theCatalogueIsTheOneThatClientsKnow)
{
    const ToolTable tables[] = {
        coreTools(),     worldTools(),       documentTools(), calendarTools(),
        mapMediaTools(), spreadsheetTools(), timelineTools(),
    };
    QStringList access;
    for (const ToolTable& table : tables) {
        for (const Tool& tool : table)
            access += tool.access == ToolAccess::ReadOnly ? u"reads"_s : u"changes"_s;
    }
    const QStringList lines =
        QString::fromUtf8(contentsOf(u"tests/app/mcp/tool-catalogue.txt")).trimmed().split(u'\n');
    ASSERT_EQ(std::ssize(server.tools()), lines.size());
    ASSERT_EQ(access.size(), lines.size());
    for (qsizetype place = 0; place < lines.size(); ++place) {
        const McpToolSpec& tool = server.tools()[static_cast<std::size_t>(place)];
        const QString opening = lines[place].section(u" | "_s, 2);
        EXPECT_EQ(
            u"%1 | %2 | %3"_s.arg(tool.name, access[place], tool.description.left(opening.size())),
            lines[place]);
    }
}

TEST_F(AllToolsTest, oddArgumentsAreRefusedByNameAndNeverLeaveHalfAChange)
{
    ASSERT_TRUE(server.callTool(u"create_document"_s, {{u"title"_s, u"Undone"_s}}).ok);
    const QJsonArray calls =
        QJsonDocument::fromJson(contentsOf(u"tests/mcp/clients/valid-calls.json")).array();
    ASSERT_EQ(calls.size(), std::ssize(server.tools()));
    const QJsonArray odd = oddValues();
    for (const QJsonValue& call : calls) {
        const QString tool = call.toObject().value(u"tool").toString();
        SCOPED_TRACE(tool.toStdString());
        const QJsonObject valid = call.toObject().value(u"arguments").toObject();
        const QJsonObject properties = propertiesOf(tool);
        // Undoing is not undone; it has its own tests.
        for (const QString& name : tool == "undo_last"_L1 ? QStringList() : properties.keys()) {
            const QStringList types = typesOf(properties.value(name).toObject());
            const auto before = serialized();
            for (const QJsonValue& value : odd) {
                SCOPED_TRACE(
                    name.toStdString() + ' ' +
                    QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).left(60).toStdString());
                QJsonObject arguments = valid;
                arguments.insert(name, value);
                const McpToolResult result = tryCall(tool, arguments);
                const QString type = typeOf(value);
                const bool isSuited = value.isNull() || types.contains(type) ||
                                      (type == "integer"_L1 && types.contains(u"number"_s));
                if (!isSuited) {
                    EXPECT_FALSE(result.ok);
                    EXPECT_TRUE(result.text.contains(u'"' + name + u'"')) << result.text.toStdString();
                }
            }
            EXPECT_TRUE(serialized() == before) << name.toStdString();
        }
        const McpToolResult result = server.callTool(tool, valid);
        EXPECT_TRUE(result.ok) << result.text.toStdString();
    }
}

} // namespace tw::app::mcp
