#include "desktop/shell/WindowCapture.h"

#include "desktop/shell/CommandLine.h"
#include "desktop/shell/MainWindow.h"
#include "desktop/shell/ProjectLife.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace tw::desktop::shell {

namespace {

constexpr std::chrono::milliseconds captureDelay{1500};

void capture(MainWindow& window, const QString& path)
{
    if (const auto* const message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        std::fprintf(stderr, "%s\n", qPrintable(message->text()));
    if (window.grab().save(path)) {
        QApplication::exit(0);
        return;
    }
    std::fprintf(
        stderr,
        "The picture could not be saved: %s. Name a file that ends in .png or .jpg, in a folder that "
        "exists.\n",
        qPrintable(QDir::toNativeSeparators(path)));
    QApplication::exit(1);
}

} // namespace

void captureWindow(MainWindow& window, const CommandLine& commandLine)
{
    auto* const delay = new QTimer(&window);
    delay->setSingleShot(true);
    delay->setInterval(captureDelay);
    QObject::connect(delay, &QTimer::timeout, &window, [&window, path = commandLine.capturePath] {
        capture(window, path);
    });
    // Inside the event loop, so that ending the program also ends the one of a message.
    QTimer::singleShot(0, &window, [&window, delay, commandLine] {
        delay->start();
        if (!commandLine.projectPath.isEmpty())
            window.life().open(commandLine.projectPath);
        const QString& selection = commandLine.captureSelection;
        if (!selection.isEmpty() && !window.select(selection))
            std::fprintf(stderr, "There is nothing to select by this name: %s\n", qPrintable(selection));
        delay->start();
    });
}

} // namespace tw::desktop::shell
