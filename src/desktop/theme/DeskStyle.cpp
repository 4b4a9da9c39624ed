#include "desktop/theme/DeskStyle.h"

#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTextEdit>

#include <algorithm>

namespace tw::desktop::theme {

using namespace Qt::Literals::StringLiterals;

namespace {

// Spaces go in steps of 4 device-independent pixels.
constexpr int step = 4;
constexpr int controlHeight = 7 * step;
constexpr int rowHeight = 6 * step + 2;
constexpr int indicatorSize = 4 * step;

bool isTextArea(const QWidget* widget)
{
    return qobject_cast<const QTextEdit*>(widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
}

} // namespace

DeskStyle::DeskStyle()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
    , m_theme(builtInThemes().front())
{}

QIcon DeskStyle::standardIcon(StandardPixmap place, const QStyleOption* option, const QWidget* widget) const
{
    const auto own = m_standardIcons.constFind(place);
    return own == m_standardIcons.cend() ? QProxyStyle::standardIcon(place, option, widget) : *own;
}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_SplitterWidth:
        return step + 1; // room to take hold of; the line itself is one pixel
    case PM_TreeViewIndentation:
        return 4 * step;
    case PM_ToolBarIconSize:
        return 5 * step;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_TabBarIconSize:
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicatorSize;
    case PM_MessageBoxIconSize:
        return 8 * step;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return 3 * step;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 2 * step;
    case PM_DefaultFrameWidth:
        return isTextArea(widget) ? step : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int DeskStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_Widget_Animation_Duration:
    case SH_Widget_Animate:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_ComboBox_Popup:
        return 0;
    case SH_ItemView_ShowDecorationSelected:
        return 1; // a whole row is selected, not just its text
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QSize DeskStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_ItemViewItem:
        if (option != nullptr)
            result.setHeight(std::max(result.height(), option->fontMetrics.height() + 2 * step));
        result.setHeight(std::max(result.height(), rowHeight));
        break;
    case CT_PushButton:
        result.rwidth() += 2 * step;
        result.setHeight(std::max(result.height(), controlHeight));
        break;
    case CT_ComboBox:
        result.setHeight(std::max(result.height(), controlHeight));
        break;
    case CT_SpinBox:
        // The field inside asks for a control's height of its own; the box is as high as its neighbours.
        if (option != nullptr)
            result.setHeight(std::max(option->fontMetrics.height() + 3 * step, controlHeight));
        break;
    case CT_LineEdit:
        // Editors inside rows and inside other fields have no frame and keep their size.
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame != nullptr && frame->lineWidth > 0) {
            result.setHeight(std::max(result.height(), controlHeight));
        }
        break;
    default:
        break;
    }
    return result;
}

QRect DeskStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == SE_LineEditContents && frame != nullptr && frame->lineWidth > 0)
        return rect.adjusted(step, 0, -step, 0);
    return rect;
}

QRect DeskStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    const bool isField = (control == CC_ComboBox && part == SC_ComboBoxEditField) ||
                         (control == CC_SpinBox && part == SC_SpinBoxEditField);
    if (!isField)
        return rect;
    return option->direction == Qt::RightToLeft ? rect.adjusted(0, 0, -step, 0)
                                                : rect.adjusted(step, 0, 0, 0);
}

void DeskStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const QColor quiet = m_theme.color(Role::QuietInk);
    switch (element) {
    case PE_IndicatorBranch:
        if (option->state & State_Children) {
            const bool isOpen = option->state & State_Open;
            const auto closed = option->direction == Qt::RightToLeft ? Direction::Left : Direction::Right;
            drawChevron(option->rect, isOpen ? Direction::Down : closed, quiet, *painter);
        }
        return;
    case PE_IndicatorArrowUp:
        return drawChevron(option->rect, Direction::Up, inkFor(*option), *painter);
    case PE_IndicatorArrowDown:
        return drawChevron(option->rect, Direction::Down, inkFor(*option), *painter);
    case PE_IndicatorArrowLeft:
        return drawChevron(option->rect, Direction::Left, inkFor(*option), *painter);
    case PE_IndicatorArrowRight:
        return drawChevron(option->rect, Direction::Right, inkFor(*option), *painter);
    case PE_IndicatorHeaderArrow:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
            const bool isDown = header->sortIndicator == QStyleOptionHeader::SortDown;
            drawChevron(option->rect, isDown ? Direction::Down : Direction::Up, quiet, *painter);
        }
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return drawCheckBox(*option, *painter);
    case PE_IndicatorRadioButton:
        return drawRadioButton(*option, *painter);
    case PE_IndicatorMenuCheckMark:
        if (option->state & State_On)
            drawCheck(option->rect, inkFor(*option), *painter);
        return;
    case PE_PanelButtonCommand:
        return drawPushButton(*option, *painter);
    case PE_PanelButtonTool:
        return drawToolButton(*option, *painter);
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame != nullptr && frame->lineWidth > 0) {
            return drawField(*option, *painter);
        }
        painter->fillRect(option->rect, option->palette.base());
        return;
    case PE_Frame:
        if (isTextArea(widget))
            return drawField(*option, *painter);
        break;
    case PE_PanelItemViewItem:
        return drawRow(*option, *painter, widget);
    case PE_PanelItemViewRow:
        // The part left of the first cell, where the branches are; the cells paint themselves.
        if (option->state & State_Selected) {
            painter->fillRect(option->rect, option->palette.highlight());
            return;
        }
        if (const auto* row = qstyleoption_cast<const QStyleOptionViewItem*>(option);
            row != nullptr && row->features.testFlag(QStyleOptionViewItem::Alternate)) {
            painter->fillRect(option->rect, option->palette.alternateBase());
        }
        return;
    case PE_IndicatorItemViewItemDrop:
        return drawDropLine(*option, *painter);
    case PE_IndicatorTabClose:
        return drawTabClose(*option, *painter);
    case PE_FrameFocusRect:
        // Fusion leaves the focus of a tab less room than its text has.
        if (qobject_cast<const QTabBar*>(widget) != nullptr) {
            QStyleOption around = *option;
            around.rect.adjust(-2 * step, -step - 1, 2 * step, step + 1);
            return drawFocus(around, *painter);
        }
        return drawFocus(*option, *painter);
    case PE_FrameStatusBarItem:
    case PE_FrameTabBarBase:
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void DeskStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element == CE_PushButtonLabel) {
        // The button that Return presses is filled with the accent, so its text changes too.
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
            (option->state & State_Enabled)) {
            QStyleOptionButton filled = *button;
            filled.palette.setColor(QPalette::ButtonText, m_theme.color(Role::AccentInk));
            QProxyStyle::drawControl(element, &filled, painter, widget);
            return;
        }
    }
    if (element == CE_Splitter)
        return drawSplitter(*option, *painter);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void DeskStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    switch (control) {
    case CC_ComboBox:
        return drawComboBox(*option, *painter, widget);
    case CC_SpinBox:
        return drawSpinBox(*option, *painter, widget);
    case CC_Slider:
        return drawSlider(*option, *painter, widget);
    default:
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

} // namespace tw::desktop::theme
