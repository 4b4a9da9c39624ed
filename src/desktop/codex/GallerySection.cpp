#include "desktop/codex/GallerySection.h"

#include "core/media/Media.h"
#include "desktop/codex/SectionHeading.h"
#include "desktop/fields/FlowLayout.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QFileInfo>
#include <QFutureWatcher>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPromise>
#include <QThreadPool>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::codex {

using core::media::Media;

namespace {

constexpr QSize pictureFrame(220, 150);
constexpr int spacing = 8;

/** The size of the picture in the frame, in pixels of the screen; never more than its own. */
QSize fittedSize(const QSize& image, qreal pixelRatio)
{
    const QSize frame = pictureFrame * pixelRatio;
    const bool isLarger = image.width() > frame.width() || image.height() > frame.height();
    return isLarger ? image.scaled(frame, Qt::KeepAspectRatio) : image;
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

GalleryPicture::GalleryPicture(const QString& file, const QString& caption, QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setToolTip(caption);
    setAccessibleName(caption);
    m_shownSize = fittedSize(QImageReader(file).size(), devicePixelRatioF()) / devicePixelRatioF();
    load(file);
}

void GalleryPicture::load(const QString& file)
{
    // A large picture takes longer to decode than a frame may last.
    auto promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    auto* const watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
        m_image = watcher->result();
        watcher->deleteLater();
        update();
    });
    watcher->setFuture(promise->future());
    const qreal pixelRatio = devicePixelRatioF();
    QThreadPool::globalInstance()->start([promise, file, pixelRatio] {
        QImageReader reader(file);
        reader.setAutoTransform(true);
        if (const QSize size = reader.size(); size.isValid())
            reader.setScaledSize(fittedSize(size, pixelRatio));
        QImage image = reader.read();
        image.setDevicePixelRatio(pixelRatio);
        promise->addResult(image);
        promise->finish();
    });
}

QSize GalleryPicture::sizeHint() const
{
    return m_shownSize.isEmpty() ? pictureFrame : m_shownSize;
}

void GalleryPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_image.isNull()) {
        painter.fillRect(rect(), palette().color(QPalette::Midlight));
        return;
    }
    QRectF place(QPointF(), m_image.deviceIndependentSize());
    place.moveCenter(QRectF(rect()).center());
    painter.drawImage(place, m_image);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Link), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void GalleryPicture::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->position().toPoint()))
        emit activated();
}

void GalleryPicture::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Space)
        emit activated();
    else
        QWidget::keyPressEvent(event);
}

GallerySection::GallerySection(
    const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new SectionHeading(desk.icons.icon(icons::Icon::Media), tr("Gallery"), this));
    auto* const pictures = new QWidget(this);
    m_layout = new fields::FlowLayout(fields::FlowLayout::LastItem::KeepsItsSize, spacing, pictures);
    layout->addWidget(pictures);
    hide();
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
        m_layout->insertWidget(m_layout->count(), widget);
        m_widgets.push_back(widget);
        widget->show();
    }
    setVisible(!m_pictures.empty());
}

void GallerySection::follow(const core::project::ProjectChanges& changes)
{
    const auto& gallery = entity()->gallery();
    if (std::ranges::any_of(gallery, [&changes](const core::ContentId& id) { return changes.concerns(id); }))
        showPictures(*entity());
}

} // namespace tw::desktop::codex
