// The painting half of DeskStyle.
#include "desktop/theme/DeskStyle.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QTreeView>

#include <algorithm>

namespace tw::desktop::theme {

namespace {

constexpr qreal cornerRadius = 4.0;
constexpr qreal strokeWidth = 1.5; // chevrons and checks, like the icons at their small size

class PainterState
{
public:
    explicit PainterState(QPainter& painter)
        : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setBrush(Qt::NoBrush);
    }
    ~PainterState() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(PainterState)

private:
    QPainter& m_painter;
};

// A line of `width` that lies fully inside `rect`.
QRectF inside(const QRectF& rect, qreal width)
{
    const qreal half = width / 2;
    return rect.adjusted(half, half, -half, -half);
}

QRectF centeredSquare(const QRectF& rect, qreal side)
{
    const qreal size = std::min({side, rect.width(), rect.height()});
    return {rect.center().x() - size / 2, rect.center().y() - size / 2, size, size};
}

QPen roundPen(const QColor& color, qreal width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

QColor DeskStyle::inkFor(const QStyleOption& option) const
{
    if (!(option.state & State_Enabled))
        return m_theme.color(Role::FaintInk);
    return m_theme.color(option.state & State_Selected ? Role::SelectionInk : Role::QuietInk);
}

void DeskStyle::drawField(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    const bool isEnabled = option.state & State_Enabled;
    const bool hasFocus = isEnabled && (option.state & State_HasFocus);
    const qreal width = hasFocus ? 2.0 : 1.0;
    Role outline = Role::Line;
    if (isEnabled)
        outline = hasFocus ? Role::Accent : Role::Border;
    painter.setPen(QPen(m_theme.color(outline), width));
    painter.setBrush(option.palette.base());
    painter.drawRoundedRect(inside(option.rect, width), cornerRadius, cornerRadius);
}

void DeskStyle::drawChevron(
    const QRect& rect, Direction direction, const QColor& color, QPainter& painter) const
{
    const PainterState state(painter);
    const QRectF box = centeredSquare(rect, 8.0);
    const qreal wing = box.width() / 2;
    const qreal depth = wing / 2;
    const QPointF center = box.center();
    QPolygonF line;
    switch (direction) {
    case Direction::Up:
        line << center + QPointF(-wing, depth) << center + QPointF(0, -depth)
             << center + QPointF(wing, depth);
        break;
    case Direction::Down:
        line << center + QPointF(-wing, -depth) << center + QPointF(0, depth)
             << center + QPointF(wing, -depth);
        break;
    case Direction::Left:
        line << center + QPointF(depth, -wing) << center + QPointF(-depth, 0)
             << center + QPointF(depth, wing);
        break;
    case Direction::Right:
        line << center + QPointF(-depth, -wing) << center + QPointF(depth, 0)
             << center + QPointF(-depth, wing);
        break;
    }
    painter.setPen(roundPen(color, strokeWidth));
    painter.drawPolyline(line);
}

void DeskStyle::drawCheck(const QRect& rect, const QColor& color, QPainter& painter) const
{
    const PainterState state(painter);
    const QRectF box = centeredSquare(rect, 16.0);
    const auto at = [&box](qreal x, qreal y) {
        return box.topLeft() + QPointF(x * box.width(), y * box.height());
    };
    painter.setPen(roundPen(color, strokeWidth + 0.25));
    painter.drawPolyline(QPolygonF({at(0.24, 0.53), at(0.43, 0.72), at(0.77, 0.31)}));
}

void DeskStyle::drawCheckBox(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    const bool isEnabled = option.state & State_Enabled;
    const bool isSet = option.state & (State_On | State_NoChange);
    const QRectF box = inside(centeredSquare(option.rect, 16.0), 1.0);
    const QColor fill = m_theme.color(isEnabled ? Role::Accent : Role::FaintInk);
    painter.setPen(QPen(isSet ? fill : m_theme.color(isEnabled ? Role::QuietInk : Role::FaintInk), 1.0));
    painter.setBrush(isSet ? fill : m_theme.color(Role::Page));
    painter.drawRoundedRect(box, cornerRadius, cornerRadius);
    if (option.state & State_NoChange) {
        painter.setPen(roundPen(m_theme.color(Role::AccentInk), strokeWidth));
        painter.drawLine(box.center() - QPointF(3.5, 0), box.center() + QPointF(3.5, 0));
    } else if (option.state & State_On) {
        drawCheck(box.toAlignedRect(), m_theme.color(Role::AccentInk), painter);
    }
}

void DeskStyle::drawRadioButton(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    const bool isEnabled = option.state & State_Enabled;
    const bool isSet = option.state & State_On;
    const QRectF box = inside(centeredSquare(option.rect, 16.0), 1.0);
    const QColor fill = m_theme.color(isEnabled ? Role::Accent : Role::FaintInk);
    painter.setPen(QPen(isSet ? fill : m_theme.color(isEnabled ? Role::QuietInk : Role::FaintInk), 1.0));
    painter.setBrush(isSet ? fill : m_theme.color(Role::Page));
    painter.drawEllipse(box);
    if (isSet) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_theme.color(Role::AccentInk));
        painter.drawEllipse(box.center(), 3.0, 3.0);
    }
}

void DeskStyle::drawPushButton(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isEnabled = option.state & State_Enabled;
    const bool isFlat = button != nullptr && button->features.testFlag(QStyleOptionButton::Flat);
    const bool isDefault =
        isEnabled && button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool isDown = option.state & (State_Sunken | State_On);
    const bool isHovered = isEnabled && (option.state & State_MouseOver);

    QColor fill = m_theme.color(Role::Panel);
    QColor outline = m_theme.color(isEnabled ? Role::Border : Role::Line);
    if (isDefault) {
        fill = m_theme.color(Role::Accent);
        if (isDown || isHovered)
            fill = m_theme.tone == Theme::Tone::Light ? fill.lighter(isDown ? 85 : 115)
                                                      : fill.darker(isDown ? 120 : 108);
        outline = fill;
    } else if (isDown) {
        fill = m_theme.color(Role::Selection);
    } else if (isHovered) {
        fill = m_theme.color(Role::Hover);
    }
    const bool isQuiet = isFlat && !isDown && !isHovered;
    if (!isQuiet) {
        painter.setPen(isFlat ? QPen(Qt::NoPen) : QPen(outline, 1.0));
        painter.setBrush(fill);
        painter.drawRoundedRect(inside(option.rect, 1.0), cornerRadius, cornerRadius);
    }
    if (option.state & State_HasFocus) {
        // On the accent itself the ring lies inside, in the colour of the text.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(m_theme.color(isDefault ? Role::AccentInk : Role::Accent), 2.0));
        const QRectF ring = isDefault ? QRectF(option.rect).adjusted(2, 2, -2, -2) : QRectF(option.rect);
        painter.drawRoundedRect(inside(ring, 2.0), cornerRadius, cornerRadius);
    }
}

void DeskStyle::drawToolButton(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    const bool isEnabled = option.state & State_Enabled;
    const bool isDown = isEnabled && (option.state & (State_Sunken | State_On));
    const bool isHovered = isEnabled && (option.state & State_MouseOver);
    if (isDown || isHovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_theme.color(isDown ? Role::Selection : Role::Hover));
        painter.drawRoundedRect(option.rect, cornerRadius, cornerRadius);
    }
    if (option.state & State_HasFocus) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(m_theme.color(Role::Accent), 2.0));
        painter.drawRoundedRect(inside(option.rect, 2.0), cornerRadius, cornerRadius);
    }
}

void DeskStyle::drawRow(const QStyleOption& option, QPainter& painter, const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&option);
    if (item != nullptr && item->backgroundBrush.style() != Qt::NoBrush)
        painter.fillRect(option.rect, item->backgroundBrush);
    const bool isSelected = option.state & State_Selected;
    const bool isHovered = (option.state & State_MouseOver) && (option.state & State_Enabled);
    if (!isSelected && !isHovered)
        return;

    const PainterState state(painter);
    const QColor fill = isSelected ? option.palette.color(QPalette::Highlight) : m_theme.color(Role::Hover);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    // A tree's cells join with each other and with the branches before them; a list's rows stand alone.
    const bool isAlone = item != nullptr && item->viewItemPosition == QStyleOptionViewItem::OnlyOne &&
                         qobject_cast<const QTreeView*>(widget) == nullptr;
    if (isAlone)
        painter.drawRoundedRect(option.rect, cornerRadius, cornerRadius);
    else
        painter.fillRect(option.rect, fill);
}

void DeskStyle::drawDropLine(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    painter.setPen(roundPen(m_theme.color(Role::Accent), 2.0));
    const QRectF rect(option.rect);
    if (rect.height() > 0) {
        painter.drawRoundedRect(inside(rect, 2.0), cornerRadius, cornerRadius);
        return;
    }
    constexpr qreal knob = 3.0;
    const bool isMirrored = option.direction == Qt::RightToLeft;
    const QPointF start =
        isMirrored ? rect.topRight() - QPointF(knob + 1, 0) : rect.topLeft() + QPointF(knob + 1, 0);
    const QPointF end = isMirrored ? rect.topLeft() : rect.topRight();
    painter.drawEllipse(start, knob, knob);
    painter.drawLine(start + QPointF(isMirrored ? -knob : knob, 0), end);
}

void DeskStyle::drawSplitter(const QStyleOption& option, QPainter& painter) const
{
    const bool isHovered = option.state & State_MouseOver;
    const int width = isHovered ? 3 : 1;
    QRect line = option.rect;
    if (option.state & State_Horizontal) {
        line.setWidth(width);
        line.moveLeft(option.rect.left() + (option.rect.width() - width) / 2);
    } else {
        line.setHeight(width);
        line.moveTop(option.rect.top() + (option.rect.height() - width) / 2);
    }
    painter.fillRect(line, m_theme.color(isHovered ? Role::Accent : Role::Line));
}

void DeskStyle::drawTabClose(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    const QRectF box = centeredSquare(option.rect, 16.0);
    if (option.state & (State_MouseOver | State_Sunken)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_theme.color(Role::Hover));
        painter.drawRoundedRect(box, cornerRadius, cornerRadius);
    }
    const QRectF cross = box.adjusted(4.5, 4.5, -4.5, -4.5);
    painter.setPen(roundPen(m_theme.color(Role::QuietInk), strokeWidth));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

void DeskStyle::drawFocus(const QStyleOption& option, QPainter& painter) const
{
    const PainterState state(painter);
    painter.setPen(QPen(m_theme.color(Role::Accent), 1.5));
    painter.drawRoundedRect(inside(option.rect, 1.5), cornerRadius, cornerRadius);
}

void DeskStyle::drawComboBox(
    const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const
{
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
    if (combo == nullptr || combo->frame)
        drawField(option, painter);
    const QRect arrow = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
    QStyleOption ink = option;
    ink.state &= ~State_Selected;
    drawChevron(arrow, Direction::Down, inkFor(ink), painter);
}

void DeskStyle::drawSpinBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const
{
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
    if (spin == nullptr)
        return;
    if (spin->frame)
        drawField(option, painter);
    if (spin->buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const auto drawStep = [&](SubControl part, Direction direction,
                              QAbstractSpinBox::StepEnabledFlag enabled) {
        const QRect rect = proxy()->subControlRect(CC_SpinBox, &option, part, widget);
        const bool isHot = option.activeSubControls.testFlag(part) && (option.state & State_MouseOver);
        Role role = Role::FaintInk;
        if (spin->stepEnabled.testFlag(enabled) && (option.state & State_Enabled))
            role = isHot ? Role::Accent : Role::QuietInk;
        drawChevron(rect.adjusted(0, 3, 0, -3), direction, m_theme.color(role), painter);
    };
    drawStep(SC_SpinBoxUp, Direction::Up, QAbstractSpinBox::StepUpEnabled);
    drawStep(SC_SpinBoxDown, Direction::Down, QAbstractSpinBox::StepDownEnabled);
}

void DeskStyle::drawSlider(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const
{
    const PainterState state(painter);
    constexpr qreal grooveWidth = 4.0;
    constexpr qreal knobRadius = 7.0;
    const bool isHorizontal = option.state & State_Horizontal;
    const bool isEnabled = option.state & State_Enabled;
    const QRectF groove = proxy()->subControlRect(CC_Slider, &option, SC_SliderGroove, widget);
    const QRectF handle = proxy()->subControlRect(CC_Slider, &option, SC_SliderHandle, widget);
    const QPointF knob = isHorizontal ? QPointF(handle.center().x(), groove.center().y())
                                      : QPointF(groove.center().x(), handle.center().y());
    const qreal inset = knobRadius + 1;
    const QPointF start =
        isHorizontal ? QPointF(groove.left() + inset, knob.y()) : QPointF(knob.x(), groove.top() + inset);
    const QPointF end =
        isHorizontal ? QPointF(groove.right() - inset, knob.y()) : QPointF(knob.x(), groove.bottom() - inset);

    painter.setPen(roundPen(m_theme.color(Role::Shade), grooveWidth));
    painter.drawLine(start, end);
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(&option);
    const bool fillsFromEnd = slider != nullptr && slider->upsideDown;
    const QColor fill = m_theme.color(isEnabled ? Role::Accent : Role::FaintInk);
    painter.setPen(roundPen(fill, grooveWidth));
    painter.drawLine(fillsFromEnd ? end : start, knob);
    painter.setPen(QPen(fill, 2.0));
    painter.setBrush(m_theme.color(option.state & State_HasFocus ? Role::Selection : Role::Page));
    painter.drawEllipse(knob, knobRadius - 1, knobRadius - 1);
}

} // namespace tw::desktop::theme
