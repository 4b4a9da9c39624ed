#include "app/persistence/journal/JournalRestore.h"

#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/merge/LineMerge.h"

#include <QJsonDocument>

namespace tw::app::persistence {

namespace {

bool isReadable(const QString& path, const QByteArray& bytes)
{
    if (!isJsonFileIn(objectsFolder, path))
        return QJsonDocument::fromJson(bytes).isObject();
    ParseScratch scratch;
    return parseObject(bytes, path, scratch).isOk();
}

/** The object of a file as this program would write it; the bytes themselves where there is none. */
QByteArray asWritten(const QString& path, const QByteArray& bytes)
{
    if (!isJsonFileIn(objectsFolder, path))
        return bytes;
    ParseScratch scratch;
    const auto object = parseObject(bytes, path, scratch);
    return object ? serializeObject(*object.value()) : bytes;
}

/** A merge that was cut short has written what the journal holds, but with what no reader keeps left out. */
bool isSaved(const QString& path, const FileVersion& now, const FileVersion& journaled)
{
    return now && journaled && asWritten(path, *now) == asWritten(path, *journaled);
}

} // namespace

JournalRestore planRestore(
    const Journal& journal, const std::function<FileVersion(const QString& path)>& present)
{
    JournalRestore restore;
    for (const auto& [path, file] : journal.files) {
        const FileVersion now = present(path);
        if (now == file.bytes)
            continue;
        FileVersion restored = file.bytes;
        if (now != file.base) {
            // The journal's own lines are the writer's last words: in doubt they stand.
            const bool isMergeable = now && file.base && file.bytes;
            if (isSaved(path, now, file.bytes))
                continue;
            const LineMerge merge = isMergeable ? mergeLines(*file.base, *file.bytes, *now) : LineMerge();
            if (isMergeable && merge.isClean() && isReadable(path, merge.text))
                restored = merge.text;
            else
                restore.overridden.append(path);
        }
        if (restored != now)
            restore.files.emplace(path, std::move(restored));
    }
    return restore;
}

JournalRestore planRestore(
    const std::vector<AbandonedJournal>& journals,
    const std::function<FileVersion(const QString& path)>& present)
{
    JournalRestore all;
    for (const AbandonedJournal& journal : journals) {
        JournalRestore restore = planRestore(journal.content(), [&](const QString& path) {
            const auto restored = all.files.find(path);
            return restored != all.files.end() ? restored->second : present(path);
        });
        all.overridden += restore.overridden;
        for (auto& [path, bytes] : restore.files)
            all.files.insert_or_assign(path, std::move(bytes));
    }
    return all;
}

} // namespace tw::app::persistence
