#include "core/project/Project.h"

#include <algorithm>
#include <utility>

namespace tw::core::project {

using content::ContentObject;

namespace {

/** Revisions of one stay in the project never meet those of another: each starts its own range. */
constexpr quint64 revisionRangeBits = 32;

bool hasSameObjects(const Project::ObjectMap& left, const Project::ObjectMap& right)
{
    return std::ranges::equal(left, right, [](const auto& leftEntry, const auto& rightEntry) {
        return content::isSameData(*leftEntry.second, *rightEntry.second);
    });
}

} // namespace

Project::Project() = default;
Project::~Project() = default;

const ContentObject* Project::find(const ContentId& id) const
{
    const auto entry = m_objects.find(id);
    return entry == m_objects.end() ? nullptr : entry->second.get();
}

ContentObject* Project::findForEdit(const ContentId& id)
{
    const auto entry = m_objects.find(id);
    return entry == m_objects.end() ? nullptr : entry->second.get();
}

std::span<ContentObject* const> Project::objectsOfKind(content::ContentKind kind) const
{
    return m_byKind.at(static_cast<std::size_t>(kind));
}

std::vector<ContentObject*>& Project::kindList(content::ContentKind kind)
{
    return m_byKind.at(static_cast<std::size_t>(kind));
}

void Project::add(std::unique_ptr<ContentObject> object)
{
    if (object && object->visibleTo().empty())
        object->setVisibleTo(m_defaultAudiences);
    insert(std::move(object));
}

void Project::insert(std::unique_ptr<ContentObject> object)
{
    Q_ASSERT(object && !contains(object->id()));
    ContentObject* const inserted = object.get();
    // Revisions tell states of an object apart in all projects of the process, not in this one alone.
    inserted->enterProject(content::ChangeNotes::drawStamp() << revisionRangeBits, &m_notes);
    m_objects.emplace_hint(m_objects.end(), inserted->id(), std::move(object));

    auto& sameKind = kindList(inserted->kind());
    const auto place = sameKind.empty() || sameKind.back()->id() < inserted->id()
                           ? sameKind.end()
                           : std::ranges::lower_bound(sameKind, inserted->id(), {}, &ContentObject::id);
    sameKind.insert(place, inserted);

    m_changes.removed.erase(inserted->id());
    m_changes.added.insert(m_changes.added.end(), inserted->id());
    m_notes.noteMove(inserted->id());
}

const NameIndex& Project::names() const
{
    if (!m_notes.hasIndex) {
        m_notes.hasIndex = true;
        for (const auto& [id, object] : m_objects)
            m_names.update(id, object.get());
    }
    for (const ContentId& id : std::exchange(m_notes.unindexed, {}))
        m_names.update(id, find(id));
    return m_names;
}

std::unique_ptr<ContentObject> Project::take(ContentId id)
{
    // A copy: the caller may well have found the id among the objects.
    const auto entry = m_objects.find(id);
    if (entry == m_objects.end())
        return nullptr;
    std::unique_ptr<ContentObject> object = std::move(entry->second);
    m_objects.erase(entry);
    auto& sameKind = kindList(object->kind());
    sameKind.erase(std::ranges::lower_bound(sameKind, id, {}, &ContentObject::id));

    object->leaveProject();
    m_changes.added.erase(id);
    m_notes.unannounced.erase(id);
    m_notes.noteMove(id);
    m_changes.removed.insert(id);
    return object;
}

taxonomy::Taxonomy& Project::taxonomyForEdit()
{
    m_changes.isTaxonomyChanged = true;
    return m_taxonomy;
}

void Project::setPinned(const ContentId& id, bool on)
{
    if (on)
        m_pinned.insert(id);
    else
        m_pinned.erase(id);
}

ProjectChanges Project::takeChanges()
{
    ProjectChanges changes = std::exchange(m_changes, {});
    changes.changed = std::exchange(m_notes.unannounced, {});
    return changes;
}

bool operator==(const Project& left, const Project& right)
{
    return hasSameObjects(left.m_objects, right.m_objects) && left.m_taxonomy == right.m_taxonomy &&
           left.m_name == right.m_name && left.m_pinned == right.m_pinned &&
           left.m_audiences == right.m_audiences && left.m_defaultAudiences == right.m_defaultAudiences &&
           left.m_savedSearches == right.m_savedSearches &&
           left.m_entityTemplates == right.m_entityTemplates &&
           left.m_propertyMigration == right.m_propertyMigration &&
           left.m_plotThreads == right.m_plotThreads && left.m_beatSheet == right.m_beatSheet &&
           left.m_continuityRules == right.m_continuityRules && left.m_timelineEras == right.m_timelineEras &&
           left.m_timelineMarkers == right.m_timelineMarkers &&
           left.m_timelineBookmarks == right.m_timelineBookmarks &&
           left.m_timelineView == right.m_timelineView &&
           left.m_timelineViewPresets == right.m_timelineViewPresets &&
           left.m_libraryMounts == right.m_libraryMounts && left.m_writingLog == right.m_writingLog &&
           left.m_writingGoal == right.m_writingGoal && left.m_proofreading == right.m_proofreading &&
           left.m_calendar == right.m_calendar && left.m_reckonings == right.m_reckonings;
}

} // namespace tw::core::project
