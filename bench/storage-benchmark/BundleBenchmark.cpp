#include "bench/storage-benchmark/BundleBenchmark.h"

#include "app/persistence/bundle/ProjectBundle.h"
#include "bench/ProjectGenerator.h"
#include "bench/storage-benchmark/References.h"
#include "core/document/DocumentCommands.h"

#include <QThread>

#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

using app::workspace::Workspace;
using core::document::Document;

namespace {

/** After this time a stamp of a file is trusted. */
constexpr std::chrono::milliseconds ageing{2'500};
/** Smaller projects are told without an aim: there the fixed costs of an operation outweigh its work. */
constexpr int smallestWithAims = 50'000;

} // namespace

BundleBenchmark::BundleBenchmark(const QString& place, int objects, int repetitions)
    : m_repetitions(repetitions)
    , m_hasAims(objects >= smallestWithAims)
    , m_root(place + u"/bundle-benchmark-XXXXXX"_s)
    , m_bundle(m_root.filePath(u"project.vellory"_s))
    , m_environment{m_fileSystem, m_root.filePath(u"data"_s)}
{
    if (!m_root.isValid())
        giveUp(u"Cannot make a folder in "_s + place);
    Workspace workspace(m_environment);
    generateProject(workspace.projectForEdit(), {objects, 1});
    if (const auto saved = workspace.saveAs(m_bundle); !saved)
        giveUp(saved.message());
    m_copy = workspace.folderPath();
    m_files = filesBelow(m_copy);
    QThread::msleep(static_cast<unsigned long>(ageing.count()));
}

void BundleBenchmark::run(ResultTable& table)
{
    table.addTitle(u"%L1 files in one"_s.arg(m_files.size()));
    measureOpen(table);
    measureSaveOfOne(table);
}

void BundleBenchmark::openAgain()
{
    auto opened = Workspace::open(m_environment, m_bundle);
    if (!opened)
        giveUp(opened.message());
    m_workspace = std::move(opened).value();
    if (!m_workspace->openingNotice().isEmpty())
        giveUp(u"The working copy was not intact."_s);
}

void BundleBenchmark::save()
{
    if (const auto saved = m_workspace->save(); !saved)
        giveUp(saved.message());
}

void BundleBenchmark::editOneChapter()
{
    auto* document = m_workspace->projectForEdit().findAsForEdit<Document>(
        m_workspace->project().objectsOfKind(Document::staticKind).front()->id());
    core::document::DocumentBody body = document->body();
    body.text += u" more"_s;
    m_workspace->undoStack().push(
        std::make_unique<core::document::SetDocumentBodyCommand>(*document, std::move(body)));
}

void BundleBenchmark::measureOpen(ResultTable& table)
{
    std::unique_ptr<Workspace> folder;
    const Timed reference{
        [&] {
            for (const QString& file : m_files)
                static_cast<void>(readWhole(file));
            auto opened = Workspace::open(m_environment, m_copy);
            if (!opened)
                giveUp(opened.message());
            folder = std::move(opened).value();
        },
        [&] { folder.reset(); }};
    const Timed measured{
        [this] { openAgain(); },
        [&] {
            folder.reset();
            m_workspace.reset();
        }};
    const Comparison times = compare({m_repetitions, Counted::Best}, reference, measured);
    table.addTimes(
        u"open a single file, copy intact"_s, u"reading every file, opening the folder"_s, times,
        m_hasAims ? std::optional(1.2) : std::nullopt);
}

void BundleBenchmark::measureSaveOfOne(ResultTable& table)
{
    const QString target = m_root.filePath(u"reference.vellory"_s);
    const Timed measured{[this] { save(); }, [this] { editOneChapter(); }};
    const Runs runs{m_repetitions, Counted::MiddlePair};
    const Timed plain{[&] { packEvery(m_copy, target); }};
    const Comparison times = compare(runs, plain, measured);
    table.addTimes(
        u"save a single file, one chapter changed"_s, u"packing every file anew, plainly"_s, times,
        m_hasAims ? std::optional(0.5) : std::nullopt);
    const Timed rebuild{[&] {
        if (const auto written = app::persistence::writeProjectBundle(m_environment, m_copy, target);
            !written)
            giveUp(written.message());
    }};
    table.addTimes(
        u"save a single file, one chapter changed"_s, u"the program's own full build"_s,
        compare(runs, rebuild, measured), {});
}

} // namespace tw::bench
