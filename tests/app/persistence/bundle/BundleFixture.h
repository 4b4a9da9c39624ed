#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/files/FaultyFileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::app::persistence {

/** A folder of its own for every test, with a small project in it. */
class BundleFixture : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString project() const { return path(QStringLiteral("project")); }

    void SetUp() override
    {
        store(QStringLiteral("project/project.json"), "{\"name\": \"Tide\"}\n");
        store(QStringLiteral("project/objects/b.json"), "{}\n");
        store(QStringLiteral("project/objects/B.json"), QByteArray("long ").repeated(4000));
        store(QStringLiteral("project/assets/h\u00E4fen/map.png"), QByteArray("\x89PNG\0\r\n", 7));
        store(QStringLiteral("project/notes.md"), "");
    }

    /** Of a file in the test's folder. */
    void store(const QString& name, const QByteArray& bytes) const
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    QTemporaryDir m_folder;
    FaultyFileSystem m_files;
    StorageEnvironment m_environment{
        m_files, path(QStringLiteral("data")), {}, [](std::chrono::milliseconds) {}};
};

} // namespace tw::app::persistence
