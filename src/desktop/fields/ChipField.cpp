#include "desktop/fields/ChipField.h"

#include "desktop/fields/ChipButton.h"
#include "desktop/fields/FlowLayout.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionFrame>

namespace tw::desktop::fields {

namespace {

constexpr int spacing = 4;
constexpr int smallestField = 140;
constexpr int chipHeight = 24;
constexpr int frameMargin = 3;

} // namespace

ChipField::ChipField(theme::ThemeManager& themes, const icons::IconSet& icons, Frame frame, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_icons(icons)
    , m_frame(frame)
    , m_layout(new FlowLayout(FlowLayout::LastItem::FillsItsLine, spacing, this))
    , m_edit(new QLineEdit(this))
{
    m_layout->insertWidget(0, m_edit);
    if (frame == Frame::Field)
        m_layout->setContentsMargins(frameMargin, frameMargin, frameMargin, frameMargin);
    m_edit->setFrame(false);
    m_edit->setMinimumSize(smallestField, chipHeight);
    m_edit->installEventFilter(this);
    setFocusProxy(m_edit);
}

void ChipField::setChips(const std::vector<Chip>& chips)
{
    while (m_chips.size() > chips.size()) {
        m_layout->removeWidget(m_chips.back());
        m_chips.back()->hide();
        m_chips.back()->deleteLater();
        m_chips.pop_back();
    }
    while (m_chips.size() < chips.size()) {
        const auto index = static_cast<int>(m_chips.size());
        auto* const chip = new ChipButton(m_themes, m_icons, this);
        chip->setFixedHeight(chipHeight);
        chip->setReadOnly(m_isReadOnly);
        connect(chip, &ChipButton::activated, this, [this, index] { emit chipActivated(index); });
        connect(chip, &ChipButton::removeRequested, this, [this, index] { emit removeRequested(index); });
        m_layout->insertWidget(index, chip);
        m_chips.push_back(chip);
        chip->show();
    }
    for (std::size_t index = 0; index < chips.size(); ++index) {
        if (m_chips[index]->chip() != chips[index])
            m_chips[index]->setChip(chips[index]);
    }
    // The field comes after the chips in the order of Tab.
    for (ChipButton* const chip : m_chips)
        setTabOrder(chip, m_edit);
    updateGeometry();
}

void ChipField::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_edit->setHidden(readOnly);
    for (ChipButton* const chip : m_chips)
        chip->setReadOnly(readOnly);
}

void ChipField::paintEvent(QPaintEvent*)
{
    if (m_frame == Frame::None)
        return;
    QPainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = 1;
    option.state.setFlag(QStyle::State_HasFocus, m_edit->hasFocus());
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
}

void ChipField::mousePressEvent(QMouseEvent* event)
{
    if (!m_isReadOnly)
        m_edit->setFocus(Qt::MouseFocusReason);
    QWidget::mousePressEvent(event);
}

bool ChipField::eventFilter(QObject* watched, QEvent* event)
{
    // The frame shows where the keyboard is.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::eventFilter(watched, event);
}

} // namespace tw::desktop::fields
