#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "core/foundation/Result.h"
#include "core/project/Project.h"
#include "core/taxonomy/Category.h"
#include "core/undo/Command.h"

#include <QString>

#include <memory>
#include <set>
#include <vector>

namespace tw::app::persistence {

/** What a content pack tells about itself. */
struct PackInfo
{
    QString name;
    QString description;
    QString author;
    QString version;

    bool operator==(const PackInfo&) const = default;
};

/** A folder of categories on their way from one project to another. */
struct ContentPack
{
    PackInfo info;
    std::vector<core::taxonomy::Category> categories; ///< By the names of their files.
};

/** The selected categories, their parents, and those that references in all of these point at. */
[[nodiscard]] std::set<core::CategoryId> packedCategories(
    const core::taxonomy::Taxonomy& taxonomy, const std::set<core::CategoryId>& selected);

/**
 * Writes those categories as a pack into a folder that is new, empty, or holds an earlier pack, whose
 * categories it replaces. The pack is announced by its description last, so that a pack that is only half
 * written is none.
 */
[[nodiscard]] core::Result<void> exportPack(
    const StorageEnvironment& environment, const core::project::Project& project,
    const std::set<core::CategoryId>& selected, const PackInfo& info, const QString& folder);

/** Reads a pack and checks it whole: a category stands in one file, and no category is above itself. */
[[nodiscard]] core::Result<ContentPack> readPack(FileSystem& fileSystem, const QString& folder);

/**
 * What of a pack the project lacks, under the pack's own ids, ready to be added: a category whose parent
 * neither of them has stands at the top level, a reference to such a category points at any.
 */
[[nodiscard]] std::vector<core::taxonomy::Category> missingCategories(
    const core::project::Project& project, const ContentPack& pack);

/** Adds what is missing as one step; null when nothing is. */
[[nodiscard]] std::unique_ptr<core::undo::Command> importPack(
    core::project::Project& project, const ContentPack& pack);

} // namespace tw::app::persistence
