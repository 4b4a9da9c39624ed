#pragma once

#include "app/persistence/zip/ZipReader.h"

#include <QSet>
#include <QString>

namespace tw::app::persistence {

/**
 * The names of an archive's entries, as a file system would see them: which of them would be unpacked onto
 * each other, or be a file and a folder at once.
 */
class ZipNameSet
{
public:
    explicit ZipNameSet(ZipNames names);

    /** False when the name cannot stand beside those added before. */
    [[nodiscard]] bool add(const QString& name);

private:
    /** Stands for a path; of paths up to 64 KB, with all the folders above them, only this is kept. */
    using PathHash = quint64;

    ZipNames m_names;
    QSet<PathHash> m_files;
    QSet<PathHash> m_folders;       ///< Also those that only the names of files imply.
    QSet<PathHash> m_folderEntries; ///< Entries of their own.
};

} // namespace tw::app::persistence
