#include "desktop/codex/GalleryPicture.h"

#include <QFutureWatcher>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPromise>
#include <QThreadPool>

#include <memory>

namespace tw::desktop::codex {

namespace {

constexpr QSize pictureFrame(220, 150);

/** The size of the picture in the frame, in pixels of the screen; never more than its own. */
QSize fittedSize(const QSize& image, qreal pixelRatio)
{
    const QSize frame = pictureFrame * pixelRatio;
    const bool isLarger = image.width() > frame.width() || image.height() > frame.height();
    return isLarger ? image.scaled(frame, Qt::KeepAspectRatio) : image;
}

} // namespace

GalleryPicture::GalleryPicture(const QString& file, const QString& caption, QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setToolTip(caption);
    setAccessibleName(caption);
    setContextMenuPolicy(Qt::CustomContextMenu);
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
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit activated();
}

void GalleryPicture::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Space)
        emit activated();
    else if (event->key() == Qt::Key_Delete)
        emit removalAsked();
    else
        QWidget::keyPressEvent(event);
}

} // namespace tw::desktop::codex
