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

/** A list of things in lines, each with a button to take it out, and a field at the end to add one. */
class ChipField final : public QWidget
{
    Q_OBJECT

public:
    ChipField(theme::ThemeManager& themes, const icons::IconSet& icons, QWidget* parent);

    /** Chips that stay as they are keep their widgets. */
    void setChips(const std::vector<Chip>& chips);
    void setReadOnly(bool readOnly);
    [[nodiscard]] QLineEdit& lineEdit() { return *m_edit; }

signals:
    void chipActivated(int index);
    void removeRequested(int index);

private:
    theme::ThemeManager& m_themes;
    const icons::IconSet& m_icons;
    FlowLayout* m_layout;
    QLineEdit* m_edit;
    std::vector<ChipButton*> m_chips;
    bool m_isReadOnly = false;
};

} // namespace tw::desktop::fields
