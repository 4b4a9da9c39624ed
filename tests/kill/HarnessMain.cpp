// tw_kill_harness --points N --seed S --form folder|file
//
// Kills a program that works on a project, again and again, and looks whether anything it reported is lost.
#include "kill/KillLog.h"
#include "kill/Recovery.h"

#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/files/FolderScan.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <memory>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace tw;
using namespace tw::test;

namespace {

/** Then the next one begins with a project that is still to be made. */
constexpr int pointsInAProject = 10;
constexpr int longestLifeMs = 60'000;

struct Options
{
    int points = 20;
    quint32 seed = 1;
    QString form;
};

/** Kills and looks, point by point. */
class Harness
{
public:
    explicit Harness(const Options& options)
        : m_options(options)
        , m_random(options.seed)
    {}

    /** What was found wrong, for each point that was. */
    QStringList run()
    {
        for (int point = 0; point < m_options.points; ++point) {
            if (point % pointsInAProject == 0)
                begin();
            QStringList faults = killOnce(point);
            faults += m_ledger.read(path(u"log"_s));
            const bool isLast = (point + 1) % pointsInAProject == 0 || point + 1 == m_options.points;
            // Else the next one finds what this one left, and may die of that as well.
            if (faults.isEmpty() && (isLast || m_random() % 3 != 0))
                faults += look();
            if (faults.isEmpty())
                continue;
            m_root->setAutoRemove(false);
            faults.prepend(u"Point %1, in %2"_s.arg(point).arg(m_root->path()));
            return faults;
        }
        return {};
    }

    [[nodiscard]] int recoveries() const { return m_recoveries; }

private:
    [[nodiscard]] QString path(const QString& name) const { return m_root->filePath(name); }
    [[nodiscard]] QString project() const
    {
        return path(m_options.form == u"file" ? u"tide.vellory"_s : u"tide"_s);
    }

    void begin()
    {
        m_root = std::make_unique<QTemporaryDir>();
        m_environment = std::make_unique<app::persistence::StorageEnvironment>(
            app::persistence::StorageEnvironment{m_files, path(u"data"_s), {}, [](auto) {}});
        m_ledger = {};
    }

    QStringList killOnce(int point)
    {
        // By time, by operations of a program that stops, and of a computer that does.
        const int manner = point % 3;
        const int mostOperations = m_random() % 2 == 0 ? 60 : 600;
        const int operation =
            manner == 0 ? 0 : 1 + static_cast<int>(m_random() % static_cast<quint32>(mostOperations));
        const int life = manner == 0 ? 20 + static_cast<int>(m_random() % 700) : longestLifeMs;
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedChannels);
        child.start(
            QCoreApplication::applicationDirPath() + u"/tw_kill_child"_s,
            {project(), path(u"data"_s), path(u"log"_s), QString::number(m_random()),
             QString::number(operation), manner == 2 ? u"power"_s : u"program"_s});
        if (!child.waitForStarted())
            return {u"tw_kill_child could not be started"_s};
        if (!child.waitForFinished(life)) {
            child.kill();
            child.waitForFinished();
        }
        if (child.exitStatus() == QProcess::NormalExit)
            return {u"The program ended by itself: %1"_s.arg(child.exitCode())};
        return {};
    }

    QStringList look()
    {
        auto first = openAndRecover(*m_environment, project());
        if (!first) {
            if (m_ledger.hasKept())
                return {u"Does not open: "_s + first.message()};
            begin();
            return {};
        }
        OpenedProject opened = std::move(first).value();
        m_recoveries += opened.abandonedJournals > 0 || !opened.workspace->openingNotice().isEmpty() ? 1 : 0;
        const FileHashes hashes = hashesOf(*opened.workspace);
        QStringList faults = m_ledger.settle(hashes);
        for (const QString& overridden : opened.overridden)
            faults.append(u"Overridden: "_s + overridden);
        if (auto saved = opened.workspace->save(app::persistence::SaveExtent::Everything); !saved)
            faults.append(u"Cannot be saved: "_s + saved.message());
        opened.journal->discard();
        faults += lookAtFiles(*opened.workspace);
        opened = {};
        return faults + lookAgain(hashes);
    }

    [[nodiscard]] QStringList lookAtFiles(const app::workspace::Workspace& workspace)
    {
        QStringList faults;
        for (const QString& leftover :
             app::persistence::scanFolder(workspace.folderPath(), app::persistence::ScannedFiles::Text)
                 .leftovers)
            faults.append(u"Left behind: "_s + leftover);
        if (workspace.hasSingleFile()) {
            const auto archive = m_files.readFile(project());
            const auto rebuilt = app::persistence::buildBundle(m_files, workspace.folderPath());
            if (!archive || !rebuilt || archive->bytes != rebuilt.value())
                faults.append(u"The archive is not that of its working copy"_s);
        }
        return faults;
    }

    [[nodiscard]] QStringList lookAgain(const FileHashes& hashes)
    {
        const auto second = openAndRecover(*m_environment, project());
        if (!second)
            return {u"Does not open a second time: "_s + second.message()};
        QStringList faults;
        if (second.value().abandonedJournals > 0 || !second.value().workspace->openingNotice().isEmpty() ||
            second.value().workspace->isModified())
            faults.append(u"The second opening is not quiet"_s);
        if (hashesOf(*second.value().workspace) != hashes)
            faults.append(u"The second opening finds something else"_s);
        return faults;
    }

    const Options m_options;
    std::mt19937 m_random;
    app::persistence::DiskFileSystem m_files;
    std::unique_ptr<app::persistence::StorageEnvironment> m_environment;
    std::unique_ptr<QTemporaryDir> m_root;
    KillLedger m_ledger;
    int m_recoveries = 0;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption points(u"points"_s, u"How often to kill."_s, u"number"_s, u"20"_s);
    const QCommandLineOption seed(u"seed"_s, u"The same seed gives the same edits."_s, u"number"_s, u"1"_s);
    const QCommandLineOption form(u"form"_s, u"folder or file."_s, u"form"_s, u"folder"_s);
    parser.addOptions({points, seed, form});
    parser.addHelpOption();
    parser.process(application);
    const Options options{parser.value(points).toInt(), parser.value(seed).toUInt(), parser.value(form)};
    Harness harness(options);
    const QStringList faults = harness.run();
    QTextStream out(stdout);
    for (const QString& fault : faults)
        out << fault << '\n';
    out << u"%1 points on a %2, seed %3: %4 recoveries looked at, %5"_s.arg(options.points)
               .arg(options.form)
               .arg(options.seed)
               .arg(harness.recoveries())
               .arg(faults.isEmpty() ? u"nothing lost"_s : u"faults"_s)
        << '\n';
    return faults.isEmpty() ? 0 : 1;
}
