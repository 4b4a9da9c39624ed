#include "desktop/project/NewPlace.h"

#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/bundle/WorkingCopy.h"
#include "app/workspace/ProjectPlace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace tw::desktop::project {

using core::Failure;
using core::Result;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView formKey = "general/folderProjects"_L1;
constexpr QLatin1StringView folderKey = "general/projectsFolder"_L1;
const QString bundleEnding = u".vellory"_s;

QString translated(const char* text)
{
    return QCoreApplication::translate("NewPlace", text);
}

Failure failure(const char* text, const QString& path)
{
    return {translated(text).arg(QDir::toNativeSeparators(path))};
}

} // namespace

QString formTitle(ProjectForm form)
{
    return form == ProjectForm::SingleFile
               ? translated(QT_TRANSLATE_NOOP("NewPlace", "One file (recommended)"))
               : translated(QT_TRANSLATE_NOOP("NewPlace", "A folder"));
}

QString formExplanation(ProjectForm form)
{
    return form == ProjectForm::SingleFile
               ? translated(QT_TRANSLATE_NOOP(
                     "NewPlace", "The project is one .vellory file you can copy, back up, and double-click."))
               : translated(QT_TRANSLATE_NOOP(
                     "NewPlace", "The project is a folder of plain text files, ideal under Git, Perforce, "
                                 "or a sync client."));
}

ProjectForm preferredForm(const QSettings& settings)
{
    return settings.value(formKey).toString() == u"true" ? ProjectForm::Folder : ProjectForm::SingleFile;
}

void setPreferredForm(QSettings& settings, ProjectForm form)
{
    settings.setValue(formKey, form == ProjectForm::Folder ? u"true"_s : u"false"_s);
}

QString pathOf(const NewPlace& place)
{
    QString name = app::persistence::safeFileName(place.name.trimmed());
    if (place.form == ProjectForm::SingleFile) {
        name += bundleEnding;
    } else if (app::persistence::isBundlePath(name)) {
        // A folder that ends as a file does would be taken for one.
        name.replace(u'.', u'-');
    }
    return QDir::cleanPath(place.folder.trimmed() + u'/' + name);
}

Result<void> checkPlace(const NewPlace& place)
{
    if (place.name.trimmed().isEmpty())
        return Failure{translated(QT_TRANSLATE_NOOP("NewPlace", "Give the project a name."))};
    const QString folder = place.folder.trimmed();
    if (folder.isEmpty() || QDir::isRelativePath(folder)) {
        return Failure{translated(QT_TRANSLATE_NOOP("NewPlace", "Choose a folder for the project."))};
    }
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir())
        return failure(QT_TRANSLATE_NOOP("NewPlace", "%1 is not a folder. Choose another place."), folder);
    if (info.exists() && !info.isWritable()) {
        return failure(
            QT_TRANSLATE_NOOP("NewPlace", "Nothing can be written in %1. Choose another place."), folder);
    }
    if (app::workspace::holdsProject(folder)) {
        return failure(
            QT_TRANSLATE_NOOP("NewPlace", "%1 is the folder of another project. Choose another place."),
            folder);
    }
    if (const QString path = pathOf(place); QFileInfo::exists(path)) {
        return failure(
            QT_TRANSLATE_NOOP(
                "NewPlace", "There is already something at %1, and it is not replaced. Choose another name "
                            "or another place."),
            path);
    }
    return {};
}

NewPlace withFreeName(NewPlace place)
{
    const QString name = place.name;
    for (int number = 2; QFileInfo::exists(pathOf(place)); ++number)
        place.name = u"%1 %2"_s.arg(name).arg(number);
    return place;
}

QString pathToSaveAt(const QString& chosen, ProjectForm form)
{
    const QFileInfo info(chosen);
    // The former ending is read, never given.
    if (app::persistence::isBundlePath(chosen) && !info.isDir())
        return info.path() + u'/' + info.completeBaseName() + bundleEnding;
    return form == ProjectForm::SingleFile ? chosen + bundleEnding : chosen;
}

QString usualFolder(const QSettings& settings)
{
    const QString folder = settings.value(folderKey).toString();
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        return folder;
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void setUsualFolder(QSettings& settings, const QString& folder)
{
    settings.setValue(folderKey, folder);
}

} // namespace tw::desktop::project
