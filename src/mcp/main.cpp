#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "mcp/server/Options.h"
#include "mcp/server/ProjectRefresher.h"
#include "mcp/server/ProtocolServer.h"
#include "mcp/server/StandardInput.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <csignal>
#include <cstdio>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

using namespace tw;
using namespace tw::mcp::server;
using namespace Qt::Literals::StringLiterals;

namespace {

/** The names of the program itself: locks, working copies and backups lie where its own do. */
void nameApplication()
{
    QCoreApplication::setApplicationName(u"Vellory"_s);
    QCoreApplication::setOrganizationName(u"Vellory"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TW_VERSION));
}

void prepareStreams()
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#else
    // A client that goes away ends the writing, not the process in the middle of a save.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    // Every line is handed over in one piece as soon as it is written.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
}

void writeLog(const QString& line)
{
    const QByteArray bytes = "vellory-mcp: " + line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

int fail(const QString& message)
{
    writeLog(message);
    return 1;
}

std::chrono::nanoseconds steadyNow()
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

/** False when nobody reads any more. */
bool writeLine(QByteArray line)
{
    line.append('\n');
    const auto size = static_cast<std::size_t>(line.size());
    return std::fwrite(line.constData(), 1, size, stdout) == size;
}

/** Answers messages one after another until the input ends or nobody reads the answers. */
void serve(ProtocolServer& server)
{
    StandardInput input;
    MessageQueue queue;
    for (bool isAtEnd = false; !isAtEnd;) {
        const QByteArrayView bytes = input.waitForInput();
        isAtEnd = bytes.isEmpty();
        queue.append(bytes);
        if (isAtEnd)
            queue.finish();
        while (std::optional<InputMessage> message = queue.takeNext()) {
            std::optional<QByteArray> answer = server.answer(*message);
            if (answer && !writeLine(std::move(*answer)))
                return;
            // What has arrived meanwhile may cancel what is still to be answered.
            if (!queue.isEmpty())
                queue.append(input.takeArrivedInput());
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    nameApplication();
    prepareStreams();
    const auto options =
        readOptions(QCoreApplication::arguments().mid(1), QCoreApplication::applicationVersion());
    if (!options)
        return fail(options.message());
    if (!options.value().information.isEmpty()) {
        std::fputs(qPrintable(options.value().information), stdout);
        return 0;
    }

    app::persistence::DiskFileSystem fileSystem;
    const app::persistence::StorageEnvironment environment{
        fileSystem, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
    const auto workspace = app::workspace::Workspace::open(environment, options.value().projectPath);
    if (!workspace)
        return fail(workspace.message());
    app::mcp::McpChangeLog changeLog;
    const auto catalogue = ToolCatalogue::create(
        *workspace.value(), changeLog, options.value().tools, QCoreApplication::applicationVersion());
    if (!catalogue)
        return fail(catalogue.message());

    ProjectRefresher refresher(*workspace.value(), steadyNow, writeLog);
    const ProjectResources resources(*workspace.value(), catalogue.value());
    ProtocolServer server(
        catalogue.value(), resources,
        {[&refresher] { refresher.refresh(); }, [&refresher] { return refresher.settleChange(); }});
    serve(server);
    if (workspace.value()->isModified())
        writeLog(
            u"Changes that could not be saved are lost with this session; see the answers that said so."_s);
    return 0;
}
