#pragma once

#include "app/workspace/Workspace.h"
#include "core/foundation/Result.h"

#include <QStringList>

#include <optional>

namespace tw::app::mcp {

/** Larger files are not imported. */
inline constexpr qint64 mostImportedBytes = 20 * 1024 * 1024;

/** "image", "audio", "video", "pdf", "other": what a media asset can be, by the name of the file format. */
[[nodiscard]] const QStringList& mediaKinds();
/** By the extension; none for files that are not imported. */
[[nodiscard]] std::optional<QString> mediaKindOfFile(const QString& path);

/** A file that may come into the project. */
struct ImportableFile
{
    /** Absolute. */
    QString path;
    QString mediaKind;
};

/**
 * Looks whether a file may be imported: there, of a known extension, at most 20 MB, and without a folder or
 * name that begins with a dot, also where links lead. Relative paths start at the project. Reads nothing of
 * the file. The message is the answer of the tool.
 */
[[nodiscard]] core::Result<ImportableFile> findImportableFile(
    const workspace::Workspace& workspace, const QString& path);

/** Brings the file into the project's assets, unless it lies there; gives the path to store. */
[[nodiscard]] core::Result<QString> importIntoAssets(
    workspace::Workspace& workspace, const ImportableFile& file);

} // namespace tw::app::mcp
