#include "app/workspace/Workspace.h"

#include "app/persistence/ProjectLock.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/workspace/ProjectPlace.h"
#include "app/workspace/StructureNotice.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tw::app::workspace {

using core::Failure;
using core::Result;
using core::project::Project;
using persistence::BundlePurpose;
using persistence::SaveExtent;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Workspace", text);
}

QString cleanPath(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString nameOfPlace(const QString& path)
{
    return isSingleFile(path) ? QFileInfo(path).completeBaseName() : QDir(path).dirName();
}

persistence::SavedState savedStateOf(const std::vector<persistence::LoadedFile>& files)
{
    persistence::SavedState saved;
    for (const persistence::LoadedFile& file : files) {
        if (!file.hasOwnName) {
            saved.strayFiles.append(file.relativePath);
        } else if (!file.objectId.isNull()) {
            // A file that we would write differently counts as not saved, so that the next save brings it up.
            saved.revisions.emplace_hint(
                saved.revisions.end(), file.objectId,
                file.isCanonical ? file.revision : persistence::neverSaved);
        } else if (!file.categoryId.isNull()) {
            saved.categories.insert(file.categoryId);
        }
    }
    return saved;
}

/** Without a working copy, since nobody writes to a library. */
Result<persistence::LoadedProject> loadLibrary(persistence::FileSystem& fileSystem, const QString& path)
{
    if (!isSingleFile(path))
        return persistence::loadProject(fileSystem, path);
    const auto archive = persistence::readArchive(fileSystem, path);
    if (!archive)
        return Failure{archive.message()};
    const auto contents = persistence::readBundle(archive.value().bytes, path);
    if (!contents)
        return Failure{contents.message()};
    persistence::ProjectFileMap files;
    for (const persistence::BundleFile& file : contents.value().files)
        files.emplace_hint(files.end(), file.path, file.bytes);
    return persistence::parseProject(files);
}

} // namespace

Workspace::Workspace(const persistence::StorageEnvironment& environment)
    : m_environment(environment)
    , m_project(std::make_unique<Project>())
    , m_openedFolderFingerprint(environment.fileSystem, environment.clock)
{}

Workspace::~Workspace() = default;

Result<std::unique_ptr<Workspace>> Workspace::open(
    const persistence::StorageEnvironment& environment, const QString& path)
{
    auto workspace = std::make_unique<Workspace>(environment);
    if (auto loaded = workspace->load(cleanPath(path), BundlePurpose::Open); !loaded)
        return Failure{loaded.message()};
    return workspace;
}

const QString& Workspace::displayPath() const
{
    return m_singleFile ? m_singleFile->path() : m_folderPath;
}

QString Workspace::displayName() const
{
    if (!m_project->name().isEmpty())
        return m_project->name();
    return nameOfPlace(displayPath());
}

bool Workspace::isUnsaved(const core::ContentId& id) const
{
    const auto* const object = m_project->find(id);
    if (!isModified() || !object)
        return false;
    const auto saved = m_saved.revisions.find(id);
    if (saved != m_saved.revisions.end() && saved->second == object->revision())
        return false;
    // Data are compared, not bytes: a file may say the same in other words than ours.
    const QString path = persistence::objectPath(id);
    const QByteArray bytes = m_openedFolderFingerprint.bytes(path);
    persistence::ParseScratch scratch;
    const auto onDisk = persistence::parseObject(bytes, path, scratch);
    return !onDisk || !core::content::isSameData(*onDisk.value(), *object);
}

Result<void> Workspace::load(const QString& path, BundlePurpose purpose)
{
    if (isSingleFile(path))
        return loadSingleFile(path, purpose);
    if (auto checked = checkIsProject(path); !checked)
        return checked;
    auto loaded = persistence::loadProject(m_environment.fileSystem, path);
    if (!loaded)
        return Failure{loaded.message()};
    m_singleFile.reset();
    m_openingNotice = {};
    adopt(std::move(loaded).value(), path);
    return {};
}

Result<void> Workspace::loadSingleFile(const QString& path, BundlePurpose purpose)
{
    const auto lock = persistence::ProjectLock::acquire(path, m_environment.dataFolder);
    if (!lock)
        return Failure{lock.message()};
    auto loaded = persistence::openBundle(m_environment, path, purpose);
    if (!loaded)
        return Failure{loaded.message()};
    persistence::OpenedBundle opened = std::move(loaded).value();
    m_openingNotice = workspace::openingNotice(opened.opening, path, opened.backupPath);
    m_singleFile = std::move(opened.file);
    adopt(std::move(opened.project), m_singleFile->workingCopy().folder);
    return {};
}

void Workspace::adopt(persistence::LoadedProject project, const QString& folder)
{
    // The old project goes in one piece, with the history that refers to it.
    m_undoStack.clear();
    m_project = std::move(project.project);
    m_structureNotice = workspace::structureNotice(*m_project);
    m_folderPath = folder;
    m_openedFolderFingerprint.clear();
    m_saved = savedStateOf(project.files);
    m_fullSaveDue = false;
    m_isCopyAhead = false;
    m_openedFolderFingerprint.reserve(std::ssize(project.files));
    for (persistence::LoadedFile& file : project.files)
        m_openedFolderFingerprint.record(file.relativePath, std::move(file.bytes), file.stamp);
    for (const QString& relativePath : project.otherFiles)
        m_openedFolderFingerprint.recordFile(folder, relativePath);
    m_openedFolderFingerprint.rememberNames(std::move(project.listing));
    m_assets.record(folder);
    static_cast<void>(m_project->takeChanges());
    m_undoStack.setClean();
    reloadLibraries();
}

Result<void> Workspace::restoreUnsaved(const std::map<QString, persistence::FileVersion>& files)
{
    persistence::ProjectFileMap all;
    for (const QString& path : m_openedFolderFingerprint.paths()) {
        if (persistence::isProjectFile(path))
            all.emplace(path, m_openedFolderFingerprint.bytes(path));
    }
    for (const auto& [path, bytes] : files) {
        if (bytes)
            all.insert_or_assign(path, *bytes);
        else
            all.erase(path);
    }
    auto parsed = persistence::parseProject(all);
    if (!parsed)
        return Failure{parsed.message()};
    persistence::LoadedProject project = std::move(parsed).value();
    persistence::SavedState saved = savedStateOf(project.files);
    for (const persistence::LoadedFile& file : project.files) {
        if (!file.objectId.isNull() && files.contains(file.relativePath))
            saved.revisions.insert_or_assign(file.objectId, persistence::neverSaved);
    }
    // What is on disk and not in the project is what the next save removes.
    saved.revisions.merge(m_saved.revisions);
    saved.categories.merge(m_saved.categories);

    m_undoStack.clear();
    m_project = std::move(project.project);
    m_structureNotice = workspace::structureNotice(*m_project);
    m_saved = std::move(saved);
    static_cast<void>(m_project->takeChanges());
    m_undoStack.markModified();
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
    if (isBundleChangedOnDisk() || !changes.isEmpty())
        return persistence::changedOnDiskFailure();
    // Until it is done, some of it may be on disk and some not, whatever is undone meanwhile.
    m_fullSaveDue = true;
    if (auto written = write(extent, changes.leftovers); !written)
        return written;
    m_fullSaveDue = extent == SaveExtent::Changed;
    m_assets.record(m_folderPath);
    m_undoStack.setClean();
    return {};
}

Result<void> Workspace::write(SaveExtent extent, const QStringList& leftovers)
{
    persistence::FolderSaver saver(m_environment, m_folderPath, m_openedFolderFingerprint, m_saved);
    saver.removeLeftovers(leftovers);
    m_isCopyAhead = hasSingleFile();
    if (auto saved = saver.saveProject(*m_project, extent); !saved || !m_singleFile)
        return saved;
    // Also when nothing was written just now: an earlier save may have ended before the archive.
    if (auto written = m_singleFile->writeArchiveOf(m_folderPath); !written)
        return written;
    m_isCopyAhead = false;
    return m_singleFile->updateRecord();
}

Result<void> Workspace::saveAs(const QString& path)
{
    const QString target = cleanPath(path);
    if (target == displayPath())
        return save(SaveExtent::Everything);
    const auto lock = persistence::ProjectLock::acquire(target, m_environment.dataFolder);
    if (!lock)
        return Failure{lock.message()};
    // What lies beside the project is found from its new place as well.
    const std::vector<core::project::LibraryMount> mounts = m_project->libraryMounts();
    if (hasPath())
        m_project->setLibraryMounts(movedMounts(mounts, displayPath(), target));
    auto saved = isSingleFile(target) ? saveAsSingleFile(target) : saveAsFolder(target);
    if (saved)
        m_readMounts = m_project->libraryMounts();
    else
        m_project->setLibraryMounts(mounts);
    return saved;
}

Result<void> Workspace::saveAsFolder(const QString& folder)
{
    if (holdsProject(folder)) {
        return placeFailure(
            QT_TRANSLATE_NOOP(
                "Workspace", "The folder %1 already holds a project. Choose an empty folder or a new name."),
            folder);
    }
    const bool isNew =
        QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    auto copy = writeCopy(folder);
    if (!copy) {
        // Half a project in its place would refuse the next attempt.
        if (isNew)
            QDir(folder).removeRecursively();
        return Failure{copy.message()};
    }
    m_singleFile.reset();
    moveTo(folder, std::move(copy).value());
    return {};
}

Result<void> Workspace::saveAsSingleFile(const QString& bundlePath)
{
    const QString parent = QFileInfo(bundlePath).path();
    if (!m_environment.fileSystem.makeFolders(parent))
        return placeFailure(QT_TRANSLATE_NOOP("Workspace", "Cannot create project folder: %1"), parent);
    persistence::SingleFile file(
        m_environment, persistence::workingCopyOf(bundlePath, m_environment.dataFolder));
    const persistence::WorkingCopy& place = file.workingCopy();
    const auto written = [&]() -> Result<SavedCopy> {
        persistence::discardFreshCopy(place);
        auto copy = writeCopy(place.freshFolder());
        if (!copy)
            return copy;
        // The archive first: until it is whole, nothing but the fresh copy exists of the new project.
        if (auto archived = file.writeArchiveOf(place.freshFolder()); !archived)
            return Failure{archived.message()};
        if (auto retired = persistence::retireCopy(m_environment, place); !retired)
            return Failure{retired.message()};
        if (auto installed = persistence::installFreshCopy(m_environment, place); !installed)
            return Failure{installed.message()};
        if (auto recorded = file.updateRecord(); !recorded)
            return Failure{recorded.message()};
        return copy;
    };
    auto copy = written();
    if (!copy) {
        persistence::discardFreshCopy(place);
        return Failure{copy.message()};
    }
    const QString folder = place.folder;
    m_singleFile = std::move(file);
    moveTo(folder, std::move(copy).value());
    return {};
}

Result<Workspace::SavedCopy> Workspace::writeCopy(const QString& folder)
{
    if (!QDir().mkpath(folder))
        return placeFailure(QT_TRANSLATE_NOOP("Workspace", "Cannot create project folder: %1"), folder);
    if (hasPath()) {
        if (auto copied = copyOtherFiles(m_folderPath, folder); !copied)
            return Failure{copied.message()};
    }
    SavedCopy copy{persistence::DiskState(m_environment.fileSystem, m_environment.clock), {}};
    copy.disk.recordUnseen(folder);
    persistence::FolderSaver saver(m_environment, folder, copy.disk, copy.saved);
    if (auto written = saver.saveProject(*m_project, SaveExtent::Everything); !written)
        return Failure{written.message()};
    return copy;
}

void Workspace::moveTo(const QString& folder, SavedCopy copy)
{
    m_folderPath = folder;
    m_openedFolderFingerprint = std::move(copy.disk);
    m_saved = std::move(copy.saved);
    m_fullSaveDue = false;
    m_isCopyAhead = false;
    m_assets.record(folder);
    m_openingNotice = {};
    m_undoStack.setClean();
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
    if (auto possible = checkReload(); !possible)
        return possible;
    const QString path = displayPath();
    return load(path, BundlePurpose::Reload);
}

Result<void> Workspace::discardUnsaved()
{
    return m_isCopyAhead ? persistence::forgetRecord(m_environment.fileSystem, m_singleFile->workingCopy())
                         : Result<void>();
}

void Workspace::acceptDisk(persistence::DiskState seen)
{
    m_openedFolderFingerprint = std::move(seen);
}

void Workspace::acceptArchive(persistence::ArchiveState seen)
{
    m_singleFile = persistence::SingleFile(m_environment, m_singleFile->workingCopy(), std::move(seen));
}

void Workspace::overwriteAtNextSave(const QStringList& relativePaths)
{
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

bool Workspace::isBundleChangedOnDisk()
{
    return m_singleFile && m_singleFile->isChangedOnDisk();
}

Result<persistence::Backup> Workspace::backup(const QDateTime& timestamp) const
{
    const auto request = persistence::backupRequest(m_environment, displayPath(), m_folderPath, timestamp);
    if (!hasPath())
        return persistence::backupProject(m_environment, request);
    // Not while another program is half-way through a save.
    const auto lock = persistence::ProjectLock::acquire(displayPath(), m_environment.dataFolder);
    return lock ? persistence::backupProject(m_environment, request) : Failure{lock.message()};
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

bool Workspace::followLibraryMounts()
{
    if (m_project->libraryMounts() == m_readMounts)
        return false;
    reloadLibraries();
    return true;
}

void Workspace::reloadLibraries()
{
    m_libraries.clear();
    m_libraryNotices.clear();
    m_readMounts = m_project->libraryMounts();
    // Nobody knows where the working copy of a single file lies.
    const QDir base(baseOfRelativePaths(displayPath()));
    for (const core::project::LibraryMount& mount : m_project->libraryMounts()) {
        const QString path = QDir::cleanPath(base.absoluteFilePath(mount.path));
        auto loaded = loadLibrary(m_environment.fileSystem, path);
        if (!loaded) {
            m_libraryNotices.append(
                translated(QT_TRANSLATE_NOOP("Workspace", "The library %1 could not be read: %2"))
                    .arg(QDir::toNativeSeparators(mount.path), loaded.message()));
            continue;
        }
        std::unique_ptr<Project> project = std::move(loaded.value().project);
        const QString name = project->name().isEmpty() ? nameOfPlace(path) : project->name();
        m_libraries.push_back({name, path, std::move(project)});
    }
}

} // namespace tw::app::workspace
