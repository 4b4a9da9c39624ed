#include "app/persistence/merge/FileMerge.h"

#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/merge/LineMerge.h"
#include "core/document/Document.h"
#include "core/project/Project.h"

#include <QCoreApplication>

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
    const FileVersion plainBase = canonicalForm(path, base);
    const FileVersion plainTheirs = canonicalForm(path, theirs);
    if (plainBase && plainTheirs) {
        const LineMerge merge = mergeLines(*plainBase, mine, *plainTheirs);
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
