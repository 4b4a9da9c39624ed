#include "app/persistence/files/JsonFile.h"

#include "app/persistence/json/JsonWriter.h"

#include <QCoreApplication>
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

core::Result<QJsonObject> readJsonFile(FileSystem& fileSystem, const QString& path)
{
    const std::optional<FileContent> content = fileSystem.readFile(path);
    if (!content)
        return cannotRead(path);
    const QJsonDocument document = QJsonDocument::fromJson(content->bytes);
    if (!document.isObject())
        return invalidJson(path);
    return document.object();
}

core::Result<void> writeJsonFile(
    FileSystem& fileSystem, SafeWriter& writer, const QString& path, const QJsonObject& object)
{
    QByteArray bytes;
    JsonWriter(bytes).writeValue(object);
    if (holdsAlready(fileSystem, path, bytes))
        return {};
    return writer.write({path, bytes});
}

} // namespace tw::app::persistence
