#pragma once

#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/FileSystem.h"
#include "app/persistence/files/FolderScan.h"
#include "core/foundation/Result.h"
#include "core/project/Project.h"

#include <memory>
#include <vector>

namespace tw::app::persistence {

/** A project file as it was found. */
struct LoadedFile
{
    QString relativePath; ///< From the project's root.
    QByteArray bytes;
    FileStamp stamp; ///< From before the bytes were read; empty for a file from memory.
    /** The object in the file; null for other files. */
    core::ContentId objectId;
    quint64 revision = 0; ///< That the object has in the project.
    /** The category in the file; null for other files. */
    core::CategoryId categoryId;
    /** The path is the one that belongs to the id inside. */
    bool hasOwnName = false;
    /** The bytes are those that a save would write. */
    bool isCanonical = false;
};

struct LoadedProject
{
    std::unique_ptr<core::project::Project> project;
    /** Every file read: objects by name, categories by name, project.json. */
    std::vector<LoadedFile> files;
    /** The text files of the folder as they were listed before the first was read, these and others. */
    FolderScan listing;
    /** Those of them that are no part of the project. */
    QStringList otherFiles;
};

/**
 * Reads a project from its folder; failures name the file. Files are read once, and parsed on all processors;
 * the failure is that of the first bad file in the order objects, categories, project.json.
 */
[[nodiscard]] core::Result<LoadedProject> loadProject(FileSystem& fileSystem, const QString& folder);

/** Reads a project from memory; failures name the path in the map. Files of no interest are passed over. */
[[nodiscard]] core::Result<LoadedProject> parseProject(const ProjectFileMap& files);

} // namespace tw::app::persistence
