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
