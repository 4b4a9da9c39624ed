#pragma once

#include "app/persistence/files/FileSystem.h"

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
[[nodiscard]] std::optional<QString> writeTemporary(const QString& target, const QByteArray& bytes);
[[nodiscard]] bool replaceFile(const QString& from, const QString& to);
[[nodiscard]] bool syncFolder(const QString& path);

enum class Linkage
{
    Direct,
    SymbolicLink, ///< The stamp is that of the file behind the link.
};

struct FolderVisitor
{
    /** Whether a file of this name is worth a look. */
    std::function<bool(QStringView name)> wants;
    std::function<void(QString relativePath, Linkage linkage, const FileStamp& stamp)> found;
};

/**
 * Visits the regular files below a folder in no particular order. Names that begin with a dot are left out,
 * links to folders are not followed. False when some folder could not be read to its end; a missing root
 * counts as one.
 */
[[nodiscard]] bool walkFolder(const QString& root, const FolderVisitor& visitor);

} // namespace tw::app::persistence::platform
