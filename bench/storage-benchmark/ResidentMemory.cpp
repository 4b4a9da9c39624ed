#include "bench/storage-benchmark/ResidentMemory.h"

#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "bench/storage-benchmark/References.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <limits>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

namespace {

qint64 residentBytes()
{
    // Sizes in pages: the program, what of it is resident, ...
    const QList<QByteArray> pages = readWhole(u"/proc/self/statm"_s).split(' ');
    return pages.value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

} // namespace

QString residentOption(Kept kept)
{
    return kept == Kept::Workspace ? u"resident-workspace"_s : u"resident-documents"_s;
}

void printResidentGrowth(Kept kept, const QString& folder)
{
    const QTemporaryDir dataFolder;
    app::persistence::DiskFileSystem fileSystem;
    const app::persistence::StorageEnvironment environment{fileSystem, dataFolder.path()};
    const qint64 before = residentBytes();
    if (kept == Kept::Workspace) {
        const auto workspace = app::workspace::Workspace::open(environment, folder);
        if (!workspace)
            giveUp(workspace.message());
        std::printf("%lld\n", static_cast<long long>(residentBytes() - before));
    } else {
        const std::vector<QJsonDocument> documents = parsedEvery(filesBelow(folder));
        std::printf("%lld\n", static_cast<long long>(residentBytes() - before));
    }
}

double residentGrowth(Kept kept, const QString& folder, int processes)
{
    double least = std::numeric_limits<double>::max();
    for (int index = 0; index < processes; ++index) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), {u"--"_s + residentOption(kept), folder});
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            giveUp(u"The process that measures memory failed."_s);
        least = std::min(least, process.readAllStandardOutput().trimmed().toDouble());
    }
    return least;
}

} // namespace tw::bench
