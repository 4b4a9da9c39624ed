#pragma once

#include <QString>

class QMimeData;
class QSettings;
class QWidget;

namespace tw::desktop::project {

/** The file dialogs for projects. Each gives an empty path when it was left. */

[[nodiscard]] QString askForProjectFile(const QSettings& settings, QWidget* parent);
[[nodiscard]] QString askForProjectFolder(const QSettings& settings, QWidget* parent);
[[nodiscard]] QString askForBackupFile(const QString& folder, QWidget* parent);

/** Where to save a project of that name. Asks before a file that is there is replaced. */
[[nodiscard]] QString askForSavePath(const QSettings& settings, const QString& name, QWidget* parent);

/** The one project, as a file, a backup or a folder, that is dragged along; empty when there is none. */
[[nodiscard]] QString projectIn(const QMimeData& data);

} // namespace tw::desktop::project
