#include "desktop/project/ProjectBackups.h"

#include "app/persistence/bundle/BackupList.h"
#include "app/workspace/WriteAdvice.h"
#include "desktop/project/RestoreDialog.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>

namespace tw::desktop::project {

using app::persistence::StorageEnvironment;

namespace {

QString nameInBackups(const app::workspace::Workspace& workspace)
{
    if (!workspace.hasPath())
        return {};
    return app::persistence::backupRequest(workspace.environment(), workspace.displayPath(), {}, {}).name;
}

} // namespace

ProjectBackups::ProjectBackups(const shell::DeskContext& desk, QWidget* window)
    : QObject(window)
    , m_desk(desk)
    , m_window(window)
{}

void ProjectBackups::backUp()
{
    if (m_save && !m_save())
        return;
    const auto backup = m_desk.session.workspace().backup(QDateTime::currentDateTime());
    if (!backup) {
        const app::workspace::Workspace& workspace = m_desk.session.workspace();
        const QString folder = app::persistence::backupsFolder(workspace.environment());
        shell::tell(
            m_window, tr("Back Up Project"),
            app::workspace::withWriteAdvice(workspace.environment(), backup.message(), folder));
        return;
    }
    emit said(tr("Backed up project to %1").arg(QDir::toNativeSeparators(backup.value().path)));
}

void ProjectBackups::chooseAndRestore()
{
    restore({});
}

bool ProjectBackups::restore(const QString& backupPath)
{
    const app::workspace::Workspace& workspace = m_desk.session.workspace();
    const StorageEnvironment& environment = workspace.environment();
    RestoreSubject subject{
        app::persistence::listBackups(environment), nameInBackups(workspace), backupPath,
        withFreeName({tr("Restored project"), usualFolder(m_desk.settings), preferredForm(m_desk.settings)})};
    RestoreDialog dialog(m_desk, std::move(subject), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const Restoration chosen = dialog.restoration();
    const QString path = pathOf(chosen.place);
    if (const auto made = app::persistence::restoreBackup(environment, chosen.backupPath, path); !made) {
        shell::tell(
            m_window, tr("Restore from a Backup"),
            app::workspace::withWriteAdvice(environment, made.message(), path));
        return false;
    }
    setUsualFolder(m_desk.settings, chosen.place.folder);
    emit restored(path);
    return true;
}

void ProjectBackups::revealFolder()
{
    const StorageEnvironment& environment = m_desk.session.workspace().environment();
    const QString folder = app::persistence::backupsFolder(environment);
    const bool isShown =
        environment.fileSystem.makeFolders(folder) && QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    if (!isShown) {
        shell::tell(
            m_window, tr("Backups Folder"),
            tr("The folder could not be shown. It is here:\n%1").arg(QDir::toNativeSeparators(folder)));
    }
}

} // namespace tw::desktop::project
