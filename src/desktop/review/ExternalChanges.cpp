#include "desktop/review/ExternalChanges.h"

#include "desktop/review/DiskWatch.h"
#include "desktop/review/ResolveDialog.h"
#include "desktop/review/ReviewNotice.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"

#include <QEvent>

namespace tw::desktop::review {

using app::workspace::ExternalReview;
using app::workspace::ReviewVerdict;
using shell::Settlement;

namespace {

QString title()
{
    return ExternalChanges::tr("External Changes");
}

} // namespace

ExternalChanges::ExternalChanges(const shell::DeskContext& desk, QWidget* window)
    : QObject(window)
    , m_desk(desk)
    , m_window(window)
    , m_watch(new DiskWatch(desk.session, this))
    , m_notice(new ReviewNotice(desk.icons, window))
{
    connect(m_watch, &DiskWatch::looked, m_notice, &ReviewNotice::setFindings);
    connect(m_notice, &ReviewNotice::reviewRequested, this, &ExternalChanges::check);
    // A save or a reload settles what was found before.
    connect(&desk.session, &shell::ProjectSession::saveStateChanged, m_watch, &DiskWatch::lookSoon);
    connect(
        &desk.session, &shell::ProjectSession::changed, this,
        [this](const core::project::ProjectChanges& changes) {
            if (changes.isEverything)
                m_notice->setFindings({});
        });
    window->installEventFilter(this);
}

bool ExternalChanges::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        m_watch->lookSoon();
    return QObject::eventFilter(watched, event);
}

std::optional<ExternalReview> ExternalChanges::begin()
{
    auto review = m_desk.session.beginReview();
    if (review)
        return std::move(review).value();
    // That it was never saved is no failure, just an answer.
    if (m_desk.session.workspace().hasPath())
        shell::tell(m_window, title(), review.message());
    else
        emit said(review.message());
    return std::nullopt;
}

void ExternalChanges::check()
{
    std::optional<ExternalReview> review = begin();
    if (!review)
        return;
    if (review->verdict() != ReviewVerdict::Unchanged) {
        static_cast<void>(settle(*review));
        return;
    }
    m_notice->setFindings({});
    if (review->changedMediaCount() > 0)
        offerMedia(*review);
    else
        emit said(tr("No external changes — the project on disk matches what you have open."));
}

bool ExternalChanges::settleForSave()
{
    std::optional<ExternalReview> review = begin();
    return review && settle(*review);
}

bool ExternalChanges::settle(ExternalReview& review)
{
    switch (review.verdict()) {
    case ReviewVerdict::Unchanged:
        return true;
    case ReviewVerdict::OnlyTheirs:
        return offerTheirs(review);
    case ReviewVerdict::Mergeable:
        return offerMerge(review);
    case ReviewVerdict::Conflicts:
        return resolveConflicts(review);
    case ReviewVerdict::NoWayTogether:
        return pickSide(review);
    }
    return false;
}

bool ExternalChanges::offerTheirs(ExternalReview& review)
{
    const QString text =
        tr("%n project file(s) changed outside Vellory since you opened it, and you have no "
           "unsaved edits here. Load the on-disk version now?",
           nullptr, static_cast<int>(review.changedFileCount()));
    return shell::ask(m_window, {title(), text, {{tr("Load On-Disk Version")}}}) &&
           finish(
               m_desk.session.settle(review, Settlement::TakeTheirs),
               tr("Loaded the on-disk version of the project."));
}

bool ExternalChanges::offerMerge(ExternalReview& review)
{
    const QString text =
        tr("%n file(s) changed outside Vellory and can be merged with your unsaved edits here. Merge and "
           "reload now? Your current project is backed up first.",
           nullptr, static_cast<int>(review.changedFileCount()));
    return shell::ask(m_window, {title(), text, {{tr("Merge and Reload")}}}) &&
           finish(
               m_desk.session.settle(review, Settlement::ApplyMerge),
               tr("Merged external changes into the project."));
}

bool ExternalChanges::resolveConflicts(ExternalReview& review)
{
    ResolveDialog dialog(m_desk, review.merge(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    for (const auto& [path, resolution] : dialog.resolutions())
        review.resolve(path, resolution);
    return finish(
        m_desk.session.settle(review, Settlement::ApplyMerge),
        tr("Resolved external changes and reloaded the project."));
}

bool ExternalChanges::pickSide(ExternalReview& review)
{
    enum Side : qsizetype
    {
        Theirs,
        Mine,
    };
    const QString text =
        tr("The project changed outside Vellory since you opened it.") + u' ' +
        tr("%n of them conflict with unsaved edits here and can't be merged automatically. Take the on-disk "
           "version (discarding your unsaved edits), or keep yours (your next save overwrites the on-disk "
           "changes)?",
           nullptr, static_cast<int>(review.contestedFileCount()));
    const auto side = shell::ask(
        m_window, {title(),
                   text,
                   {{tr("Take On-Disk Version"), QMessageBox::AcceptRole},
                    {tr("Keep My Version"), QMessageBox::AcceptRole}}});
    if (!side)
        return false;
    if (*side == Theirs) {
        return finish(
            m_desk.session.settle(review, Settlement::TakeTheirs),
            tr("Loaded the on-disk version of the project."));
    }
    return finish(
        m_desk.session.settle(review, Settlement::KeepMine),
        tr("Keeping your version — your next save will overwrite the on-disk changes."));
}

void ExternalChanges::offerMedia(ExternalReview& review)
{
    const int count = static_cast<int>(review.changedMediaCount());
    if (m_desk.session.isModified()) {
        shell::inform(
            m_window, title(),
            tr("%n media file(s) in the project changed on disk (added, replaced, or removed by a co-author "
               "or sync client). Save or reopen the project to use the updated assets.",
               nullptr, count));
        return;
    }
    const QString text =
        tr("%n media file(s) in the project changed on disk (added, replaced, or removed by "
           "a co-author or sync client). Reload the project to use them?",
           nullptr, count);
    if (shell::ask(m_window, {title(), text, {{tr("Reload")}}})) {
        static_cast<void>(finish(
            m_desk.session.settle(review, Settlement::TakeTheirs),
            tr("Reloaded the project with the updated media files.")));
    }
}

bool ExternalChanges::finish(const core::Result<void>& result, const QString& done)
{
    if (!result) {
        shell::tell(m_window, title(), result.message());
        return false;
    }
    m_notice->setFindings({});
    emit said(done);
    return true;
}

} // namespace tw::desktop::review
