#pragma once

namespace tw::desktop::shell {

struct CommandLine;
class MainWindow;

/**
 * Capture mode: opens the project, shows what is to be seen, saves a picture of the window a moment later and
 * ends the program, with 0, or 1 when there is no picture. Nobody is there to close a message, so one that
 * comes up is told on standard error and does not keep the program. Call it just before the event loop runs.
 */
void captureWindow(MainWindow& window, const CommandLine& commandLine);

} // namespace tw::desktop::shell
