#include "bench/ProjectGenerator.h"
#include "bench/storage-benchmark/BundleBenchmark.h"
#include "bench/storage-benchmark/References.h"
#include "bench/storage-benchmark/ResidentMemory.h"
#include "bench/storage-benchmark/StorageBenchmark.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

using tw::bench::Kept;

/** Whether this process was started only to measure its memory. */
bool measuresResidentGrowth(const QStringList& arguments)
{
    for (const Kept kept : {Kept::Workspace, Kept::JsonDocuments}) {
        if (arguments.value(1) == u"--"_s + tw::bench::residentOption(kept)) {
            tw::bench::printResidentGrowth(kept, arguments.value(2));
            return true;
        }
    }
    return false;
}

} // namespace

/** Prints how the program's handling of projects on disk compares; 1 when an aim is missed. */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (measuresResidentGrowth(QCoreApplication::arguments()))
        return 0;

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Measures opening, checking and saving generated projects."_s);
    parser.addHelpOption();
    const QCommandLineOption objects(
        u"objects"_s, u"Number of objects; may be given several times."_s, u"count"_s);
    const QCommandLineOption repetitions(
        u"repetitions"_s, u"Runs, of which the best counts."_s, u"count"_s, u"5"_s);
    const QCommandLineOption folder(
        u"folder"_s, u"Where the projects are made, and removed again."_s, u"path"_s, QDir::tempPath());
    parser.addOptions({objects, repetitions, folder});
    parser.process(application);

    QStringList sizes = parser.values(objects);
    if (sizes.isEmpty())
        sizes = {u"500"_s, u"5000"_s, u"50000"_s};
    tw::bench::ResultTable table;
    for (const QString& size : sizes) {
        if (size.toInt() < tw::bench::fewestObjects || parser.value(repetitions).toInt() < 1)
            parser.showHelp(2);
        tw::bench::StorageBenchmark(parser.value(folder), size.toInt(), parser.value(repetitions).toInt())
            .run(table);
        tw::bench::BundleBenchmark(parser.value(folder), size.toInt(), parser.value(repetitions).toInt())
            .run(table);
    }
    return table.areAimsReached() ? 0 : 1;
}
