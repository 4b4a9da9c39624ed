#pragma once

#include <QString>
#include <QStringList>

namespace tw::desktop::shell {

/** What the program was started with. */
struct CommandLine
{
    /** The first argument that is no option, as it was given; empty for none. */
    QString projectPath = {};
    /** Where to save a picture of the window; empty outside capture mode. */
    QString capturePath = {};
    /** What to show before the picture is taken; empty for what is there anyway. */
    QString captureSelection = {};
    /** The name of the locale for this run; empty for the one of the settings. */
    QString language = {};
    bool isSelfTest = false;
    /** The project is to get a window of its own, whatever runs already. */
    bool isNewInstance = false;
    /** The answer is printed, and nothing else happens. */
    bool isHelp = false;
    bool isVersion = false;

    [[nodiscard]] bool isCapture() const { return !capturePath.isEmpty(); }
    /** The modes that need no user take no part in the talk between instances. */
    [[nodiscard]] bool isInteractive() const { return !isCapture() && !isSelfTest; }
};

/**
 * Reads the arguments without the program's name. An option that takes a value takes the argument right
 * after it, whatever that is; "--capture-select" leaves one that begins with "--" alone. An option at the end
 * has no value, which is as if it were not there. Unknown options and further paths are ignored.
 */
[[nodiscard]] CommandLine parseArguments(const QStringList& arguments);

/** What can be written behind the program's name. Needs an application object, but no window system. */
[[nodiscard]] QString usage();

} // namespace tw::desktop::shell
