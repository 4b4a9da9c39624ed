#pragma once

#include "app/persistence/files/FileSystem.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tw::app::persistence {

enum class Linkage
{
    Direct,
    SymbolicLink, ///< The stamp is that of the file behind the link.
};

struct ScannedFile
{
    QString relativePath; ///< From the scanned folder, with "/" on every system.
    FileStamp stamp;
    Linkage linkage = Linkage::Direct;
};

enum class ScannedFiles
{
    Text, ///< Files whose suffix is json, md, txt, yaml or yml in any case.
    All,
};

struct FolderScan
{
    std::vector<ScannedFile> files; ///< In no particular order.
    /** The temporary files of saves, none of `files`: those of a save under way, or of one that never ended.
     */
    QStringList leftovers;
    /** False when part of the tree could not be read: what is missing here need not be missing on disk. */
    bool isComplete = true;
};

/**
 * The regular files below a folder with their stamps, without reading any. Hidden files and folders (a name
 * that begins with a dot) are left out, and so is what lies behind a link to a folder; a link to a file is
 * named as such. A missing folder has no files.
 */
[[nodiscard]] FolderScan scanFolder(const QString& folder, ScannedFiles which);

/** Whether a file of this name is one of the text files. */
[[nodiscard]] bool isTextFile(QStringView name);

} // namespace tw::app::persistence
