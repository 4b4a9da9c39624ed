#include "desktop/fields/ChipButton.h"

#include "desktop/icons/IconSet.h"
#include "desktop/theme/ThemeManager.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

namespace tw::desktop::fields {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestName = 48;
constexpr int smallIcon = 12;
constexpr qreal cornerRadius = 4;

} // namespace

ChipButton::ChipButton(theme::ThemeManager& themes, const icons::IconSet& icons, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_icons(icons)
    , m_name(new QToolButton(this))
    , m_remove(new QToolButton(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setSpacing(0);
    layout->addWidget(m_name);
    layout->addWidget(m_remove);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_name->setAutoRaise(true);
    m_name->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_name->setIconSize({smallIcon, smallIcon});
    m_remove->setAutoRaise(true);
    m_remove->setIcon(icons.icon(icons::Icon::Close));
    m_remove->setIconSize({smallIcon, smallIcon});
    connect(m_name, &QToolButton::clicked, this, &ChipButton::activated);
    connect(m_remove, &QToolButton::clicked, this, &ChipButton::removeRequested);
    connect(&themes, &theme::ThemeManager::themeChanged, this, &ChipButton::applyColors);
}

void ChipButton::setChip(const Chip& chip)
{
    m_chip = chip;
    const bool isLong = chip.text.size() > longestName;
    const QString shown = isLong ? chip.text.left(longestName) + u'…' : chip.text;
    m_name->setText(QString(shown).replace(u'&', u"&&"_s));
    m_name->setToolTip(chip.toolTip);
    m_name->setAccessibleName(chip.text);
    m_name->setFocusPolicy(chip.state == Chip::State::Link ? Qt::TabFocus : Qt::NoFocus);
    m_remove->setToolTip(tr("Take out “%1”").arg(chip.text));
    m_remove->setAccessibleName(m_remove->toolTip());
    applyColors();
}

void ChipButton::setReadOnly(bool readOnly)
{
    m_remove->setHidden(readOnly);
}

void ChipButton::applyColors()
{
    const bool isMissing = m_chip.state == Chip::State::Missing;
    const QColor warning = m_themes.theme().color(theme::Role::Warning);
    m_name->setIcon(isMissing ? m_icons.icon(icons::Icon::Warning, warning) : QIcon());
    QPalette colors = m_name->palette();
    const auto role = isMissing                           ? theme::Role::Warning
                      : m_chip.state == Chip::State::Link ? theme::Role::Link
                                                          : theme::Role::Ink;
    colors.setColor(QPalette::ButtonText, m_themes.theme().color(role));
    m_name->setPalette(colors);
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
