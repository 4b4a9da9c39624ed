#include "app/persistence/merge/ProjectMerge.h"

#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/json/JsonRead.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::app::persistence {

namespace {

FileVersion versionIn(const ProjectFileMap& files, const QString& path)
{
    const auto file = files.find(path);
    return file == files.end() ? std::nullopt : FileVersion(file->second);
}

void put(ProjectFileMap& files, const QString& path, const FileVersion& version)
{
    if (version)
        files.insert_or_assign(path, *version);
    else
        files.erase(path);
}

/** The path under which a save writes what this file holds; empty when it holds nothing of the kind. */
QString ownPath(const QString& path, const QByteArray& bytes)
{
    JsonTree tree;
    if (!tree.parse(bytes))
        return {};
    const JsonNode id = tree.root().value(QLatin1StringView("id"));
    if (isJsonFileIn(objectsFolder, path))
        return objectPath(readId<core::ContentId>(id));
    return isJsonFileIn(taxonomyFolder, path) ? categoryPath(readId<core::CategoryId>(id)) : QString();
}

} // namespace

ProjectMerge::ProjectMerge(ProjectVersions versions)
    : m_versions(std::move(versions))
{
    followNamesOnDisk();
    // Both maps are sorted: walked side by side, they show every path that either has.
    auto base = m_versions.base.cbegin();
    auto theirs = m_versions.theirs.cbegin();
    const auto baseEnd = m_versions.base.cend();
    const auto theirsEnd = m_versions.theirs.cend();
    while (base != baseEnd || theirs != theirsEnd) {
        const bool hasTheirs = theirs != theirsEnd && (base == baseEnd || theirs->first <= base->first);
        const bool hasBase = base != baseEnd && (theirs == theirsEnd || base->first <= theirs->first);
        if (!hasBase || !hasTheirs || base->second != theirs->second)
            compare(hasBase ? base->first : theirs->first);
        if (hasBase)
            ++base;
        if (hasTheirs)
            ++theirs;
    }
}

/** Has mine hold each file under the name it has on disk, where that is not the one a save would give it. */
void ProjectMerge::followNamesOnDisk()
{
    ProjectFileMap& mine = m_versions.mine;
    for (const auto& [path, bytes] : m_versions.base) {
        if (mine.contains(path))
            continue;
        if (!isLoadedFile(path)) {
            // It lies among the project's files, but nothing was made of it here that could have changed.
            mine.emplace(path, bytes);
            continue;
        }
        const auto own = mine.find(ownPath(path, bytes));
        if (own == mine.end() || m_versions.base.contains(own->first))
            continue;
        mine.emplace(path, std::move(own->second));
        mine.erase(own);
    }
}

void ProjectMerge::compare(const QString& path)
{
    const FileVersion theirs = versionIn(m_versions.theirs, path);
    if (theirs && isLoadedFile(path) && !canonicalForm(path, *theirs)) {
        m_unreadable.append(path);
        return;
    }
    FileMerge merge =
        mergeFile(path, {versionIn(m_versions.base, path), versionIn(m_versions.mine, path), theirs});
    if (merge.standing != FileStanding::SameEdit)
        m_changes.push_back(std::move(merge));
}

std::vector<const FileMerge*> ProjectMerge::conflicts() const
{
    std::vector<const FileMerge*> conflicts;
    for (const FileMerge& change : m_changes) {
        if (change.standing == FileStanding::Conflict)
            conflicts.push_back(&change);
    }
    return conflicts;
}

void ProjectMerge::resolve(const QString& path, Resolution resolution)
{
    const auto change = std::ranges::lower_bound(m_changes, path, {}, &FileMerge::path);
    const bool isConflict =
        change != m_changes.end() && change->path == path && change->standing == FileStanding::Conflict;
    Q_ASSERT(isConflict && (resolution != Resolution::Paragraphs || change->byParagraphs));
    if (isConflict)
        m_resolutions.insert(path, resolution);
}

bool ProjectMerge::hasOpenConflicts() const
{
    return std::ranges::any_of(conflicts(), [this](const FileMerge* conflict) {
        return resolutionOf(conflict->path) == Resolution::Open;
    });
}

core::Result<ProjectFileMap> ProjectMerge::applied() const
{
    if (hasOpenConflicts()) {
        return core::Failure{
            QCoreApplication::translate("Persistence", "the reconcile has conflicts to resolve first")};
    }
    ProjectFileMap files = m_versions.mine;
    for (const FileMerge& change : m_changes) {
        if (change.standing != FileStanding::Conflict) {
            put(files, change.path, change.result);
            continue;
        }
        switch (resolutionOf(change.path)) {
        case Resolution::Open:
        case Resolution::Mine:
            break;
        case Resolution::Theirs:
            put(files, change.path, change.versions.theirs);
            break;
        case Resolution::Paragraphs:
            put(files, change.path, change.byParagraphs);
            break;
        }
    }
    if (const auto project = parseProject(files); !project)
        return core::Failure{project.message()};
    return files;
}

} // namespace tw::app::persistence
