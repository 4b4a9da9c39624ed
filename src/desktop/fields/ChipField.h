#pragma once

#include <QIcon>
#include <QWidget>

#include <vector>

class QLineEdit;

namespace tw::desktop::icons {
class IconSet;
}
namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::fields {

class ChipButton;
class FlowLayout;

/** One thing of a list. */
struct Chip
{
    enum class State
    {
        /** Clicking it opens something. */
        Link,
        /** Just a word. */
        Plain,
        /** What it names is not there. */
        Missing,
    };

    QString text;
    QString toolTip;
    State state = State::Plain;

    friend bool operator==(const Chip&, const Chip&) = default;
};

/**
 * A list of things in lines, each with a button to take it out, and room at the end to type another one: all
 * of it one field.
 */
class ChipField final : public QWidget
{
    Q_OBJECT

public:
    enum class Frame
    {
        Field,
        /** Only the chips are seen, and what is typed. */
        None,
    };

    ChipField(theme::ThemeManager& themes, const icons::IconSet& icons, Frame frame, QWidget* parent);

    /** Chips that stay as they are keep their widgets. */
    void setChips(const std::vector<Chip>& chips);
    void setReadOnly(bool readOnly);
    [[nodiscard]] QLineEdit& lineEdit() { return *m_edit; }

signals:
    void chipActivated(int index);
    void removeRequested(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    theme::ThemeManager& m_themes;
    const icons::IconSet& m_icons;
    Frame m_frame;
    FlowLayout* m_layout;
    QLineEdit* m_edit;
    std::vector<ChipButton*> m_chips;
    bool m_isReadOnly = false;
};

} // namespace tw::desktop::fields
