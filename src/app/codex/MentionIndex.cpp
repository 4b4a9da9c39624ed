#include "app/codex/MentionIndex.h"

#include "app/codex/BodyFilter.h"
#include "app/codex/NameOccurrences.h"
#include "core/document/ActiveText.h"
#include "core/document/markup/PlainText.h"
#include "core/timeline/TimelineEvent.h"

#include <algorithm>
#include <utility>

namespace tw::app::codex {

using core::ContentId;
using core::document::Document;
using core::document::DocumentBody;
using core::entity::Entity;
using core::foundation::IndexRange;
using core::project::Project;
using core::timeline::TimelineEvent;

namespace {

/** With more names changed than this, reading all documents once is cheaper than once for each. */
constexpr std::size_t mostRenamed = 20;

qsizetype countApart(std::vector<IndexRange> places)
{
    std::ranges::sort(
        places, {}, [](const IndexRange& place) { return std::pair(place.first, -place.count); });
    qsizetype count = 0;
    qsizetype end = 0;
    for (const IndexRange& place : places) {
        if (place.first < end)
            continue;
        ++count;
        end = place.end();
    }
    return count;
}

/** Of one that stands in no index: most texts need not be read as prose. */
qsizetype countInBody(const DocumentBody& body, const QStringList& names)
{
    const auto mayHold = [&body](const QString& name) {
        return BodyFilter(name, Qt::CaseSensitive).mayHoldText(body);
    };
    if (std::ranges::none_of(names, mayHold))
        return 0;
    return countNames(core::document::markup::plainText(body), names);
}

/** The first word of the text from a place on; empty, at the end of the text, when there is none. */
IndexRange nextWord(QStringView text, qsizetype from)
{
    qsizetype start = from;
    while (start < text.size() && !isWordCharacter(characterAt(text, start)))
        start += text[start].isHighSurrogate() ? 2 : 1;
    start = std::min(start, text.size());
    qsizetype end = start;
    while (end < text.size() && isWordCharacter(characterAt(text, end)))
        end += text[end].isHighSurrogate() ? 2 : 1;
    return {start, std::min(end, text.size()) - start};
}

/** Only what has a word can be filed under it. */
bool canBeFiled(const QString& name)
{
    return nextWord(name, 0).count > 0;
}

} // namespace

QStringList namesOf(const Entity& entity)
{
    QStringList names;
    for (const QString& name : QStringList{entity.name()} + entity.aliases()) {
        if (const QString text = name.trimmed(); !text.isEmpty())
            names.append(text);
    }
    names.removeDuplicates();
    return names;
}

qsizetype countNames(QStringView text, const QStringList& names)
{
    std::vector<IndexRange> places;
    for (const QString& name : names)
        std::ranges::move(findName(text, name), std::back_inserter(places));
    return countApart(std::move(places));
}

std::vector<MentionIndex::Mentions> MentionIndex::inDocuments(const Project& project, const Entity& entity)
{
    update(project);
    const QStringList names = namesOf(entity);
    const auto known = m_entities.find(entity.id());
    const bool isIndexed =
        known != m_entities.end() && known->second.names == names && std::ranges::all_of(names, canBeFiled);
    std::vector<Mentions> mentions;
    for (const auto& [documentId, document] : m_documents) {
        const qsizetype count =
            isIndexed ? document.counts.value(entity.id())
                      : countInBody(core::document::activeText(*project.findAs<Document>(documentId)), names);
        if (count > 0)
            mentions.push_back({documentId, count});
    }
    return mentions;
}

const std::vector<ContentId>& MentionIndex::inEvents(const Project& project, const ContentId& entityId)
{
    static const std::vector<ContentId> none;
    update(project);
    const auto events = m_events.constFind(entityId);
    return events == m_events.cend() ? none : *events;
}

void MentionIndex::update(const Project& project)
{
    if (std::exchange(m_stamp, project.changeStamp()) == project.changeStamp())
        return;
    const std::set<ContentId> renamed = updateNames(project);
    if (!renamed.empty())
        fileNames();
    updateDocuments(project, renamed);
    updateEvents(project);
}

std::set<ContentId> MentionIndex::updateNames(const Project& project)
{
    std::set<ContentId> renamed;
    std::map<ContentId, IndexedEntity> former = std::exchange(m_entities, {});
    for (const Entity* const entity : core::project::objectsOf<Entity>(project)) {
        auto known = former.extract(entity->id());
        const bool isSame = known && known.mapped().revision == entity->revision();
        IndexedEntity present{
            entity->revision(), isSame ? std::move(known.mapped().names) : namesOf(*entity)};
        if (!isSame && (!known || known.mapped().names != present.names))
            renamed.insert(entity->id());
        m_entities.emplace_hint(m_entities.end(), entity->id(), std::move(present));
    }
    for (const auto& [id, entity] : former)
        renamed.insert(id);
    return renamed;
}

void MentionIndex::fileNames()
{
    m_namesByWord.clear();
    for (const auto& [id, entity] : m_entities) {
        for (const QString& name : entity.names) {
            const IndexRange word = nextWord(name, 0);
            if (word.count > 0)
                m_namesByWord[name.sliced(word.first, word.count)].push_back({id, name, word.first});
        }
    }
}

void MentionIndex::updateDocuments(const Project& project, const std::set<ContentId>& renamed)
{
    std::map<ContentId, IndexedDocument> former = std::exchange(m_documents, {});
    for (const Document* const document : core::project::objectsOf<Document>(project)) {
        auto known = former.extract(document->id());
        IndexedDocument present{document->revision(), {}};
        const DocumentBody body = core::document::activeText(*document);
        if (!known || known.mapped().revision != present.revision || renamed.size() > mostRenamed) {
            present.counts = countsIn(core::document::markup::plainText(body));
        } else {
            present.counts = std::move(known.mapped().counts);
            for (const ContentId& id : renamed) {
                const auto entity = m_entities.find(id);
                present.counts.remove(id);
                if (entity == m_entities.end())
                    continue;
                const qsizetype count =
                    countNames(core::document::markup::plainText(body), entity->second.names);
                if (count > 0)
                    present.counts.insert(id, count);
            }
        }
        m_documents.emplace_hint(m_documents.end(), document->id(), std::move(present));
    }
}

QHash<ContentId, qsizetype> MentionIndex::countsIn(const QString& text) const
{
    QHash<ContentId, std::vector<IndexRange>> places;
    // As findName() goes on behind a match, no name overlaps itself.
    QHash<const FiledName*, qsizetype> ends;
    for (IndexRange word = nextWord(text, 0); word.count > 0; word = nextWord(text, word.end())) {
        // Unshared: the key lives as long as the question.
        const auto names =
            m_namesByWord.constFind(QString::fromRawData(text.constData() + word.first, word.count));
        if (names == m_namesByWord.cend())
            continue;
        for (const FiledName& name : *names) {
            const qsizetype start = word.first - name.wordStart;
            const qsizetype end = start + name.text.size();
            if (start < ends.value(&name, 0) || end > text.size() ||
                QStringView(text).sliced(start, name.text.size()) != name.text)
                continue;
            const bool endsAsWord = isWordCharacter(characterBefore(name.text, name.text.size()));
            if (endsAsWord && isWordCharacter(characterAt(text, end)))
                continue;
            ends.insert(&name, end);
            places[name.entityId].push_back({start, name.text.size()});
        }
    }
    QHash<ContentId, qsizetype> counts;
    for (auto entry = places.begin(); entry != places.end(); ++entry)
        counts.insert(entry.key(), countApart(std::move(entry.value())));
    return counts;
}

void MentionIndex::updateEvents(const Project& project)
{
    const std::vector<const TimelineEvent*> events = core::project::objectsOf<TimelineEvent>(project);
    std::vector<quint64> revisions;
    revisions.reserve(events.size());
    for (const TimelineEvent* const event : events)
        revisions.push_back(event->revision());
    if (std::exchange(m_eventRevisions, revisions) == revisions)
        return;
    m_events.clear();
    for (const TimelineEvent* const event : events) {
        const auto file = [this, event](const ContentId& entityId) {
            if (entityId.isNull())
                return;
            std::vector<ContentId>& filed = m_events[entityId];
            if (filed.empty() || filed.back() != event->id())
                filed.push_back(event->id());
        };
        std::ranges::for_each(event->details().participants, file);
        file(event->details().locationId);
    }
}

} // namespace tw::app::codex
