#include "desktop/project/ProjectFileDialogs.h"

#include "app/persistence/bundle/BackupList.h"
#include "app/persistence/bundle/ProjectBundle.h"
#include "app/workspace/ProjectPlace.h"
#include "desktop/project/NewPlace.h"
#include "desktop/shell/Questions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectFileDialogs", text);
}

QString anyFile()
{
    return translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "All files (*)"));
}

} // namespace

QString askForProjectFile(const QSettings& settings, QWidget* parent)
{
    const QString filters =
        translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Projects (*.vellory *.tarnwick)")) + u";;"_s +
        translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Backups (*.twbackup)")) + u";;"_s + anyFile();
    return QFileDialog::getOpenFileName(
        parent, translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Open Project")), usualFolder(settings),
        filters);
}

QString askForProjectFolder(const QSettings& settings, QWidget* parent)
{
    return QFileDialog::getExistingDirectory(
        parent, translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Open Project Folder")),
        usualFolder(settings));
}

QString askForBackupFile(const QString& folder, QWidget* parent)
{
    return QFileDialog::getOpenFileName(
        parent, translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Choose a Backup")), folder,
        translated(QT_TRANSLATE_NOOP(
            "ProjectFileDialogs", "Backups and projects (*.twbackup *.vellory *.tarnwick)")) +
            u";;"_s + anyFile());
}

QString askForSavePath(const QSettings& settings, const QString& name, QWidget* parent)
{
    const QString fileFilter = translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "One file (*.vellory)"));
    const QString folderFilter = translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "A folder (*)"));
    QString filter = preferredForm(settings) == ProjectForm::Folder ? folderFilter : fileFilter;
    // A dialog that is given the path of a folder goes into it instead of suggesting its name.
    QString suggestion = pathOf(withFreeName({name, usualFolder(settings), ProjectForm::Folder}));
    for (;;) {
        // Whether something is replaced is known only when the ending is.
        const QString chosen = QFileDialog::getSaveFileName(
            parent, translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Save Project As")), suggestion,
            fileFilter + u";;"_s + folderFilter, &filter, QFileDialog::DontConfirmOverwrite);
        if (chosen.isEmpty())
            return {};
        const QString path =
            pathToSaveAt(chosen, filter == folderFilter ? ProjectForm::Folder : ProjectForm::SingleFile);
        if (!QFileInfo(path).isFile())
            return path;
        const shell::Question question{
            translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Save Project As")),
            translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "There is already a file at %1."))
                .arg(QDir::toNativeSeparators(path)),
            {{translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Choose Another Name"))},
             {translated(QT_TRANSLATE_NOOP("ProjectFileDialogs", "Replace the File")),
              QMessageBox::DestructiveRole}}};
        const auto answer = shell::ask(parent, question);
        if (!answer)
            return {};
        if (*answer == 1)
            return path;
        suggestion = path;
    }
}

QString projectIn(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.constFirst().isLocalFile())
        return {};
    const QString path = QDir::cleanPath(urls.constFirst().toLocalFile());
    const bool isFile = app::persistence::isBundlePath(path) || app::persistence::isBackupPath(path);
    return isFile || app::workspace::holdsProject(path) ? path : QString();
}

} // namespace tw::desktop::project
