#include "app/persistence/codec/ProjectLoader.h"

#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/JsonFile.h"
#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/files/ProjectFiles.h"

#include <QCoreApplication>
#include <QMutex>
#include <QStringBuilder>

#include <algorithm>
#include <functional>
#include <variant>

namespace tw::app::persistence {

using core::content::ContentObject;
using core::project::Project;
using core::taxonomy::Category;

namespace {

constexpr qsizetype filesTogether = 32;

core::Failure failure(const char* message, const QString& path)
{
    return {QCoreApplication::translate("Persistence", message).arg(path)};
}

/** Where the files come from. Contents are asked for on several threads. */
struct Source
{
    QStringList objectPaths;                                       ///< Sorted.
    QStringList categoryPaths;                                     ///< Sorted.
    std::function<QString(const QString& relativePath)> shownPath; ///< As messages name the file.
    std::function<std::optional<FileContent>(const QString& shownPath)> content;
};

/** What every thread needs for itself; handed out so that as few as possible are made. */
class WorkSpaces
{
public:
    struct WorkSpace
    {
        ParseScratch parsing;
        QByteArray written;
    };

    std::unique_ptr<WorkSpace> take()
    {
        const QMutexLocker lock(&m_mutex);
        if (m_idle.empty())
            return std::make_unique<WorkSpace>();
        std::unique_ptr<WorkSpace> workSpace = std::move(m_idle.back());
        m_idle.pop_back();
        return workSpace;
    }

    void giveBack(std::unique_ptr<WorkSpace> workSpace)
    {
        const QMutexLocker lock(&m_mutex);
        m_idle.push_back(std::move(workSpace));
    }

private:
    QMutex m_mutex;
    std::vector<std::unique_ptr<WorkSpace>> m_idle;
};

/** What one file of an object or a category holds, waiting for its turn to be added. */
using Parsed = std::variant<core::Failure, std::unique_ptr<ContentObject>, std::unique_ptr<Category>>;

class Loading
{
public:
    explicit Loading(const Source& source)
        : m_source(source)
    {
        m_loaded.project = std::make_unique<Project>();
    }

    core::Result<LoadedProject> run()
    {
        std::vector<Parsed> parsed = readAll();
        for (std::size_t index = 0; index < parsed.size(); ++index) {
            LoadedFile& file = m_loaded.files[index];
            if (const core::Result<void> added =
                    std::visit([&](auto& content) { return add(content, file); }, parsed[index]);
                !added)
                return core::Failure{added.message()};
        }
        if (const core::Result<void> read = readSettings(); !read)
            return core::Failure{read.message()};
        // What a load brings is the state from which changes count.
        static_cast<void>(m_loaded.project->takeChanges());
        return std::move(m_loaded);
    }

private:
    /** Gives what the files hold, in the order of the files, whose own places are filled meanwhile. */
    std::vector<Parsed> readAll()
    {
        const qsizetype objectCount = m_source.objectPaths.size();
        std::vector<Parsed> parsed(static_cast<std::size_t>(objectCount + m_source.categoryPaths.size()));
        m_loaded.files.resize(parsed.size());
        WorkSpaces workSpaces;
        parallelFor(std::ssize(parsed), filesTogether, [&](qsizetype begin, qsizetype end) {
            std::unique_ptr<WorkSpaces::WorkSpace> workSpace = workSpaces.take();
            for (qsizetype index = begin; index < end; ++index) {
                const bool isObject = index < objectCount;
                LoadedFile& file = m_loaded.files[static_cast<std::size_t>(index)];
                file.relativePath = isObject ? m_source.objectPaths.at(index)
                                             : m_source.categoryPaths.at(index - objectCount);
                parsed[static_cast<std::size_t>(index)] =
                    isObject ? readObject(file, *workSpace) : readCategory(file, *workSpace);
            }
            workSpaces.giveBack(std::move(workSpace));
        });
        return parsed;
    }

    bool readBytes(LoadedFile& file, const QString& shownPath) const
    {
        std::optional<FileContent> content = m_source.content(shownPath);
        if (!content)
            return false;
        file.bytes = std::move(content->bytes);
        file.stamp = content->stamp;
        return true;
    }

    Parsed readObject(LoadedFile& file, WorkSpaces::WorkSpace& workSpace) const
    {
        const QString path = m_source.shownPath(file.relativePath);
        if (!readBytes(file, path))
            return cannotRead(path);
        auto object = parseObject(file.bytes, path, workSpace.parsing);
        if (!object)
            return core::Failure{object.message()};
        workSpace.written.resize(0);
        appendObject(workSpace.written, *object.value());
        file.objectId = object.value()->id();
        file.hasOwnName = objectPath(file.objectId) == file.relativePath;
        file.isCanonical = workSpace.written == file.bytes;
        return std::move(object).value();
    }

    Parsed readCategory(LoadedFile& file, WorkSpaces::WorkSpace& workSpace) const
    {
        const QString path = m_source.shownPath(file.relativePath);
        if (!readBytes(file, path))
            return cannotRead(path);
        auto category = parseCategory(file.bytes, path, workSpace.parsing);
        if (!category)
            return core::Failure{category.message()};
        workSpace.written.resize(0);
        appendCategory(workSpace.written, category.value());
        file.categoryId = category.value().id;
        file.hasOwnName = categoryPath(file.categoryId) == file.relativePath;
        file.isCanonical = workSpace.written == file.bytes;
        return std::make_unique<Category>(std::move(category).value());
    }

    core::Result<void> add(const core::Failure& failed, const LoadedFile&) { return failed; }

    core::Result<void> add(std::unique_ptr<ContentObject>& object, LoadedFile& file)
    {
        // In files of our own names the ids ascend like the names: nothing need be searched for.
        const Project::ObjectMap& objects = m_loaded.project->objects();
        const bool isBehindAll = objects.empty() || objects.rbegin()->first < file.objectId;
        if (!isBehindAll && m_loaded.project->contains(file.objectId)) {
            return core::Failure{QCoreApplication::translate("Persistence", "Duplicate object id %1 in %2")
                                     .arg(file.objectId.toString(), m_source.shownPath(file.relativePath))};
        }
        const ContentObject& added = *object;
        m_loaded.project->insert(std::move(object));
        file.revision = added.revision();
        return {};
    }

    /** Two categories of one id, as a sync client leaves them behind, must not silently become one. */
    core::Result<void> add(std::unique_ptr<Category>& category, const LoadedFile& file)
    {
        if (m_loaded.project->taxonomy().category(category->id)) {
            return failure(
                QT_TRANSLATE_NOOP("Persistence", "Malformed category file: %1"),
                m_source.shownPath(file.relativePath));
        }
        m_loaded.project->taxonomyForEdit().insert(std::move(*category));
        return {};
    }

    core::Result<void> readSettings()
    {
        LoadedFile file;
        file.relativePath = projectFileName.toString();
        const QString path = m_source.shownPath(file.relativePath);
        if (!readBytes(file, path))
            return cannotRead(path);
        if (auto read = readProjectDocument(file.bytes, path, *m_loaded.project); !read)
            return read;
        file.hasOwnName = true;
        file.isCanonical = serializeProjectDocument(*m_loaded.project) == file.bytes;
        m_loaded.files.push_back(std::move(file));
        return {};
    }

    const Source& m_source;
    LoadedProject m_loaded;
};

/** Sorts paths of one folder; most of them differ at the beginning of their names, which is compared first.
 */
void sortPaths(QStringList& paths)
{
    struct Entry
    {
        quint64 beginning = 0;
        QString path;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(paths.size()));
    for (QString& path : paths) {
        quint64 beginning = 0;
        const qsizetype name = path.lastIndexOf(u'/') + 1;
        for (qsizetype index = name; index < name + 4; ++index)
            beginning = beginning << 16 | (index < path.size() ? path.at(index).unicode() : 0u);
        entries.push_back({beginning, std::move(path)});
    }
    std::ranges::sort(entries, [](const Entry& left, const Entry& right) {
        return left.beginning != right.beginning ? left.beginning < right.beginning : left.path < right.path;
    });
    for (std::size_t index = 0; index < entries.size(); ++index)
        paths[static_cast<qsizetype>(index)] = std::move(entries[index].path);
}

/** Divides what a folder holds; objects and categories are sorted. */
struct Contents
{
    explicit Contents(const FolderScan& listing)
    {
        for (const ScannedFile& file : listing.files) {
            if (isJsonFileIn(objectsFolder, file.relativePath))
                objects.append(file.relativePath);
            else if (isJsonFileIn(taxonomyFolder, file.relativePath))
                categories.append(file.relativePath);
            else if (file.relativePath != projectFileName)
                others.append(file.relativePath);
        }
        sortPaths(objects);
        sortPaths(categories);
    }

    QStringList objects;
    QStringList categories;
    QStringList others;
};

} // namespace

core::Result<LoadedProject> loadProject(FileSystem& fileSystem, const QString& folder)
{
    FolderScan listing = listFolder(folder, ScannedFiles::Text);
    for (const QStringView part : {QStringView(), objectsFolder, taxonomyFolder}) {
        const QString prefix = part.isEmpty() ? QString() : part.toString() + u'/';
        if (listing.unreadableFolders.contains(prefix))
            return cannotRead(folder + u'/' + part.toString());
    }
    const Contents contents(listing);

    Source source;
    source.objectPaths = contents.objects;
    source.categoryPaths = contents.categories;
    source.shownPath = [&](const QString& relativePath) -> QString { return folder % u'/' % relativePath; };
    source.content = [&](const QString& path) { return fileSystem.readFile(path); };
    core::Result<LoadedProject> loaded = Loading(source).run();
    if (loaded) {
        loaded.value().listing = std::move(listing);
        loaded.value().otherFiles = contents.others;
    }
    return loaded;
}

core::Result<LoadedProject> parseProject(const ProjectFileMap& files)
{
    Source source;
    for (const auto& entry : files) {
        if (isJsonFileIn(objectsFolder, entry.first))
            source.objectPaths.append(entry.first);
        else if (isJsonFileIn(taxonomyFolder, entry.first))
            source.categoryPaths.append(entry.first);
    }
    source.shownPath = [](const QString& relativePath) { return relativePath; };
    source.content = [&](const QString& path) -> std::optional<FileContent> {
        const auto entry = files.find(path);
        if (entry == files.end())
            return std::nullopt;
        return FileContent{entry->second, {}};
    };
    return Loading(source).run();
}

} // namespace tw::app::persistence
