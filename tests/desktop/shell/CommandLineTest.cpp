#include "desktop/shell/CommandLine.h"

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

TEST(CommandLineTest, readsPathAndOptions)
{
    const struct
    {
        QStringList arguments;
        CommandLine expected;
    } cases[] = {
        {{}, {}},
        {{u"a"_s, u"b"_s}, {.projectPath = u"a"_s}},
        {{u"--capture"_s, u"x.png"_s, u"a"_s}, {.projectPath = u"a"_s, .capturePath = u"x.png"_s}},
        {{u"a"_s, u"--capture"_s}, {.projectPath = u"a"_s}},
        {{u"--capture-select"_s, u"The Spike"_s, u"--capture"_s, u"x"_s},
         {.capturePath = u"x"_s, .captureSelection = u"The Spike"_s}},
        {{u"--capture-select"_s, u"--capture"_s, u"x"_s}, {.capturePath = u"x"_s}},
        {{u"--capture-select"_s}, {}},
        // Only the selection leaves another option alone.
        {{u"--capture"_s, u"--lang"_s, u"de"_s}, {.projectPath = u"de"_s, .capturePath = u"--lang"_s}},
        {{u"--lang"_s, u"de_AT"_s, u"a"_s}, {.projectPath = u"a"_s, .language = u"de_AT"_s}},
        {{u"a"_s, u"--lang"_s}, {.projectPath = u"a"_s}},
        {{u"--selftest-dialogs"_s, u"a"_s}, {.projectPath = u"a"_s, .isSelfTest = true}},
        {{u"--new-instance"_s, u"a b"_s}, {.projectPath = u"a b"_s, .isNewInstance = true}},
        {{u"--help"_s}, {.isHelp = true}},
        {{u"a"_s, u"-h"_s, u"--version"_s, u"-v"_s},
         {.projectPath = u"a"_s, .isHelp = true, .isVersion = true}},
        {{u"--capture"_s, u"--help"_s}, {.capturePath = u"--help"_s}},
        {{u"--unknown"_s, u"-x"_s, u"a"_s}, {.projectPath = u"a"_s}},
    };
    for (const auto& sample : cases) {
        const CommandLine line = parseArguments(sample.arguments);
        const std::string shown = sample.arguments.join(u' ').toStdString();
        EXPECT_EQ(line.projectPath, sample.expected.projectPath) << shown;
        EXPECT_EQ(line.capturePath, sample.expected.capturePath) << shown;
        EXPECT_EQ(line.captureSelection, sample.expected.captureSelection) << shown;
        EXPECT_EQ(line.language, sample.expected.language) << shown;
        EXPECT_EQ(line.isSelfTest, sample.expected.isSelfTest) << shown;
        EXPECT_EQ(line.isNewInstance, sample.expected.isNewInstance) << shown;
        EXPECT_EQ(line.isHelp, sample.expected.isHelp) << shown;
        EXPECT_EQ(line.isVersion, sample.expected.isVersion) << shown;
        EXPECT_EQ(line.isInteractive(), sample.expected.capturePath.isEmpty() && !sample.expected.isSelfTest)
            << shown;
    }
}

} // namespace tw::desktop::shell
