#pragma once

#include "app/timeline/ContinuityConflict.h"
#include "core/project/ProjectChanges.h"
#include "desktop/problems/ProblemSource.h"
#include "desktop/shell/DeskContext.h"

#include <QThreadPool>
#include <QTimer>

#include <map>

namespace tw::desktop::continuity {

/**
 * What cannot be in the story's time, and the continuity rules that do not hold, by the first event or entity
 * of each conflict. Checked aside when the writer rests after a change that may matter, or when asked.
 */
class ContinuityProblems final : public problems::ProblemSource
{
    Q_OBJECT

public:
    /** The parts of the desk must outlive it. */
    ContinuityProblems(const shell::DeskContext& desk, QObject* parent);
    /** Waits for the check that is under way. */
    ~ContinuityProblems() override;

    [[nodiscard]] std::vector<problems::ProblemCategory> categories() const override;
    [[nodiscard]] QColor colorOf(const QString& categoryId) const override;
    [[nodiscard]] std::vector<core::ContentId> ownObjects() const override { return m_order; }
    /** The whole story is checked whatever is listed. */
    void setObjects(const std::vector<core::ContentId>& /*objects*/) override {}
    [[nodiscard]] const std::vector<problems::Problem>& problemsOf(
        const core::ContentId& object) const override;
    [[nodiscard]] bool isBusy() const override { return m_isChecking; }
    void show(const core::ContentId& object, const problems::Problem& problem) override;
    [[nodiscard]] QStringList suggestions(
        const core::ContentId& object, const problems::Problem& problem) override;
    void replace(
        const core::ContentId& object, const problems::Problem& problem, const QString& suggestion) override;
    [[nodiscard]] bool canIgnore() const override { return false; }
    void ignore(const core::ContentId& object, const problems::Problem& problem) override;
    [[nodiscard]] bool hasIgnored(const core::ContentId& object) override;
    void restoreIgnored(const core::ContentId& object) override;

    /** Begins a check at once, or has the one under way followed by another. */
    void checkNow();
    /** The same, and waits for the result. */
    void finishNow();

signals:
    /** A check came to its end. */
    void checked(qsizetype conflicts);

private:
    using ConflictList = std::vector<app::timeline::ContinuityConflict>;

    void followChanges(const core::project::ProjectChanges& changes);
    [[nodiscard]] bool mayMatter(const core::project::ProjectChanges& changes) const;
    void list(const ConflictList& conflicts);

    shell::DeskContext m_desk;
    /** Null for conflicts that no object stands for. */
    std::map<core::ContentId, std::vector<problems::Problem>> m_problems;
    /** The keys, as the conflicts come. */
    std::vector<core::ContentId> m_order;
    QTimer m_rest;
    bool m_isChecking = false;
    /** Something changed since the check under way began. */
    bool m_isStale = false;
    /** Last, so that its thread ends before anything else goes. */
    QThreadPool m_pool;
};

} // namespace tw::desktop::continuity
