#pragma once

#include "desktop/finder/FinderSource.h"

#include <QFrame>
#include <QPointer>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QListView;

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::finder {

class FinderModel;

/**
 * A line and a list over the top of a window: what is typed narrows the list, Return chooses, Escape and a
 * click elsewhere leave. The line keeps the keyboard all the while and gives it back to where it was. Hidden
 * until it is opened.
 */
class FinderPopup final : public QFrame
{
    Q_OBJECT

public:
    /** A child of the window, which it lies over. */
    FinderPopup(const theme::ThemeManager& themes, QWidget* window);
    ~FinderPopup() override;

    /** Shows what the source offers, and takes the keyboard; another one takes its place. */
    void open(FinderSource& source);
    /** The same without showing itself. */
    void fill(FinderSource& source);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /** Whether the key is the list's, or chooses or leaves. */
    [[nodiscard]] static bool isOwnKey(const QKeyEvent& event);
    void takeKey(const QKeyEvent& event);
    void refill();
    void place();
    void step(int rows);
    void stepRound(int rows);
    void choose(FinderTarget target);
    void leave();
    void followFocus(QWidget* now);
    void announceCurrent();

    QLineEdit* m_line;
    QListView* m_list;
    QLabel* m_empty;
    FinderModel* m_model;
    /** Null while nothing is shown. */
    FinderSource* m_source = nullptr;
    QPointer<QWidget> m_focusBefore;
};

} // namespace tw::desktop::finder
