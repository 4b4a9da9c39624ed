#include "app/persistence/merge/LineMerge.h"
#include "bench/Measurement.h"
#include "bench/merge-benchmark/MergeTexts.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double aim = 1.0;

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

void compareOn(
    tw::bench::ResultTable& table, int repetitions, const QString& what, const tw::bench::MergeTexts& texts)
{
    const QTemporaryDir folder;
    write(folder.filePath(u"base"_s), texts.base);
    write(folder.filePath(u"mine"_s), texts.mine);
    write(folder.filePath(u"theirs"_s), texts.theirs);
    const tw::bench::Timed reference{[&] {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(u"git"_s, {u"merge-file"_s, u"-p"_s, u"-q"_s, u"mine"_s, u"base"_s, u"theirs"_s});
        process.waitForFinished(-1);
        if (process.exitStatus() != QProcess::NormalExit || process.readAllStandardOutput().isEmpty())
            qFatal("git merge-file failed");
    }};
    qsizetype merged = 0;
    const tw::bench::Timed measured{[&] {
        merged += tw::app::persistence::mergeLines(texts.base, texts.mine, texts.theirs).text.size();
    }};
    table.addTimes(
        what, u"git merge-file, a process on files"_s,
        tw::bench::compare({repetitions, tw::bench::Counted::Best}, reference, measured), aim);
    if (merged == 0)
        qFatal("nothing was merged");
}

} // namespace

/** Prints how the merge of one file by lines compares; 1 when an aim is missed. */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Measures the merge of one file by lines against git merge-file."_s);
    parser.addHelpOption();
    const QCommandLineOption repetitions(
        u"repetitions"_s, u"Runs, of which the best counts."_s, u"count"_s, u"5"_s);
    parser.addOption(repetitions);
    parser.process(application);
    const int runs = parser.value(repetitions).toInt();
    if (runs < 1)
        parser.showHelp(2);
    if (QStandardPaths::findExecutable(u"git"_s).isEmpty()) {
        std::fprintf(stderr, "git is not installed: there is nothing to compare with.\n");
        return 2;
    }
    tw::bench::ResultTable table;
    for (const int lines : {8'000, 85'000}) {
        table.addTitle(u"%1 lines"_s.arg(lines));
        compareOn(table, runs, u"one line in fifty edited"_s, tw::bench::textsWithScatteredEdits(lines));
        compareOn(table, runs, u"and a third of them moved"_s, tw::bench::textsWithAMovedThird(lines));
    }
    return table.areAimsReached() ? 0 : 1;
}
