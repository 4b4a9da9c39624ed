#include "desktop/shell/CommandLine.h"

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

CommandLine parseArguments(const QStringList& arguments)
{
    CommandLine commandLine;
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString& argument = arguments[index];
        const bool hasValue = index + 1 < arguments.size();
        if (argument == "--capture"_L1) {
            if (hasValue)
                commandLine.capturePath = arguments[++index];
        } else if (argument == "--capture-select"_L1) {
            // The next option is no value.
            if (hasValue && !arguments[index + 1].startsWith("--"_L1))
                commandLine.captureSelection = arguments[++index];
        } else if (!argument.startsWith(u'-') && commandLine.projectPath.isEmpty()) {
            commandLine.projectPath = argument;
        }
    }
    return commandLine;
}

} // namespace tw::desktop::shell
