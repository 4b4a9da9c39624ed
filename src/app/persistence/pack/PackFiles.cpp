#include "app/persistence/pack/ContentPack.h"

#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/JsonFile.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/json/JsonRead.h"
#include "app/persistence/json/JsonWriter.h"

#include <QCoreApplication>
#include <QDir>

#include <map>

namespace tw::app::persistence {

using core::CategoryId;
using core::Failure;
using core::Result;
using core::taxonomy::Category;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto packFileName = "pack.json"_L1;

QString translated(const char* text)
{
    return QCoreApplication::translate("Persistence", text);
}

Failure failure(const char* text, const QString& path)
{
    return {translated(text).arg(QDir::toNativeSeparators(path))};
}

QByteArray serializeInfo(const PackInfo& info)
{
    QByteArray bytes;
    JsonWriter writer(bytes);
    writer.beginObject();
    for (const auto& [key, text] :
         {std::pair("name"_L1, info.name), std::pair("description"_L1, info.description),
          std::pair("author"_L1, info.author), std::pair("version"_L1, info.version)}) {
        writer.key(key);
        writer.writeText(text);
    }
    writer.endObject();
    return bytes;
}

Result<PackInfo> readInfo(FileSystem& fileSystem, const QString& folder)
{
    const QString path = folder + u'/' + packFileName;
    if (!fileSystem.stamp(path)) {
        return failure(
            QT_TRANSLATE_NOOP(
                "Persistence",
                "The folder %1 holds no content pack. Choose the folder that holds pack.json."),
            folder);
    }
    const std::optional<FileContent> content = fileSystem.readFile(path);
    if (!content)
        return cannotRead(path);
    JsonTree tree;
    if (!tree.parse(content->bytes))
        return invalidJson(path);
    const auto text = [&](QLatin1StringView key) {
        return readText(tree.root().value(key)).value_or(QString());
    };
    PackInfo info{text("name"_L1), text("description"_L1), text("author"_L1), text("version"_L1)};
    if (info.name.isEmpty())
        info.name = QDir(folder).dirName();
    return info;
}

/** The paths of category files in the folder, sorted, so that messages name the same one every time. */
Result<QStringList> listCategories(const QString& folder)
{
    const FolderScan listing = listFolder(folder, ScannedFiles::Text);
    if (listing.unreadableFolders.contains(taxonomyFolder.toString() + u'/'))
        return cannotRead(folder + u'/' + taxonomyFolder.toString());
    QStringList paths;
    for (const ScannedFile& file : listing.files) {
        if (isJsonFileIn(taxonomyFolder, file.relativePath))
            paths.append(file.relativePath);
    }
    paths.sort();
    return paths;
}

/** A pack that makes a category its own ancestor has no tree to show. */
Result<void> checkParents(const std::vector<Category>& categories, const QString& folder)
{
    std::map<CategoryId, const Category*> byId;
    for (const Category& category : categories)
        byId.emplace(category.id, &category);
    for (const Category& category : categories) {
        // Past as many steps as there are categories, the way up repeats itself.
        std::size_t steps = 0;
        auto next = byId.find(category.parentId);
        while (next != byId.end() && steps++ < categories.size())
            next = byId.find(next->second->parentId);
        if (next == byId.end())
            continue;
        return Failure{
            translated(QT_TRANSLATE_NOOP(
                           "Persistence",
                           "In the content pack %1, the category “%2” is above itself. Give one of "
                           "the categories above it another parent, then try again."))
                .arg(QDir::toNativeSeparators(folder), category.name)};
    }
    return {};
}

/** Free is also what an attempt left that failed before the end. */
Result<void> checkTarget(const QString& folder)
{
    QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    entries.removeOne(packFileName);
    entries.removeOne(taxonomyFolder.toString());
    if (entries.isEmpty())
        return {};
    return failure(
        QT_TRANSLATE_NOOP(
            "Persistence", "The folder %1 holds something else. Choose an empty folder or a new name for the "
                           "content pack."),
        folder);
}

} // namespace

Result<void> exportPack(
    const StorageEnvironment& environment, const core::project::Project& project,
    const std::set<CategoryId>& selected, const PackInfo& info, const QString& folder)
{
    if (auto checked = checkTarget(folder); !checked)
        return checked;
    const QString taxonomy = folder + u'/' + taxonomyFolder.toString();
    if (!environment.fileSystem.makeFolders(taxonomy))
        return failure(QT_TRANSLATE_NOOP("Persistence", "Could not create the folder: %1"), taxonomy);
    const Result<QStringList> earlier = listCategories(folder);
    if (!earlier)
        return Failure{earlier.message()};

    SafeWriter writer(environment.fileSystem, environment.retryPolicy, environment.sleeper);
    const QString infoPath = folder + u'/' + packFileName;
    if (!writer.remove(infoPath))
        return writeFailure(infoPath);
    QStringList obsolete = earlier.value();
    QList<FileWrite> files;
    for (const CategoryId& id : packedCategories(project.taxonomy(), selected)) {
        obsolete.removeOne(categoryPath(id));
        files.append({folder + u'/' + categoryPath(id), serializeCategory(*project.taxonomy().category(id))});
    }
    for (const QString& path : std::as_const(obsolete)) {
        if (!writer.remove(folder + u'/' + path))
            return writeFailure(folder + u'/' + path);
    }
    files.append({infoPath, serializeInfo(info)});
    if (auto written = writer.writeAll(files).result; !written)
        return written;
    return writer.syncFolders();
}

Result<ContentPack> readPack(FileSystem& fileSystem, const QString& folder)
{
    Result<PackInfo> info = readInfo(fileSystem, folder);
    if (!info)
        return Failure{info.message()};
    const Result<QStringList> paths = listCategories(folder);
    if (!paths)
        return Failure{paths.message()};
    ContentPack pack{std::move(info).value(), {}};
    std::map<CategoryId, QString> fileOf;
    ParseScratch scratch;
    for (const QString& relativePath : paths.value()) {
        const QString path = folder + u'/' + relativePath;
        const std::optional<FileContent> content = fileSystem.readFile(path);
        if (!content)
            return cannotRead(path);
        Result<Category> category = parseCategory(content->bytes, path, scratch);
        if (!category)
            return Failure{category.message()};
        const auto [first, isNew] = fileOf.emplace(category.value().id, relativePath);
        if (!isNew) {
            return Failure{
                translated(QT_TRANSLATE_NOOP(
                               "Persistence",
                               "In the content pack %1, the files %2 and %3 hold the same category. "
                               "Remove one of them, then try again."))
                    .arg(QDir::toNativeSeparators(folder), first->second, relativePath)};
        }
        pack.categories.push_back(std::move(category).value());
    }
    if (auto checked = checkParents(pack.categories, folder); !checked)
        return Failure{checked.message()};
    return pack;
}

} // namespace tw::app::persistence
