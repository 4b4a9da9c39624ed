#include "desktop/proofreading/UnderlinePatterns.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace tw::desktop::proofreading {

namespace {

constexpr int tileLength = 4;
constexpr int tileHeight = 5;
constexpr qreal waveHeight = 1;
constexpr qreal lineWidth = 1.2;

void drawWave(QPainter& painter, const QPen& pen)
{
    constexpr qreal middle = tileHeight / 2.0;
    constexpr qreal half = tileLength / 2.0;
    // Begun before the tile and ended behind it, so that tiles join without a seam.
    QPainterPath path(QPointF(-tileLength, middle));
    bool isUp = true;
    for (qreal x = -tileLength; x < 2 * tileLength; x += half) {
        path.quadTo(
            QPointF(x + half / 2, middle + (isUp ? -waveHeight : waveHeight) * 2), QPointF(x + half, middle));
        isUp = !isUp;
    }
    painter.strokePath(path, pen);
}

void drawDot(QPainter& painter, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(tileLength / 2.0, tileHeight / 2.0), lineWidth / 2, lineWidth / 2);
}

} // namespace

void UnderlinePatterns::draw(
    QPainter& painter, Underline line, const QColor& color, qreal left, qreal right, qreal y)
{
    const QRectF place(
        std::round(left), std::round(y - tileHeight / 2.0), std::ceil(right - left), tileHeight);
    painter.drawTiledPixmap(place, tile(line, color, painter.device()->devicePixelRatio()));
}

const QPixmap& UnderlinePatterns::tile(Underline line, const QColor& color, qreal pixelRatio)
{
    QPixmap& tile = m_tiles[{line, color.rgba(), pixelRatio}];
    if (!tile.isNull())
        return tile;
    tile = QPixmap((QSizeF(tileLength, tileHeight) * pixelRatio).toSize());
    tile.setDevicePixelRatio(pixelRatio);
    tile.fill(Qt::transparent);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    if (line == Underline::Wave)
        drawWave(painter, QPen(color, lineWidth));
    else
        drawDot(painter, color);
    return tile;
}

} // namespace tw::desktop::proofreading
