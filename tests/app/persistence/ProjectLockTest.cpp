#include "app/persistence/ProjectLock.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::app::persistence {

using namespace Qt::Literals::StringLiterals;

TEST(ProjectLockTest, aHolderThatDiedBeforeItNamedItselfIsNone)
{
    QTemporaryDir folder;
    const QString project = folder.filePath(u"tide"_s);
    const QString data = folder.filePath(u"data"_s);
    QString lockFile;
    {
        const auto lock = ProjectLock::acquire(project, data);
        ASSERT_TRUE(lock);
        QDirIterator locks(data, QDir::Files, QDirIterator::Subdirectories);
        ASSERT_TRUE(locks.hasNext());
        lockFile = locks.next();
        EXPECT_FALSE(ProjectLock::acquire(project, data)) << "a living holder keeps it";
    }
    QFile file(lockFile);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_TRUE(ProjectLock::acquire(project, data));
}

} // namespace tw::app::persistence
