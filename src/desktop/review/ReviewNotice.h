#pragma once

#include "desktop/review/DiskWatch.h"

#include <QWidget>

class QLabel;
class QToolButton;

namespace tw::desktop::icons {
class IconSet;
}

namespace tw::desktop::review {

/** The line in the status bar that says that others changed the project, with a button; hidden otherwise. */
class ReviewNotice final : public QWidget
{
    Q_OBJECT

public:
    ReviewNotice(const icons::IconSet& icons, QWidget* parent);

    /** Shows what was found; hides when that is nothing. */
    void setFindings(const DiskFindings& findings);

signals:
    void reviewRequested();

private:
    QLabel* m_text;
    QToolButton* m_button;
};

} // namespace tw::desktop::review
