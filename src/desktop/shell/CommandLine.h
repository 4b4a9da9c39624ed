#pragma once

#include <QString>
#include <QStringList>

namespace tw::desktop::shell {

/** What the program was started with. */
struct CommandLine
{
    /** The first argument that is no option; empty for none. */
    QString projectPath;
    /** Where to save a picture of the window; empty outside capture mode. */
    QString capturePath;
    /** What to show before the picture is taken; empty for what is there anyway. */
    QString captureSelection;

    [[nodiscard]] bool isCapture() const { return !capturePath.isEmpty(); }
};

/** Reads the arguments without the program's name. Unknown options and further paths are ignored. */
[[nodiscard]] CommandLine parseArguments(const QStringList& arguments);

} // namespace tw::desktop::shell
