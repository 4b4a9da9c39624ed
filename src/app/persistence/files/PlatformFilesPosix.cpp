#include "app/persistence/files/PlatformFiles.h"

#ifdef Q_OS_UNIX

#include "app/persistence/files/ParallelFor.h"

#include <QByteArrayList>
#include <QFile>
#include <QRandomGenerator>
#include <QStringBuilder>

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

bool isAscii(QByteArrayView bytes)
{
    unsigned char allBits = 0;
    for (const char byte : bytes)
        allBits |= static_cast<unsigned char>(byte);
    return allBits < 0x80;
}

/** The path of an entry: most names are plain ASCII, for which the long way around is not needed. */
QString joined(const QString& prefix, QByteArrayView name)
{
    if (!isAscii(name))
        return prefix + QFile::decodeName(name.toByteArray());
    return prefix % QLatin1StringView(name.data(), name.size());
}

/** False also for equal names that are not plain ASCII. */
bool isSameName(QStringView name, QByteArrayView encoded)
{
    return isAscii(encoded) && name == QLatin1StringView(encoded.data(), encoded.size());
}

/** The names in one folder, in one piece of memory. */
class Listing
{
public:
    struct Entry
    {
        ino_t inode;
        qsizetype offset;
        qsizetype length;
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
            const auto length = static_cast<qsizetype>(std::strlen(entry->d_name));
            m_entries.push_back({entry->d_ino, m_names.size(), length, entry->d_type});
            m_names.append(entry->d_name, length + 1);
        }
        const bool isComplete = errno == 0;
        // The records of neighbouring numbers lie together, on the medium as in memory.
        std::ranges::sort(m_entries, {}, &Entry::inode);
        return isComplete;
    }

    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }
    /** Ends with a zero byte behind its last one. */
    [[nodiscard]] QByteArrayView name(const Entry& entry) const
    {
        return QByteArrayView(m_names.constData() + entry.offset, entry.length);
    }
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
    Walk(const NameFilter& wants, Stamps stamps, const FolderScan& earlier)
        : m_wants(wants)
        , m_stamps(stamps)
        , m_earlier(earlier)
    {}

    void run(Descriptor folder, const QString& prefix)
    {
        std::unique_ptr<DIR, int (*)(DIR*)> stream(nullptr, ::closedir);
        if (folder.isOpen())
            stream.reset(::fdopendir(folder.number()));
        if (!stream) {
            m_scan.unreadableFolders.append(prefix);
            return;
        }
        const int number = folder.release();
        Listing listing;
        if (!listing.read(stream.get()))
            m_scan.unreadableFolders.append(prefix);
        for (const QByteArray& name : listing.leftovers())
            m_scan.leftovers.append(joined(prefix, name));
        for (const QByteArrayView name : addFiles({number, prefix, listing}))
            runInside(number, name, prefix);
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

    struct Folder
    {
        int number;
        const QString& prefix;
        const Listing& listing;
    };

    /** Adds the files of one folder to the result; gives the names of the folders in it. */
    std::vector<QByteArrayView> addFiles(const Folder& folder)
    {
        std::vector<ScannedFile>& files = m_scan.files;
        const std::size_t first = files.size();
        const std::size_t count = folder.listing.entries().size();
        files.resize(first + count);
        std::vector<Kind> kinds(count);
        // Nearly all the time of a walk goes into asking for the records, so a large folder is shared out.
        parallelFor(std::ssize(kinds), inspectedTogether, [&](qsizetype begin, qsizetype end) {
            takeOverNames(folder, begin, end, first);
            for (auto index = static_cast<std::size_t>(begin); index < static_cast<std::size_t>(end); ++index)
                kinds[index] = inspect(folder, folder.listing.entries()[index], files[first + index]);
        });

        std::vector<QByteArrayView> folders;
        std::size_t used = first;
        for (std::size_t index = 0; index < count; ++index) {
            if (kinds[index] == Kind::Folder)
                folders.push_back(folder.listing.name(folder.listing.entries()[index]));
            else if (kinds[index] == Kind::Unreadable)
                m_scan.unreadableFolders.append(folder.prefix);
            if (kinds[index] != Kind::File)
                continue;
            if (used != first + index)
                files[used] = std::move(files[first + index]);
            ++used;
        }
        files.resize(used);
        m_scan.folders.insert(folder.prefix, {first, used});
        return folders;
    }

    /** Both the entries and the files of the earlier scan stand in the order of their inodes. */
    void takeOverNames(const Folder& folder, qsizetype begin, qsizetype end, std::size_t first)
    {
        const FolderScan::Range range = m_earlier.folders.value(folder.prefix);
        const auto earlierEnd = m_earlier.files.begin() + static_cast<std::ptrdiff_t>(range.end);
        auto earlier = std::ranges::lower_bound(
            m_earlier.files.begin() + static_cast<std::ptrdiff_t>(range.begin), earlierEnd,
            quint64{folder.listing.entries()[static_cast<std::size_t>(begin)].inode}, {},
            &ScannedFile::entryInode);
        for (auto index = static_cast<std::size_t>(begin); index < static_cast<std::size_t>(end); ++index) {
            const Listing::Entry& entry = folder.listing.entries()[index];
            while (earlier != earlierEnd && earlier->entryInode < entry.inode)
                ++earlier;
            if (earlier == earlierEnd)
                return;
            if (earlier->entryInode != entry.inode ||
                !isSameName(
                    QStringView(earlier->relativePath).sliced(folder.prefix.size()),
                    folder.listing.name(entry)))
                continue;
            m_scan.files[first + index].relativePath = earlier->relativePath;
            m_scan.files[first + index].earlierIndex = earlier - m_earlier.files.begin();
        }
    }

    Kind inspect(const Folder& folder, const Listing::Entry& entry, ScannedFile& file) const
    {
        const QByteArrayView name = folder.listing.name(entry);
        if (entry.type == DT_DIR)
            return Kind::Folder;
        bool isWanted = file.earlierIndex >= 0;
        if (!isWanted) {
            file.relativePath = joined(folder.prefix, name);
            isWanted = m_wants(QStringView(file.relativePath).sliced(folder.prefix.size()));
        }
        file.entryInode = entry.inode;
        if (!isWanted && entry.type != DT_UNKNOWN)
            return Kind::Nothing;
        if (m_stamps == Stamps::OfLinks && entry.type == DT_REG)
            return Kind::File;
        struct stat status = {};
        if (::fstatat(folder.number, name.data(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            return errno == ENOENT ? Kind::Nothing : Kind::Unreadable;
        if (S_ISDIR(status.st_mode))
            return Kind::Folder;
        if (S_ISLNK(status.st_mode)) {
            file.linkage = Linkage::SymbolicLink;
            if (::fstatat(folder.number, name.data(), &status, 0) != 0)
                return Kind::Nothing;
        }
        file.stamp = stampFrom(status);
        return isWanted && S_ISREG(status.st_mode) ? Kind::File : Kind::Nothing;
    }

    void runInside(int folder, QByteArrayView name, const QString& prefix)
    {
        constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
        Descriptor inner(repeatedWhileInterrupted([&] { return ::openat(folder, name.data(), flags); }));
        if (inner.isOpen() || errno != ENOENT)
            run(std::move(inner), joined(prefix, name) + u'/');
    }

    const NameFilter& m_wants;
    const Stamps m_stamps;
    const FolderScan& m_earlier;
    FolderScan m_scan;
};

} // namespace

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

FolderScan walkFolder(const QString& root, const NameFilter& wants, Stamps stamps, const FolderScan& earlier)
{
    Walk walk(wants, stamps, earlier);
    walk.run(openPath(QFile::encodeName(root), O_RDONLY | O_DIRECTORY), QString());
    return std::move(walk.result());
}

} // namespace tw::app::persistence::platform

#endif
