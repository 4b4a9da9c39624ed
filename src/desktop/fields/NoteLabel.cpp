#include "desktop/fields/NoteLabel.h"

#include "desktop/theme/ThemeManager.h"

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
    connect(&themes, &theme::ThemeManager::themeChanged, this, &NoteLabel::applyColor);
}

void NoteLabel::setNote(const QString& text, Tone tone)
{
    m_tone = tone;
    setText(text);
    applyColor();
    setVisible(!text.isEmpty());
}

void NoteLabel::applyColor()
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, m_themes.theme().color(roleOf(m_tone)));
    setPalette(colors);
}

} // namespace tw::desktop::fields
