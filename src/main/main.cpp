#include "app/persistence/StorageEnvironment.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/CommandLine.h"
#include "desktop/shell/MainWindow.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace tw;

namespace {

constexpr std::chrono::milliseconds captureDelay{1500};

/** The sample project: installed beside the program, or in the source tree it was built from. */
QString findSample()
{
    const QStringList places{
        QCoreApplication::applicationDirPath() + u"/../share/vellory/examples/low-water"_s,
        QStringLiteral(TW_EXAMPLES_FOLDER "/low-water"),
    };
    for (const QString& place : places) {
        if (QFileInfo::exists(place + u"/project.json"_s))
            return QDir::cleanPath(place);
    }
    return {};
}

void capture(desktop::shell::MainWindow& window, const QString& path)
{
    if (window.grab().save(path)) {
        QCoreApplication::exit(0);
        return;
    }
    std::fprintf(stderr, "The picture could not be saved: %s\n", qPrintable(QDir::toNativeSeparators(path)));
    QCoreApplication::exit(1);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Vellory"_s);
    QApplication::setOrganizationName(u"Vellory"_s);
    QApplication::setApplicationVersion(QStringLiteral(TW_VERSION));
    QApplication::setWindowIcon(desktop::icons::applicationIcon());
    const desktop::shell::CommandLine commandLine =
        desktop::shell::parseArguments(QApplication::arguments().mid(1));

    QSettings settings;
    settings.setFallbacksEnabled(false);
    desktop::theme::ThemeManager themes(settings);
    themes.apply(application);
    const desktop::icons::IconSet icons(themes);

    app::persistence::DiskFileSystem fileSystem;
    const app::persistence::StorageEnvironment environment{
        fileSystem, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
    desktop::shell::ProjectSession session(environment);
    desktop::shell::Navigator navigator;
    desktop::shell::MainWindow window({session, navigator, themes, icons, settings}, findSample());
    window.show();

    if (!commandLine.projectPath.isEmpty())
        window.life().open(QFileInfo(commandLine.projectPath).absoluteFilePath());
    else if (!commandLine.isCapture())
        window.life().reopenLast();

    if (commandLine.isCapture()) {
        const QString& selection = commandLine.captureSelection;
        if (!selection.isEmpty() && !window.select(selection))
            std::fprintf(stderr, "There is nothing to select by this name: %s\n", qPrintable(selection));
        QTimer::singleShot(captureDelay, &window, [&] { capture(window, commandLine.capturePath); });
    }
    return QApplication::exec();
}
