#pragma once

#include "app/persistence/DiskState.h"
#include "app/persistence/files/FileSystem.h"
#include "app/persistence/files/RetryFileWrite.h"

#include <QString>

namespace tw::app::persistence {

/** What loading and saving need of the outside world. Tests put in a failing disk and a clock of their own.
 */
struct StorageEnvironment
{
    /** Must outlive every workspace. */
    FileSystem& fileSystem;
    /** The per-user application data folder: locks, working copies, backups. */
    QString dataFolder;
    RetryPolicy retryPolicy = {};
    Sleeper sleeper = sleepThread;
    Clock clock = systemClock;
};

} // namespace tw::app::persistence
