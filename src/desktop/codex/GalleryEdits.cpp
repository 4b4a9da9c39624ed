#include "desktop/codex/GalleryEdits.h"

#include "core/content/ContentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/media/Media.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace tw::desktop::codex {

using core::ContentId;
using core::Result;
using core::entity::Entity;
using core::entity::SetEntityGalleryCommand;
using core::media::Media;
using shell::ProjectSession;

namespace {

QString label(const char* text)
{
    return QCoreApplication::translate("GalleryEdits", text);
}

/** The entity whose gallery may be changed; none when it was removed or is locked. */
Entity* unlockedEntity(ProjectSession& session, const ContentId& entityId)
{
    auto* const entity = session.projectForCommands().findAsForEdit<Entity>(entityId);
    return entity && !entity->isLocked() ? entity : nullptr;
}

Result<QString> importPicture(ProjectSession& session, const QString& file)
{
    if (QImageReader::imageFormat(file).isEmpty())
        return core::Failure{
            label(QT_TRANSLATE_NOOP(
                      "GalleryEdits",
                      "“%1” is no picture this program can show. Save it as PNG or JPEG and add that."))
                .arg(QFileInfo(file).fileName())};
    return session.importAsset(file);
}

} // namespace

Result<void> addToGallery(ProjectSession& session, const ContentId& entityId, const QStringList& files)
{
    Result<void> result;
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("GalleryEdits", "Add pictures")));
    Entity* const entity = unlockedEntity(session, entityId);
    if (!entity)
        return result;
    std::vector<ContentId> gallery = entity->gallery();
    for (const QString& file : files) {
        const Result<QString> path = importPicture(session, file);
        if (!path) {
            result = core::Failure{path.message()};
            continue;
        }
        auto media = std::make_unique<Media>(ContentId::create(), QStringLiteral("image"), path.value());
        media->setCaption(QFileInfo(file).completeBaseName());
        gallery.push_back(media->id());
        session.apply(std::make_unique<core::content::AddObjectCommand>(
            session.projectForCommands(), std::move(media)));
    }
    if (gallery.size() > entity->gallery().size())
        session.apply(std::make_unique<SetEntityGalleryCommand>(*entity, std::move(gallery)));
    return result;
}

void removeFromGallery(ProjectSession& session, const ContentId& entityId, const ContentId& picture)
{
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("GalleryEdits", "Remove picture")));
    Entity* const entity = unlockedEntity(session, entityId);
    if (!entity)
        return;
    std::vector<ContentId> gallery = entity->gallery();
    if (std::erase(gallery, picture) > 0)
        session.apply(std::make_unique<SetEntityGalleryCommand>(*entity, std::move(gallery)));
}

void moveInGallery(
    ProjectSession& session, const ContentId& entityId, const ContentId& picture, GalleryMove direction)
{
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("GalleryEdits", "Move picture")));
    Entity* const entity = unlockedEntity(session, entityId);
    if (!entity)
        return;
    std::vector<ContentId> gallery = entity->gallery();
    const auto place = std::ranges::find(gallery, picture);
    if (place == gallery.end() ||
        place == (direction == GalleryMove::Earlier ? gallery.begin() : gallery.end() - 1))
        return;
    std::iter_swap(place, direction == GalleryMove::Earlier ? place - 1 : place + 1);
    session.apply(std::make_unique<SetEntityGalleryCommand>(*entity, std::move(gallery)));
}

} // namespace tw::desktop::codex
