#include "app/persistence/files/JsonFile.h"

#include "app/persistence/json/JsonWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>

namespace tw::app::persistence {

namespace {

bool holdsAlready(FileSystem& fileSystem, const QString& path, const QByteArray& bytes)
{
    const std::optional<FileStamp> stamp = fileSystem.stamp(path);
    if (!stamp || stamp->size != bytes.size())
        return false;
    const std::optional<FileContent> content = fileSystem.readFile(path);
    return content && content->bytes == bytes;
}

} // namespace

core::Failure cannotRead(const QString& path)
{
    return {QCoreApplication::translate("Persistence", "Cannot read file: %1").arg(path)};
}

core::Failure invalidJson(const QString& path)
{
    return {QCoreApplication::translate("Persistence", "Invalid JSON in file: %1").arg(path)};
}

core::Result<QJsonObject> readJsonFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannotRead(path);
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        return invalidJson(path);
    return document.object();
}

core::Result<void> writeJsonFile(
    FileSystem& fileSystem, SafeWriter& writer, const QString& path, const QByteArray& bytes)
{
    if (holdsAlready(fileSystem, path, bytes))
        return {};
    return writer.write({path, bytes});
}

core::Result<void> writeJsonFile(const QString& path, const QJsonObject& object)
{
    QByteArray bytes;
    JsonWriter(bytes).writeValue(object);
    DiskFileSystem fileSystem;
    SafeWriter writer(fileSystem);
    if (const core::Result<void> result = writeJsonFile(fileSystem, writer, path, bytes); !result)
        return result;
    return writer.syncFolders();
}

} // namespace tw::app::persistence
