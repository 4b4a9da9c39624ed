#include "app/persistence/ProjectLock.h"

#include "app/persistence/files/SafeWriter.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <chrono>

namespace tw::app::persistence {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::milliseconds longestWait{1500};

QString lockPath(const QString& projectPath, const QString& dataFolder)
{
    const QFileInfo info(projectPath);
    const QString canonical = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Sha256).toHex();
    return dataFolder + u"/locks/"_s + QString::fromLatin1(hash.first(32)) + u".lock"_s;
}

/**
 * Whoever died between making the file and writing into it left one that names nobody, and that nobody would
 * ever take away. A living holder writes at once, and keeps the file from being removed.
 */
bool takeOverUnnamed(QLockFile& file)
{
    qint64 processId = 0;
    QString host;
    QString application;
    return !file.getLockInfo(&processId, &host, &application) && file.removeStaleLockFile() &&
           file.tryLock(0);
}

} // namespace

core::Result<ProjectLock> ProjectLock::acquire(const QString& projectPath, const QString& dataFolder)
{
    const QString path = lockPath(projectPath, dataFolder);
    if (!QDir().mkpath(QFileInfo(path).path())) {
        return core::Failure{
            QCoreApplication::translate("Persistence", "Cannot create the folder for locks: %1")
                .arg(QDir::toNativeSeparators(QFileInfo(path).path()))};
    }
    auto file = std::make_unique<QLockFile>(path);
    // A crashed holder is known by its process id; age alone says nothing about a slow disk.
    file->setStaleLockTime(0);
    const bool isLocked = file->tryLock(static_cast<int>(longestWait.count()));
    // A full or read-only disk, and nobody else's doing.
    if (!isLocked && file->error() != QLockFile::LockFailedError)
        return writeFailure(path);
    if (!isLocked && !takeOverUnnamed(*file)) {
        return core::Failure{
            QCoreApplication::translate(
                "Persistence", "Another program is saving this project right now: %1. Try again in a moment.")
                .arg(QDir::toNativeSeparators(projectPath))};
    }
    return ProjectLock(std::move(file));
}

ProjectLock::ProjectLock(std::unique_ptr<QLockFile> file)
    : m_file(std::move(file))
{}

ProjectLock::ProjectLock(ProjectLock&&) noexcept = default;
ProjectLock& ProjectLock::operator=(ProjectLock&&) noexcept = default;
ProjectLock::~ProjectLock() = default;

} // namespace tw::app::persistence
