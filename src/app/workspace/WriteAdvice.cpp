#include "app/workspace/WriteAdvice.h"

#include "app/workspace/ProjectPlace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

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
    // A single file is written anew as a whole before the old one goes.
    const bool isFile = isSingleFile(path);
    const auto present = isFile ? fileSystem.stamp(path) : std::nullopt;
    QString advice =
        writeAdvice(fileSystem, isFile ? QFileInfo(path).path() : path, present ? present->size : 0);
    if (advice.isEmpty())
        advice = writeAdvice(fileSystem, environment.dataFolder);
    return advice.isEmpty() ? message : advice + u' ' + message;
}

} // namespace tw::app::workspace
