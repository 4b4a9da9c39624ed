#include "app/persistence/files/PlatformFiles.h"

#ifdef Q_OS_UNIX

#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence::platform {

namespace {

constexpr mode_t newFileMode = 0666;
constexpr mode_t permissionBits = 07777;
constexpr int nameAttempts = 16;
constexpr qsizetype firstReadRoom = 64 * 1024;

/** An open file that closes itself. */
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {}
    Q_DISABLE_COPY(Descriptor)
    Descriptor& operator=(Descriptor&&) = delete;

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] int release() { return std::exchange(m_number, -1); }

    /** Some systems report a failed write only here. */
    bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

template <class Call>
auto repeatedWhileInterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

Descriptor openPath(const QByteArray& path, int flags, mode_t mode = 0)
{
    return Descriptor(
        repeatedWhileInterrupted([&] { return ::open(path.constData(), flags | O_CLOEXEC, mode); }));
}

qint64 nanoseconds(const timespec& time)
{
    return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

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

bool syncFile(int file)
{
#if defined(_POSIX_SYNCHRONIZED_IO) && _POSIX_SYNCHRONIZED_IO > 0
    return repeatedWhileInterrupted([&] { return ::fdatasync(file); }) == 0;
#else
    return repeatedWhileInterrupted([&] { return ::fsync(file); }) == 0;
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

QString decoded(const char* name)
{
    const QByteArrayView bytes(name);
    const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
    if (std::all_of(bytes.begin(), bytes.end(), isAscii))
        return QString::fromLatin1(bytes);
    return QFile::decodeName(name);
}

/** Walks one tree; the folders open at any time are those between the root and the present one. */
class Walk
{
public:
    explicit Walk(const FolderVisitor& visitor)
        : m_visitor(visitor)
    {}

    bool run(Descriptor folder, const QString& prefix)
    {
        if (!folder.isOpen())
            return false;
        const std::unique_ptr<DIR, int (*)(DIR*)> entries(::fdopendir(folder.number()), ::closedir);
        if (!entries)
            return false;
        const int number = folder.release();
        bool isComplete = true;
        for (;;) {
            errno = 0;
            const dirent* entry = ::readdir(entries.get());
            if (!entry)
                return isComplete && errno == 0;
            if (entry->d_name[0] != '.')
                isComplete = visit(number, *entry, prefix) && isComplete;
        }
    }

private:
    bool visit(int folder, const dirent& entry, const QString& prefix)
    {
        const QString name = decoded(entry.d_name);
        // Most entries are files of no interest or files to be stamped: the type saves a call for the others.
        if (entry.d_type == DT_DIR)
            return enter(folder, entry.d_name, prefix + name);
        const bool isUnknown = entry.d_type == DT_UNKNOWN;
        if (!isUnknown && !m_visitor.wants(name))
            return true;

        struct stat status = {};
        if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return errno == ENOENT;
        if (S_ISDIR(status.st_mode))
            return enter(folder, entry.d_name, prefix + name);
        Linkage linkage = Linkage::Direct;
        if (S_ISLNK(status.st_mode)) {
            linkage = Linkage::SymbolicLink;
            if (::fstatat(folder, entry.d_name, &status, 0) != 0)
                return true;
        }
        if (S_ISREG(status.st_mode) && (!isUnknown || m_visitor.wants(name)))
            m_visitor.found(prefix + name, linkage, stampFrom(status));
        return true;
    }

    bool enter(int folder, const char* name, const QString& path)
    {
        constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
        Descriptor inner(repeatedWhileInterrupted([&] { return ::openat(folder, name, flags); }));
        if (!inner.isOpen() && errno == ENOENT)
            return true;
        return run(std::move(inner), path + u'/');
    }

    const FolderVisitor& m_visitor;
};

} // namespace

std::optional<FileContent> readFile(const QString& path)
{
    const Descriptor file = openPath(QFile::encodeName(path), O_RDONLY);
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;

    FileContent content{{}, stampFrom(status)};
    QByteArray& bytes = content.bytes;
    // One byte more than the file has, so that its end is seen without growing.
    bytes.resize(status.st_size > 0 ? static_cast<qsizetype>(status.st_size) + 1 : firstReadRoom);
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

std::optional<QString> writeTemporary(const QString& target, const QByteArray& bytes)
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
    const bool isDone = (!replaces || ::fchmod(file.number(), existing.st_mode & permissionBits) == 0) &&
                        writeAll(file.number(), bytes) && syncFile(file.number());
    if (file.close() && isDone)
        return path;
    ::unlink(QFile::encodeName(path).constData());
    return std::nullopt;
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

bool walkFolder(const QString& root, const FolderVisitor& visitor)
{
    return Walk(visitor).run(openPath(QFile::encodeName(root), O_RDONLY | O_DIRECTORY), QString());
}

} // namespace tw::app::persistence::platform

#endif
