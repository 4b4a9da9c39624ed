#include "app/mcp/media/MediaTools.h"

#include "app/mcp/media/ImportableFile.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/content/ContentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/media/MediaCommands.h"

#include <QFileInfo>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::entity::Entity;
using core::media::Media;
using workspace::Workspace;

namespace {

/** Unknown kinds in files count as "other". */
QString listedKind(const Media& media)
{
    return mediaKinds().contains(media.mediaKind()) ? media.mediaKind() : u"other"_s;
}

/** The entity whose gallery an image goes into; none when none is wanted. */
Result<Entity*> galleryOwner(Workspace& workspace, const ToolArguments& arguments, const ImportableFile& file)
{
    const QString name = arguments.text(u"entity");
    if (name.isEmpty())
        return static_cast<Entity*>(nullptr);
    const auto found = resolveByName(workspace, name, kindWord(ContentKind::Entity), Purpose::Refer);
    if (found && found.value().library)
        return Failure{
            u"'%1' lives in a mounted library; add_media attaches gallery images only to the open project's entities."_s
                .arg(name)};
    // Anew, for what is refused of a change.
    const auto owner = resolveByName(workspace, name, kindWord(ContentKind::Entity), Purpose::Change);
    if (!owner)
        return Failure{owner.message()};
    if (file.mediaKind != u"image")
        return Failure{u"Only images go into a gallery, and '%1' is none. Leave \"entity\" out."_s.arg(
            arguments.text(u"path"))};
    return workspace.projectForEdit().findAsForEdit<Entity>(owner.value().object->id());
}

McpToolResult importMedia(
    ToolContext& context, const ToolArguments& arguments, const ImportableFile& file, Entity* owner)
{
    Workspace& workspace = context.workspace;
    const QString fileName = QFileInfo(file.path).fileName();
    const QString caption = arguments.text(u"caption", QFileInfo(file.path).completeBaseName()).trimmed();
    if (const auto checked = checkNewName(workspace.project(), ContentKind::Media, caption); !checked)
        return McpToolResult::failure(checked.message());
    const auto assetPath = importIntoAssets(workspace, file);
    if (!assetPath)
        return McpToolResult::failure(assetPath.message());

    const ContentId id = ContentId::create();
    auto media = std::make_unique<Media>(id, arguments.text(u"kind", file.mediaKind), assetPath.value());
    media->setCaption(caption);
    workspace.undoStack().push(
        std::make_unique<core::content::AddObjectCommand>(workspace.projectForEdit(), std::move(media)));
    if (!owner)
        return McpToolResult::success(u"Imported '%1' as %2."_s.arg(fileName, assetPath.value()));
    std::vector<ContentId> gallery = owner->gallery();
    gallery.push_back(id);
    workspace.undoStack().push(
        std::make_unique<core::entity::SetEntityGalleryCommand>(*owner, std::move(gallery)));
    return McpToolResult::success(
        u"Imported '%1' as %2, in the gallery of '%3'."_s.arg(fileName, assetPath.value(), owner->name()));
}

} // namespace

McpToolResult listMedia(ToolContext& context, const ToolArguments& arguments)
{
    const QString wanted = arguments.text(u"kind");
    QStringList lines;
    for (const Media* media : objectsOf<Media>(context.workspace.project())) {
        const QString kind = listedKind(*media);
        if (media->isAiExcluded() || (!wanted.isEmpty() && kind != wanted))
            continue;
        const QString caption = media->caption().isEmpty()
                                    ? u"(no caption, id %1)"_s.arg(media->id().toString())
                                    : media->caption();
        lines += u"- %1 (%2): %3"_s.arg(caption, kind, media->assetPath());
    }
    if (!lines.isEmpty())
        return McpToolResult::success(lines.join(u'\n'));
    return McpToolResult::success(
        wanted.isEmpty() ? u"There are no media assets in this project."_s
                         : u"There are no media assets of the kind %1 in this project."_s.arg(wanted));
}

McpToolResult addMedia(ToolContext& context, const ToolArguments& arguments)
{
    const auto file = findImportableFile(context.workspace, arguments.text(u"path"));
    if (!file)
        return McpToolResult::failure(file.message());
    const auto owner = galleryOwner(context.workspace, arguments, file.value());
    if (!owner)
        return McpToolResult::failure(owner.message());
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: add media"_s, [&] {
        return importMedia(context, arguments, file.value(), owner.value());
    });
}

McpToolResult setMediaCaption(ToolContext& context, const ToolArguments& arguments)
{
    const auto media = findForChange<Media>(context.workspace, arguments, u"caption");
    if (!media)
        return McpToolResult::failure(media.message());
    const QString caption = arguments.text(u"new_caption").trimmed();
    const QString former = media.value()->caption();
    if (const auto checked = checkRename(context.workspace.project(), *media.value(), caption); !checked)
        return McpToolResult::failure(checked.message());
    if (caption == former)
        return McpToolResult::success(u"Media asset '%1' already matches; nothing changed."_s.arg(caption));
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: set media caption"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::media::SetMediaCaptionCommand>(*media.value(), caption));
        return McpToolResult::success(u"Recaptioned media asset '%1' to '%2'."_s.arg(former, caption));
    });
}

} // namespace tw::app::mcp
