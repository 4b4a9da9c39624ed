// The built program as a process of its own, without a display and with a home of its own.
#include "desktop/shell/SingleInstance.h"
#include "desktop/shell/SingleInstanceServer.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QImage>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw {

using namespace Qt::Literals::StringLiterals;
using namespace desktop::shell;

namespace {

class StartTest : public testing::Test
{
protected:
    StartTest()
    {
        program.setProgram(QStringLiteral(TW_PROGRAM));
        program.setWorkingDirectory(home.path());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {u"HOME"_s, u"TMPDIR"_s, u"XDG_RUNTIME_DIR"_s})
            environment.insert(name, home.path());
        for (const QString& name : {u"XDG_CONFIG_HOME"_s, u"XDG_DATA_HOME"_s, u"USERNAME"_s})
            environment.remove(name);
        environment.insert(u"USER"_s, u"Jo Smith"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        program.setProcessEnvironment(environment);
    }

    ~StartTest() override
    {
        program.kill();
        program.waitForFinished();
    }

    /** Runs it to its end, while this process goes on hearing its own server. */
    int run(const QStringList& arguments)
    {
        QSignalSpy ended(&program, &QProcess::finished);
        program.setArguments(arguments);
        program.start();
        EXPECT_TRUE(program.waitForStarted());
        EXPECT_TRUE(program.state() == QProcess::NotRunning || ended.wait(60'000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        return program.exitCode();
    }

    /** The server's name as the program sees it; its folder differs from that of this process. */
    QString programsServer() const { return home.filePath(serverName(u"Jo Smith"_s)); }
    QString configuration(const QString& name) const
    {
        return home.filePath(u".config/Vellory/%1.conf"_s.arg(name));
    }

    QTemporaryDir home;
    QProcess program;
};

} // namespace

TEST_F(StartTest, helpAndVersionNeedNoDisplayAndNoOtherInstance)
{
    QProcessEnvironment environment = program.processEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"no such system"_s);
    program.setProcessEnvironment(environment);
    const SingleInstanceServer first(programsServer());
    QSignalSpy requests(&first, &SingleInstanceServer::requested);
    EXPECT_EQ(run({u"--help"_s, u"my novel"_s}), 0);
    const QByteArray help = program.readAllStandardOutput();
    for (const char* const option :
         {"[project]", "--help", "--version", "--lang <", "--new-instance", "--capture <",
          "--capture-select <", "--selftest-dialogs"})
        EXPECT_TRUE(help.contains(option)) << option;
    EXPECT_EQ(run({u"--version"_s}), 0);
    EXPECT_TRUE(program.readAllStandardOutput().startsWith("Vellory "));
    EXPECT_TRUE(requests.isEmpty());
}

TEST_F(StartTest, theSecondStartHandsItsProjectOverAndEnds)
{
    const SingleInstanceServer first(programsServer());
    QSignalSpy requests(&first, &SingleInstanceServer::requested);
    EXPECT_EQ(run({u"my novel"_s}), 0);
    ASSERT_TRUE(!requests.isEmpty() || requests.wait());
    EXPECT_EQ(requests.first().first().toString(), QDir(home.path()).canonicalPath() + u"/my novel"_s);
}

TEST_F(StartTest, aRunningProgramTakesRequests)
{
    const QFileSystemWatcher folder({home.path()});
    QSignalSpy changes(&folder, &QFileSystemWatcher::directoryChanged);
    program.setArguments({u"--new-instance"_s});
    program.start();
    ASSERT_TRUE(program.waitForStarted());
    // Once it listens, its socket stands in the folder.
    while (!sendToRunningInstance(programsServer(), QString()) && changes.wait(60'000)) {
    }
    EXPECT_TRUE(sendToRunningInstance(programsServer(), QString()));
    EXPECT_EQ(program.state(), QProcess::Running);
}

TEST_F(StartTest, captureTakesNoPartAndSavesAPicture)
{
    const SingleInstanceServer first(programsServer());
    QSignalSpy requests(&first, &SingleInstanceServer::requested);
    const QString picture = home.filePath(u"window.png"_s);
    const QString project = test::repositoryPath(u"examples/low-water");
    EXPECT_EQ(run({project, u"--capture"_s, picture, u"--lang"_s, u"de"_s}), 0);
    EXPECT_FALSE(QImage(picture).isNull());
    EXPECT_TRUE(requests.isEmpty());
    const QSettings settings(configuration(u"Vellory"_s), QSettings::IniFormat);
    EXPECT_FALSE(settings.contains("appearance/language")) << "a language for one start is not kept";

    // Nobody is there to close a message.
    EXPECT_EQ(run({u"nowhere"_s, u"--capture"_s, home.filePath(u"b.png"_s)}), 0);
    EXPECT_TRUE(program.readAllStandardError().contains("could not be found"));
    EXPECT_EQ(run({u"--capture"_s, home.filePath(u"no folder/b.png"_s)}), 1);
}

TEST_F(StartTest, selfTestPassesAndFormerSettingsAreTakenOverOnce)
{
    {
        QSettings former(configuration(u"Tarnwick"_s), QSettings::IniFormat);
        former.setValue("appearance/theme", u"Sepia"_s);
    }
    EXPECT_EQ(run({u"--selftest-dialogs"_s}), 0) << program.readAllStandardOutput().toStdString();
    QStringList unexpected;
    for (const QByteArray& line : program.readAllStandardOutput().split('\n')) {
        if (!line.isEmpty() && !line.startsWith("selftest"))
            unexpected.append(QString::fromUtf8(line));
    }
    EXPECT_EQ(unexpected, QStringList());
    QSettings settings(configuration(u"Vellory"_s), QSettings::IniFormat);
    EXPECT_EQ(settings.value("appearance/theme").toString(), u"Sepia"_s);
    EXPECT_EQ(settings.value("migration/fromTarnwick").toString(), u"true"_s);
}

} // namespace tw
