#include "app/workspace/Workspace.h"

#include "app/persistence/ProjectLock.h"
#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/files/FolderScan.h"
#include "app/persistence/files/ProjectFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tw::app::workspace {

using core::Failure;
using core::Result;
using core::project::Project;
using persistence::SaveExtent;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Workspace", text);
}

/** A folder that holds a project, or parts of one. */
bool holdsProject(const QString& folder)
{
    const QDir directory(folder);
    return directory.exists(persistence::projectFileName.toString()) ||
           directory.exists(persistence::objectsFolder.toString()) ||
           directory.exists(persistence::taxonomyFolder.toString());
}

Failure failure(const char* text, const QString& path)
{
    return {translated(text).arg(QDir::toNativeSeparators(path))};
}

/**
 * Whether there is something to load. A folder whose project document is missing is refused, although the
 * rest would load: a sync client may still be at work, and saving would write the project's settings anew.
 */
Result<void> checkIsProject(const QString& folder)
{
    const QFileInfo info(folder);
    if (!info.exists())
        return failure(QT_TRANSLATE_NOOP("Workspace", "The project could not be found: %1"), folder);
    if (!info.isDir()) {
        return failure(
            QT_TRANSLATE_NOOP(
                "Workspace",
                "This is no project: %1. Choose a project folder, the one that holds project.json."),
            folder);
    }
    if (QFileInfo::exists(folder + u'/' + persistence::projectFileName.toString()))
        return {};
    if (holdsProject(folder)) {
        return failure(
            QT_TRANSLATE_NOOP(
                "Workspace", "The file project.json is missing in %1. If a sync client is still at work "
                             "there, wait until it is "
                             "done; otherwise bring the file back from a backup, or put an empty one with {} "
                             "in its place."),
            folder);
    }
    return failure(
        QT_TRANSLATE_NOOP(
            "Workspace", "The folder %1 holds no project. Choose the folder that holds project.json, or make "
                         "a new project."),
        folder);
}

/** Everything of a project folder that is not written from memory: assets and whatever lies beside them. */
Result<void> copyOtherFiles(const QString& from, const QString& to)
{
    for (const persistence::ScannedFile& file :
         persistence::scanFolder(from, persistence::ScannedFiles::All).files) {
        if (persistence::isProjectFile(file.relativePath))
            continue;
        const QString target = to + u'/' + file.relativePath;
        if (QFileInfo::exists(target))
            continue;
        if (!QDir().mkpath(QFileInfo(target).path()) ||
            !QFile::copy(from + u'/' + file.relativePath, target)) {
            return failure(
                QT_TRANSLATE_NOOP(
                    "Workspace", "Could not copy '%1' to the new place. Free some space or choose another "
                                 "folder, then save "
                                 "again."),
                from + u'/' + file.relativePath);
        }
    }
    return {};
}

} // namespace

Workspace::Workspace(const persistence::StorageEnvironment& environment)
    : m_environment(environment)
    , m_project(std::make_unique<Project>())
    , m_openedFolderFingerprint(environment.fileSystem, environment.clock)
{}

Workspace::~Workspace() = default;

Result<std::unique_ptr<Workspace>> Workspace::openFolder(
    const persistence::StorageEnvironment& environment, const QString& folder)
{
    auto workspace = std::make_unique<Workspace>(environment);
    if (auto loaded = workspace->load(QDir(folder).absolutePath()); !loaded)
        return Failure{loaded.message()};
    return workspace;
}

const QString& Workspace::displayPath() const
{
    return hasSingleFile() ? m_singleFilePath : m_folderPath;
}

QString Workspace::displayName() const
{
    if (!m_project->name().isEmpty())
        return m_project->name();
    return hasSingleFile() ? QFileInfo(m_singleFilePath).completeBaseName() : QDir(m_folderPath).dirName();
}

Result<void> Workspace::load(const QString& folder)
{
    if (auto checked = checkIsProject(folder); !checked)
        return checked;
    auto loaded = persistence::loadFolder(m_environment.fileSystem, folder);
    if (!loaded)
        return Failure{loaded.message()};
    persistence::LoadedProject project = std::move(loaded).value();

    // From here on nothing fails: the old project goes in one piece, with the history that refers to it.
    m_undoStack.clear();
    m_project = std::move(project.project);
    m_folderPath = folder;
    m_openedFolderFingerprint.clear();
    m_saved = {};
    m_fullSaveDue = false;
    m_openedFolderFingerprint.reserve(std::ssize(project.files));
    for (persistence::LoadedFile& file : project.files) {
        if (!file.hasOwnName) {
            m_saved.strayFiles.append(file.relativePath);
        } else if (!file.objectId.isNull()) {
            // A file that we would write differently counts as not saved, so that the next save brings it up.
            m_saved.revisions.emplace_hint(
                m_saved.revisions.end(), file.objectId,
                file.isCanonical ? file.revision : persistence::neverSaved);
        } else if (!file.categoryId.isNull()) {
            m_saved.categories.insert(file.categoryId);
        }
        m_openedFolderFingerprint.record(file.relativePath, std::move(file.bytes), file.stamp);
    }
    for (const QString& relativePath : project.otherFiles)
        m_openedFolderFingerprint.recordFile(folder, relativePath);
    m_openedFolderFingerprint.rememberNames(std::move(project.listing));
    m_assets.record(folder);
    static_cast<void>(m_project->takeChanges());
    m_undoStack.setClean();
    reloadLibraries();
    return {};
}

Result<void> Workspace::save(SaveExtent extent)
{
    if (!hasPath())
        return Failure{translated(
            QT_TRANSLATE_NOOP("Workspace", "This project has no save location yet; use saveAs()."))};
    auto lock = persistence::ProjectLock::acquire(displayPath(), m_environment.dataFolder);
    if (!lock)
        return Failure{lock.message()};
    const persistence::DiskChanges changes = externalChanges();
    if (!changes.isEmpty())
        return persistence::changedOnDiskFailure();
    persistence::FolderSaver saver(m_environment, m_folderPath, m_openedFolderFingerprint, m_saved);
    saver.removeLeftovers(changes.leftovers);
    if (auto saved = saver.save(*m_project, extent); !saved)
        return saved;
    m_fullSaveDue = extent == SaveExtent::Changed;
    m_assets.record(m_folderPath);
    m_undoStack.setClean();
    return {};
}

Result<void> Workspace::saveAs(const QString& folder)
{
    const QString target = QDir(folder).absolutePath();
    if (target == m_folderPath)
        return save(SaveExtent::Everything);
    if (holdsProject(target)) {
        return failure(
            QT_TRANSLATE_NOOP(
                "Workspace", "The folder %1 already holds a project. Choose an empty folder or a new name."),
            target);
    }
    if (!QDir().mkpath(target))
        return failure(QT_TRANSLATE_NOOP("Workspace", "Cannot create project folder: %1"), target);
    if (hasPath()) {
        if (auto copied = copyOtherFiles(m_folderPath, target); !copied)
            return copied;
    }
    persistence::DiskState disk(m_environment.fileSystem, m_environment.clock);
    disk.recordUnseen(target);
    persistence::SavedState saved;
    persistence::FolderSaver saver(m_environment, target, disk, saved);
    if (auto written = saver.save(*m_project, SaveExtent::Everything); !written)
        return written;
    m_folderPath = target;
    m_singleFilePath.clear();
    m_openedFolderFingerprint = std::move(disk);
    m_saved = std::move(saved);
    m_fullSaveDue = false;
    m_assets.record(m_folderPath);
    m_undoStack.setClean();
    return {};
}

Result<void> Workspace::checkReload() const
{
    if (!hasPath())
        return Failure{
            translated(QT_TRANSLATE_NOOP("Workspace", "This project has no save location to reload from."))};
    if (m_undoStack.isMacroOpen()) {
        return Failure{translated(QT_TRANSLATE_NOOP(
            "Workspace",
            "The project cannot be read anew while a change is under way. Try again in a moment."))};
    }
    return {};
}

Result<void> Workspace::reload()
{
    auto possible = checkReload();
    return possible ? load(m_folderPath) : possible;
}

void Workspace::acceptDisk(persistence::DiskState seen)
{
    m_openedFolderFingerprint = std::move(seen);
}

void Workspace::keepOverDisk(persistence::DiskState seen, const QStringList& relativePaths)
{
    acceptDisk(std::move(seen));
    for (const QString& path : relativePaths) {
        const bool isObject = persistence::isJsonFileIn(persistence::objectsFolder, path);
        const bool isCategory = persistence::isJsonFileIn(persistence::taxonomyFolder, path);
        if (!isObject && !isCategory)
            continue;
        const QString name = QFileInfo(path).completeBaseName();
        const auto objectId = core::ContentId::fromString(name);
        const auto categoryId = core::CategoryId::fromString(name);
        // Files that are known and hold nothing of the project are removed by the next save.
        if (isObject && persistence::objectPath(objectId) == path)
            m_saved.revisions.insert_or_assign(objectId, persistence::neverSaved);
        else if (isCategory && persistence::categoryPath(categoryId) == path)
            m_saved.categories.insert(categoryId);
        else if (!m_saved.strayFiles.contains(path))
            m_saved.strayFiles.append(path);
    }
    markModified();
}

persistence::DiskChanges Workspace::externalChanges()
{
    return hasPath() ? m_openedFolderFingerprint.changesIn(m_folderPath) : persistence::DiskChanges();
}

Result<QString> Workspace::importAsset(const QString& sourceFile)
{
    auto imported = persistence::importAsset(m_folderPath, sourceFile);
    if (imported)
        m_assets.recordFile(m_folderPath, imported.value());
    if (imported && persistence::isTextFile(imported.value())) {
        // Our own write never counts as somebody else's.
        const QString path = m_folderPath + u'/' + imported.value();
        if (auto content = m_environment.fileSystem.readFile(path))
            m_openedFolderFingerprint.record(imported.value(), std::move(content->bytes), content->stamp);
    }
    return imported;
}

void Workspace::reloadLibraries()
{
    m_libraries.clear();
    m_libraryNotices.clear();
    for (const core::project::LibraryMount& mount : m_project->libraryMounts()) {
        const QString path = QDir::cleanPath(QDir(m_folderPath).absoluteFilePath(mount.path));
        auto loaded = persistence::loadFolder(m_environment.fileSystem, path);
        if (!loaded) {
            m_libraryNotices.append(
                translated(QT_TRANSLATE_NOOP("Workspace", "The library %1 could not be read: %2"))
                    .arg(QDir::toNativeSeparators(mount.path), loaded.message()));
            continue;
        }
        std::unique_ptr<Project> project = std::move(loaded.value().project);
        const QString name = project->name().isEmpty() ? QDir(path).dirName() : project->name();
        m_libraries.push_back({name, path, std::move(project)});
    }
}

} // namespace tw::app::workspace
