#include "app/persistence/files/PlatformFiles.h"

#ifdef Q_OS_UNIX

#include "app/persistence/files/ParallelFor.h"

#include <QByteArrayList>
#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

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
constexpr qsizetype firstReadRoom = 65'536;
constexpr qsizetype inspectedTogether = 1024;

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

/** The path of an entry: most names are plain ASCII, for which the long way around is not needed. */
QString joined(const QString& prefix, QByteArrayView name)
{
    const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
    if (!std::all_of(name.begin(), name.end(), isAscii))
        return prefix + QFile::decodeName(name.toByteArray());
    QString path(prefix.size() + name.size(), Qt::Uninitialized);
    QChar* end = std::copy(prefix.cbegin(), prefix.cend(), path.data());
    std::transform(name.begin(), name.end(), end, [](char byte) { return QLatin1Char(byte); });
    return path;
}

/** The names in one folder, in one piece of memory. */
class Listing
{
public:
    struct Entry
    {
        ino_t inode;
        qsizetype offset;
        unsigned char type;
    };

    /** False when the folder could not be read to its end. Of hidden names, only leftovers are kept. */
    bool read(DIR* folder)
    {
        for (;;) {
            errno = 0;
            const dirent* entry = ::readdir(folder);
            if (!entry)
                break;
            if (entry->d_name[0] == '.') {
                if (isLeftover(*entry))
                    m_leftovers.append(entry->d_name);
                continue;
            }
            m_entries.push_back({entry->d_ino, m_names.size(), entry->d_type});
            m_names.append(entry->d_name, static_cast<qsizetype>(std::strlen(entry->d_name)) + 1);
        }
        const bool isComplete = errno == 0;
        // The records of neighbouring numbers lie together, on the medium as in memory.
        std::ranges::sort(m_entries, {}, &Entry::inode);
        return isComplete;
    }

    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }
    [[nodiscard]] const char* name(const Entry& entry) const { return m_names.constData() + entry.offset; }
    /** The names of temporary files of saves. */
    [[nodiscard]] const QByteArrayList& leftovers() const { return m_leftovers; }

private:
    static bool isLeftover(const dirent& entry)
    {
        return (entry.d_type == DT_REG || entry.d_type == DT_UNKNOWN) &&
               QLatin1StringView(entry.d_name).startsWith(temporaryPrefix);
    }

    std::vector<Entry> m_entries;
    QByteArray m_names;
    QByteArrayList m_leftovers;
};

/** Walks one tree; the folders open at any time are those between the root and the present one. */
class Walk
{
public:
    explicit Walk(const NameFilter& wants)
        : m_wants(wants)
    {}

    void run(Descriptor folder, const QString& prefix)
    {
        std::unique_ptr<DIR, int (*)(DIR*)> stream(nullptr, ::closedir);
        if (folder.isOpen())
            stream.reset(::fdopendir(folder.number()));
        if (!stream) {
            m_scan.isComplete = false;
            return;
        }
        const int number = folder.release();
        Listing listing;
        if (!listing.read(stream.get()))
            m_scan.isComplete = false;
        for (const QByteArray& name : listing.leftovers())
            m_scan.leftovers.append(joined(prefix, name));
        std::vector<Finding> findings = inspectAll(number, listing, prefix);
        for (std::size_t index = 0; index < findings.size(); ++index)
            take(number, listing.name(listing.entries()[index]), findings[index]);
    }

    [[nodiscard]] FolderScan& result() { return m_scan; }

private:
    enum class Kind
    {
        Nothing,
        File,
        Folder,
        Unreadable,
    };

    struct Finding
    {
        ScannedFile file;
        Kind kind = Kind::Nothing;
    };

    /** Nearly all the time of a walk goes into asking for the records, so a large folder is shared out. */
    std::vector<Finding> inspectAll(int folder, const Listing& listing, const QString& prefix) const
    {
        std::vector<Finding> findings(listing.entries().size());
        parallelFor(std::ssize(findings), inspectedTogether, [&](qsizetype begin, qsizetype end) {
            for (auto index = static_cast<std::size_t>(begin); index < static_cast<std::size_t>(end);
                 ++index) {
                const Listing::Entry& entry = listing.entries()[index];
                ScannedFile& file = findings[index].file;
                file.relativePath = joined(prefix, listing.name(entry));
                const bool isWanted = m_wants(QStringView(file.relativePath).sliced(prefix.size()));
                findings[index].kind = inspect(folder, listing.name(entry), entry.type, isWanted, file);
            }
        });
        return findings;
    }

    static Kind inspect(int folder, const char* name, unsigned char type, bool isWanted, ScannedFile& file)
    {
        if (type == DT_DIR)
            return Kind::Folder;
        if (!isWanted && type != DT_UNKNOWN)
            return Kind::Nothing;
        struct stat status = {};
        if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return errno == ENOENT ? Kind::Nothing : Kind::Unreadable;
        if (S_ISDIR(status.st_mode))
            return Kind::Folder;
        if (S_ISLNK(status.st_mode)) {
            file.linkage = Linkage::SymbolicLink;
            if (::fstatat(folder, name, &status, 0) != 0)
                return Kind::Nothing;
        }
        file.stamp = stampFrom(status);
        return isWanted && S_ISREG(status.st_mode) ? Kind::File : Kind::Nothing;
    }

    void take(int folder, const char* name, Finding& finding)
    {
        switch (finding.kind) {
        case Kind::Nothing:
            break;
        case Kind::File:
            m_scan.files.push_back(std::move(finding.file));
            break;
        case Kind::Folder: {
            constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
            Descriptor inner(repeatedWhileInterrupted([&] { return ::openat(folder, name, flags); }));
            if (inner.isOpen() || errno != ENOENT)
                run(std::move(inner), finding.file.relativePath + u'/');
            break;
        }
        case Kind::Unreadable:
            m_scan.isComplete = false;
            break;
        }
    }

    const NameFilter& m_wants;
    FolderScan m_scan;
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

FolderScan walkFolder(const QString& root, const NameFilter& wants)
{
    Walk walk(wants);
    walk.run(openPath(QFile::encodeName(root), O_RDONLY | O_DIRECTORY), QString());
    return std::move(walk.result());
}

} // namespace tw::app::persistence::platform

#endif
