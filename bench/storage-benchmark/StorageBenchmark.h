#pragma once

#include "app/persistence/files/FileSystem.h"
#include "app/workspace/Workspace.h"
#include "bench/Measurement.h"

#include <QTemporaryDir>

#include <memory>

namespace tw::bench {

/** Measures opening, checking and saving one generated project folder; writes nowhere else. */
class StorageBenchmark
{
public:
    /** Makes the project, `objects` large, in a folder of its own below `place`. */
    StorageBenchmark(const QString& place, int objects, int repetitions);

    void run(ResultTable& table);

private:
    void openAgain();
    void measureLoad(ResultTable& table);
    void measureChecks(ResultTable& table);
    void measureSaveOfOne(ResultTable& table);
    void measureSaveOfMany(ResultTable& table);
    void measureMemory(ResultTable& table);
    void save();
    /** Waits until the stamps of all files are old enough to be trusted, and has the workspace look at them.
     */
    void rest();
    void expectNoChanges();
    [[nodiscard]] QString objectFile(const core::ContentId& id) const;

    [[nodiscard]] std::optional<double> aim(double ratio) const;
    [[nodiscard]] Runs runs(Counted counted) const;

    int m_repetitions;
    bool m_hasAims;
    QTemporaryDir m_root;
    QString m_folder;
    app::persistence::DiskFileSystem m_fileSystem;
    app::persistence::StorageEnvironment m_environment;
    std::unique_ptr<app::workspace::Workspace> m_workspace;
    QStringList m_files;
    std::vector<QByteArray> m_encodedFiles;
};

} // namespace tw::bench
