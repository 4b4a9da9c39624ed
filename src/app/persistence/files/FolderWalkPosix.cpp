#include "app/persistence/files/PlatformFiles.h"

#ifdef Q_OS_UNIX

#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/files/PosixCalls.h"

#include <QByteArrayList>
#include <QFile>
#include <QStringBuilder>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include <dirent.h>

namespace tw::app::persistence::platform {

namespace {

constexpr qsizetype inspectedTogether = 1024;

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

FolderScan walkFolder(const QString& root, const NameFilter& wants, Stamps stamps, const FolderScan& earlier)
{
    Walk walk(wants, stamps, earlier);
    walk.run(openPath(QFile::encodeName(root), O_RDONLY | O_DIRECTORY), QString());
    return std::move(walk.result());
}

} // namespace tw::app::persistence::platform

#endif
