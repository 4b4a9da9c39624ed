#include "desktop/shell/ProjectWords.h"

#include "core/document/ActiveText.h"
#include "core/document/markup/BodyWords.h"

namespace tw::desktop::shell {

using core::document::Document;
using core::document::DocumentKind;

void ProjectWords::update(const core::project::Project& project, const core::project::ProjectChanges& changes)
{
    if (changes.isEverything) {
        m_counts.clear();
        m_total = 0;
        for (const Document* document : core::project::objectsOf<Document>(project))
            count(project, document->id());
        return;
    }
    for (const auto* ids : {&changes.removed, &changes.added, &changes.changed}) {
        for (const core::ContentId& id : *ids)
            count(project, id);
    }
}

qint64 ProjectWords::ofDocument(const core::ContentId& id) const
{
    const auto entry = m_counts.find(id);
    return entry == m_counts.end() ? 0 : entry->second.words;
}

void ProjectWords::forget(const core::ContentId& id)
{
    const auto entry = m_counts.find(id);
    if (entry == m_counts.end())
        return;
    if (entry->second.belongsToManuscript)
        m_total -= entry->second.words;
    m_counts.erase(entry);
}

void ProjectWords::count(const core::project::Project& project, const core::ContentId& id)
{
    forget(id);
    const auto* const document = project.findAs<Document>(id);
    if (!document)
        return;
    const Count count{
        core::document::markup::countBodyWords(core::document::activeText(*document)),
        document->documentKind() != DocumentKind::Note};
    m_counts.emplace(id, count);
    if (count.belongsToManuscript)
        m_total += count.words;
}

} // namespace tw::desktop::shell
