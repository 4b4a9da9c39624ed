#pragma once

#include "app/persistence/AssetStamps.h"
#include "app/persistence/DiskState.h"
#include "app/persistence/FolderSaver.h"
#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/bundle/Backup.h"
#include "app/persistence/bundle/OpenBundle.h"
#include "app/persistence/bundle/SingleFile.h"
#include "app/persistence/journal/JournalFile.h"
#include "app/workspace/MountedLibrary.h"
#include "app/workspace/OpeningNotice.h"
#include "core/foundation/Result.h"
#include "core/project/Project.h"
#include "core/undo/UndoStack.h"

#include <QDateTime>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace tw::app::workspace {

/**
 * One open project in memory: its objects, its history, and where it lives on disk and what the disk looked
 * like. Every reader gets the project's data here, every change goes through the undo stack.
 *
 * Main thread only. The storage environment must outlive it. Failures leave the workspace as it was.
 */
class Workspace
{
public:
    /** A new, empty project without a place on disk. */
    explicit Workspace(const persistence::StorageEnvironment& environment);
    ~Workspace();

    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    /**
     * Opens a project folder, or a single file through its working copy. Nothing is kept of one that fails to
     * load.
     */
    [[nodiscard]] static core::Result<std::unique_ptr<Workspace>> open(
        const persistence::StorageEnvironment& environment, const QString& path);

    [[nodiscard]] const core::project::Project& project() const { return *m_project; }
    /** For building commands and for running them; nothing else changes the project. */
    [[nodiscard]] core::project::Project& projectForEdit() { return *m_project; }
    [[nodiscard]] core::undo::UndoStack& undoStack() { return m_undoStack; }
    [[nodiscard]] const core::undo::UndoStack& history() const { return m_undoStack; }

    /** The project folder, of a single file its working copy; empty when the project was never saved. */
    [[nodiscard]] const QString& folderPath() const { return m_folderPath; }
    [[nodiscard]] bool hasPath() const { return !m_folderPath.isEmpty(); }
    /** The path of a project that is one file; empty for a folder. */
    [[nodiscard]] QString singleFilePath() const { return m_singleFile ? m_singleFile->path() : QString(); }
    [[nodiscard]] bool hasSingleFile() const { return m_singleFile.has_value(); }
    /** The path to show and to remember. */
    [[nodiscard]] const QString& displayPath() const;
    /** The project's name, or that of its folder or file; empty for a new one. */
    [[nodiscard]] QString displayName() const;

    [[nodiscard]] bool isModified() const { return m_undoStack.isModified(); }
    void markModified() { m_undoStack.markModified(); }
    /**
     * Whether the object has changes that are not on disk: an edit that was undone is none. Costs as much as
     * reading the object's file when it was touched since the last save, otherwise next to nothing.
     */
    [[nodiscard]] bool isUnsaved(const core::ContentId& id) const;

    /** What to tell the user about how the project was opened or reloaded. */
    [[nodiscard]] const OpeningNotice& openingNotice() const { return m_openingNotice; }
    /** What was mended in memory when the project was last read; empty when all was well. */
    [[nodiscard]] const QString& structureNotice() const { return m_structureNotice; }

    /**
     * Writes what moved since the last save, of a single file also the archive if its content is another.
     * Refused, with nothing written, when the folder or the archive changed under us.
     * `SaveExtent::Everything` writes every object anew and compares: for closing and copies.
     */
    [[nodiscard]] core::Result<void> save(persistence::SaveExtent extent = persistence::SaveExtent::Changed);

    /**
     * True after saves that looked only at what moved, or that failed half-way: whoever closes the project
     * saves everything once more.
     */
    [[nodiscard]] bool isFullSaveDue() const { return m_fullSaveDue; }

    /**
     * Gives the project a new place, with a copy of its assets and other files, and saves it there: a single
     * file when the path ends as those do, otherwise a folder. The old place stays as it is. A single file at
     * the path is replaced, a folder that holds another project is refused.
     */
    [[nodiscard]] core::Result<void> saveAs(const QString& path);

    /**
     * The user gives up what is not saved: what a save that failed left in the working copy of a single file
     * no longer wins over the archive when that is read next. Memory stays as it is, and a later save takes
     * this back.
     */
    [[nodiscard]] core::Result<void> discardUnsaved();

    /** Reads the project anew; the history is lost. Refused while a macro is open. */
    [[nodiscard]] core::Result<void> reload();

    /** How the folder differs from what was last read or written here. */
    [[nodiscard]] persistence::DiskChanges externalChanges();
    /** Whether the single file is another than the one last read or written here; false for a folder. */
    [[nodiscard]] bool isBundleChangedOnDisk();

    /** Backs up what the last save wrote. The timestamp is local time. */
    [[nodiscard]] core::Result<persistence::Backup> backup(const QDateTime& timestamp) const;

    /**
     * Gives project files another content in memory, as edits that are not saved yet: what a crash left. The
     * history is lost. Fails, with nothing changed, when the project cannot be read with them.
     */
    [[nodiscard]] core::Result<void> restoreUnsaved(const std::map<QString, persistence::FileVersion>& files);

    /** Copies a file into the project's assets; gives the path to store in the object. */
    [[nodiscard]] core::Result<QString> importAsset(const QString& sourceFile);

    /** Other projects that can be read from this one. Ids of the open project win. */
    [[nodiscard]] const std::vector<MountedLibrary>& libraries() const { return m_libraries; }
    /** What went wrong with libraries at the last load; the project itself is open all the same. */
    [[nodiscard]] const QStringList& libraryNotices() const { return m_libraryNotices; }
    /** Reads the mounted libraries anew. */
    void reloadLibraries();
    /** The same if the list of mounts is another than when they were read last; true then. */
    bool followLibraryMounts();

    // For a review of what others changed

    [[nodiscard]] const persistence::StorageEnvironment& environment() const { return m_environment; }
    /** What the project's text files looked like when they were last read or written here. */
    [[nodiscard]] const persistence::DiskState& diskState() const { return m_openedFolderFingerprint; }
    [[nodiscard]] const persistence::AssetStamps& assetStamps() const { return m_assets; }
    /** Whether reload() would be refused before it reads anything. */
    [[nodiscard]] core::Result<void> checkReload() const;
    /** From here on the folder is known the way it was seen. */
    void acceptDisk(persistence::DiskState seen);
    /** The same for the archive of a single file. */
    void acceptArchive(persistence::ArchiveState seen);
    /** Has the next save write the open project over these files, which others changed. */
    void overwriteAtNextSave(const QStringList& relativePaths);

private:
    /** A copy of the project in a folder: what is known of its files. */
    struct SavedCopy
    {
        persistence::DiskState disk;
        persistence::SavedState saved;
    };

    [[nodiscard]] core::Result<void> load(const QString& path, persistence::BundlePurpose purpose);
    [[nodiscard]] core::Result<void> loadSingleFile(const QString& path, persistence::BundlePurpose purpose);
    void adopt(persistence::LoadedProject project, const QString& folder);
    /** The writing half of save(); what is on disk is nobody else's. */
    [[nodiscard]] core::Result<void> write(persistence::SaveExtent extent, const QStringList& leftovers);
    [[nodiscard]] core::Result<void> saveAsFolder(const QString& folder);
    [[nodiscard]] core::Result<void> saveAsSingleFile(const QString& bundlePath);
    [[nodiscard]] core::Result<SavedCopy> writeCopy(const QString& folder);
    void moveTo(const QString& folder, SavedCopy copy);

    const persistence::StorageEnvironment& m_environment;
    std::unique_ptr<core::project::Project> m_project;
    core::undo::UndoStack m_undoStack;
    QString m_folderPath;
    std::optional<persistence::SingleFile> m_singleFile;
    OpeningNotice m_openingNotice;
    QString m_structureNotice;
    persistence::DiskState m_openedFolderFingerprint;
    persistence::SavedState m_saved;
    persistence::AssetStamps m_assets;
    bool m_fullSaveDue = false;
    /** A save ended between the working copy and the archive. */
    bool m_isCopyAhead = false;
    std::vector<MountedLibrary> m_libraries;
    /** What `m_libraries` was read from. */
    std::vector<core::project::LibraryMount> m_readMounts;
    QStringList m_libraryNotices;
};

} // namespace tw::app::workspace
