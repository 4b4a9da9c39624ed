#pragma once

#include "desktop/theme/Theme.h"

#include <QHash>
#include <QIcon>
#include <QProxyStyle>

namespace tw::desktop::theme {

/**
 * Paints controls, rows and indicators in the theme's colours: flat, one line around a field, the accent
 * around what has the keyboard. Measures and behaviour are Fusion's where nothing else is said. Owned by the
 * application.
 */
class DeskStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    DeskStyle();

    /** Takes effect with the next painting. */
    void setTheme(const Theme& theme) { m_theme = theme; }

    /** Used in place of Fusion's own. */
    void setStandardIcon(StandardPixmap place, const QIcon& icon) { m_standardIcons.insert(place, icon); }

    QIcon standardIcon(
        StandardPixmap place, const QStyleOption* option, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data)
        const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& size,
        const QWidget* widget) const override;
    QRect subElementRect(
        SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(
        ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawComplexControl(
        ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;

private:
    enum class Direction
    {
        Up,
        Down,
        Left,
        Right,
    };

    [[nodiscard]] QColor inkFor(const QStyleOption& option) const;
    void drawField(const QStyleOption& option, QPainter& painter) const;
    void drawChevron(const QRect& rect, Direction direction, const QColor& color, QPainter& painter) const;
    void drawCheck(const QRect& rect, const QColor& color, QPainter& painter) const;
    void drawCheckBox(const QStyleOption& option, QPainter& painter) const;
    void drawRadioButton(const QStyleOption& option, QPainter& painter) const;
    void drawPushButton(const QStyleOption& option, QPainter& painter) const;
    void drawToolButton(const QStyleOption& option, QPainter& painter) const;
    void drawRow(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void drawDropLine(const QStyleOption& option, QPainter& painter) const;
    void drawSplitter(const QStyleOption& option, QPainter& painter) const;
    void drawTabClose(const QStyleOption& option, QPainter& painter) const;
    void drawFocus(const QStyleOption& option, QPainter& painter) const;
    void drawComboBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
    void drawSpinBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
    void drawSlider(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;

    Theme m_theme;
    QHash<StandardPixmap, QIcon> m_standardIcons;
};

} // namespace tw::desktop::theme
