#pragma once

#include "core/foundation/Id.h"
#include "core/writing/Writing.h"
#include "desktop/proofreading/ProseCheck.h"

#include <QSet>
#include <QStringList>

#include <vector>

class QSettings;

namespace tw::core::project {
class Project;
}
namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::proofreading {

/** Findings of one document that the writer does not want to hear of again, by kind and text. */
class IgnoredFindings
{
public:
    IgnoredFindings() = default;
    explicit IgnoredFindings(const QStringList& keys);

    [[nodiscard]] bool contains(ProblemKind kind, QStringView text) const;
    [[nodiscard]] bool isEmpty() const { return m_keys.isEmpty(); }
    /** Takes away the findings that are ignored. */
    void removeFrom(std::vector<ProseFinding>& findings, QStringView paragraph) const;

private:
    QSet<QString> m_keys;
};

/** What the project keeps of how the document is proofread; an empty record for one that has nothing. */
[[nodiscard]] core::writing::DocumentProofreading documentProofreading(
    const core::project::Project& project, const core::ContentId& document);

// Changes, each one named step

void setDocumentLanguages(
    shell::ProjectSession& session, const core::ContentId& document, const QStringList& languages);
/** Of very many, the oldest are forgotten. */
void ignoreFinding(
    shell::ProjectSession& session, const core::ContentId& document, ProblemKind kind, QStringView text);
void reportIgnoredFindings(shell::ProjectSession& session, const core::ContentId& document);

// What was kept in the user's settings once, of documents in whatever project

/** Puts it into the open project, for documents of it that have nothing of their own there. Gives the
 * documents of the project that the settings know. */
[[nodiscard]] std::vector<core::ContentId> adoptProofreadingFromSettings(
    shell::ProjectSession& session, const QSettings& settings);
/** For when the project that took it was saved. */
void forgetProofreadingInSettings(QSettings& settings, const std::vector<core::ContentId>& documents);

} // namespace tw::desktop::proofreading
