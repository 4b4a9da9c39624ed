#pragma once

#include "app/persistence/files/FileSystem.h"
#include "app/persistence/files/FolderScan.h"

#include <QStringView>

#include <functional>

/**
 * The few file operations for which every system has calls of its own: one implementation for POSIX systems,
 * a plainer one on Qt alone for the others. Nothing else asks which system it runs on.
 */
namespace tw::app::persistence::platform {

/** Begins the name of every temporary file, hidden so that it is no part of a project. */
inline constexpr QLatin1StringView temporaryPrefix(".vellory-save-");

[[nodiscard]] std::optional<FileContent> readFile(const QString& path);
[[nodiscard]] std::optional<FileStamp> stampOf(const QString& path);
[[nodiscard]] std::optional<QString> writeTemporary(
    const QString& target, const QByteArray& bytes, Durability durability);
[[nodiscard]] bool syncFile(const QString& path);
[[nodiscard]] bool syncFileSystem(const QString& folder);
[[nodiscard]] FileHold holdFile(const QString& path);
[[nodiscard]] bool replaceFile(const QString& from, const QString& to);
[[nodiscard]] bool syncFolder(const QString& path);

using NameFilter = std::function<bool(QStringView name)>;

enum class Stamps
{
    Taken,
    OfLinks, ///< What else the system tells only together with its stamp may have one too.
};

/**
 * The regular files below a folder whose names the filter wants, as scanFolder tells them. The filter is
 * called from several threads; the earlier scan must have been made with the same one.
 */
[[nodiscard]] FolderScan walkFolder(
    const QString& root, const NameFilter& wants, Stamps stamps, const FolderScan& earlier);

} // namespace tw::app::persistence::platform
