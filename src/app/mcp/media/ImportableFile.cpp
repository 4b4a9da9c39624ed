#include "app/mcp/media/ImportableFile.h"

#include "app/persistence/files/ProjectFiles.h"
#include "app/workspace/ProjectPlace.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using workspace::Workspace;

namespace {

struct MediaExtensions
{
    QString kind;
    QStringList extensions;
};

const QList<MediaExtensions>& importedExtensions()
{
    static const QList<MediaExtensions> extensions{
        {u"image"_s, {u"png"_s, u"jpg"_s, u"jpeg"_s, u"gif"_s, u"webp"_s, u"bmp"_s, u"svg"_s}},
        {u"audio"_s, {u"mp3"_s, u"ogg"_s, u"wav"_s, u"flac"_s, u"m4a"_s}},
        {u"video"_s, {u"mp4"_s, u"webm"_s, u"mov"_s, u"mkv"_s}},
        {u"pdf"_s, {u"pdf"_s}},
    };
    return extensions;
}

QString extensionList()
{
    QStringList all;
    for (const MediaExtensions& row : importedExtensions())
        all += row.extensions;
    return all.join(u", "_s);
}

bool isHiddenPart(const QString& part)
{
    return part.startsWith(u'.');
}

bool hasHiddenPart(const QString& path)
{
    return std::ranges::any_of(
        QDir::fromNativeSeparators(path).split(u'/', Qt::SkipEmptyParts), isHiddenPart);
}

/** The path below a folder; none when it leads out of it. */
std::optional<QString> pathBelow(const QString& folder, const QString& path)
{
    const QString prefix = QFileInfo(folder).canonicalFilePath() + u'/';
    return prefix.size() > 1 && path.startsWith(prefix) ? std::optional(path.sliced(prefix.size()))
                                                        : std::nullopt;
}

} // namespace

const QStringList& mediaKinds()
{
    static const QStringList kinds{u"image"_s, u"audio"_s, u"video"_s, u"pdf"_s, u"other"_s};
    return kinds;
}

std::optional<QString> mediaKindOfFile(const QString& path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    for (const MediaExtensions& row : importedExtensions()) {
        if (row.extensions.contains(extension))
            return row.kind;
    }
    return std::nullopt;
}

Result<ImportableFile> findImportableFile(const Workspace& workspace, const QString& path)
{
    if (!workspace.hasPath())
        return Failure{u"The project has no folder yet. Save it first, then import files."_s};
    const Failure hidden{
        u"'%1' is not read: no part of the path may begin with a dot. Copy the file elsewhere first."_s.arg(
            path)};
    if (hasHiddenPart(path))
        return hidden;
    const QString base = workspace::baseOfRelativePaths(workspace.displayPath());
    const QFileInfo file(QDir(base).absoluteFilePath(path));
    // The system knows no name with a zero in it.
    if (path.contains(QChar::Null) || !file.isFile())
        return Failure{u"There is no file '%1'. Relative paths start at the project folder."_s.arg(path)};

    // A link may lead to what its own path would not; where the project itself lies is not the caller's
    // doing.
    const QString target = file.canonicalFilePath();
    if (hasHiddenPart(pathBelow(base, target).value_or(target)))
        return hidden;
    const auto kind = mediaKindOfFile(path);
    if (!kind || mediaKindOfFile(target) != kind)
        return Failure{
            u"'%1' is not a file that can be imported; use one of: %2."_s.arg(path, extensionList())};
    if (file.size() > mostImportedBytes)
        return Failure{u"'%1' is larger than 20 MB. Make it smaller first."_s.arg(path)};
    return ImportableFile{target, *kind};
}

Result<QString> importIntoAssets(Workspace& workspace, const ImportableFile& file)
{
    const QString assets = persistence::assetsFolder.toString();
    if (const auto inside = pathBelow(QDir(workspace.folderPath()).filePath(assets), file.path))
        return assets + u'/' + *inside;
    return workspace.importAsset(file.path);
}

} // namespace tw::app::mcp
