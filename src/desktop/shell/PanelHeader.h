#pragma once

#include <QWidget>

class QAction;
class QHBoxLayout;
class QLineEdit;
class QMenu;
class QToolButton;

namespace tw::desktop::icons {
class IconSet;
}

namespace tw::desktop::shell {

/** The one line on top of a panel: a filter, at most three actions, and a menu with the rest. */
class PanelHeader final : public QWidget
{
    Q_OBJECT

public:
    PanelHeader(const icons::IconSet& icons, const QString& filterHint, QWidget* parent);

    /** Adds a button for the action; the action stays the caller's. */
    void addAction(QAction* action);
    /** The menu behind the last button, which is shown once the menu is asked for. */
    [[nodiscard]] QMenu& menu();
    [[nodiscard]] QString filterText() const;
    void focusFilter();

signals:
    void filterChanged(const QString& text);

private:
    const icons::IconSet& m_icons;
    QHBoxLayout* m_layout;
    QLineEdit* m_filter;
    QToolButton* m_menuButton = nullptr;
};

} // namespace tw::desktop::shell
