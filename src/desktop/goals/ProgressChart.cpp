#include "desktop/goals/ProgressChart.h"

#include "desktop/theme/ThemeManager.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace tw::desktop::goals {

using theme::Role;

namespace {

constexpr int gap = 8;
constexpr qreal barShare = 0.7;
constexpr qreal corner = 2;

} // namespace

ProgressChart::ProgressChart(const theme::ThemeManager& themes, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    describe();
}

void ProgressChart::setDays(std::vector<app::planning::DayWords> days)
{
    m_days = std::move(days);
    describe();
    update();
}

void ProgressChart::setDailyTarget(qint64 words)
{
    m_dailyTarget = std::max<qint64>(0, words);
    update();
}

void ProgressChart::describe()
{
    qint64 total = 0;
    for (const app::planning::DayWords& day : m_days)
        total += day.words;
    setAccessibleName(tr("Words of the last days"));
    const QString words = tr("%Ln words", nullptr, static_cast<int>(total));
    setAccessibleDescription(tr("%1 in %Ln days", nullptr, static_cast<int>(m_days.size())).arg(words));
}

QSize ProgressChart::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 64, fontMetrics().lineSpacing() * 8};
}

QRect ProgressChart::plot() const
{
    return rect().adjusted(0, gap + fontMetrics().lineSpacing(), 0, -gap - fontMetrics().lineSpacing());
}

qint64 ProgressChart::highest() const
{
    qint64 words = std::max<qint64>(1, m_dailyTarget);
    for (const app::planning::DayWords& day : m_days)
        words = std::max(words, day.words);
    return words;
}

QRectF ProgressChart::barAt(std::size_t index) const
{
    const QRect place = plot();
    const qreal step = static_cast<qreal>(place.width()) / static_cast<qreal>(m_days.size());
    const qreal share =
        static_cast<qreal>(std::max<qint64>(0, m_days[index].words)) / static_cast<qreal>(highest());
    const qreal height = share * place.height();
    const QRectF bar(
        place.left() + step * (static_cast<qreal>(index) + (1 - barShare) / 2), place.bottom() + 1 - height,
        step * barShare, height);
    return layoutDirection() == Qt::RightToLeft
               ? QRectF(place.left() + place.right() + 1 - bar.right(), bar.top(), bar.width(), bar.height())
               : bar;
}

void ProgressChart::paintEvent(QPaintEvent*)
{
    if (m_days.empty())
        return;
    const theme::Theme& colors = m_themes.theme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect place = plot();
    painter.setPen(Qt::NoPen);
    for (std::size_t index = 0; index < m_days.size(); ++index) {
        const bool isReached = m_dailyTarget > 0 && m_days[index].words >= m_dailyTarget;
        painter.setBrush(colors.color(isReached ? Role::Success : Role::Accent));
        painter.drawRoundedRect(barAt(index), corner, corner);
    }
    painter.setPen(QPen(colors.color(Role::Border), 1));
    painter.drawLine(place.left(), place.bottom() + 1, place.right(), place.bottom() + 1);
    painter.setPen(colors.color(Role::QuietInk));
    const int line = fontMetrics().lineSpacing();
    const QRect foot(0, place.bottom() + gap / 2, width(), line);
    const QLocale locale;
    painter.drawText(foot, Qt::AlignLeading, locale.toString(m_days.front().day, QLocale::ShortFormat));
    painter.drawText(foot, Qt::AlignTrailing, locale.toString(m_days.back().day, QLocale::ShortFormat));
    painter.drawText(
        QRect(0, 0, width(), line), Qt::AlignLeading, tr("%Ln words", nullptr, static_cast<int>(highest())));
    if (m_dailyTarget > 0) {
        const qreal share = static_cast<qreal>(m_dailyTarget) / static_cast<qreal>(highest());
        const qreal top = place.bottom() + 1 - share * place.height();
        painter.setPen(QPen(colors.color(Role::Ink), 1, Qt::DashLine));
        painter.drawLine(QPointF(place.left(), top), QPointF(place.right(), top));
    }
}

bool ProgressChart::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    for (std::size_t index = 0; index < m_days.size(); ++index) {
        const QRectF bar = barAt(index);
        if (help->pos().x() < bar.left() || help->pos().x() > bar.right())
            continue;
        const QString day = QLocale().toString(m_days[index].day, QLocale::LongFormat);
        QToolTip::showText(
            help->globalPos(), tr("%1: %Ln words", nullptr, static_cast<int>(m_days[index].words)).arg(day),
            this);
        return true;
    }
    QToolTip::hideText();
    return true;
}

} // namespace tw::desktop::goals
