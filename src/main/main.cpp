#include "app/persistence/StorageEnvironment.h"
#include "desktop/icons/IconSet.h"
#include "desktop/icons/StandardIcons.h"
#include "desktop/shell/CommandLine.h"
#include "desktop/shell/DialogSelfTest.h"
#include "desktop/shell/MainWindow.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/OpenRequest.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/SettingsMigration.h"
#include "desktop/shell/SingleInstance.h"
#include "desktop/shell/SingleInstanceServer.h"
#include "desktop/shell/Translations.h"
#include "desktop/shell/WindowCapture.h"
#include "desktop/theme/ThemeManager.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>

#include <cstdio>
#include <memory>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace tw;
using namespace tw::desktop::shell;

namespace {

const QString organizationName = u"Vellory"_s;

void nameApplication()
{
    QApplication::setApplicationName(u"Vellory"_s);
    QApplication::setOrganizationName(organizationName);
    QApplication::setApplicationVersion(QStringLiteral(TW_VERSION));
    QApplication::setDesktopFileName(QStringLiteral(TW_APPLICATION_ID));
}

void takeOverFormerSettings(QSettings& settings)
{
    QSettings former(organizationName, u"Tarnwick"_s);
    former.setFallbacksEnabled(false);
    migrateLegacySettings(former, settings);
}

CommandLine readArguments()
{
    CommandLine commandLine = parseArguments(QApplication::arguments().mid(1));
    if (!commandLine.projectPath.isEmpty())
        commandLine.projectPath = QDir::cleanPath(QDir::current().absoluteFilePath(commandLine.projectPath));
    return commandLine;
}

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

int printSelfTest(const SelfTestReport& report)
{
    for (const QString& line : report.lines)
        std::printf("%s\n", qPrintable(line));
    return report.isPassed ? 0 : 1;
}

OpenRequestActions openRequestActions(MainWindow& window)
{
    return {
        [&window](const QString& path) { window.life().open(path); },
        [](const QStringList& arguments) {
            return QProcess::startDetached(QApplication::applicationFilePath(), arguments);
        }};
}

/** The project that was asked for, or what was open last; the ways to begin at the very first start. */
void begin(MainWindow& window, const QString& projectPath, QSettings& settings)
{
    constexpr QLatin1StringView welcomedKey = "onboarding/welcomed"_L1;
    if (!projectPath.isEmpty()) {
        window.life().open(projectPath);
        return;
    }
    window.life().reopenLast();
    if (!settings.contains(welcomedKey)) {
        window.showWelcome();
        settings.setValue(welcomedKey, u"true"_s);
    }
}

/** Answers what needs no window, and so no display; gives the exit code when that is all there is to do. */
std::optional<int> printAndLeave(int argc, char* argv[])
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    const CommandLine commandLine = parseArguments(arguments);
    if (!commandLine.isHelp && !commandLine.isVersion)
        return std::nullopt;
    const QCoreApplication application(argc, argv);
    nameApplication();
    QSettings settings;
    const Translations translations(chooseLocale(commandLine.language, settings));
    const QString answer = commandLine.isHelp ? usage()
                                              : QCoreApplication::applicationName() + u' ' +
                                                    QCoreApplication::applicationVersion() + u'\n';
    std::fputs(qPrintable(answer), stdout);
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (const auto exitCode = printAndLeave(argc, argv))
        return *exitCode;
    QApplication application(argc, argv);
    nameApplication();
    QSettings settings;
    settings.setFallbacksEnabled(false);
    takeOverFormerSettings(settings);
    QApplication::setWindowIcon(desktop::icons::applicationIcon());
    const CommandLine commandLine = readArguments();

    std::unique_ptr<SingleInstanceServer> server;
    if (commandLine.isInteractive()) {
        const QString name = serverName(userNameFromEnvironment());
        if (!commandLine.isNewInstance && sendToRunningInstance(name, commandLine.projectPath))
            return 0;
        server = std::make_unique<SingleInstanceServer>(name);
    }

    const QLocale locale = chooseLocale(commandLine.language, settings);
    // Counts are grouped the way the language of the interface groups them.
    QLocale::setDefault(locale);
    const Translations translations(locale);
    desktop::theme::ThemeManager themes(settings);
    themes.apply(application);
    const desktop::icons::IconSet icons(themes);
    desktop::icons::registerStandardIcons(icons, themes);

    app::persistence::DiskFileSystem fileSystem;
    const app::persistence::StorageEnvironment environment{
        fileSystem, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
    ProjectSession session(environment);
    Navigator navigator;
    const DeskContext desk{session, navigator, themes, icons, settings};
    MainWindow window(desk, findSample());
    OpenRequests openRequests(window, openRequestActions(window));
    if (server)
        QObject::connect(
            server.get(), &SingleInstanceServer::requested, &openRequests, &OpenRequests::receive);
    // A picture has the size that was asked for, whatever the screen.
    if (!commandLine.isCapture())
        window.resize(window.size().boundedTo(window.screen()->availableSize()));
    window.show();

    if (commandLine.isSelfTest)
        return printSelfTest(runDialogSelfTest(window, desk));
    if (commandLine.isCapture())
        captureWindow(window, commandLine);
    else
        begin(window, commandLine.projectPath, settings);
    return QApplication::exec();
}
