#pragma once

#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "bench/Measurement.h"

#include <QTemporaryDir>

#include <memory>

namespace tw::bench {

/** Measures opening and saving one generated single-file project; writes nowhere else. */
class BundleBenchmark
{
public:
    /** Makes the project, `objects` large, in a folder of its own below `place`. */
    BundleBenchmark(const QString& place, int objects, int repetitions);

    void run(ResultTable& table);

private:
    void measureOpen(ResultTable& table);
    void measureSaveOfOne(ResultTable& table);
    void openAgain();
    void save();
    void editOneChapter();

    int m_repetitions;
    bool m_hasAims;
    QTemporaryDir m_root;
    QString m_bundle;
    app::persistence::DiskFileSystem m_fileSystem;
    app::persistence::StorageEnvironment m_environment;
    std::unique_ptr<app::workspace::Workspace> m_workspace;
    QString m_copy;      ///< The working copy.
    QStringList m_files; ///< In it.
};

} // namespace tw::bench
