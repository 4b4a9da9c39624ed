#include "app/persistence/files/PlatformFiles.h"

#ifdef Q_OS_UNIX

#include "app/persistence/files/PosixCalls.h"

#include <QFile>
#include <QRandomGenerator>

#include <cstdio>
#include <memory>

namespace tw::app::persistence::platform {

namespace {

constexpr mode_t newFileMode = 0666;
constexpr mode_t permissionBits = 07777;
constexpr int nameAttempts = 16;
constexpr qsizetype firstReadRoom = 65'536;

qint64 nanoseconds(const timespec& time)
{
    return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

bool writeAll(int file, const QByteArray& bytes)
{
    const char* position = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t count =
            repeatedWhileInterrupted([&] { return ::write(file, position, static_cast<std::size_t>(left)); });
        if (count <= 0)
            return false;
        position += count;
        left -= count;
    }
    return true;
}

bool syncContent(int file)
{
#if defined(_POSIX_SYNCHRONIZED_IO) && _POSIX_SYNCHRONIZED_IO > 0
    return repeatedWhileInterrupted([&] { return ::fdatasync(file); }) == 0;
#else
    return repeatedWhileInterrupted([&] { return ::fsync(file); }) == 0;
#endif
}

/** Has the bytes begin their way to the medium, where the system can do that without waiting for them. */
void startWriting([[maybe_unused]] int file)
{
#ifdef Q_OS_LINUX
    static_cast<void>(::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE));
#endif
}

/** Opens a new file in the target's folder and puts its path into `path`. */
Descriptor createBeside(const QString& target, QString& path)
{
    const QString folder = target.left(target.lastIndexOf(u'/') + 1);
    for (int attempt = 0; attempt < nameAttempts; ++attempt) {
        const quint64 number = QRandomGenerator::global()->generate64();
        path = folder + temporaryPrefix + QString::number(number, 16);
        Descriptor file = openPath(QFile::encodeName(path), O_WRONLY | O_CREAT | O_EXCL, newFileMode);
        if (file.isOpen() || errno != EEXIST)
            return file;
    }
    return Descriptor(-1);
}

} // namespace

FileStamp stampFrom(const struct stat& status)
{
#ifdef Q_OS_DARWIN
    const timespec& modified = status.st_mtimespec;
    const timespec& changed = status.st_ctimespec;
#else
    const timespec& modified = status.st_mtim;
    const timespec& changed = status.st_ctim;
#endif
    return {
        status.st_size, nanoseconds(modified), nanoseconds(changed), static_cast<quint64>(status.st_ino),
        static_cast<quint64>(status.st_dev)};
}
std::optional<FileContent> readFile(const QString& path)
{
    // A pipe without a writer would have the opening wait for one.
    const Descriptor file = openPath(QFile::encodeName(path), O_RDONLY | O_NONBLOCK);
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;

    FileContent content{{}, stampFrom(status)};
    QByteArray& bytes = content.bytes;
    // Some files of the system tell no size.
    bytes.resize(status.st_size > 0 ? static_cast<qsizetype>(status.st_size) : firstReadRoom);
    qsizetype used = 0;
    for (;;) {
        const auto room = static_cast<std::size_t>(bytes.size() - used);
        const ssize_t count =
            repeatedWhileInterrupted([&] { return ::read(file.number(), bytes.data() + used, room); });
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        used += count;
        // A file that grew meanwhile has another stamp and shows at the next check.
        if (used == status.st_size)
            break;
        if (used == bytes.size())
            bytes.resize(bytes.size() * 2);
    }
    bytes.resize(used);
    return content;
}

std::optional<FileStamp> stampOf(const QString& path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return stampFrom(status);
}

std::optional<QString> writeTemporary(const QString& target, const QByteArray& bytes, Durability durability)
{
    const QByteArray targetName = QFile::encodeName(target);
    struct stat existing = {};
    const bool replaces = ::stat(targetName.constData(), &existing) == 0;
    // A folder cannot be replaced, and a file that its owner made read-only shall not be.
    if (replaces && (!S_ISREG(existing.st_mode) || ::access(targetName.constData(), W_OK) != 0))
        return std::nullopt;

    QString path;
    Descriptor file = createBeside(target, path);
    if (!file.isOpen())
        return std::nullopt;
    bool isDone = (!replaces || ::fchmod(file.number(), existing.st_mode & permissionBits) == 0) &&
                  writeAll(file.number(), bytes);
    if (isDone && durability == Durability::Cached)
        startWriting(file.number());
    else if (isDone)
        isDone = syncContent(file.number());
    if (file.close() && isDone)
        return path;
    ::unlink(QFile::encodeName(path).constData());
    return std::nullopt;
}

bool syncFile(const QString& path)
{
    const Descriptor file = openPath(QFile::encodeName(path), O_WRONLY);
    return file.isOpen() && syncContent(file.number());
}

bool syncFileSystem([[maybe_unused]] const QString& folder)
{
#ifdef Q_OS_LINUX
    const Descriptor opened = openPath(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY);
    return opened.isOpen() && ::syncfs(opened.number()) == 0;
#else
    return false;
#endif
}

FileHold holdFile([[maybe_unused]] const QString& path)
{
#ifdef Q_OS_LINUX
    auto file = std::make_shared<Descriptor>(openPath(QFile::encodeName(path), O_PATH));
    if (file->isOpen())
        return file;
#endif
    return nullptr;
}

bool replaceFile(const QString& from, const QString& to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool syncFolder(const QString& path)
{
    const Descriptor folder = openPath(QFile::encodeName(path), O_RDONLY | O_DIRECTORY);
    if (!folder.isOpen())
        return false;
    // File systems that cannot sync a folder, as some network ones, say so with EINVAL or ENOTSUP.
    return repeatedWhileInterrupted([&] { return ::fsync(folder.number()); }) == 0 || errno == EINVAL ||
           errno == ENOTSUP;
}

} // namespace tw::app::persistence::platform

#endif
