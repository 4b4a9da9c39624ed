#pragma once

#include "desktop/shell/DeskContext.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QMainWindow;
class QWidget;

namespace tw::desktop::shell {

/** One dialog of the program, or what pops up as one, as the self-test builds it. */
struct SelfTestDialog
{
    /** Stable, for the report: "property". */
    QString name;
    /** The desk is a throw-away one with an empty project; the dialog has no parent. */
    std::function<std::unique_ptr<QWidget>(const DeskContext& desk)> make;
    /** What is wrong with the dialog beyond what is checked of each; may be left out. */
    std::function<QStringList(const DeskContext& desk)> check;
};

/** The list of all dialogs: whoever adds one to the program adds it here. */
[[nodiscard]] std::vector<SelfTestDialog> selfTestDialogs();

struct SelfTestReport
{
    /** For standard output, each beginning with "selftest". */
    QStringList lines;
    bool isPassed = true;
};

/**
 * Builds every dialog with throw-away data, without showing any, and checks that each has a title, a name for
 * every control and room for its texts; then that every dock of the window stands in the Windows menu once
 * and in a group. Leaves the open project alone.
 */
[[nodiscard]] SelfTestReport runDialogSelfTest(const QMainWindow& window, const DeskContext& desk);

} // namespace tw::desktop::shell
