#include <QStandardPaths>
#include <QTemporaryDir>

#ifdef TW_TEST_WIDGETS
#include <QApplication>
#include <QFont>
#else
#include <QCoreApplication>
#endif

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// Tests speak only through failures: our own categories are silent unless the caller sets rules.
void silenceLogging()
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) {
        qputenv("QT_LOGGING_RULES", "tw.*=false;qt.qpa.*=false;qt.svg.*=true");
    }
    // The offscreen platform says so of every window that has a least size.
    static QtMessageHandler usualHandler = nullptr;
    usualHandler =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            if (!text.contains("propagateSizeHints"_L1))
                usualHandler(type, context, text);
        });
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    silenceLogging();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Runs beside or after each other share nothing: neither settings nor sockets.
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(u"VelloryTests"_s);
    QCoreApplication::setApplicationName(u"VelloryTests"_s);
#ifdef TW_TEST_WIDGETS
    QApplication application(argc, argv);
    QApplication::setFont(QFont(QStringList{u"Inter"_s, u"Noto Sans"_s, u"DejaVu Sans"_s}, 10));
#else
    QCoreApplication application(argc, argv);
#endif
    return RUN_ALL_TESTS();
}
