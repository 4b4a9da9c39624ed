// The program's window with a copy of the sample project open in it.
#pragma once

#include "desktop/shell/MainWindow.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/support/TestDesk.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::test {

/** A base of fixtures that need the whole window. */
struct SampleWindow
{
    SampleWindow()
    {
        const QString project = folder.filePath(QStringLiteral("low-water"));
        auto sample = app::workspace::Workspace::open(
            desk.environment, repositoryPath(QStringLiteral("examples/low-water")));
        EXPECT_TRUE(sample && sample.value()->saveAs(project));
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_TRUE(window.life().open(project));
    }

    QTemporaryDir folder;
    TestDesk desk{folder.path()};
    desktop::shell::MainWindow window{desk.context, QString()};
};

} // namespace tw::test
