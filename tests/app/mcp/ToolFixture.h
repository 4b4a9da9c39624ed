// A saved project and the tools that work on it, for the tests of all families.
#pragma once

#include "app/mcp/registry/ToolTable.h"
#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "core/content/ContentCommands.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::app::mcp {

/**
 * Begins with an empty project that is saved in a folder. `add` and `edit` prepare it without leaving
 * anything unsaved; `call` runs a tool with arguments written as JSON.
 */
class ToolFixture : public testing::Test
{
protected:
    using RegisterFamily = void (*)(McpServer&, workspace::Workspace&, McpChangeLog&);

    explicit ToolFixture(const std::vector<RegisterFamily>& families)
        : workspace(environment)
    {
        EXPECT_TRUE(workspace.saveAs(folder()));
        for (const RegisterFamily family : families)
            family(server, workspace, log);
    }

    [[nodiscard]] QString folder() const { return root.filePath(QStringLiteral("project")); }

    McpToolResult call(const char* tool, const QByteArray& arguments = "{}")
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(arguments, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << arguments.toStdString();
        return server.callTool(QString::fromLatin1(tool), document.object());
    }

    /** Puts an object into the project, which counts as saved afterwards. */
    template <class Kind, class... Arguments>
    Kind& add(Arguments&&... arguments)
    {
        auto object =
            std::make_unique<Kind>(core::ContentId::create(), std::forward<Arguments>(arguments)...);
        Kind& added = *object;
        workspace.projectForEdit().add(std::move(object));
        EXPECT_TRUE(workspace.save());
        return added;
    }

    [[nodiscard]] const core::project::Project& project() const { return workspace.project(); }
    [[nodiscard]] qsizetype steps() const { return workspace.history().position().undoLength; }

    /** Has the next saves fail: somebody else wrote into the folder. */
    void spoilSaving() const
    {
        QFile file(folder() + QStringLiteral("/project.json"));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write("\n");
    }

    /** Nothing is unsaved, unlogged or left half-way: for calls that must not change anything. */
    void expectUntouched(qsizetype stepsBefore, qsizetype logBefore = 0) const
    {
        EXPECT_EQ(steps(), stepsBefore);
        EXPECT_EQ(log.entries.size(), logBefore);
        EXPECT_FALSE(workspace.isModified());
    }

    /** Has another project, filled by `fill`, mounted under that name. */
    template <class Fill>
    void mountLibrary(const QString& name, Fill fill)
    {
        workspace::Workspace library(environment);
        library.projectForEdit().setName(name);
        fill(library.projectForEdit());
        const QString place = root.filePath(name);
        EXPECT_TRUE(library.saveAs(place));
        auto mounts = project().libraryMounts();
        mounts.push_back({place, false});
        workspace.projectForEdit().setLibraryMounts(mounts);
        workspace.projectForEdit().touchSettings();
        EXPECT_TRUE(workspace.save());
        EXPECT_TRUE(workspace.followLibraryMounts());
    }

    QTemporaryDir root;
    persistence::DiskFileSystem files;
    persistence::StorageEnvironment environment{files, root.filePath(QStringLiteral("data"))};
    workspace::Workspace workspace;
    McpServer server{QStringLiteral("vellory"), QStringLiteral("1.0"), {}};
    McpChangeLog log;
};

} // namespace tw::app::mcp
