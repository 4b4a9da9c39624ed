#include "desktop/fields/ChipButton.h"

#include "desktop/icons/IconSet.h"
#include "desktop/theme/ThemeManager.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolButton>

namespace tw::desktop::fields {

namespace {

constexpr int longestName = 48;
constexpr int smallIcon = 12;
constexpr int namePadding = 8;
constexpr qreal cornerRadius = 4;

} // namespace

ChipName::ChipName(theme::ThemeManager& themes, const icons::IconSet& icons, QWidget* parent)
    : QAbstractButton(parent)
    , m_themes(themes)
    , m_icons(icons)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setAttribute(Qt::WA_Hover);
}

void ChipName::setState(Chip::State state)
{
    m_state = state;
    const bool isLink = state == Chip::State::Link;
    setFocusPolicy(isLink ? Qt::TabFocus : Qt::NoFocus);
    setCursor(isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
    updateGeometry();
    update();
}

QSize ChipName::sizeHint() const
{
    const int mark = hasMark() ? smallIcon + namePadding / 2 : 0;
    return {fontMetrics().horizontalAdvance(text()) + mark + 2 * namePadding, fontMetrics().height()};
}

QColor ChipName::color() const
{
    const theme::Theme& theme = m_themes.theme();
    switch (m_state) {
    case Chip::State::Link:
        return theme.color(theme::Role::Link);
    case Chip::State::Missing:
        return theme.color(theme::Role::Warning);
    case Chip::State::Plain:
        break;
    }
    return theme.color(theme::Role::Ink);
}

void ChipName::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QRect place = rect().adjusted(namePadding, 0, -namePadding, 0);
    if (hasMark()) {
        QRect mark(place.left(), 0, smallIcon, smallIcon);
        mark.moveTop((height() - smallIcon) / 2);
        m_icons.icon(icons::Icon::Warning, color())
            .paint(&painter, QStyle::visualRect(layoutDirection(), rect(), mark));
        place.adjust(smallIcon + namePadding / 2, 0, 0, 0);
    }
    painter.setPen(color());
    painter.drawText(
        QStyle::visualRect(layoutDirection(), rect(), place), Qt::AlignVCenter | Qt::AlignLeading, text());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

ChipButton::ChipButton(theme::ThemeManager& themes, const icons::IconSet& icons, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_name(new ChipName(themes, icons, this))
    , m_remove(new QToolButton(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 2, 0);
    layout->setSpacing(0);
    layout->addWidget(m_name);
    layout->addWidget(m_remove);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_remove->setAutoRaise(true);
    m_remove->setIcon(icons.icon(icons::Icon::Close));
    m_remove->setIconSize({smallIcon, smallIcon});
    connect(m_name, &QAbstractButton::clicked, this, &ChipButton::activated);
    connect(m_remove, &QToolButton::clicked, this, &ChipButton::removeRequested);
}

void ChipButton::setChip(const Chip& chip)
{
    m_chip = chip;
    m_name->setText(chip.text.size() > longestName ? chip.text.left(longestName) + u'…' : chip.text);
    m_name->setToolTip(chip.toolTip);
    m_name->setAccessibleName(chip.text);
    m_name->setState(chip.state);
    m_remove->setToolTip(tr("Remove “%1”").arg(chip.text));
    m_remove->setAccessibleName(m_remove->toolTip());
}

void ChipButton::setReadOnly(bool readOnly)
{
    m_remove->setHidden(readOnly);
}

void ChipButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_themes.theme().color(theme::Role::Hover));
    painter.drawRoundedRect(rect(), cornerRadius, cornerRadius);
}

} // namespace tw::desktop::fields
