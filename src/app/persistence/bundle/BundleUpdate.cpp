#include "app/persistence/bundle/BundleUpdate.h"

#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/zip/Crc32.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <optional>

namespace tw::app::persistence {

using core::Failure;
using core::Result;

namespace {

constexpr qsizetype filesAtOnce = 16;

/** One update; for a single use. */
class Update
{
public:
    Update(const StorageEnvironment& environment, const QString& folder, const BundleIndex& index)
        : m_environment(environment)
        , m_folder(folder)
        , m_index(index)
        , m_now(environment.clock())
    {}

    Result<BundleUpdate> run(const std::function<QByteArray()>& presentArchive)
    {
        Result<std::vector<ListedFile>> listed = listBundleFiles(m_folder);
        if (!listed)
            return Failure{listed.message()};
        matchWithIndex(std::move(listed).value());
        const bool isVouchedFor = std::ranges::all_of(m_files, &File::isVouchedFor);
        if (isVouchedFor && m_files.size() == m_index.size())
            return BundleUpdate{{}, newIndex(), {}};

        m_present = presentArchive();
        if (auto read = readFiles([](const File& file) { return !file.isVouchedFor; }); !read)
            return Failure{read.message()};
        const bool isSame = m_files.size() == m_index.size() &&
                            std::ranges::all_of(m_files, [this](const File& file) { return isKept(file); });
        if (isSame)
            return BundleUpdate{{}, newIndex(), {}};
        return pack();
    }

private:
    struct File
    {
        ListedFile listed;
        const IndexedFile* earlier = nullptr; ///< The entry of the same path.
        /** The stamp says that the entry still holds what the file does. */
        bool isVouchedFor = false;
        FileContent content; ///< Read only where needed.
        bool isRead = false;
        EntryPlace place;
        qsizetype size = 0;
    };

    /** Both lists are sorted by path. */
    void matchWithIndex(std::vector<ListedFile> listed)
    {
        m_files.resize(listed.size());
        auto earlier = m_index.begin();
        for (std::size_t index = 0; index < listed.size(); ++index) {
            File& file = m_files[index];
            file.listed = std::move(listed[index]);
            while (earlier != m_index.end() && earlier->path < file.listed.path)
                ++earlier;
            if (earlier == m_index.end() || earlier->path != file.listed.path)
                continue;
            file.earlier = &*earlier;
            file.isVouchedFor = earlier->isSettled && earlier->stamp == file.listed.stamp;
            file.place = earlier->place;
            file.size = earlier->size;
        }
    }

    template <class Condition>
    Result<void> readFiles(Condition isWanted)
    {
        std::vector<File*> wanted;
        for (File& file : m_files) {
            if (!file.isRead && isWanted(file))
                wanted.push_back(&file);
        }
        parallelFor(std::ssize(wanted), filesAtOnce, [&](qsizetype begin, qsizetype end) {
            for (auto index = static_cast<std::size_t>(begin); index < static_cast<std::size_t>(end); ++index)
                read(*wanted[index]);
        });
        const auto unread = std::ranges::find(wanted, false, &File::isRead);
        if (unread == wanted.end())
            return {};
        const QString path = QDir::toNativeSeparators(pathOf(**unread));
        return Failure{
            QCoreApplication::translate("Persistence", "Could not read a project file: %1").arg(path)};
    }

    void read(File& file) const
    {
        std::optional<FileContent> content = m_environment.fileSystem.readFile(pathOf(file));
        if (!content)
            return;
        file.isRead = true;
        file.content = *std::move(content);
        file.size = file.content.bytes.size();
        file.place.checksum = crc32(file.content.bytes);
    }

    [[nodiscard]] QString pathOf(const File& file) const { return m_folder + u'/' + file.listed.path; }

    /** The bytes that the present archive has of the file; null where these are not to be had. */
    [[nodiscard]] QByteArrayView presentBytes(const File& file) const
    {
        if (!file.earlier || file.earlier->place.offset < 0)
            return {};
        const qsizetype offset = file.earlier->place.offset;
        if (offset + file.earlier->size > m_present.size())
            return {};
        return QByteArrayView(m_present).sliced(offset, file.earlier->size);
    }

    /** Whether the archive need not be written for this file. */
    [[nodiscard]] bool isKept(const File& file) const
    {
        if (file.isVouchedFor)
            return true;
        const QByteArrayView present = presentBytes(file);
        return !present.isNull() && present == file.content.bytes;
    }

    Result<BundleUpdate> pack()
    {
        const auto isMissing = [this](const File& file) { return presentBytes(file).isNull(); };
        if (auto read = readFiles(isMissing); !read)
            return Failure{read.message()};
        std::vector<StoredEntry> entries;
        entries.reserve(m_files.size());
        for (const File& file : m_files) {
            const QByteArrayView content = file.isRead ? file.content.bytes : presentBytes(file);
            entries.push_back({file.listed.path, content, file.place.checksum});
        }
        Result<PackedBundle> packed = packEntries(entries);
        if (!packed)
            return Failure{packed.message()};
        for (std::size_t index = 0; index < m_files.size(); ++index)
            m_files[index].place.offset = packed.value().offsets[index];
        QStringList fresh;
        for (const File& file : m_files) {
            if (!isKept(file))
                fresh.append(file.listed.path);
        }
        return BundleUpdate{std::move(packed.value().archive), newIndex(), std::move(fresh)};
    }

    /** What is read has the stamp from before the reading, the rest the one that vouched for it. */
    [[nodiscard]] BundleIndex newIndex() const
    {
        BundleIndex index;
        index.reserve(m_files.size());
        for (const File& file : m_files) {
            const FileStamp& stamp = file.isRead ? file.content.stamp : file.listed.stamp;
            index.push_back({file.listed.path, stamp, isSettled(stamp, m_now), file.place, file.size});
        }
        return index;
    }

    const StorageEnvironment& m_environment;
    const QString& m_folder;
    const BundleIndex& m_index;
    const qint64 m_now; ///< Not after any stamp was taken.
    QByteArray m_present;
    std::vector<File> m_files;
};

} // namespace

Result<BundleUpdate> updateBundle(
    const StorageEnvironment& environment, const QString& folder, const BundleIndex& index,
    const std::function<QByteArray()>& presentArchive)
{
    return Update(environment, folder, index).run(presentArchive);
}

} // namespace tw::app::persistence
