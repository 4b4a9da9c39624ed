#include "bench/ProjectGenerator.h"

#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

/** Writes a generated project into a folder, to be opened in the program. */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Writes a large project in an invented language into a new folder."_s);
    parser.addHelpOption();
    const QCommandLineOption objects(u"objects"_s, u"Number of objects."_s, u"count"_s, u"50000"_s);
    const QCommandLineOption seed(u"seed"_s, u"Equal seeds give equal projects."_s, u"number"_s, u"1"_s);
    parser.addOptions({objects, seed});
    parser.addPositionalArgument(u"folder"_s, u"Made when it is not there."_s);
    parser.process(application);
    tw::bench::GeneratedSize size;
    size.objects = parser.value(objects).toInt();
    size.seed = parser.value(seed).toULongLong();
    if (parser.positionalArguments().size() != 1 || size.objects < tw::bench::fewestObjects)
        parser.showHelp(2);

    const QTemporaryDir dataFolder;
    tw::app::persistence::DiskFileSystem fileSystem;
    const tw::app::persistence::StorageEnvironment environment{fileSystem, dataFolder.path()};
    tw::app::workspace::Workspace workspace(environment);
    tw::bench::generateProject(workspace.projectForEdit(), size);
    if (const auto saved = workspace.saveAs(parser.positionalArguments().first()); !saved) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(saved.message()));
        return 1;
    }
    return 0;
}
