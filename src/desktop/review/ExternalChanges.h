#pragma once

#include "app/workspace/ExternalReview.h"
#include "desktop/shell/DeskContext.h"

#include <QObject>

class QWidget;

namespace tw::desktop::review {

class DiskWatch;
class ReviewNotice;

/**
 * What the window does about changes that others made to the open project: looks when asked, asks what to
 * do, and does it; says in the status bar when something changed meanwhile. The session does the work. Boxes
 * appear above the window, which is the parent.
 */
class ExternalChanges final : public QObject
{
    Q_OBJECT

public:
    ExternalChanges(const shell::DeskContext& desk, QWidget* window);

    /** For the status bar, which takes it over. */
    [[nodiscard]] ReviewNotice* notice() const { return m_notice; }
    [[nodiscard]] DiskWatch& watch() { return *m_watch; }

    /** Looks for changes, and asks what to do about them. */
    void check();
    /** The same for a save that was refused because of them; true when it can be tried again. */
    [[nodiscard]] bool settleForSave();

signals:
    /** For the status bar. */
    void said(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] std::optional<app::workspace::ExternalReview> begin();
    /** True when the user let it happen and it did. */
    [[nodiscard]] bool settle(app::workspace::ExternalReview& review);
    [[nodiscard]] bool offerTheirs(app::workspace::ExternalReview& review);
    [[nodiscard]] bool offerMerge(app::workspace::ExternalReview& review);
    [[nodiscard]] bool resolveConflicts(app::workspace::ExternalReview& review);
    [[nodiscard]] bool pickSide(app::workspace::ExternalReview& review);
    void offerMedia(app::workspace::ExternalReview& review);
    /** Says what a step did, or what went wrong. */
    [[nodiscard]] bool finish(const core::Result<void>& result, const QString& done);

    shell::DeskContext m_desk;
    QWidget* m_window;
    DiskWatch* m_watch;
    ReviewNotice* m_notice;
};

} // namespace tw::desktop::review
