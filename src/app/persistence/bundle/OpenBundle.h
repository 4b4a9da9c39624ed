#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "app/persistence/bundle/SingleFile.h"
#include "app/persistence/codec/ProjectLoader.h"
#include "core/foundation/Result.h"

#include <QString>

namespace tw::app::persistence {

/** What became of the working copy when a single file was opened. */
enum class BundleOpening
{
    Unpacked, ///< There was none, or an empty one.
    Intact,   ///< It held what the archive holds.
    Restored, ///< It held work that the archive lacked; both hold it now. The former archive is backed up.
    Replaced, ///< The archive had changed, and its version won. The copy is backed up.
    Disowned, ///< It held other files, but no record vouched for it. The copy is backed up.
    SetAside, ///< It held work that the archive lacked, but could not be loaded. The copy is backed up.
};

struct OpenedBundle
{
    SingleFile file;
    LoadedProject project; ///< From the working copy.
    BundleOpening opening = BundleOpening::Unpacked;
    QString backupPath; ///< Of what the opening replaced; empty when it replaced nothing.
};

/** Words the failures. */
enum class BundlePurpose
{
    Open,
    Reload, ///< Of a project that is open and stays so when it fails.
};

/**
 * Finds or makes the working copy of a single-file project and loads the project from it. The archive's and
 * the copy's contents are compared, not the archive's bytes, so that archives of other tools count for what
 * is in them. Work that a crash kept from the archive is written back; what loses is backed up before
 * anything is replaced. A crash at any point leaves a state that the next call resolves without loss.
 *
 * Main thread; the caller holds the project's lock.
 */
[[nodiscard]] core::Result<OpenedBundle> openBundle(
    const StorageEnvironment& environment, const QString& bundlePath,
    BundlePurpose purpose = BundlePurpose::Open);

} // namespace tw::app::persistence
