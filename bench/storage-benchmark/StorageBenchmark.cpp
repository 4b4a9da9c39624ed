#include "bench/storage-benchmark/StorageBenchmark.h"

#include "app/persistence/files/ProjectFiles.h"
#include "bench/ProjectGenerator.h"
#include "bench/storage-benchmark/References.h"
#include "bench/storage-benchmark/ResidentMemory.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/project/Project.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QThread>

#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

using app::workspace::Workspace;
using core::ContentId;
using core::document::Document;
using core::entity::Entity;

namespace {

/** After this time a stamp of a file is trusted. */
constexpr std::chrono::milliseconds ageing{2'500};
constexpr std::size_t manyObjects = 1'000;
constexpr int memoryProcesses = 3;
/** Smaller projects are told without an aim: there the fixed costs of an operation outweigh its work. */
constexpr int smallestWithAims = 50'000;

const QString statOfEveryFile = u"stat of every file"_s;

/** The stamps of all files and folders: nothing was written, not even for a moment, where they stay. */
std::map<QString, app::persistence::FileStamp> stampsBelow(
    app::persistence::FileSystem& fileSystem, const QString& folder)
{
    std::map<QString, app::persistence::FileStamp> stamps;
    stamps[folder] = fileSystem.stamp(folder).value();
    QDirIterator entries(
        folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        stamps[path] = fileSystem.stamp(path).value();
    }
    return stamps;
}

} // namespace

StorageBenchmark::StorageBenchmark(const QString& place, int objects, int repetitions)
    : m_repetitions(repetitions)
    , m_hasAims(objects >= smallestWithAims)
    , m_root(place + u"/storage-benchmark-XXXXXX"_s)
    , m_folder(m_root.filePath(u"project"_s))
    , m_environment{m_fileSystem, m_root.filePath(u"data"_s)}
{
    if (!m_root.isValid())
        giveUp(u"Cannot make a folder in "_s + place);
    Workspace workspace(m_environment);
    generateProject(workspace.projectForEdit(), {objects, 1});
    if (const auto saved = workspace.saveAs(m_folder); !saved)
        giveUp(saved.message());
    m_files = filesBelow(m_folder);
    for (const QString& file : m_files)
        m_encodedFiles.push_back(QFile::encodeName(file));
    rest();
}

void StorageBenchmark::run(ResultTable& table)
{
    qint64 bytes = 0;
    for (const QString& file : m_files)
        bytes += QFileInfo(file).size();
    table.addTitle(
        u"%L1 files, %2 MB"_s.arg(m_files.size()).arg(static_cast<double>(bytes) / 1e6, 0, 'f', 1));
    // First, while this process is small and the folder untouched.
    measureMemory(table);
    measureLoad(table);
    measureChecks(table);
    measureSaveOfOne(table);
    measureSaveOfMany(table);
}

void StorageBenchmark::openAgain()
{
    auto opened = Workspace::open(m_environment, m_folder);
    if (!opened)
        giveUp(opened.message());
    m_workspace = std::move(opened).value();
}

void StorageBenchmark::rest()
{
    QThread::msleep(static_cast<unsigned long>(ageing.count()));
    if (m_workspace)
        expectNoChanges();
}

void StorageBenchmark::expectNoChanges()
{
    if (!m_workspace->externalChanges().isEmpty())
        giveUp(u"The check found changes that nobody made."_s);
}

void StorageBenchmark::save()
{
    if (const auto saved = m_workspace->save(); !saved)
        giveUp(saved.message());
}

std::optional<double> StorageBenchmark::aim(double ratio) const
{
    return m_hasAims ? std::optional(ratio) : std::nullopt;
}

Runs StorageBenchmark::runs(Counted counted) const
{
    return {m_repetitions, counted};
}

QString StorageBenchmark::objectFile(const ContentId& id) const
{
    return m_folder + u'/' + app::persistence::objectPath(id);
}

void StorageBenchmark::measureMemory(ResultTable& table)
{
    double bytesOnDisk = 0;
    for (const QString& file : m_files)
        bytesOnDisk += static_cast<double>(QFileInfo(file).size());
    const double workspace = residentGrowth(Kept::Workspace, m_folder, memoryProcesses);
    const double documents = residentGrowth(Kept::JsonDocuments, m_folder, memoryProcesses);
    table.addSizes(
        u"memory, project open"_s, u"keeping every QJsonDocument"_s, {workspace, documents}, aim(1.5));
    table.addSizes(u"memory, project open"_s, u"bytes on disk"_s, {workspace, bytesOnDisk}, {});
}

void StorageBenchmark::measureLoad(ResultTable& table)
{
    // Closing the previous project is no part of opening one.
    const Comparison times = compare(
        runs(Counted::Best), {[this] { parseEvery(m_files); }},
        {[this] { openAgain(); }, [this] { m_workspace.reset(); }});
    table.addTimes(u"open"_s, u"QFile, QJsonDocument of every file"_s, times, aim(1.0));
}

void StorageBenchmark::measureChecks(ResultTable& table)
{
    const auto before = stampsBelow(m_fileSystem, m_folder);
    const Timed statEveryFile{[this] { statEvery(m_encodedFiles); }};
    const Comparison check = compare(runs(Counted::Best), statEveryFile, {[this] { expectNoChanges(); }});
    table.addTimes(u"check for external changes"_s, statOfEveryFile, check, aim(1.5));
    const Comparison unchanged = compare(runs(Counted::Best), statEveryFile, {[this] { save(); }});
    table.addTimes(u"save, nothing changed"_s, statOfEveryFile, unchanged, aim(1.5));
    if (stampsBelow(m_fileSystem, m_folder) != before)
        giveUp(u"A save without changes wrote to the folder."_s);
}

void StorageBenchmark::measureSaveOfOne(ResultTable& table)
{
    auto* document = m_workspace->projectForEdit().findAsForEdit<Document>(
        m_workspace->project().objectsOfKind(Document::staticKind).front()->id());
    const QString file = objectFile(document->id());
    QByteArray bytes;
    const Timed reference{
        [&] {
            statEvery(m_encodedFiles);
            writeWithSaveFile(file, bytes);
        },
        [&] { bytes = readWhole(file); }};
    const Timed measured{
        [this] { save(); },
        [&] {
            core::document::DocumentBody body = document->body();
            body.text += u" more"_s;
            m_workspace->undoStack().push(
                std::make_unique<core::document::SetDocumentBodyCommand>(*document, std::move(body)));
        }};
    const Comparison times = compare(runs(Counted::MiddlePair), reference, measured);
    table.addTimes(u"save, one chapter changed"_s, u"the same and one QSaveFile"_s, times, aim(1.5));
}

void StorageBenchmark::measureSaveOfMany(ResultTable& table)
{
    std::vector<Entity*> changed;
    for (const Entity* entity : core::project::objectsOf<Entity>(m_workspace->project())) {
        if (changed.size() < manyObjects)
            changed.push_back(m_workspace->projectForEdit().findAsForEdit<Entity>(entity->id()));
    }
    // The very files that the save replaces, with the bytes they hold already.
    std::vector<std::pair<QString, QByteArray>> files;
    const Timed reference{
        [&] {
            for (const auto& [path, bytes] : files)
                writeWithSaveFile(path, bytes);
        },
        [&] {
            files.clear();
            for (const Entity* entity : changed)
                files.emplace_back(objectFile(entity->id()), readWhole(objectFile(entity->id())));
            rest();
        }};
    const Timed measured{
        [this] { save(); },
        [&] {
            rest();
            for (Entity* entity : changed) {
                m_workspace->undoStack().push(
                    std::make_unique<core::entity::SetEntityNameCommand>(*entity, entity->name() + u'a'));
            }
        }};
    const Comparison times = compare(runs(Counted::MiddlePair), reference, measured);
    table.addTimes(
        u"save, %L1 entities changed"_s.arg(changed.size()), u"as many QSaveFiles, one by one"_s, times,
        aim(0.5));
}

} // namespace tw::bench
