#include "desktop/fields/NoteLabel.h"

#include "desktop/theme/ThemeManager.h"

#include <QPainter>
#include <QResizeEvent>
#include <QStyle>

namespace tw::desktop::fields {

namespace {

theme::Role roleOf(NoteLabel::Tone tone)
{
    switch (tone) {
    case NoteLabel::Tone::Warning:
        return theme::Role::Warning;
    case NoteLabel::Tone::Error:
        return theme::Role::Error;
    case NoteLabel::Tone::Quiet:
        break;
    }
    return theme::Role::QuietInk;
}

} // namespace

NoteLabel::NoteLabel(theme::ThemeManager& themes, QWidget* parent)
    : QLabel(parent)
    , m_themes(themes)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    hide();
    connect(&themes, &theme::ThemeManager::themeChanged, this, [this] { update(); });
}

void NoteLabel::setNote(const QString& text, Tone tone)
{
    m_tone = tone;
    setText(text);
    update();
    setVisible(!text.isEmpty());
}

QSize NoteLabel::sizeHint() const
{
    return {QLabel::sizeHint().width(), heightForWidth(width())};
}

QSize NoteLabel::minimumSizeHint() const
{
    return {QLabel::minimumSizeHint().width(), heightForWidth(width())};
}

void NoteLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

void NoteLabel::paintEvent(QPaintEvent*)
{
    // Painted here, for a palette of one's own does not survive the style sheet whenever a parent changes.
    QPainter painter(this);
    painter.setPen(m_themes.theme().color(roleOf(m_tone)));
    const auto alignment = QStyle::visualAlignment(layoutDirection(), this->alignment());
    painter.drawText(contentsRect(), static_cast<int>(alignment) | Qt::TextWordWrap, text());
}

} // namespace tw::desktop::fields
