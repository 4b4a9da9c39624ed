#include "app/workspace/WriteAdvice.h"

#include "app/persistence/files/ProjectFiles.h"
#include "app/workspace/ProjectPlace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringBuilder>

namespace tw::app::workspace {

using persistence::WriteObstacle;

QString writeAdvice(persistence::FileSystem& fileSystem, const QString& folder, qint64 bytes)
{
    const auto aboutFolder = [&folder](const char* text) {
        return QCoreApplication::translate("Workspace", text).arg(QDir::toNativeSeparators(folder));
    };
    switch (fileSystem.obstacleAt(folder, bytes)) {
    case WriteObstacle::None:
        break;
    case WriteObstacle::DiskFull:
        return aboutFolder(
            QT_TRANSLATE_NOOP("Workspace", "The disk of %1 is full. Free some space there, then try again."));
    case WriteObstacle::NotWritable:
        return aboutFolder(QT_TRANSLATE_NOOP(
            "Workspace",
            "Nothing may be written in %1. Allow it there, or choose another place, then try again."));
    }
    return {};
}

QString withWriteAdvice(
    const persistence::StorageEnvironment& environment, const QString& message, const QString& path)
{
    persistence::FileSystem& fileSystem = environment.fileSystem;
    QStringList places{
        path, path % u'/' % persistence::objectsFolder, path % u'/' % persistence::taxonomyFolder};
    qint64 bytes = 0;
    if (isSingleFile(path)) {
        places = {QFileInfo(path).path()};
        // Written anew as a whole before the old one goes.
        bytes = fileSystem.stamp(path).value_or(persistence::FileStamp()).size;
    }
    places.append(environment.dataFolder);
    for (const QString& place : std::as_const(places)) {
        const QString advice = writeAdvice(fileSystem, place, bytes);
        if (!advice.isEmpty())
            return advice + u' ' + message;
    }
    return message;
}

} // namespace tw::app::workspace
