#include "desktop/shell/LinkButton.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionButton>

#include <limits>

namespace tw::desktop::shell {

namespace {

constexpr int margin = 8;
constexpr int smallestCharacters = 16;

/** Between words; anywhere where one alone, as a path, is too long. */
int wrapping(const QFont& font, const QRect& column, const QString& text)
{
    constexpr int betweenWords = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    const bool fits = QFontMetrics(font).boundingRect(column, betweenWords, text).width() <= column.width();
    return fits ? betweenWords : betweenWords | Qt::TextWrapAnywhere;
}

int wrappedHeight(const QFont& font, const QRect& column, const QString& text)
{
    return QFontMetrics(font).boundingRect(column, wrapping(font, column, text), text).height();
}

} // namespace

LinkButton::LinkButton(const QString& title, const QString& description, QWidget* parent)
    : QAbstractButton(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setText(title);
    setDescription(description);
}

void LinkButton::setDescription(const QString& description)
{
    m_description = description;
    setAccessibleDescription(description);
    updateGeometry();
    update();
}

QFont LinkButton::titleFont() const
{
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    return bold;
}

int LinkButton::iconWidth() const
{
    return fontMetrics().height();
}

QRect LinkButton::textColumn(int width) const
{
    const int left = margin + iconWidth() + margin;
    return {left, margin, width - left - margin, std::numeric_limits<int>::max() / 2};
}

QSize LinkButton::sizeHint() const
{
    const QString title = text();
    const int textWidth = qMax(
        QFontMetrics(titleFont()).horizontalAdvance(title), fontMetrics().horizontalAdvance(m_description));
    const int width = textColumn(0).left() + textWidth + margin;
    return {width, heightForWidth(width)};
}

QSize LinkButton::minimumSizeHint() const
{
    const int width = textColumn(0).left() + fontMetrics().averageCharWidth() * smallestCharacters + margin;
    return {width, fontMetrics().height() * 2 + 2 * margin};
}

int LinkButton::heightForWidth(int width) const
{
    const QRect column = textColumn(width);
    return 2 * margin + wrappedHeight(titleFont(), column, text()) +
           wrappedHeight(font(), column, m_description);
}

void LinkButton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

void LinkButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    option.features = QStyleOptionButton::Flat;
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    if (underMouse() || isDown() || hasFocus()) {
        option.features = QStyleOptionButton::None;
        style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    }
    const int iconSize = iconWidth();
    icon().paint(&painter, QRect(margin, margin, iconSize, iconSize));
    QRect column = textColumn(width());
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setFont(titleFont());
    painter.drawText(column, wrapping(titleFont(), column, text()), text());
    column.setTop(column.top() + wrappedHeight(titleFont(), column, text()));
    painter.setFont(font());
    painter.drawText(column, wrapping(font(), column, m_description), m_description);
}

} // namespace tw::desktop::shell
