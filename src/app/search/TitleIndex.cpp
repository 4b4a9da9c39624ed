#include "app/search/TitleIndex.h"

#include "core/content/ObjectName.h"
#include "core/entity/Entity.h"
#include "core/project/Project.h"

#include <algorithm>
#include <tuple>

namespace tw::app::search {

using core::ContentId;
using core::content::ContentObject;
using core::project::Project;

namespace {

constexpr qint32 inProject = -1;

/**
 * One number by which hits are compared, so that thousands of them are sorted at no cost: the rank, whether
 * it is of a library, whether it is an alias, how long it is, and the entry's position.
 */
constexpr int rankShift = 56;
constexpr int libraryShift = 55;
constexpr int aliasShift = 54;
constexpr int lengthShift = 32;
constexpr quint64 longest = (quint64(1) << (aliasShift - lengthShift)) - 1;
constexpr quint64 positionMask = (quint64(1) << lengthShift) - 1;

NameRank rankIn(quint64 key)
{
    return static_cast<NameRank>(key >> rankShift);
}

} // namespace

TitleIndex::TitleIndex(TitleScope scope, const Project& project, const std::vector<const Project*>& libraries)
    : m_scope(std::move(scope))
{
    m_entries.reserve(project.objects().size());
    for (const auto& [id, object] : project.objects())
        add(*object, inProject);
    std::set<ContentId> taken;
    for (std::size_t library = 0; library < libraries.size(); ++library) {
        for (const auto& [id, object] : libraries[library]->objects()) {
            if (!project.contains(id) && taken.insert(id).second)
                add(*object, static_cast<qint32>(library));
        }
    }
}

void TitleIndex::add(const ContentObject& object, qint32 library)
{
    const bool isForAudience = m_scope.audience.isEmpty() || object.isVisibleTo(m_scope.audience);
    if (!isForAudience || !m_scope.kinds.contains(object.kind()))
        return;
    const auto addName = [&](const QString& name, const QString& alias) {
        FoldedName folded(name);
        if (!folded.text.isEmpty())
            m_entries.push_back({object.id(), library, alias, std::move(folded)});
    };
    addName(core::content::objectName(object), {});
    if (const auto* const entity = core::content::objectCast<core::entity::Entity>(&object)) {
        for (const QString& alias : entity->aliases())
            addName(alias, alias);
    }
}

void TitleIndex::update(const Project& project, const std::set<ContentId>& moved)
{
    if (moved.empty())
        return;
    std::erase_if(m_entries, [&moved](const Entry& entry) { return moved.contains(entry.id); });
    for (const ContentId& id : moved) {
        if (const ContentObject* const object = project.find(id))
            add(*object, inProject);
    }
}

std::vector<TitleHit> TitleIndex::find(const NameQuery& query, qsizetype most) const
{
    if (query.isEmpty())
        return {};
    std::vector<quint64> keys;
    for (std::size_t position = 0; position < m_entries.size(); ++position) {
        const Entry& entry = m_entries[position];
        const auto rank = query.rankOf(entry.name);
        if (!rank)
            continue;
        const auto length = std::min(static_cast<quint64>(entry.name.text.size()), longest);
        keys.push_back(
            static_cast<quint64>(*rank) << rankShift |
            static_cast<quint64>(entry.library != inProject) << libraryShift |
            static_cast<quint64>(!entry.alias.isNull()) << aliasShift | length << lengthShift | position);
    }
    const auto entryOf = [this](quint64 key) -> const Entry& { return m_entries[key & positionMask]; };
    const auto kept = std::min<qsizetype>(most, std::ssize(keys));
    std::ranges::partial_sort(keys, keys.begin() + kept);
    keys.resize(static_cast<std::size_t>(kept));
    // Positions say nothing to a reader.
    std::ranges::sort(keys, [&entryOf](quint64 left, quint64 right) {
        if (left >> lengthShift != right >> lengthShift)
            return left < right;
        const int texts = entryOf(left).name.text.compare(entryOf(right).name.text);
        if (texts != 0)
            return texts < 0;
        return std::tie(entryOf(left).id, entryOf(left).alias) <
               std::tie(entryOf(right).id, entryOf(right).alias);
    });
    std::vector<TitleHit> hits;
    std::set<ContentId> found;
    for (const quint64 key : keys) {
        const Entry& entry = entryOf(key);
        if (found.insert(entry.id).second)
            hits.push_back({entry.id, entry.library, entry.alias, rankIn(key)});
    }
    return hits;
}

} // namespace tw::app::search
