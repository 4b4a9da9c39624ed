#include "desktop/codex/SectionHeading.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace tw::desktop::codex {

namespace {

constexpr int markSize = 16;
constexpr int spaceAbove = 16;

} // namespace

IconMark::IconMark(const QIcon& icon, QWidget* parent)
    : QWidget(parent)
    , m_icon(icon)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize IconMark::sizeHint() const
{
    return {markSize, markSize};
}

void IconMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect());
}

SectionHeading::SectionHeading(const QIcon& icon, const QString& title, QWidget* parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_title(new QLabel(title, this))
{
    m_layout->setContentsMargins(0, spaceAbove, 0, 0);
    m_layout->addWidget(new IconMark(icon, this));
    m_layout->addWidget(m_title);
    m_layout->addStretch();
    QFont font = m_title->font();
    font.setWeight(QFont::DemiBold);
    m_title->setFont(font);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setForegroundRole(QPalette::PlaceholderText);
}

void SectionHeading::setTitle(const QString& title)
{
    m_title->setText(title);
}

QString SectionHeading::title() const
{
    return m_title->text();
}

void SectionHeading::addTrailing(QWidget* widget)
{
    m_layout->addWidget(widget);
}

} // namespace tw::desktop::codex
