#include "desktop/codex/GallerySection.h"

#include "core/media/Media.h"
#include "desktop/codex/GalleryEdits.h"
#include "desktop/codex/GalleryPicture.h"
#include "desktop/codex/SectionHeading.h"
#include "desktop/fields/FlowLayout.h"
#include "desktop/fields/ImageFiles.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::codex {

using core::media::Media;

namespace {

constexpr int spacing = 8;

/** The files among what is dragged that can be shown as pictures. */
QStringList picturesAmong(const QMimeData& dragged)
{
    QStringList files;
    for (const QUrl& url : dragged.urls()) {
        if (url.isLocalFile() && !QImageReader::imageFormat(url.toLocalFile()).isEmpty())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

QString assetFile(const QString& projectFolder, const QString& assetPath)
{
    const QString folder = QFileInfo(projectFolder).canonicalFilePath();
    if (folder.isEmpty() || assetPath.isEmpty())
        return {};
    const QFileInfo file(projectFolder + u'/' + assetPath);
    const QString path = file.canonicalFilePath();
    return file.isFile() && path.startsWith(folder + u'/') ? path : QString();
}

GallerySection::GallerySection(
    const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const heading = new SectionHeading(desk.icons.icon(icons::Icon::Media), tr("Gallery"), this);
    m_add = new QPushButton(desk.icons.icon(icons::Icon::Add), tr("Add Pictures…"), this);
    m_add->setFlat(true);
    connect(m_add, &QPushButton::clicked, this, &GallerySection::choosePictures);
    heading->addTrailing(m_add);
    layout->addWidget(heading);
    auto* const pictures = new QWidget(this);
    m_layout = new fields::FlowLayout(fields::FlowLayout::LastItem::KeepsItsSize, spacing, pictures);
    layout->addWidget(pictures);
    setAcceptDrops(true);
}

void GallerySection::showEntity(const core::entity::Entity& entity)
{
    // The disk is asked only when there is something else to ask for.
    if (entity.gallery() != m_mediaIds || desk().session.workspace().folderPath() != m_folder)
        showPictures(entity);
}

void GallerySection::showPictures(const core::entity::Entity& entity)
{
    const auto& session = desk().session;
    m_mediaIds = entity.gallery();
    m_folder = session.workspace().folderPath();
    std::vector<Picture> pictures;
    for (const core::ContentId& id : entity.gallery()) {
        const auto* const media = session.project().findAs<Media>(id);
        const QString file = media ? assetFile(m_folder, media->assetPath()) : QString();
        if (!file.isEmpty() && !QImageReader::imageFormat(file).isEmpty())
            pictures.push_back({id, file, media->caption()});
    }
    if (pictures == m_pictures)
        return;
    m_pictures = std::move(pictures);
    for (GalleryPicture* const widget : m_widgets) {
        m_layout->removeWidget(widget);
        widget->hide();
        widget->deleteLater();
    }
    m_widgets.clear();
    for (const Picture& picture : m_pictures) {
        auto* const widget = new GalleryPicture(picture.file, picture.caption, this);
        connect(
            widget, &GalleryPicture::activated, this, [this, id = picture.id] { desk().navigator.open(id); });
        connect(widget, &GalleryPicture::removalAsked, this, [this, id = picture.id] {
            if (m_add->isEnabled())
                removeFromGallery(desk().session, entityId(), id);
        });
        connect(
            widget, &QWidget::customContextMenuRequested, this,
            [this, widget, id = picture.id](const QPoint& at) { showMenu(id, widget->mapToGlobal(at)); });
        m_layout->insertWidget(m_layout->count(), widget);
        m_widgets.push_back(widget);
        widget->show();
    }
    setVisible(!m_pictures.empty() || m_add->isEnabled());
}

void GallerySection::setReadOnly(bool readOnly)
{
    m_add->setEnabled(!readOnly);
    m_add->setVisible(!readOnly);
    setVisible(!m_pictures.empty() || !readOnly);
}

void GallerySection::choosePictures()
{
    add(QFileDialog::getOpenFileNames(
        window(), tr("Add Pictures"), QString(), tr("Images (%1)").arg(fields::imageNamePatterns())));
}

void GallerySection::add(const QStringList& files)
{
    if (files.isEmpty())
        return;
    if (const auto added = addToGallery(desk().session, entityId(), files); !added)
        desk().navigator.say(added.message());
}

void GallerySection::showMenu(const core::ContentId& picture, const QPoint& globalPosition)
{
    auto& session = desk().session;
    const auto& gallery = entity()->gallery();
    QMenu menu(this);
    const auto addEdit = [&](icons::Icon icon, const QString& text, bool isPossible, auto edit) {
        QAction* const action = menu.addAction(desk().icons.icon(icon), text, this, edit);
        action->setEnabled(isPossible && m_add->isEnabled());
    };
    const auto move = [this, &session, picture](GalleryMove direction) {
        moveInGallery(session, entityId(), picture, direction);
    };
    addEdit(icons::Icon::MoveUp, tr("Move &Earlier"), gallery.front() != picture, [move] {
        move(GalleryMove::Earlier);
    });
    addEdit(icons::Icon::MoveDown, tr("Move &Later"), gallery.back() != picture, [move] {
        move(GalleryMove::Later);
    });
    menu.addSeparator();
    addEdit(icons::Icon::Remove, tr("&Remove from Gallery"), true, [this, &session, picture] {
        removeFromGallery(session, entityId(), picture);
    });
    menu.exec(globalPosition);
}

void GallerySection::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_add->isEnabled() && !picturesAmong(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void GallerySection::dropEvent(QDropEvent* event)
{
    add(picturesAmong(*event->mimeData()));
    event->acceptProposedAction();
}

void GallerySection::follow(const core::project::ProjectChanges& changes)
{
    const auto& gallery = entity()->gallery();
    if (std::ranges::any_of(gallery, [&changes](const core::ContentId& id) { return changes.concerns(id); }))
        showPictures(*entity());
}

} // namespace tw::desktop::codex
