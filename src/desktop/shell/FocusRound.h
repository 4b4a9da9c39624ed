#pragma once

class QMainWindow;
class QWidget;

namespace tw::desktop::shell {

class DockLayout;
class WorkArea;

enum class FocusStep
{
    Next,
    Previous,
};

/**
 * The round the keyboard makes through the window: panels, texts and strips that can be seen, as they stand
 * on the screen. Each is entered where it was left.
 */
class FocusRound
{
public:
    /** `center` shows the work area, or what stands in its place. All must outlive the round. */
    FocusRound(const QMainWindow& window, const DockLayout& docks, QWidget& center, const WorkArea& work);

    /** From where the keyboard is; from anywhere else to the current page. */
    void step(FocusStep step) const;

private:
    const QMainWindow& m_window;
    const DockLayout& m_docks;
    QWidget& m_center;
    const WorkArea& m_work;
};

} // namespace tw::desktop::shell
