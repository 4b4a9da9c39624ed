#pragma once

#include "core/foundation/Id.h"
#include "core/foundation/Result.h"

#include <QString>
#include <QStringView>

namespace tw::app::persistence {

/** The files and folders of a project, relative to its root. */
inline constexpr QStringView projectFileName = u"project.json";
inline constexpr QStringView objectsFolder = u"objects";
inline constexpr QStringView taxonomyFolder = u"taxonomy";
inline constexpr QStringView assetsFolder = u"assets";

/**
 * Whether the path, relative to the root and with "/" separators, is one of the files that hold the project:
 * these take part in change detection and merging.
 */
[[nodiscard]] bool isProjectFile(QStringView relativePath);

/** Where an object's file is: named by its id alone, so that it never moves. */
[[nodiscard]] QString objectPath(const core::ContentId& id);
[[nodiscard]] QString categoryPath(const core::CategoryId& id);

/**
 * Whether the path is that of a JSON file directly in the folder, as objects and categories are; files
 * further down and hidden ones are not read.
 */
[[nodiscard]] bool isJsonFileIn(QStringView folder, QStringView relativePath);

/**
 * Copies a file into the project's assets under a name that is still free. Gives the path to store in the
 * object, "assets/map-1.png".
 */
[[nodiscard]] core::Result<QString> importAsset(const QString& projectFolder, const QString& sourceFile);

} // namespace tw::app::persistence
