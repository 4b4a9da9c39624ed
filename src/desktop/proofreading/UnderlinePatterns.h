#pragma once

#include <QPixmap>

#include <map>

namespace tw::desktop::proofreading {

enum class Underline
{
    Wave,
    Dots,
};

/**
 * Lines under words, drawn with tiles that are made once for a colour: stroking the curves at every painting
 * would cost several times what the text costs. Main thread only.
 */
class UnderlinePatterns
{
public:
    /** From `left` to `right`, around the height `y`. */
    void draw(QPainter& painter, Underline line, const QColor& color, qreal left, qreal right, qreal y);

private:
    [[nodiscard]] const QPixmap& tile(Underline line, const QColor& color, qreal pixelRatio);

    /** By what is drawn, its colour and the pixels of the screen for each of the window. */
    std::map<std::tuple<Underline, QRgb, qreal>, QPixmap> m_tiles;
};

} // namespace tw::desktop::proofreading
