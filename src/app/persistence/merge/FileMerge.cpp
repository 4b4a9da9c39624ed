#include "app/persistence/merge/FileMerge.h"

#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/merge/LineMerge.h"
#include "core/document/Document.h"
#include "core/project/Project.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <map>

namespace tw::app::persistence {

using core::content::ContentKind;
using core::document::BodyFormat;
using core::document::Document;
using core::document::DocumentBody;

namespace {

/** The value of "id" in a file; nothing in one that has none, as project.json. */
QString idIn(const QByteArray& bytes)
{
    JsonTree tree;
    return tree.parse(bytes) ? tree.root().value(QLatin1StringView("id")).text() : QString();
}

std::unique_ptr<Document> documentIn(const QString& path, const QByteArray& bytes)
{
    ParseScratch scratch;
    auto object = parseObject(bytes, path, scratch);
    if (!object || object.value()->kind() != ContentKind::Document)
        return nullptr;
    return std::unique_ptr<Document>(static_cast<Document*>(std::move(object).value().release()));
}

/** Sets FileMerge::byParagraphs; all three versions are there. */
void mergeByParagraphs(FileMerge& merge)
{
    const QString& path = merge.path;
    const FileVersions& versions = merge.versions;
    if (!isJsonFileIn(objectsFolder, path))
        return;
    const std::unique_ptr<Document> base = documentIn(path, *versions.base);
    const std::unique_ptr<Document> mine = documentIn(path, *versions.mine);
    const std::unique_ptr<Document> theirs = documentIn(path, *versions.theirs);
    if (!base || !mine || !theirs)
        return;
    const auto format = base->body().format;
    if (mine->body().format != format || theirs->body().format != format)
        return;
    const LineMerge text =
        mergeLines(base->body().text.toUtf8(), mine->body().text.toUtf8(), theirs->body().text.toUtf8());
    // Between the tags of an older body marks would not be seen.
    if (!text.isClean() && format != BodyFormat::Markdown)
        return;
    // The last mark is a line; the text need not end in one.
    const bool endsInLine = mine->body().text.endsWith(u'\n') || theirs->body().text.endsWith(u'\n');
    QString merged = QString::fromUtf8(text.text);
    if (!endsInLine && merged.endsWith(u'\n'))
        merged.chop(1);
    // With the same text everywhere, whatever still conflicts is something else.
    for (Document* const document : {base.get(), mine.get(), theirs.get()})
        document->setBody(DocumentBody{merged, format});
    auto file =
        mergeProjectFile(path, serializeObject(*base), serializeObject(*mine), serializeObject(*theirs));
    if (!file)
        return;
    merge.byParagraphs = std::move(file).value();
    merge.hasMarks = !text.isClean();
}

using WritingLog = std::vector<core::writing::WritingLogEntry>;

std::map<QString, quint64> wordsByDay(const WritingLog& log)
{
    // Unsigned, since a file may hold numbers whose sum has no room.
    std::map<QString, quint64> words;
    for (const auto& [date, count] : log)
        words[date] += static_cast<quint64>(count);
    return words;
}

/** Mine, with what others wrote on each day since the base. */
WritingLog joinedLog(const WritingLog& base, WritingLog mine, const WritingLog& theirs)
{
    std::map<QString, quint64> before = wordsByDay(base);
    for (const auto& [date, words] : wordsByDay(theirs)) {
        const quint64 gain = words - before[date];
        if (gain == 0)
            continue;
        const auto day = std::ranges::find(mine, date, &core::writing::WritingLogEntry::date);
        if (day != mine.end()) {
            day->words = static_cast<qint64>(static_cast<quint64>(day->words) + gain);
            continue;
        }
        const auto later =
            std::ranges::find_if(mine, [&logged = date](const auto& entry) { return entry.date > logged; });
        mine.insert(later, {date, static_cast<qint64>(gain)});
    }
    return mine;
}

/**
 * Gives all three versions of project.json one log of the words of each day: two machines that were written
 * on the same day would otherwise always be in conflict over a number that both of them merely add to.
 */
void joinWritingLogs(QByteArray& base, QByteArray& mine, QByteArray& theirs)
{
    std::array<core::project::Project, 3> projects;
    std::size_t read = 0;
    for (const QByteArray* const bytes : {&base, &mine, &theirs}) {
        if (!readProjectDocument(*bytes, projectFileName.toString(), projects[read++]))
            return;
    }
    auto& [before, ours, others] = projects;
    if (ours.writingLog() == before.writingLog() || others.writingLog() == before.writingLog())
        return;
    const WritingLog joined = joinedLog(before.writingLog(), ours.writingLog(), others.writingLog());
    for (core::project::Project& project : projects)
        project.setWritingLog(joined);
    base = serializeProjectDocument(before);
    mine = serializeProjectDocument(ours);
    theirs = serializeProjectDocument(others);
}

} // namespace

bool isLoadedFile(const QString& path)
{
    return path == projectFileName || isJsonFileIn(objectsFolder, path) || isJsonFileIn(taxonomyFolder, path);
}

FileVersion canonicalForm(const QString& path, const QByteArray& bytes)
{
    ParseScratch scratch;
    if (isJsonFileIn(objectsFolder, path)) {
        const auto object = parseObject(bytes, path, scratch);
        return object ? FileVersion(serializeObject(*object.value())) : std::nullopt;
    }
    if (isJsonFileIn(taxonomyFolder, path)) {
        const auto category = parseCategory(bytes, path, scratch);
        return category ? FileVersion(serializeCategory(category.value())) : std::nullopt;
    }
    core::project::Project project;
    if (path != projectFileName || !readProjectDocument(bytes, path, project))
        return std::nullopt;
    return serializeProjectDocument(project);
}

core::Result<QByteArray> mergeProjectFile(
    const QString& path, const QByteArray& base, const QByteArray& mine, const QByteArray& theirs)
{
    FileVersion plainBase = canonicalForm(path, base);
    FileVersion plainTheirs = canonicalForm(path, theirs);
    if (plainBase && plainTheirs) {
        QByteArray plainMine = mine;
        if (path == projectFileName)
            joinWritingLogs(*plainBase, plainMine, *plainTheirs);
        const LineMerge merge = mergeLines(*plainBase, plainMine, *plainTheirs);
        // Lines that fit together need not make a file that does. What reading drops would be a lost edit, so
        // the merged file has to survive reading and writing as it is.
        if (merge.isClean() && canonicalForm(path, merge.text) == merge.text &&
            idIn(merge.text) == idIn(mine))
            return merge.text;
    }
    return core::Failure{
        QCoreApplication::translate("Persistence", "the merged file '%1' would not be valid").arg(path)};
}

FileMerge mergeFile(const QString& path, FileVersions versions)
{
    FileMerge merge{path, std::move(versions), FileStanding::Untouched, {}, {}, false};
    const auto& [base, mine, theirs] = merge.versions;
    const auto settle = [&merge](FileStanding standing, const FileVersion& result) {
        merge.standing = standing;
        merge.result = result;
        return merge;
    };
    if (base == theirs)
        return settle(FileStanding::Untouched, mine);
    // A file that was written by hand would be written otherwise by a save; that alone is no edit.
    if (base == mine || (base && mine && canonicalForm(path, *base) == mine))
        return settle(FileStanding::TheirsOnly, theirs);
    if (theirs == mine || (theirs && mine && canonicalForm(path, *theirs) == mine))
        return settle(FileStanding::SameEdit, theirs);
    if (!base || !mine || !theirs)
        return settle(FileStanding::Conflict, std::nullopt);
    if (const auto merged = mergeProjectFile(path, *base, *mine, *theirs))
        return settle(FileStanding::Merged, merged.value());
    mergeByParagraphs(merge);
    return settle(FileStanding::Conflict, std::nullopt);
}

} // namespace tw::app::persistence
