#pragma once

#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "core/project/Project.h"

#include <QHash>
#include <QStringList>

#include <map>
#include <set>
#include <vector>

namespace tw::app::codex {

/** The names that an entity goes by: its own and its aliases, without blanks around and none empty. */
[[nodiscard]] QStringList namesOf(const core::entity::Entity& entity);

/**
 * How often one of the names stands in the prose as whole words, in this case of letters. Where names
 * overlap, the first and then the longest counts: "Captain Marda" is one mention although both words are
 * names as well.
 */
[[nodiscard]] qsizetype countNames(QStringView text, const QStringList& names);

/**
 * Where the entities of a project are mentioned, so that one answer about an entity need not read the whole
 * manuscript. Made at the first question, afterwards only what changed is read again; a question costs next
 * to nothing while nothing changed. May be asked about one project after another. Main thread.
 */
class MentionIndex
{
public:
    struct Mentions
    {
        core::ContentId documentId;
        qsizetype count = 0;
    };

    /** By document id; the texts are those that documents show now. */
    [[nodiscard]] std::vector<Mentions> inDocuments(
        const core::project::Project& project, const core::entity::Entity& entity);
    /** The timeline events that it takes part in or that happen there, by id. Of any entity, a library's too.
     */
    [[nodiscard]] const std::vector<core::ContentId>& inEvents(
        const core::project::Project& project, const core::ContentId& entityId);

private:
    struct IndexedEntity
    {
        quint64 revision = 0;
        QStringList names;
    };
    struct IndexedDocument
    {
        quint64 revision = 0;
        QHash<core::ContentId, qsizetype> counts;
    };
    /** A name, filed under its first word. */
    struct FiledName
    {
        core::ContentId entityId;
        QString text;
        qsizetype wordStart = 0;
    };

    void update(const core::project::Project& project);
    /** The entities that go by other names now. */
    [[nodiscard]] std::set<core::ContentId> updateNames(const core::project::Project& project);
    void fileNames();
    void updateDocuments(const core::project::Project& project, const std::set<core::ContentId>& renamed);
    void updateEvents(const core::project::Project& project);
    [[nodiscard]] QHash<core::ContentId, qsizetype> countsIn(const QString& text) const;

    quint64 m_stamp = 0;
    std::map<core::ContentId, IndexedEntity> m_entities;
    QHash<QString, std::vector<FiledName>> m_namesByWord;
    std::map<core::ContentId, IndexedDocument> m_documents;
    std::vector<quint64> m_eventRevisions;
    QHash<core::ContentId, std::vector<core::ContentId>> m_events;
};

} // namespace tw::app::codex
