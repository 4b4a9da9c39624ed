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
    QStringList objectPaths;   ///< Sorted.
    QStringList categoryPaths; ///< Sorted.
    std::function<std::optional<FileContent>(const QString& relativePath)> content;
    std::function<QString(const QString& relativePath)> shownPath; ///< For messages.
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

/** One file of an object or a category, read and parsed, waiting for its turn to be added. */
struct Item
{
    LoadedFile file;
    std::variant<core::Failure, std::unique_ptr<ContentObject>, Category> parsed;
};

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
        std::vector<Item> items = readAll();
        m_loaded.files.reserve(items.size() + 1);
        for (Item& item : items) {
            if (const core::Result<void> added = std::visit(
                    [&](auto& parsed) { return add(parsed, item.file.relativePath); }, item.parsed);
                !added)
                return core::Failure{added.message()};
            m_loaded.files.push_back(std::move(item.file));
        }
        if (const core::Result<void> read = readSettings(); !read)
            return core::Failure{read.message()};
        // What a load brings is the state from which changes count.
        static_cast<void>(m_loaded.project->takeChanges());
        return std::move(m_loaded);
    }

private:
    std::vector<Item> readAll() const
    {
        const qsizetype objectCount = m_source.objectPaths.size();
        std::vector<Item> items(static_cast<std::size_t>(objectCount + m_source.categoryPaths.size()));
        WorkSpaces workSpaces;
        parallelFor(std::ssize(items), filesTogether, [&](qsizetype begin, qsizetype end) {
            std::unique_ptr<WorkSpaces::WorkSpace> workSpace = workSpaces.take();
            for (qsizetype index = begin; index < end; ++index) {
                Item& item = items[static_cast<std::size_t>(index)];
                const bool isObject = index < objectCount;
                item.file.relativePath = isObject ? m_source.objectPaths.at(index)
                                                  : m_source.categoryPaths.at(index - objectCount);
                readItem(item, isObject, *workSpace);
            }
            workSpaces.giveBack(std::move(workSpace));
        });
        return items;
    }

    void readItem(Item& item, bool isObject, WorkSpaces::WorkSpace& workSpace) const
    {
        const QString path = m_source.shownPath(item.file.relativePath);
        std::optional<FileContent> content = m_source.content(item.file.relativePath);
        if (!content) {
            item.parsed = cannotRead(path);
            return;
        }
        item.file.bytes = std::move(content->bytes);
        item.file.stamp = content->stamp;
        workSpace.written.resize(0);
        QString ownPath;
        if (isObject) {
            auto object = parseObject(item.file.bytes, path, workSpace.parsing);
            if (!object) {
                item.parsed = core::Failure{object.message()};
                return;
            }
            appendObject(workSpace.written, *object.value());
            item.file.objectId = object.value()->id();
            ownPath = objectPath(item.file.objectId);
            item.parsed = std::move(object).value();
        } else {
            auto category = parseCategory(item.file.bytes, path, workSpace.parsing);
            if (!category) {
                item.parsed = core::Failure{category.message()};
                return;
            }
            appendCategory(workSpace.written, category.value());
            ownPath = categoryPath(category.value().id);
            item.parsed = std::move(category).value();
        }
        item.file.hasOwnName = ownPath == item.file.relativePath;
        item.file.isCanonical = workSpace.written == item.file.bytes;
    }

    core::Result<void> add(const core::Failure& failed, const QString&) { return failed; }

    core::Result<void> add(std::unique_ptr<ContentObject>& object, const QString& relativePath)
    {
        if (m_loaded.project->contains(object->id())) {
            return core::Failure{QCoreApplication::translate("Persistence", "Duplicate object id %1 in %2")
                                     .arg(object->id().toString(), m_source.shownPath(relativePath))};
        }
        m_loaded.project->insert(std::move(object));
        return {};
    }

    /** Two categories of one id, as a sync client leaves them behind, must not silently become one. */
    core::Result<void> add(Category& category, const QString& relativePath)
    {
        if (m_loaded.project->taxonomy().category(category.id)) {
            return failure(
                QT_TRANSLATE_NOOP("Persistence", "Malformed category file: %1"),
                m_source.shownPath(relativePath));
        }
        m_loaded.project->taxonomyForEdit().insert(std::move(category));
        return {};
    }

    core::Result<void> readSettings()
    {
        LoadedFile file;
        file.relativePath = projectFileName.toString();
        const QString path = m_source.shownPath(file.relativePath);
        std::optional<FileContent> content = m_source.content(file.relativePath);
        if (!content)
            return cannotRead(path);
        file.bytes = std::move(content->bytes);
        file.stamp = content->stamp;
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

/** The names of the JSON files of one folder, sorted; none of a folder that is not there. */
core::Result<QStringList> jsonFilesIn(const QString& root, QStringView folder)
{
    const QString path = root + u'/' + folder.toString();
    const FolderScan scan = scanFolder(path, ScannedFiles::Text);
    if (!scan.isComplete)
        return cannotRead(path);
    QStringList paths;
    for (const ScannedFile& file : scan.files) {
        QString relativePath = folder.toString() + u'/' + file.relativePath;
        if (isJsonFileIn(folder, relativePath))
            paths.append(std::move(relativePath));
    }
    paths.sort();
    return paths;
}

} // namespace

core::Result<LoadedProject> loadFolder(FileSystem& fileSystem, const QString& folder)
{
    const core::Result<QStringList> objects = jsonFilesIn(folder, objectsFolder);
    if (!objects)
        return core::Failure{objects.message()};
    const core::Result<QStringList> categories = jsonFilesIn(folder, taxonomyFolder);
    if (!categories)
        return core::Failure{categories.message()};

    Source source;
    source.objectPaths = objects.value();
    source.categoryPaths = categories.value();
    source.shownPath = [&](const QString& relativePath) { return folder + u'/' + relativePath; };
    source.content = [&](const QString& relativePath) {
        return fileSystem.readFile(source.shownPath(relativePath));
    };
    return Loading(source).run();
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
    source.content = [&](const QString& relativePath) -> std::optional<FileContent> {
        const auto entry = files.find(relativePath);
        if (entry == files.end())
            return std::nullopt;
        return FileContent{entry->second, {}};
    };
    return Loading(source).run();
}

} // namespace tw::app::persistence
