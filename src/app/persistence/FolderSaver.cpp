#include "app/persistence/FolderSaver.h"

#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tw::app::persistence {

using core::Failure;
using core::Result;
using core::project::Project;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Persistence", text);
}

bool isIn(QStringView folder, const QString& relativePath)
{
    return relativePath.startsWith(folder) && relativePath.size() > folder.size() &&
           relativePath.at(folder.size()) == u'/' && relativePath.indexOf(u'/', folder.size() + 1) < 0;
}

} // namespace

Failure changedOnDiskFailure()
{
    return {translated(QT_TRANSLATE_NOOP(
        "Persistence", "The project changed on disk since it was opened, so saving now would overwrite those "
                       "changes. Review "
                       "them first."))};
}

FolderSaver::FolderSaver(
    const StorageEnvironment& environment, QString folder, DiskState& disk, SavedState& saved)
    : m_folder(std::move(folder))
    , m_fileSystem(environment.fileSystem)
    , m_disk(disk)
    , m_saved(saved)
    , m_writer(environment.fileSystem, environment.retryPolicy, environment.sleeper)
{}

Result<void> FolderSaver::saveProject(const Project& project, SaveExtent extent)
{
    if (auto saved = saveObjects(project, extent); !saved)
        return saved;
    if (auto saved = saveTaxonomy(project); !saved)
        return saved;
    if (auto saved = saveProjectDocument(project); !saved)
        return saved;
    return m_writer.syncFolders();
}

void FolderSaver::removeLeftovers(const QStringList& relativePaths)
{
    for (const QString& relativePath : relativePaths) {
        // Further down may lie another project, with a lock of its own.
        if (!relativePath.contains(u'/') || isIn(objectsFolder, relativePath) ||
            isIn(taxonomyFolder, relativePath))
            m_fileSystem.remove(m_folder + u'/' + relativePath);
    }
}

Result<void> FolderSaver::prepareFolder(QStringView name, const char* failureText)
{
    const QString path = m_folder + u'/' + name.toString();
    const QString nativePath = QDir::toNativeSeparators(path);
    if (!m_fileSystem.makeFolders(path))
        return Failure{translated(failureText).arg(nativePath)};
    if (QFileInfo(path).isSymLink()) {
        return Failure{
            translated(QT_TRANSLATE_NOOP(
                           "Persistence",
                           "The folder %1 is a link that leads out of the project. Put a real folder in "
                           "its place, then save again."))
                .arg(nativePath)};
    }
    return {};
}

Result<void> FolderSaver::saveObjects(const Project& project, SaveExtent extent)
{
    if (auto ready = prepareFolder(
            objectsFolder, QT_TRANSLATE_NOOP("Persistence", "Cannot create project folder: %1"));
        !ready)
        return ready;
    std::vector<PendingFile> files;
    QStringList obsolete;
    // Both are sorted by id: walked side by side, they show what came and what went.
    auto saved = m_saved.revisions.cbegin();
    const auto takeObsolete = [&](const auto& isObsolete) {
        for (; saved != m_saved.revisions.cend() && isObsolete(saved->first); ++saved)
            obsolete.append(objectPath(saved->first));
    };
    for (const auto& [id, object] : project.objects()) {
        takeObsolete([&id = id](const core::ContentId& savedId) { return savedId < id; });
        const bool isKnown = saved != m_saved.revisions.cend() && saved->first == id;
        const bool isUnchanged = isKnown && saved->second == object->revision();
        if (isKnown)
            ++saved;
        if (extent == SaveExtent::Everything || !isUnchanged)
            files.push_back({objectPath(id), serializeObject(*object), id, object->revision()});
    }
    takeObsolete([](const core::ContentId&) { return true; });

    if (auto written = writeChanged(std::move(files)); !written)
        return written;
    if (auto removed = removeFiles(obsolete); !removed)
        return removed;
    if (!obsolete.isEmpty())
        std::erase_if(m_saved.revisions, [&](const auto& entry) { return !project.contains(entry.first); });
    return removeStrays(objectsFolder);
}

Result<void> FolderSaver::saveTaxonomy(const Project& project)
{
    if (auto ready = prepareFolder(
            taxonomyFolder, QT_TRANSLATE_NOOP("Persistence", "Cannot create taxonomy folder: %1"));
        !ready)
        return ready;
    const auto& categories = project.taxonomy().categories();
    std::vector<PendingFile> files;
    for (const auto& [id, category] : categories)
        files.push_back({categoryPath(id), serializeCategory(category), id, 0});
    if (auto written = writeChanged(std::move(files)); !written)
        return written;

    QStringList obsolete;
    for (const core::CategoryId& id : m_saved.categories) {
        if (!categories.contains(id))
            obsolete.append(categoryPath(id));
    }
    if (auto removed = removeFiles(obsolete); !removed)
        return removed;
    std::erase_if(m_saved.categories, [&](const core::CategoryId& id) { return !categories.contains(id); });
    return removeStrays(taxonomyFolder);
}

Result<void> FolderSaver::saveProjectDocument(const Project& project)
{
    return writeChanged({{projectFileName.toString(), serializeProjectDocument(project), {}, 0}});
}

Result<void> FolderSaver::writeChanged(std::vector<PendingFile> files)
{
    std::vector<PendingFile> changed;
    QList<FileWrite> writes;
    for (PendingFile& file : files) {
        if (m_disk.contains(file.relativePath) && m_disk.bytes(file.relativePath) == file.bytes) {
            noteOnDisk(file);
            continue;
        }
        writes.append({m_folder + u'/' + file.relativePath, file.bytes});
        changed.push_back(std::move(file));
    }
    const BatchOutcome outcome = m_writer.writeAll(writes, [&](qsizetype index) -> Result<void> {
        const PendingFile& file = changed[static_cast<std::size_t>(index)];
        if (!m_disk.isUnchanged(m_folder, file.relativePath))
            return changedOnDiskFailure();
        return {};
    });
    for (qsizetype index = 0; index < outcome.committed; ++index) {
        const PendingFile& file = changed[static_cast<std::size_t>(index)];
        m_disk.recordWritten(m_folder, file.relativePath, file.bytes);
        noteOnDisk(file);
    }
    return outcome.result;
}

void FolderSaver::noteOnDisk(const PendingFile& file)
{
    if (const auto* objectId = std::get_if<core::ContentId>(&file.id))
        m_saved.revisions.insert_or_assign(*objectId, file.revision);
    else if (const auto* categoryId = std::get_if<core::CategoryId>(&file.id))
        m_saved.categories.insert(*categoryId);
}

Result<void> FolderSaver::removeFiles(const QStringList& relativePaths)
{
    for (const QString& relativePath : relativePaths) {
        const QString path = m_folder + u'/' + relativePath;
        if (m_disk.contains(relativePath) && !m_disk.isUnchanged(m_folder, relativePath))
            return changedOnDiskFailure();
        if (!m_writer.remove(path)) {
            return Failure{
                translated(QT_TRANSLATE_NOOP(
                               "Persistence",
                               "Could not remove '%1' (it may be locked by another program -- the desktop "
                               "app, a sync client, or antivirus)."))
                    .arg(path)};
        }
        m_disk.forget(relativePath);
    }
    return {};
}

Result<void> FolderSaver::removeStrays(QStringView folder)
{
    QStringList strays;
    for (const QString& relativePath : m_saved.strayFiles) {
        if (!isIn(folder, relativePath))
            continue;
        // Where case does not count in names, the stray may be the very file that was just written.
        const auto stray = m_fileSystem.stamp(m_folder + u'/' + relativePath);
        const auto written = m_fileSystem.stamp(m_folder + u'/' + relativePath.toLower());
        if (relativePath == relativePath.toLower() || !stray || !written || *stray != *written)
            strays.append(relativePath);
        else
            m_disk.forget(relativePath);
    }
    if (auto removed = removeFiles(strays); !removed)
        return removed;
    m_saved.strayFiles.removeIf([folder](const QString& path) { return isIn(folder, path); });
    return {};
}

} // namespace tw::app::persistence
