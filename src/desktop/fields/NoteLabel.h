#pragma once

#include <QLabel>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::fields {

/** A line beneath a control: a reading, a remark, or why something cannot be. Hidden while it is empty. */
class NoteLabel final : public QLabel
{
    Q_OBJECT

public:
    enum class Tone
    {
        Quiet,
        Warning,
        Error,
    };

    NoteLabel(theme::ThemeManager& themes, QWidget* parent);

    void setNote(const QString& text, Tone tone = Tone::Quiet);

    /** As high as the text is at the present width: a form asks for this where the text has changed. */
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    theme::ThemeManager& m_themes;
    Tone m_tone = Tone::Quiet;
};

} // namespace tw::desktop::fields
