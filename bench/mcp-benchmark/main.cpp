#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "bench/Measurement.h"
#include "bench/ProjectGenerator.h"
#include "bench/mcp-benchmark/LineProcess.h"
#include "bench/mcp-benchmark/OneProcessor.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/Entity.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHash>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace tw;
using namespace std::chrono_literals;
using core::document::Document;
using core::entity::Entity;

namespace {

/** A call may take as long again as the way there and back. */
constexpr double readAim = 2.0;
/** What a changing call may take beyond the save that it ends with. */
constexpr double changeAllowance = 0.002;
constexpr int callsOfARun = 10'000;
/** Of a call that gathers what the project knows of an entity, its mentions in 1.2 million words included. */
constexpr double gatheringAllowance = 0.001;
constexpr int gatheredEntities = 1000;
/** The program's share of what a search through the files takes. */
constexpr double searchAim = 0.6;
/** Stands once in the project, so that both look through all of it. */
constexpr auto rareWord = "lamplighter";

constexpr auto echoArgument = "--echo";

QByteArray toolCall(const QByteArray& tool, const QByteArray& arguments)
{
    return R"({"jsonrpc":"2.0","id":1,"method":"tools/call","params":{"name":")" + tool +
           R"(","arguments":)" + arguments + "}}";
}

/** A generated project on disk. It rests, because a younger stamp is never trusted. */
QString makeProject(
    const app::persistence::StorageEnvironment& environment, const QString& folder, int objects)
{
    app::workspace::Workspace workspace(environment);
    core::project::Project& project = workspace.projectForEdit();
    bench::generateProject(project, {objects, 1});
    project.findAsForEdit<Document>(core::project::objectsOf<Document>(project).back()->id())
        ->setSynopsis(QString::fromLatin1(rareWord));
    if (const auto saved = workspace.saveAs(folder); !saved)
        qFatal("%s", qPrintable(saved.message()));
    return folder;
}

/** The title of the document that all calls are about. */
QByteArray titleIn(const core::project::Project& project)
{
    return core::project::objectsOf<Document>(project).front()->title().toUtf8();
}

bench::Comparison compareReading(const QString& served, const QByteArray& title, int repetitions)
{
    const bench::OneProcessor placement;
    bench::LineProcess companion(QStringLiteral(TW_COMPANION), {served});
    bench::LineProcess echo(QCoreApplication::applicationFilePath(), {QString::fromLatin1(echoArgument)});
    const QByteArray call = toolCall("get_document_versions", "{\"title\":\"" + title + "\"}");
    const QByteArray answer = companion.roundTrip(call).trimmed();
    if (!answer.contains("\"isError\":false") || std::abs(answer.size() - call.size()) > call.size() / 4)
        qFatal("%s", answer.constData());
    const auto ask = [](bench::LineProcess& process, const QByteArray& line) {
        for (int count = 0; count < callsOfARun; ++count)
            process.roundTrip(line);
    };
    return bench::compare(
        {repetitions, bench::Counted::Best}, {[&] { ask(echo, call); }}, {[&] { ask(companion, call); }});
}

/** Names from all over the codex, each of one entity alone that tools may see. */
QByteArrayList entityNamesIn(const core::project::Project& project)
{
    QHash<QString, int> bearers;
    const auto entities = core::project::objectsOf<Entity>(project);
    for (const Entity* const entity : entities)
        ++bearers[entity->name().toCaseFolded()];
    QByteArrayList names;
    for (std::size_t index = 0; index < gatheredEntities; ++index) {
        const Entity& entity = *entities[index * entities.size() / gatheredEntities];
        if (bearers[entity.name().toCaseFolded()] == 1 && !entity.isAiExcluded())
            names.append(entity.name().toUtf8());
    }
    return names;
}

bench::Comparison compareGathering(
    bench::LineProcess& companion, const QByteArrayList& names, int repetitions)
{
    const auto ask = [&](const QByteArray& name) {
        const QByteArray answer = companion.roundTrip(toolCall("get_entity", "{\"name\":\"" + name + "\"}"));
        if (!answer.contains("Mentioned in"))
            qFatal("%s", answer.constData());
    };
    ask(names.front());
    bench::Comparison times = bench::compare(
        {repetitions, bench::Counted::Best}, {[] {}}, {[&] { std::ranges::for_each(names, ask); }});
    times.reference = gatheringAllowance * static_cast<double>(names.size());
    return times;
}

bench::Comparison compareSearching(
    bench::LineProcess& companion, const QString& program, const QString& folder, int repetitions)
{
    const QByteArray call = toolCall("search", "{\"query\":\"" + QByteArray(rareWord) + "\"}");
    return bench::compare(
        {repetitions, bench::Counted::Best}, {[&] {
            QProcess search;
            search.start(program, {u"-ic"_s, QString::fromLatin1(rareWord), folder});
            search.closeWriteChannel();
            if (!search.waitForFinished(-1) || !search.readAllStandardOutput().contains(":1"))
                qFatal("%s does not find the word", qPrintable(program));
        }},
        {[&] {
            if (const QByteArray answer = companion.roundTrip(call); !answer.contains("- document"))
                qFatal("%s", answer.constData());
        }});
}

bench::Comparison compareChanging(
    bench::LineProcess& companion, app::workspace::Workspace& plain, const QByteArray& title, int repetitions)
{
    Document& document = *plain.projectForEdit().findAsForEdit<Document>(
        core::project::objectsOf<Document>(plain.project()).front()->id());
    int edits = 0;
    bench::Comparison times = bench::compare(
        {repetitions, bench::Counted::MiddlePair}, {[&] {
            plain.undoStack().push(std::make_unique<core::document::SetDocumentStatusCommand>(
                document, QString::number(++edits)));
            if (const auto saved = plain.save(); !saved)
                qFatal("%s", qPrintable(saved.message()));
        }},
        {[&] {
            const QByteArray status = QByteArray::number(++edits);
            const QByteArray answer = companion.roundTrip(
                toolCall("update_document", "{\"title\":\"" + title + "\",\"status\":\"" + status + "\"}"));
            if (!answer.contains("\"isError\":false"))
                qFatal("%s", answer.constData());
        }});
    times.reference += changeAllowance;
    return times;
}

} // namespace

/** Prints how calls of tools compare with the pipe they come through, a search through the files and the save
 * that changing ones end with; 1 when an aim is missed. */
int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], echoArgument) == 0) {
        bench::echoLines();
        return 0;
    }
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Measures calls of tools through the companion executable."_s);
    parser.addHelpOption();
    const QCommandLineOption objects(u"objects"_s, u"Objects of the project."_s, u"count"_s, u"50000"_s);
    const QCommandLineOption repetitions(u"repetitions"_s, u"Runs of each."_s, u"count"_s, u"5"_s);
    parser.addOptions({objects, repetitions});
    parser.process(application);
    const int runs = parser.value(repetitions).toInt();
    const int size = parser.value(objects).toInt();
    if (runs < 1 || size < bench::fewestObjects)
        parser.showHelp(2);

    const QTemporaryDir root;
    app::persistence::DiskFileSystem files;
    const app::persistence::StorageEnvironment environment{files, root.filePath(u"data"_s)};
    const QString served = makeProject(environment, root.filePath(u"served"_s), size);
    const QString plainFolder = makeProject(environment, root.filePath(u"plain"_s), size);
    std::this_thread::sleep_for(2500ms);
    const auto plain = app::workspace::Workspace::open(environment, plainFolder);
    if (!plain)
        qFatal("%s", qPrintable(plain.message()));
    const QByteArray title = titleIn(plain.value()->project());

    bench::ResultTable table;
    table.addTitle(u"%1 objects"_s.arg(size));
    table.addTimes(
        u"call a tool that reads, %1 times"_s.arg(callsOfARun), u"a server that echoes the line"_s,
        compareReading(served, title, runs), readAim);
    bench::LineProcess companion(QStringLiteral(TW_COMPANION), {served});
    const QByteArrayList names = entityNamesIn(plain.value()->project());
    table.addTimes(
        u"tell of %1 entities"_s.arg(names.size()), u"a millisecond each"_s,
        compareGathering(companion, names, runs), 1.0);
    if (const QString program = QStandardPaths::findExecutable(u"rg"_s); !program.isEmpty()) {
        table.addTimes(
            u"search for a word"_s, u"rg -ic"_s, compareSearching(companion, program, served, runs),
            searchAim);
    } else {
        table.addTitle(u"rg is not installed: searching is not compared"_s);
    }
    table.addTimes(
        u"call a tool that changes"_s, u"a save after one edit, and 2 ms"_s,
        compareChanging(companion, *plain.value(), title, runs), 1.0);
    return table.areAimsReached() ? 0 : 1;
}
