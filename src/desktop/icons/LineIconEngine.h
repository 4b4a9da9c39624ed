#pragma once

#include <QColor>
#include <QIconEngine>

#include <memory>

namespace tw::desktop::icons {

/** The colours of an icon in its modes. Shared by all icons of a set, which changes them with the theme. */
struct IconColors
{
    QColor normal;
    QColor disabled;
    QColor selected;
};

/**
 * Draws one line icon from its SVG with `currentColor` set to the colour of the mode. Nothing is kept but
 * finished pixmaps in Qt's own cache, so an icon costs little until it is drawn.
 */
class LineIconEngine final : public QIconEngine
{
public:
    LineIconEngine(QLatin1String name, std::shared_ptr<const IconColors> colors);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine* clone() const override;
    QString key() const override;
    QString iconName() override;
    bool isNull() override { return false; }

private:
    [[nodiscard]] QColor colorFor(QIcon::Mode mode) const;

    QLatin1String m_name;
    std::shared_ptr<const IconColors> m_colors;
};

} // namespace tw::desktop::icons
