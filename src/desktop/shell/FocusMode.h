#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QMainWindow;

namespace tw::desktop::manuscript {
class DocumentPage;
}

namespace tw::desktop::shell {

class DockLayout;
class WorkArea;

/**
 * Text only: panels, bars and tabs step aside, paragraphs other than the present one become quiet, and the
 * line that is written stays in its place. Nothing of it is remembered.
 */
class FocusMode final : public QObject
{
    Q_OBJECT

public:
    FocusMode(QMainWindow& window, DockLayout& docks, WorkArea& work);

    [[nodiscard]] bool isOn() const { return m_isOn; }
    void setOn(bool isOn);
    /** What is shown now; null when it is no text. */
    void setPage(manuscript::DocumentPage* page);

signals:
    void changed(bool isOn);

private:
    void dress(bool isFocused);

    QMainWindow& m_window;
    DockLayout& m_docks;
    WorkArea& m_work;
    /** Escape leaves, and belongs to others while the mode is off. */
    QAction* m_leave;
    QPointer<manuscript::DocumentPage> m_page;
    bool m_isOn = false;
};

} // namespace tw::desktop::shell
