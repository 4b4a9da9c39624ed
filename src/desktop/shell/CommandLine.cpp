#include "desktop/shell/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

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
        } else if (argument == "--help"_L1 || argument == "-h"_L1) {
            commandLine.isHelp = true;
        } else if (argument == "--version"_L1 || argument == "-v"_L1) {
            commandLine.isVersion = true;
        } else if (!argument.startsWith(u'-') && commandLine.projectPath.isEmpty()) {
            commandLine.projectPath = argument;
        }
    }
    return commandLine;
}

QString usage()
{
    const auto translated = [](const char* text) { return QCoreApplication::translate("CommandLine", text); };
    // It words the options; reading them follows other rules than its own.
    QCommandLineParser parser;
    parser.setApplicationDescription(
        translated(QT_TRANSLATE_NOOP("CommandLine", "A workspace for writing and worldbuilding.")));
    parser.addPositionalArgument(
        u"project"_s,
        translated(QT_TRANSLATE_NOOP("CommandLine", "The project to open: its file or its folder.")),
        u"[project]"_s);
    parser.addOptions({
        {{u"h"_s, u"help"_s}, translated(QT_TRANSLATE_NOOP("CommandLine", "Print this, and leave."))},
        {{u"v"_s, u"version"_s},
         translated(QT_TRANSLATE_NOOP("CommandLine", "Print the version, and leave."))},
        {u"lang"_s, translated(QT_TRANSLATE_NOOP("CommandLine", "The language of this run, such as “de”.")),
         u"locale"_s},
        {u"new-instance"_s,
         translated(QT_TRANSLATE_NOOP(
             "CommandLine", "Open a window of its own, also when the program is running already."))},
        {u"capture"_s,
         translated(QT_TRANSLATE_NOOP("CommandLine", "Save a picture of the window to the file, and leave.")),
         u"file"_s},
        {u"capture-select"_s,
         translated(QT_TRANSLATE_NOOP(
             "CommandLine", "Show a panel, or the object of this title or id, before the picture is taken.")),
         u"name"_s},
        {u"selftest-dialogs"_s,
         translated(QT_TRANSLATE_NOOP("CommandLine", "Build every dialog, report on them, and leave."))},
    });
    return parser.helpText();
}

} // namespace tw::desktop::shell
