#pragma once

#include "app/persistence/files/FileSystem.h"

#include <QHash>
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
    FileStamp stamp;      ///< Of a listing only set for links.
    /** The inode of the name itself, which is not that of the file for a link; 0 where the system has none.
     */
    quint64 entryInode = 0;
    /** The place of the same name in the earlier scan, or -1. */
    qsizetype earlierIndex = -1;
    Linkage linkage = Linkage::Direct;
};

enum class ScannedFiles
{
    Text, ///< Files whose suffix is json, md, txt, yaml or yml in any case.
    All,
};

struct FolderScan
{
    /** The files of one folder stand together. */
    std::vector<ScannedFile> files;
    /** The temporary files of saves, none of `files`: those of a save under way, or of one that never ended.
     */
    QStringList leftovers;

    struct Range
    {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    /** Where in `files` those of a folder stand, by the beginning of their paths: "", "objects/". */
    QHash<QString, Range> folders;

    /** Those of which part could not be read: what is missing here need not be missing on disk. */
    QStringList unreadableFolders;

    [[nodiscard]] bool isComplete() const { return unreadableFolders.isEmpty(); }
};

/**
 * The regular files below a folder with their stamps, without reading any. Hidden files and folders (a name
 * that begins with a dot) are left out, and so is what lies behind a link to a folder; a link to a file is
 * named as such. A missing folder has no files.
 *
 * An earlier scan or listing of the same folder for the same files makes this one cheaper: it takes over the
 * names that are still there, and tells which these are. Every folder is listed anew all the same.
 */
[[nodiscard]] FolderScan scanFolder(
    const QString& folder, ScannedFiles which, const FolderScan& earlier = FolderScan());

/** The same files without their stamps, which are what takes the time. */
[[nodiscard]] FolderScan listFolder(const QString& folder, ScannedFiles which);

/** Whether a file of this name is one of the text files. */
[[nodiscard]] bool isTextFile(QStringView name);

} // namespace tw::app::persistence
