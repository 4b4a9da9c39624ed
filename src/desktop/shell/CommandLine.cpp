#include "desktop/shell/CommandLine.h"

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

CommandLine parseArguments(const QStringList& arguments)
{
    CommandLine commandLine;
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString& argument = arguments[index];
        const auto takeValue = [&](QString& value) {
            if (index + 1 < arguments.size())
                value = arguments[++index];
        };
        if (argument == "--capture"_L1) {
            takeValue(commandLine.capturePath);
        } else if (argument == "--capture-select"_L1) {
            if (!arguments.value(index + 1).startsWith("--"_L1))
                takeValue(commandLine.captureSelection);
        } else if (argument == "--lang"_L1) {
            takeValue(commandLine.language);
        } else if (argument == "--selftest-dialogs"_L1) {
            commandLine.isSelfTest = true;
        } else if (argument == "--new-instance"_L1) {
            commandLine.isNewInstance = true;
        } else if (!argument.startsWith(u'-') && commandLine.projectPath.isEmpty()) {
            commandLine.projectPath = argument;
        }
    }
    return commandLine;
}

} // namespace tw::desktop::shell
