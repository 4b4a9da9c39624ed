#include "desktop/icons/LineIconEngine.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>

namespace tw::desktop::icons {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray tintedSvg(QLatin1String name, const QColor& color)
{
    QFile file(u":/icons/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll().replace("currentColor", color.name().toLatin1());
}

// The largest square in the middle of a rectangle: the drawings are square.
QRectF squareIn(const QRectF& rect)
{
    const qreal side = std::min(rect.width(), rect.height());
    return {rect.center().x() - side / 2, rect.center().y() - side / 2, side, side};
}

} // namespace

LineIconEngine::LineIconEngine(QLatin1String name, std::shared_ptr<const IconColors> colors)
    : m_name(name)
    , m_colors(std::move(colors))
{}

void LineIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal scale = painter->device()->devicePixelRatioF();
    const QPixmap drawing = scaledPixmap((QSizeF(rect.size()) * scale).toSize(), mode, state, scale);
    painter->drawPixmap(rect, drawing);
}

QPixmap LineIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return scaledPixmap(size, mode, state, 1.0);
}

// `size` is in device pixels: the drawing is made for exactly these.
QPixmap LineIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale)
{
    if (size.isEmpty())
        return {};
    const QColor color = colorFor(mode);
    const QString cacheKey =
        u"tw-icon-%1-%2-%3x%4-%5"_s.arg(m_name, color.name()).arg(size.width()).arg(size.height()).arg(scale);
    QPixmap result;
    if (QPixmapCache::find(cacheKey, &result))
        return result;

    result = QPixmap(size);
    result.fill(Qt::transparent);
    QSvgRenderer renderer(tintedSvg(m_name, color));
    if (renderer.isValid()) {
        QPainter painter(&result);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, squareIn(QRectF(QPointF(), QSizeF(size))));
    }
    result.setDevicePixelRatio(scale);
    QPixmapCache::insert(cacheKey, result);
    return result;
}

QIconEngine* LineIconEngine::clone() const
{
    return new LineIconEngine(*this);
}

QString LineIconEngine::key() const
{
    return u"tw-line-icon"_s;
}

QString LineIconEngine::iconName()
{
    return QString(m_name);
}

QColor LineIconEngine::colorFor(QIcon::Mode mode) const
{
    switch (mode) {
    case QIcon::Disabled:
        return m_colors->disabled;
    case QIcon::Selected:
        return m_colors->selected;
    case QIcon::Normal:
    case QIcon::Active:
        return m_colors->normal;
    }
    return m_colors->normal;
}

} // namespace tw::desktop::icons
