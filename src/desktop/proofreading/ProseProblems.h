#pragma once

#include "core/project/ProjectChanges.h"
#include "desktop/problems/ProblemSource.h"
#include "desktop/proofreading/EditorProofreader.h"
#include "desktop/proofreading/ProofreadingService.h"

#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <functional>
#include <map>
#include <set>

namespace tw::desktop::proofreading {

/**
 * What spelling and the rules of style find in documents. Documents are read on a thread of its own, from
 * copies, and only those that changed since.
 */
class ProseProblems final : public problems::ProblemSource
{
    Q_OBJECT

public:
    /** The parts of the desk and the service must outlive it. */
    ProseProblems(const shell::DeskContext& desk, ProofreadingService& service, QObject* parent);
    /** Ends the reading that is under way. */
    ~ProseProblems() override;

    [[nodiscard]] std::vector<problems::ProblemCategory> categories() const override;
    [[nodiscard]] QColor colorOf(const QString& categoryId) const override;
    void setObjects(const std::vector<core::ContentId>& objects) override;
    [[nodiscard]] const std::vector<problems::Problem>& problemsOf(
        const core::ContentId& object) const override;
    [[nodiscard]] bool isBusy() const override { return m_isReading; }
    void show(const core::ContentId& object, const problems::Problem& problem) override;
    [[nodiscard]] QStringList suggestions(
        const core::ContentId& object, const problems::Problem& problem) override;
    void replace(
        const core::ContentId& object, const problems::Problem& problem, const QString& suggestion) override;
    [[nodiscard]] bool canIgnore() const override { return true; }
    void ignore(const core::ContentId& object, const problems::Problem& problem) override;
    [[nodiscard]] bool hasIgnored(const core::ContentId& object) override;
    void restoreIgnored(const core::ContentId& object) override;

    /** Reads what is left at once, without waiting for a rest. */
    void finishNow();

private:
    struct Reading;

    void followChanges(const core::project::ProjectChanges& changes);
    void forgetAll();
    void readNext();
    void finish(Reading& reading);
    /** Opens the document and calls with the problem's place in its editor, when the text still has it. */
    using PlaceUse = std::function<void(EditorProofreader&, const EditorProofreader::Place&)>;
    void withPlace(const core::ContentId& object, const problems::Problem& problem, const PlaceUse& use);

    shell::DeskContext m_desk;
    ProofreadingService& m_service;
    std::vector<core::ContentId> m_objects;
    std::map<core::ContentId, std::vector<problems::Problem>> m_problems;
    /** Known, but from a text or rules of before. */
    std::set<core::ContentId> m_stale;
    QTimer m_rest;
    bool m_isReading = false;
    /** What is being read is read by rules, or from a project, of before. */
    bool m_isOutdated = false;
    std::atomic<bool> m_isEnding = false;
    /** Last, so that its thread ends before anything else goes. */
    QThreadPool m_pool;
};

} // namespace tw::desktop::proofreading
